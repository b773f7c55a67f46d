// A driverless printer, which CUPS describes in the language of its process.
#include "DriverlessPrinter.hpp"
#include "PrintWindow.hpp"
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class Driverless : public DialogFixture {
protected:
  static void SetUpTestSuite() {
    printer = std::make_unique<DriverlessPrinter>();
    cups = std::make_unique<PrivateCups>("", Words{"LC_ALL=C"});
    isThere = printer->isReady() && cups->isRunning() && printer->addQueue(*cups, "photo");
  }
  static void TearDownTestSuite() {
    cups.reset();
    printer.reset();
  }
  void SetUp() override { ASSERT_TRUE(isThere) << printer->log() << cups->log(); }

  static Words speaking(const std::string &language) {
    Words environment = cups->environment();
    for (const std::string &variable : {std::string("LC_ALL"), std::string("LC_MESSAGES"),
                                        std::string("LANG=C.UTF-8"), "LANGUAGE=" + language})
      environment.push_back(variable);
    return environment;
  }
  std::string optionsIn(const std::string &language) const {
    const auto result = dialog({"--list-options", "-d", "photo"}, speaking(language));
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    return result.output;
  }
  /// Whether the window has a pop-up with that choice beside that label.
  static bool offers(const PrintWindow &window, const std::string &label,
                     const std::string &choice) {
    return window.becomes([&](const Screen &shown) {
      const Control *const popUp = shown.beside(label, "popup");
      return popUp != nullptr && popUp->text == choice;
    });
  }

  static inline std::unique_ptr<DriverlessPrinter> printer;
  static inline std::unique_ptr<PrivateCups> cups;
  static inline bool isThere = false;
};

TEST_F(Driverless, IsDescribedByCupsInTheCLocale) {
  const std::string description = contentOf(cups->root() + "/ppd/photo.ppd");
  EXPECT_THAT(description, HasSubstr("*C.Translation cupsPrintQuality/Print Quality"));
  EXPECT_THAT(description, HasSubstr("\n*OpenUI *OutputBin: PickOne"));
}

TEST_F(Driverless, ListsItsOptionsInEnglish) {
  const std::string options = optionsIn("en");
  for (const char *line :
       {"cupsPrintQuality: Print Quality\n", "Draft: Draft\n", "PageSize: Media Size\n",
        "3.5x5.Borderless: 3.5 x 5″ (Borderless)\n", "Env10: Envelope #10\n",
        "Duplex: 2-Sided Printing\n", "DuplexNoTumble: Long-Edge (Portrait)\n",
        "OutputBin: Output Tray\n", "FaceUp: Face Up\n",
        "PhotographicHighGloss: High Gloss Photo Paper\n", "Gray: Grayscale\n"})
    EXPECT_THAT(options, HasSubstr(line));
}

TEST_F(Driverless, ListsItsOptionsInGerman) {
  const std::string options = optionsIn("de");
  for (const char *line :
       {"cupsPrintQuality: Druckqualität\n", "Draft: Entwurf\n", "PageSize: Mediengröße\n",
        "3.5x5.Borderless: 3,5×5 inch (Randlos)\n", "Env10: Umschlag #10\n",
        "Duplex: Doppelseitiger Druck\n", "DuplexNoTumble: Lange Kante (Hochformat)\n",
        "OutputBin: Ausgabefach\n", "StationeryLetterhead: Briefkopf\n", "Gray: Graustufen\n"})
    EXPECT_THAT(options, HasSubstr(line));
}

TEST_F(Driverless, ListsItsOptionsAsFarAsCupsTranslatesThem) {
  const std::string options = optionsIn("ja");
  for (const char *line :
       {"PageSize: 用紙サイズ\n", "A4: A4\n", "DuplexNoTumble: 長辺給紙 (縦向き)\n",
        "Gray: グレースケール\n", "cupsPrintQuality: Print Quality\n"})
    EXPECT_THAT(options, HasSubstr(line));
}

TEST_F(Driverless, ShowsItsOptionsInTheWindow) {
  const auto open = [](const char *language, const char *title) {
    return PrintWindow({"--no-shift", "-d", "photo", sample("two-sided.pdf")}, speaking(language),
                       title);
  };
  {
    const PrintWindow window = open("en", "Print");
    EXPECT_TRUE(offers(window, "Print Quality:", "Normal"));
    EXPECT_TRUE(offers(window, "Output Tray:", "Face Up"));
  }
  const PrintWindow window = open("de", "Drucken");
  EXPECT_TRUE(offers(window, "Druckqualität:", "Normal"));
  EXPECT_TRUE(offers(window, "Medienart:", "Normalpapier"));
}

} // namespace
