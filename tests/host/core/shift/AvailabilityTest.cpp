#include "Availability.hpp"

#include "TestPpd.h"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::TestPpd;

TEST(Availability, NamesTheChoiceThatPreventsIt) {
  const struct {
    const char *duplex; // null: the printer has no such option
    const char *banner;
    const char *expected;
  } rows[] = {
      {"DuplexNoTumble", "False", ""},
      {"DuplexTumble", "False", ""},
      {"None", "False", "Two-sided printing is off."},
      {"DuplexNoTumble", "True", "Banner pages are on."},
      {"None", "True", "Two-sided printing is off. Banner pages are on."},
      {nullptr, nullptr, ""},
      {nullptr, "True", "Banner pages are on."},
      {"None", nullptr, "Two-sided printing is off."},
      {"none", "true", ""}, // the panel is case-sensitive, too
  };
  for (const auto &row : rows) {
    std::vector<std::string> lines;
    for (const auto &[option, choice] :
         {std::pair("Duplex", row.duplex), std::pair("MVBannerPagePrint", row.banner)})
      if (choice != nullptr)
        for (const std::string &line : TestPpd::option(option, {choice}))
          lines.push_back(line);
    TestPpd ppd(lines);
    const Availability availability = availabilityOf(ppd);
    const std::string about = std::string(row.duplex ? row.duplex : "no option") + ", " +
                              (row.banner ? row.banner : "no option");
    EXPECT_EQ(reasonText(availability), row.expected) << about;
    EXPECT_EQ(availability.isAvailable(), *row.expected == '\0') << about;
  }
}

TEST(Availability, AdvisesOnlyAboutTheObstacles) {
  EXPECT_EQ(adviceText({true, false}),
            "Two-sided printing is off. Turn it on, for example with -o Duplex=DuplexNoTumble.");
  EXPECT_EQ(adviceText({false, true}),
            "Banner pages are on. Turn them off with -o MVBannerPagePrint=False.");
  EXPECT_EQ(adviceText({}), "");
}

TEST(Availability, FollowsTheMarkedChoice) {
  TestPpd ppd(TestPpd::option("Duplex", {"DuplexNoTumble", "None"}));
  EXPECT_TRUE(availabilityOf(ppd).isAvailable());
  ppd.mark("Duplex", "None");
  EXPECT_FALSE(availabilityOf(ppd).isAvailable());
}

TEST(Availability, IsGivenWithoutAPrinter) { EXPECT_TRUE(availabilityOf(nullptr).isAvailable()); }

} // namespace
