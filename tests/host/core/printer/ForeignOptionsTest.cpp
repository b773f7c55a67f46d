// The options of third-party printer descriptions, from Debian packages.
#include "OptionConflicts.hpp"
#include "PrinterOptions.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace {

using namespace imageposition;
using namespace imageposition::test;
namespace fs = std::filesystem;

constexpr std::size_t kFewest = 200;
constexpr int kDraws = 30;

class ForeignOptions : public testing::Test {
protected:
  static void SetUpTestSuite() {
    folder = std::make_unique<TemporaryFolder>();
    runProcess({"python3", UNPACK_PPDS, "/usr/lib/cups/driver/foomatic-db-compressed-ppds",
                folder->path("foomatic"), "300"});
    for (const std::string &root : {std::string("/usr/share/ppd"), folder->path()}) {
      std::error_code failed;
      for (fs::recursive_directory_iterator entry(root, failed), end; !failed && entry != end;
           entry.increment(failed))
        if (entry->path().extension() == ".ppd")
          files.push_back(entry->path().string());
    }
  }
  static void TearDownTestSuite() {
    files.clear();
    folder.reset();
  }
  void SetUp() override {
    ASSERT_GE(files.size(), kFewest)
        << "Install printer descriptions; on Debian: cups-filters hp-ppd "
           "foomatic-db-compressed-ppds";
  }

  /// Random choices.
  void chooseAnything(PrinterOptions &options) {
    for (const OptionGroup &group : options.all())
      for (const PrinterOption &option : group.options)
        if (!option.choices.empty()) {
          const std::size_t drawn = random() % option.choices.size();
          job.set(option.keyword, option.choices[drawn].keyword);
        }
  }

  static std::unique_ptr<TemporaryFolder> folder;
  static std::vector<std::string> files;
  std::mt19937 random{20}; // the same draws every time
  PrintSettingsStore job;
};

std::unique_ptr<TemporaryFolder> ForeignOptions::folder;
std::vector<std::string> ForeignOptions::files;

std::multiset<std::string> keywordsOf(const ppd_file_t &ppd) {
  std::multiset<std::string> keywords;
  for (int i = 0; i < ppd.num_groups; i++) {
    const ppd_group_t &group = ppd.groups[i];
    for (int j = 0; j < group.num_options; j++)
      keywords.insert(group.options[j].keyword);
    for (int j = 0; j < group.num_subgroups; j++)
      for (int k = 0; k < group.subgroups[j].num_options; k++)
        keywords.insert(group.subgroups[j].options[k].keyword);
  }
  return keywords;
}

TEST_F(ForeignOptions, EveryOptionAndChoiceIsNamed) {
  std::size_t choices = 0;
  for (const std::string &file : files) {
    SCOPED_TRACE(file);
    auto printer = PrinterDescription::fromFile(file);
    std::multiset<std::string> keywords;
    for (const OptionGroup &group : PrinterOptions(printer, job).all()) {
      EXPECT_FALSE(group.text.empty());
      for (const PrinterOption &option : group.options) {
        keywords.insert(option.keyword);
        EXPECT_FALSE(option.text.empty()) << option.keyword;
        EXPECT_TRUE(PrintSettingsStore::isUsableValue(option.text)) << option.keyword;
        EXPECT_FALSE(option.differsFromDefault()) << option.keyword;
        for (const OptionChoice &choice : option.choices) {
          choices++;
          EXPECT_FALSE(choice.text.empty()) << option.keyword;
          EXPECT_TRUE(PrintSettingsStore::isUsableValue(choice.text)) << option.keyword;
          EXPECT_TRUE(PrintSettingsStore::isUsableValue(choice.keyword)) << option.keyword;
        }
      }
    }
    EXPECT_EQ(keywords, keywordsOf(*printer.ppd()));
  }
  EXPECT_GE(choices, 10 * files.size());
}

TEST_F(ForeignOptions, EveryListedChoiceCanBeChosen) {
  for (const std::string &file : files) {
    SCOPED_TRACE(file);
    auto printer = PrinterDescription::fromFile(file);
    PrinterOptions options(printer, job = PrintSettingsStore());
    for (const OptionGroup &group : options.listed({}))
      for (const PrinterOption &option : group.options) {
        job = PrintSettingsStore(); // choosing a tray unmarks manual feeding, and vice versa
        const OptionChoice &last = option.choices.back();
        ASSERT_TRUE(options.choose(option.keyword, last.keyword)) << option.keyword;
        EXPECT_EQ(options.find(option.keyword)->chosen, last.keyword) << option.keyword;
        EXPECT_EQ(job.get(option.keyword) != nullptr, last.keyword != option.defaultChoice)
            << option.keyword;
      }
  }
}

TEST_F(ForeignOptions, ConflictsAreThoseThatCupsCounts) {
  std::size_t conflicting = 0;
  for (const std::string &file : files) {
    SCOPED_TRACE(file);
    auto printer = PrinterDescription::fromFile(file);
    PrinterOptions options(printer, job = PrintSettingsStore());
    OptionConflicts conflicts(printer, job);
    for (int draw = 0; draw < kDraws; draw++) {
      if (draw > 0) // the first draw is the printer's defaults
        chooseAnything(options);
      std::set<std::string> named;
      const auto found = conflicts.find();
      EXPECT_LE(found.size(), std::size_t(ppdConflicts(printer.ppd())));
      for (const OptionConflict &conflict : found)
        for (const NamedChoice &side : conflict.sides) {
          named.insert(side.keyword);
          EXPECT_FALSE(side.text.empty());
          EXPECT_FALSE(side.choiceText.empty()) << side.keyword;
        }
      conflicting += named.empty() ? 0 : 1;
      EXPECT_EQ(!named.empty(), ppdConflicts(printer.ppd()) != 0);
      std::set<std::string> flagged;
      for (ppd_option_t *option = ppdFirstOption(printer.ppd()); option != nullptr;
           option = ppdNextOption(printer.ppd()))
        if (option->conflicted)
          flagged.insert(option->keyword);
      EXPECT_EQ(named, flagged);
    }
  }
  EXPECT_GE(conflicting, 100U);
}

TEST_F(ForeignOptions, AnAcceptedProposalLeavesNoConflict) {
  std::size_t taken = 0;
  for (const std::string &file : files) {
    SCOPED_TRACE(file);
    auto printer = PrinterDescription::fromFile(file);
    PrinterOptions options(printer, job = PrintSettingsStore());
    OptionConflicts conflicts(printer, job);
    for (int draw = 0; draw < kDraws; draw++) {
      chooseAnything(options);
      const auto proposal = conflicts.proposal();
      if (!proposal)
        continue;
      taken++;
      EXPECT_TRUE(conflicts.take(*proposal)) << proposal->sentence;
      EXPECT_THAT(conflicts.find(), testing::IsEmpty()) << proposal->sentence;
    }
  }
  EXPECT_GE(taken, 50U);
}

} // namespace
