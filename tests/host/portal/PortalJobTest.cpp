#include "PortalJob.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Key;
using testing::Not;
using testing::Pair;

using Words = std::vector<std::string>;

PortalPage a4(const std::string &orientation = "portrait") {
  PortalPage page;
  page.name = "iso_a4";
  page.ppdName = "A4";
  page.width = 210;
  page.height = 297;
  page.orientation = orientation;
  return page;
}

Ticket ticketWith(const std::vector<std::pair<const char *, const char *>> &settings) {
  Ticket ticket;
  ticket.printer = "office";
  for (const auto &[name, value] : settings)
    ticket.settings.set(name, value);
  return ticket;
}

TEST(PortalJob, SettingsBecomeOptionsOfTheDialog) {
  const struct {
    PortalSettings settings;
    Words words;
  } rows[] = {
      {{}, {}},
      {{{"printer", "office"}}, {"-doffice"}},
      {{{"printer", "-x"}}, {"-d-x"}},
      {{{"n-copies", "3"}, {"collate", "true"}},
       {"-ocopies=3", "-omultiple-document-handling=separate-documents-collated-copies"}},
      {{{"n-copies", "three"}}, {}},
      {{{"n-copies", "-3"}}, {}},
      {{{"duplex", "simplex"}}, {"-osides=one-sided"}},
      {{{"duplex", "horizontal"}}, {"-osides=two-sided-long-edge"}},
      {{{"duplex", "vertical"}}, {"-osides=two-sided-short-edge"}},
      {{{"duplex", "sideways"}}, {}},
      {{{"quality", "draft"}}, {"-oprint-quality=3"}},
      {{{"quality", "low"}}, {"-oprint-quality=3"}},
      {{{"quality", "normal"}}, {"-oprint-quality=4"}},
      {{{"quality", "high"}}, {"-oprint-quality=5"}},
      {{{"use-color", "false"}}, {"-oprint-color-mode=monochrome"}},
      {{{"use-color", "true"}}, {"-oprint-color-mode=color"}},
      {{{"reverse", "true"}}, {"-ooutputorder=reverse"}},
      {{{"page-set", "odd"}}, {"-opage-set=odd"}},
      {{{"number-up", "4"}, {"number-up-layout", "tblr"}},
       {"-onumber-up=4", "-onumber-up-layout=tblr"}},
      {{{"number-up", "5"}}, {}},
      {{{"print-pages", "ranges"}, {"page-ranges", "0-2,6"}}, {"-opage-ranges=\"1-3,7\""}},
      {{{"print-pages", "ranges"}, {"page-ranges", "6-"}}, {"-opage-ranges=7-"}},
      {{{"print-pages", "ranges"}, {"page-ranges", "3-1"}}, {}},
      {{{"print-pages", "ranges"}, {"page-ranges", "99999999999999999999"}}, {}},
      {{{"print-pages", "ranges"}, {"page-ranges", "-,"}}, {}},
      {{{"print-pages", "all"}, {"page-ranges", "0-2"}}, {}},
      {{{"default-source", "Tray2"}, {"media-type", "Glossy"}, {"output-bin", "Upper"}},
       {"-oInputSlot=Tray2", "-oMediaType=Glossy", "-oOutputBin=Upper"}},
      {{{"cups-StapleLocation", "UpperLeft"}}, {"-oStapleLocation=UpperLeft"}},
      {{{"cups-job-priority", "80"}}, {"-ojob-priority=80"}},
      {{{"cups-Comment", "a b\"c"}}, {"-oComment=\"a b\\\"c\""}},
      {{{"orientation", "landscape"}}, {"-oorientation-requested=4"}},
  };
  for (const auto &row : rows)
    EXPECT_EQ(wordsFor({row.settings, {}}), row.words) << testing::PrintToString(row.settings);
}

TEST(PortalJob, WhatIsAsUsualIsNotProposed) {
  EXPECT_THAT(wordsFor({{{"n-copies", "1"},
                         {"number-up", "1"},
                         {"reverse", "false"},
                         {"page-set", "all"},
                         {"scale", "100"},
                         {"print-pages", "all"}},
                        {}}),
              IsEmpty());
}

TEST(PortalJob, AnOptionThatTheDialogDoesNotShowIsNotProposed) {
  for (const char *name : {"cups-notify-recipient-uri", "cups-raw", "cups-document-format",
                           "cups-x y", "cups-", "output-uri", "unknown"})
    EXPECT_THAT(wordsFor({{{name, "value"}}, {}}), IsEmpty()) << name;
}

TEST(PortalJob, ThePaperIsNamedByItsSize) {
  const struct {
    const char *ppdName;
    double width, height;
    Words words;
  } rows[] = {
      {"A4", 210, 297, {"-omedia=iso_a4_210x297mm"}},
      {"", 215.9, 279.4, {"-omedia=na_letter_8.5x11in"}},
      {"Photo", 123, 456, {"-omedia=Photo"}},
      {"", 123, 456, {}},
      {"A5", 0, 0, {"-omedia=A5"}},
      {"", -210, 297, {}},
      {"", 1e300, 1e300, {}},
  };
  for (const auto &row : rows) {
    PortalPage page;
    page.ppdName = row.ppdName;
    page.width = row.width;
    page.height = row.height;
    EXPECT_EQ(wordsFor({{}, page}), row.words) << row.ppdName << row.width;
  }
}

TEST(PortalJob, TheOrientationOfThePageIsProposedUnlessItIsUpright) {
  for (const auto &[orientation, word] : std::vector<std::pair<const char *, const char *>>{
           {"landscape", "-oorientation-requested=4"},
           {"reverse_landscape", "-oorientation-requested=5"},
           {"reverse_portrait", "-oorientation-requested=6"}})
    EXPECT_THAT(wordsFor({{{"orientation", "portrait"}}, a4(orientation)}), Contains(word));
  EXPECT_THAT(wordsFor({{{"orientation", "landscape"}}, a4()}),
              ElementsAre("-omedia=iso_a4_210x297mm"));
}

TEST(PortalJob, TheLayoutReturnedIsNeutralWhateverTheUserHasChosen) {
  const Ticket prepared = ticketWith({{"copies", "3"},
                                      {"number-up", "2"},
                                      {"outputorder", "reverse"},
                                      {"page-set", "even"},
                                      {"page-ranges", "2-3"}});
  const PortalJob reply = replyTo({{{"n-copies", "2"},
                                    {"number-up", "4"},
                                    {"scale", "50"},
                                    {"page-ranges", "0-2"},
                                    {"print-pages", "ranges"},
                                    {"output-uri", "file:///tmp/x"}},
                                   a4()},
                                  prepared);
  EXPECT_THAT(reply.settings, IsSupersetOf(PortalSettings{{"n-copies", "1"},
                                                          {"number-up", "1"},
                                                          {"reverse", "false"},
                                                          {"page-set", "all"},
                                                          {"print-pages", "all"},
                                                          {"scale", "100"},
                                                          {"output-file-format", "pdf"},
                                                          {"printer", "office"}}));
  EXPECT_THAT(reply.settings, Not(Contains(Key("page-ranges"))));
  EXPECT_THAT(reply.settings, Not(Contains(Key("output-uri"))));
}

TEST(PortalJob, WhatTheUserHasChosenIsReturnedInTheNamesOfGtk) {
  const struct {
    const char *option, *choice, *setting, *value;
  } rows[] = {
      {"Duplex", "None", "duplex", "simplex"},
      {"Duplex", "DuplexNoTumble", "duplex", "horizontal"},
      {"Duplex", "DuplexTumble", "duplex", "vertical"},
      {"sides", "two-sided-long-edge", "duplex", "horizontal"},
      {"print-quality", "5", "quality", "high"},
      {"print-quality", "3", "quality", "draft"},
      {"cupsPrintQuality", "Draft", "quality", "draft"},
      {"ColorModel", "Gray", "use-color", "false"},
      {"ColorModel", "RGB", "use-color", "true"},
      {"print-color-mode", "monochrome", "use-color", "false"},
      {"Collate", "True", "collate", "true"},
      {"multiple-document-handling", "separate-documents-collated-copies", "collate", "true"},
      {"InputSlot", "Tray2", "default-source", "Tray2"},
      {"MediaType", "Glossy", "media-type", "Glossy"},
      {"OutputBin", "Upper", "output-bin", "Upper"},
      {"orientation-requested", "4", "orientation", "landscape"},
  };
  for (const auto &row : rows)
    EXPECT_THAT(replyTo({}, ticketWith({{row.option, row.choice}})).settings,
                Contains(Pair(row.setting, row.value)))
        << row.option;
}

TEST(PortalJob, ASettingThatTheUserHasResetIsNotReturned) {
  const PortalJob reply =
      replyTo({{{"duplex", "vertical"}, {"use-color", "false"}}, {}}, ticketWith({}));
  EXPECT_THAT(reply.settings, Not(Contains(Key("duplex"))));
  EXPECT_THAT(reply.settings, Not(Contains(Key("use-color"))));
}

TEST(PortalJob, SettingsOfTheApplicationComeBack) {
  const PortalJob reply =
      replyTo({{{"editor-print-header", "true"}, {"cups-StapleLocation", "UpperLeft"}}, {}},
              ticketWith({{"StapleLocation", "UpperLeft"}}));
  EXPECT_THAT(reply.settings, IsSupersetOf(PortalSettings{{"editor-print-header", "true"},
                                                          {"cups-StapleLocation", "UpperLeft"}}));
}

TEST(PortalJob, WhatOnlyTheUserKnowsIsNotReturned) {
  const PortalJob reply =
      replyTo({{{"cups-JobPassword", "1111"}}, {}},
              ticketWith({{"JobPassword", "2468"}, {"LeftRightMargin", "-3"}, {"Pin", "1357"}}));
  for (const auto &[name, value] : reply.settings) {
    EXPECT_NE(value, "2468") << name;
    EXPECT_NE(value, "1357") << name;
    EXPECT_EQ(name.find("LeftRightMargin"), std::string::npos);
  }
}

TEST(PortalJob, ThePageReturnedIsThatOfTheChosenPaper) {
  Ticket prepared = ticketWith({});
  prepared.paper = TicketPaper{"A5", "A5 (148 × 210 mm)", 420, 595, 14.4, 18, 21.6, 28.35};
  const PortalJob reply = replyTo({{}, a4("landscape")}, prepared);
  EXPECT_EQ(reply.page.name, "iso_a5");
  EXPECT_EQ(reply.page.ppdName, "A5");
  EXPECT_EQ(reply.page.displayName, "A5 (148 × 210 mm)");
  EXPECT_NEAR(reply.page.width, 148.17, 0.01);
  EXPECT_NEAR(reply.page.height, 209.9, 0.01);
  EXPECT_NEAR(reply.page.left, 5.08, 0.01);
  EXPECT_NEAR(reply.page.bottom, 6.35, 0.01);
  EXPECT_NEAR(reply.page.right, 7.62, 0.01);
  EXPECT_NEAR(reply.page.top, 10, 0.01);
  EXPECT_THAT(reply.settings,
              IsSupersetOf(PortalSettings{{"paper-format", "iso_a5"}, {"paper-width", "148.17"}}));
}

TEST(PortalJob, APaperWithoutAStandardNameIsReturnedByItsOwn) {
  for (const char *keyword : {"Custom.400x500", "Panorama"}) {
    Ticket prepared = ticketWith({});
    prepared.paper = TicketPaper{keyword, keyword, 400, 500, 0, 0, 0, 0};
    const PortalPage page = replyTo({{}, a4()}, prepared).page;
    EXPECT_NE(page.name, "");
    EXPECT_EQ(page.ppdName, keyword);
    EXPECT_NEAR(page.width, 141.11, 0.01);
  }
}

TEST(PortalJob, TheApplicationTurnsThePageAndTheJobDoesNot) {
  const struct {
    const char *asked;
    std::vector<std::pair<const char *, const char *>> chosen;
    const char *returned;
  } rows[] = {
      {"portrait", {{"orientation-requested", "4"}}, "landscape"},
      {"portrait", {{"landscape", "true"}}, "landscape"},
      {"landscape", {{"orientation-requested", "3"}}, "portrait"},
      {"landscape", {{"orientation-requested", "6"}}, "reverse_portrait"},
      {"landscape", {}, "landscape"},
      {"portrait", {}, "portrait"},
      {"", {}, "portrait"},
  };
  for (const auto &row : rows) {
    const Ticket prepared = ticketWith(row.chosen);
    EXPECT_EQ(replyTo({{}, a4(row.asked)}, prepared).page.orientation, row.returned) << row.asked;
    EXPECT_EQ(ticketToPrint(prepared).settings.optionCount(), 0) << row.asked;
  }
}

TEST(PortalJob, TheJobKeepsTheUsersLayout) {
  const Ticket printed =
      ticketToPrint(ticketWith({{"number-up", "2"}, {"orientation-requested", "4"}}));
  EXPECT_THAT(printed.settings.get("number-up"), testing::StrEq("2"));
  EXPECT_EQ(printed.printer, "office");
}

} // namespace
