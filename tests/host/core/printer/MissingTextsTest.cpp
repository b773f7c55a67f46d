// Names for options whose description has none in the user's language.
#include "MissingTexts.hpp"

#include "PrinterOptions.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <future>
#include <regex>

namespace {

using namespace imageposition;
using namespace imageposition::test;

class MissingTexts : public testing::Test {
protected:
  /// In that language, to which a thread that has asked libcups for nothing yet goes over.
  static void in(const char *language, const std::function<void()> &work) {
    const char *const variable = std::getenv("LC_MESSAGES");
    const std::string before = variable != nullptr ? variable : "";
    setenv("LC_MESSAGES", language, 1);
    std::async(std::launch::async, work).get();
    if (before.empty())
      unsetenv("LC_MESSAGES");
    else
      setenv("LC_MESSAGES", before.c_str(), 1);
  }

  static PrinterOption optionIn(const std::string &file, const char *keyword) {
    auto printer = PrinterDescription::fromFile(file);
    PrintSettingsStore job;
    return PrinterOptions(printer, job).find(keyword).value();
  }

  /// The driverless printer's description as CUPS would generate it in that language.
  std::string describedIn(const std::string &language) const {
    return folder_.write(language + ".ppd",
                         std::regex_replace(contentOf(DRIVERLESS_PPD), std::regex("\n\\*C\\."),
                                            "\n*" + language + "."));
  }

private:
  TemporaryFolder folder_;
};

TEST_F(MissingTexts, AreReplacedByThoseOfCupsInEnglish) {
  for (const char *language : {"en", "de", "ja", "zh_CN"})
    in(language, [] {
      EXPECT_EQ(optionIn(DRIVERLESS_PPD, "cupsPrintQuality").text, "Print Quality");
      const PrinterOption duplex = optionIn(DRIVERLESS_PPD, "Duplex");
      EXPECT_EQ(duplex.text, "2-Sided Printing");
      EXPECT_EQ(duplex.textOf("None"), "Off (1-Sided)");
      EXPECT_EQ(duplex.textOf("DuplexNoTumble"), "Long-Edge (Portrait)");
    });
}

TEST_F(MissingTexts, AreReplacedByAnotherLanguageWithoutEnglish) {
  const std::string file = describedIn("it");
  in("de", [&] {
    EXPECT_EQ(optionIn(file, "Duplex").text, "2-Sided Printing");
    EXPECT_EQ(optionIn(file, "Duplex").textOf("None"), "Off (1-Sided)");
  });
}

TEST_F(MissingTexts, AreReplacedByEnglishBeforeOtherLanguages) {
  const TemporaryFolder folder;
  const std::string file =
      folder.write("both.ppd", std::regex_replace(contentOf(describedIn("it")),
                                                  std::regex("\\*it.Translation Duplex/.*\n"),
                                                  "*it.Translation Duplex/Fronte-retro: \"\"\n"
                                                  "*C.Translation Duplex/2-Sided: \"\"\n"
                                                  "*fr.Translation Duplex/Recto-verso: \"\"\n"));
  in("de", [&] { EXPECT_EQ(optionIn(file, "Duplex").text, "2-Sided"); });
  in("it", [&] { EXPECT_EQ(optionIn(file, "Duplex").text, "Fronte-retro"); });
  in("fr_CA", [&] { EXPECT_EQ(optionIn(file, "Duplex").text, "Recto-verso"); });
}

TEST_F(MissingTexts, AreReplacedByKeywordsWithoutAnyLanguage) {
  in("de", [] {
    EXPECT_EQ(optionIn(DRIVERLESS_PPD, "OutputBin").text, "OutputBin");
    EXPECT_EQ(optionIn(DRIVERLESS_PPD, "PageSize").textOf("Env10"), "Env10");
  });
}

TEST_F(MissingTexts, AreNotMissingInAMakersDescription) {
  const auto printer = PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd");
  EXPECT_FALSE(isMissingTexts(*printer.ppd()));
}

TEST_F(MissingTexts, OfAMissingFileHaveNoTranslations) {
  EXPECT_TRUE(readTranslations("/nonexistent.ppd").empty());
}

TEST(IppKeyword, IsDerivedFromTheNameThatCupsGenerated) {
  const std::pair<const char *, const char *> kNames[] = {
      {"Main", "main"},
      {"ByPassTray", "by-pass-tray"},
      {"Tray1", "tray-1"},
      {"Tray10", "tray-10"},
      {"FaceDown", "face-down"},
      {"PhotographicHighGloss", "photographic-high-gloss"},
      {"none", "none"},
      {"fold-half-z", "fold-half-z"},
      {"", ""}};
  for (const auto &[choice, keyword] : kNames)
    EXPECT_EQ(ippKeyword(choice), keyword);
}

} // namespace
