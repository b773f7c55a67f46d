// Printer descriptions that others wrote, as Debian packages them, with and without the attribute
// that asks for the panel.
#include "tests/host/DialogFixture.hpp"

#include <cups/ppd.h>

#include <algorithm>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

namespace fs = std::filesystem;

constexpr std::size_t kFewest = 50;
constexpr std::size_t kFromArchive = 45;
constexpr const char *kArchive = "/usr/lib/cups/driver/foomatic-db-compressed-ppds";

struct ForeignPrinter {
  std::string name;
  std::string text;
};

std::vector<ForeignPrinter> installedFiles() {
  std::vector<ForeignPrinter> printers;
  std::error_code failed;
  for (fs::recursive_directory_iterator entry("/usr/share/ppd", failed), end;
       !failed && entry != end; entry.increment(failed))
    if (entry->path().extension() == ".ppd")
      printers.push_back({entry->path().string(), contentOf(entry->path().string())});
  return printers;
}

/// Evenly spread over the archive, so that many makers and drivers are among them.
std::vector<ForeignPrinter> fromArchive() {
  std::vector<std::string> names;
  std::istringstream list(runProcess({kArchive, "list"}).output);
  for (std::string line; std::getline(list, line);)
    if (line.size() > 2 && line.front() == '"')
      names.push_back(line.substr(1, line.find('"', 1) - 1));
  std::vector<ForeignPrinter> printers;
  for (std::size_t i = 0; i < kFromArchive && i < names.size(); i++) {
    const std::string &name = names[i * names.size() / kFromArchive];
    printers.push_back({name, runProcess({kArchive, "cat", name}).output});
  }
  return printers;
}

class ForeignPrinters : public DialogFixture {
protected:
  static void SetUpTestSuite() {
    printers = installedFiles();
    const auto more = fromArchive();
    printers.insert(printers.end(), more.begin(), more.end());
  }
  void SetUp() override {
    ASSERT_GE(printers.size(), kFewest)
        << "Install printer descriptions; on Debian: cups-filters hp-ppd "
           "foomatic-db-compressed-ppds";
  }

  /// Without an attribute of that name already there, which would come first.
  static std::string supporting(const ForeignPrinter &printer) {
    return printer.text + "\n*AdjustDuplexPositionSupport: \"true\"\n";
  }

  /// The option that turns two-sided printing on; none when the printer does not have it.
  static Words turningTwoSidedOn(const std::string &path) {
    Words words;
    ppd_file_t *const ppd = ppdOpenFile(path.c_str());
    ppd_option_t *const duplex = ppd != nullptr ? ppdFindOption(ppd, "Duplex") : nullptr;
    for (int i = 0; duplex != nullptr && i < duplex->num_choices && words.empty(); i++)
      if (duplex->choices[i].choice != std::string("None"))
        words = {"-o", std::string("Duplex=") + duplex->choices[i].choice};
    if (ppd != nullptr)
      ppdClose(ppd);
    return words;
  }

  static std::vector<ForeignPrinter> printers;
};

std::vector<ForeignPrinter> ForeignPrinters::printers;

TEST_F(ForeignPrinters, WithoutTheAttributeThereIsNoPanel) {
  for (const ForeignPrinter &printer : printers) {
    SCOPED_TRACE(printer.name);
    ASSERT_THAT(printer.text, testing::Not(HasSubstr("AdjustDuplexPositionSupport")));
    const auto result = batch(folder.write("printer.ppd", printer.text), {"--summary"});
    EXPECT_EQ(result.status, kNoPanel) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("No plug-in has a panel for"));
    EXPECT_THAT(result.output, IsEmpty());
  }
}

TEST_F(ForeignPrinters, WithTheAttributeTheValuesArrive) {
  for (const ForeignPrinter &printer : printers) {
    SCOPED_TRACE(printer.name);
    const std::string path = folder.write("printer.ppd", supporting(printer));
    Words words{"--set", "FrontLRM=-3", "--set", "BackTBM=12", "--back", "on"};
    for (const std::string &word : turningTwoSidedOn(path))
      words.push_back(word);
    const auto result = batch(path, words);
    ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
    auto settings = settingsIn(result.output);
    settings.erase("Duplex");
    EXPECT_EQ(settings, offsets("-3", "0", "0", "12", "True"));
    EXPECT_THAT(result.errors, IsEmpty());
  }
}

TEST_F(ForeignPrinters, WithTwoSidedPrintingOffThePanelSaysSo) {
  std::size_t twoSided = 0;
  for (const ForeignPrinter &printer : printers) {
    const std::string path = folder.write("printer.ppd", supporting(printer));
    if (turningTwoSidedOn(path).empty() || printer.text.find("*Duplex None") == std::string::npos)
      continue;
    SCOPED_TRACE(printer.name);
    twoSided++;
    const auto result = batch(path, {"-o", "Duplex=None", "--set", "FrontLRM=-3"});
    EXPECT_EQ(result.status, kValue) << testing::PrintToString(result);
  }
  EXPECT_GE(twoSided, 5U);
}

} // namespace
