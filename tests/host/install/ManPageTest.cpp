// The man page: its format, and its agreement with the program's help.
#include "CommandWords.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <regex>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

const std::string kPage = IMAGEPOSITION_INSTALL "/print-dialog.1";

/// The first word after `macro`, in the page's lines that begin with `start`.
std::set<std::string> entries(const std::string &start, const std::string &macro) {
  std::istringstream page(contentOf(kPage));
  std::set<std::string> found;
  const std::regex word(macro + " ([^ ]+)");
  for (std::string line; std::getline(page, line);)
    if (line.compare(0, start.size(), start) == 0)
      for (std::sregex_iterator match(line.begin(), line.end(), word), end; match != end; ++match)
        found.insert(match->str(1));
  return found;
}

TEST(ManPage, NamesTheOptionsOfTheHelpAndNoOthers) {
  std::set<std::string> options;
  for (const std::string &name : entries(".It Fl", "Fl"))
    options.insert("-" + name);
  EXPECT_THAT(options, Contains("--ppd"));
  EXPECT_EQ(options, optionsOfHelp());
}

TEST(ManPage, ExplainsTheExitStatusesOfTheHelpAndNoOthers) {
  std::set<std::string> statuses;
  for (const std::string &name : entries(".It", "^\\.It"))
    if (name.find_first_not_of("0123456789") == std::string::npos)
      statuses.insert(name);
  EXPECT_EQ(statuses.size(), 11u);
  EXPECT_EQ(statuses, statusesOfHelp());
}

TEST(ManPage, HasTheUsualSections) {
  const std::string page = contentOf(kPage);
  for (const char *section : {"NAME", "SYNOPSIS", "DESCRIPTION", "ENVIRONMENT", "FILES",
                              "EXIT STATUS", "EXAMPLES", "SEE ALSO"})
    EXPECT_THAT(page, HasSubstr("\n.Sh " + std::string(section) + "\n"));
}

class FormattedPage : public testing::TestWithParam<std::string> {};

TEST_P(FormattedPage, HasNoWarnings) {
  const auto man =
      runProcess({"man", "--warnings", "-E", "UTF-8", "-l", GetParam()}, {"MANWIDTH=80"});
  EXPECT_EQ(man.status, 0);
  EXPECT_EQ(man.errors, "");
  EXPECT_THAT(man.output, HasSubstr("print-dialog"));
  const auto lint = runProcess({"mandoc", "-T", "lint", "-W", "style,stop", GetParam()});
  // References to pages that are not installed are fine.
  EXPECT_TRUE(
      std::regex_replace(
          lint.output + lint.errors,
          std::regex("mandoc: (outdated|see http|[^\n]*referenced manual not found)[^\n]*\n"), "")
          .empty())
      << testing::PrintToString(lint);
}

INSTANTIATE_TEST_SUITE_P(Pages, FormattedPage,
                         testing::Values(kPage, IMAGEPOSITION_INSTALL "/print-dialog-portal.8"));

} // namespace
