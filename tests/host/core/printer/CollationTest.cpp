#include "Collation.hpp"

#include "OptionsPpd.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::kOptionsPpd;
using imageposition::test::optionsPrinter;

/// A description with an option for collation, which is on by default.
std::string withCollate() {
  return kOptionsPpd + R"ppd(*OpenUI *Collate/Collate: Boolean
*DefaultCollate: True
*Collate True/Yes: ""
*Collate False/No: ""
*CloseUI: *Collate
)ppd";
}

std::string textOr(const char *value) { return value != nullptr ? value : "(none)"; }

TEST(Collation, APrinterWithoutTheOptionGetsTheAttributeOfCups) {
  auto printer = optionsPrinter();
  PrintSettingsStore job;
  EXPECT_FALSE(isCollated(printer, job));
  setCollated(true, printer, job);
  EXPECT_TRUE(isCollated(printer, job));
  EXPECT_EQ(textOr(job.get("Collate")), "(none)");
  EXPECT_EQ(textOr(job.get("multiple-document-handling")), "separate-documents-collated-copies");
  setCollated(false, printer, job);
  EXPECT_FALSE(isCollated(printer, job));
  EXPECT_EQ(job.optionCount(), 0);
}

TEST(Collation, APrintersOwnOptionIsStoredOnlyWhereItDiffersFromTheDefault) {
  auto printer = optionsPrinter(withCollate());
  PrintSettingsStore job;
  EXPECT_TRUE(isCollated(printer, job));
  setCollated(false, printer, job);
  EXPECT_FALSE(isCollated(printer, job));
  EXPECT_EQ(textOr(job.get("Collate")), "False");
  setCollated(true, printer, job);
  EXPECT_TRUE(isCollated(printer, job));
  EXPECT_EQ(job.optionCount(), 0);
}

TEST(Collation, TheJobsSettingIsReadUnderEitherName) {
  auto printer = optionsPrinter();
  const char *const rows[][2] = {
      {"Collate", "true"},
      {"Collate", "On"},
      {"multiple-document-handling", "separate-documents-collated-copies"}};
  for (const auto &[name, value] : rows) {
    PrintSettingsStore job;
    job.set(name, value);
    EXPECT_TRUE(isCollated(printer, job)) << name;
    setCollated(false, printer, job);
    EXPECT_EQ(job.optionCount(), 0) << name;
  }
}

} // namespace
