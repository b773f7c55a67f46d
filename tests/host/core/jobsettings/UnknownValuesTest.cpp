#include "UnknownValues.hpp"

#include "OptionsPpd.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::vector<std::string> unknown(const char *name, const char *value,
                                 const std::vector<std::string> &ofPanels = {}) {
  const PrinterDescription printer = optionsPrinter();
  PrintSettingsStore job;
  job.set(name, value);
  return unknownValues(printer, job, ofPanels);
}

TEST(UnknownValues, NameTheOptionTheValueAndSomeThatExist) {
  EXPECT_THAT(
      unknown("Duplex", "Bogus"),
      ElementsAre("\"Bogus\" is not a value of \"Duplex\". The printer may refuse or ignore "
                  "it. Valid values include: None, DuplexNoTumble, DuplexTumble."));
  EXPECT_THAT(unknown("number-up", "99"),
              ElementsAre(AllOf(HasSubstr("\"99\""), HasSubstr("number-up"),
                                HasSubstr("1, 2, 4, 6, 9, 16"))));
  EXPECT_THAT(unknown("print-scaling", "bogus"), ElementsAre(HasSubstr("auto, none, fit, fill")));
  EXPECT_THAT(unknown("orientation-requested", "7"), ElementsAre(HasSubstr("3, 4, 5, 6.")));
  EXPECT_THAT(unknown("job-hold-until", "tomorrow"), ElementsAre(HasSubstr("evening")));
  EXPECT_THAT(unknown("job-priority", "0"), ElementsAre(HasSubstr("30, 50")));
  EXPECT_THAT(unknown("sides", "two-sided-log-edge"),
              ElementsAre(HasSubstr("two-sided-long-edge")));
  EXPECT_THAT(unknown("page-set", "ood"), ElementsAre(HasSubstr("all, even, odd")));
  EXPECT_THAT(unknown("media", "A4,A44"), ElementsAre(HasSubstr("\"A44\"")));
}

TEST(UnknownValues, AreNotThoseThatHaveAnEffect) {
  const std::pair<const char *, const char *> rows[] = {
      {"Duplex", "duplextumble"},     {"number-up", "16"},       {"print-scaling", "auto-fit"},
      {"booklet", "shuffle-only"},    {"booklet", "on"},         {"outputorder", "Reverse"},
      {"job-hold-until", "16:30"},    {"job-priority", "77"},    {"PageSize", "Custom.100x200mm"},
      {"LeftRightMargin", "7"},       {"Watermark", "Custom.x"}, {"media", "A4,tray-1"},
      {"com.example.panel", "whole"}, {"job-sheets", "house"},   {"Stapler", "true"},
      {"sides", "one-sided"},         {"page-set", "odd"},       {"media", "iso_a5_148x210mm"},
      {"media", "Custom.100x200mm"},  {"print-quality", "5"},    {"print-color-mode", "color"}};
  for (const auto &[name, value] : rows)
    EXPECT_THAT(unknown(name, value), IsEmpty()) << name << "=" << value;
}

TEST(UnknownValues, OfPanelsAreTheirs) {
  EXPECT_THAT(unknown("LeftRightMargin", "9999"), ElementsAre(HasSubstr("Enter")));
  EXPECT_THAT(unknown("LeftRightMargin", "9999", {"LeftRightMargin"}), IsEmpty());
}

TEST(UnknownValues, HideSecrets) {
  std::string ppd = imageposition::test::kOptionsPpd;
  ppd.insert(ppd.find("*ColorDevice"),
             "*OpenUI *Pin/PIN: PickOne\n*DefaultPin: None\n*Pin None/None: \"\"\n"
             "*CloseUI: *Pin\n*CustomPin True: \"\"\n*ParamCustomPin PIN: 1 passcode 4 4\n");
  const PrinterDescription printer = optionsPrinter(ppd);
  for (const char *value : {"Custom.hunter2", "hunter2"}) {
    PrintSettingsStore job;
    job.set("Pin", value);
    EXPECT_THAT(unknownValues(printer, job, {}),
                ElementsAre(AllOf(HasSubstr("Pin"), Not(HasSubstr("hunter2")))))
        << value;
  }
}

} // namespace
