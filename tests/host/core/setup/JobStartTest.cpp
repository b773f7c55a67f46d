#include "JobStart.hpp"

#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::StrEq;

PrintSettingsStore settingsOf(std::initializer_list<std::pair<const char *, const char *>> values) {
  PrintSettingsStore settings;
  for (const auto &[name, value] : values)
    settings.set(name, value);
  return settings;
}

class JobStarts : public testing::Test {
protected:
  void SetUp() override { setenv("XDG_STATE_HOME", folder_.path("state").c_str(), 1); }
  void TearDown() override { unsetenv("XDG_STATE_HOME"); }

  /// The start of a job on the queue "office".
  JobStart &start() {
    if (!start_) {
      start_ = std::make_unique<JobStart>(arguments_, printer_, history_);
      job_ = start_->openTicket().settings;
      start_->begin(job_, {});
    }
    return *start_;
  }

  const TemporaryFolder folder_;
  Arguments arguments_;
  OpenedPrinter printer_{
      "office", std::make_unique<PrinterDescription>(
                    PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd"))};
  History history_;
  PrintSettingsStore job_;
  std::ostringstream errors_;

private:
  std::unique_ptr<JobStart> start_;
};

TEST_F(JobStarts, HaveTheLastJobsSettingsUnlessTheCommandLineGivesOthers) {
  history_.setSettings("office",
                       settingsOf({{"Duplex", "DuplexTumble"}, {"MediaType", "Transparency"}}));
  arguments_.options = {"MediaType=Plain"};
  EXPECT_TRUE(start().isFromLastJob());
  EXPECT_THAT(job_.get("Duplex"), StrEq("DuplexTumble"));
  EXPECT_THAT(job_.get("MediaType"), StrEq("Plain"));
}

TEST_F(JobStarts, AreNotFromTheLastJobIfThatHadThePrintersDefaults) {
  history_.setSettings("office", settingsOf({{"Duplex", "DuplexNoTumble"}}));
  EXPECT_FALSE(start().isFromLastJob());
}

TEST_F(JobStarts, NameTheLastJobsPrinterIfItIsAnother) {
  history_.setPrinter("attic");
  EXPECT_EQ(start().missingPrinter(), "attic");
}

TEST_F(JobStarts, KeepForTheNextJobWhatTheUserHasSet) {
  arguments_.options = {"MediaType=Transparency"};
  start().remember(settingsOf({{"Duplex", "DuplexTumble"},
                               {"MediaType", "Transparency"},
                               {"LeftRightMargin", "3"},
                               {"copies", "2"}}),
                   {"LeftRightMargin"}, WindowSize{640, 480});
  const History next = History::read(errors_);
  EXPECT_EQ(next.printer(), "office");
  const PrintSettingsStore kept = next.settings("office");
  EXPECT_EQ(kept.optionCount(), 1);
  EXPECT_THAT(kept.get("Duplex"), StrEq("DuplexTumble"));
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(JobStarts, TakeTheHistoryOfAnotherPrinterWhereNothingWasSet) {
  history_.setSettings("attic",
                       settingsOf({{"Duplex", "DuplexTumble"}, {"MediaType", "Transparency"}}));
  start();
  job_.set("MediaType", "Plain");
  printer_.queue = "attic";
  EXPECT_TRUE(start().takeHistory(job_));
  EXPECT_THAT(job_.get("Duplex"), StrEq("DuplexTumble"));
  EXPECT_THAT(job_.get("MediaType"), StrEq("Plain"));
  EXPECT_FALSE(start().takeHistory(job_));
}

TEST_F(JobStarts, LeaveToAPrinterWhatOnlyItsOwnHistoryHad) {
  history_.setSettings("office",
                       settingsOf({{"MediaType", "Transparency"}, {"Watermark", "Draft"}}));
  history_.setSettings("attic", settingsOf({{"Duplex", "DuplexTumble"}}));
  start();
  job_.set("Watermark", "Secret");
  printer_.queue = "attic";
  start().takeHistory(job_);
  EXPECT_EQ(job_.get("MediaType"), nullptr);
  EXPECT_THAT(job_.get("Watermark"), StrEq("Secret")) << "the user's choice";
  printer_.queue = "cellar";
  start().takeHistory(job_);
  EXPECT_EQ(job_.get("Duplex"), nullptr);
  printer_.queue = "office";
  EXPECT_TRUE(start().takeHistory(job_));
  EXPECT_THAT(job_.get("MediaType"), StrEq("Transparency"));
}

TEST_F(JobStarts, HaveOffsetsOnlyIfTheCommandLineGivesThem) {
  history_.setSettings("office", settingsOf({{"LeftRightMargin", "3"}}));
  EXPECT_FALSE(start().hasOffsets());
  arguments_.options = {"LeftRightMargin=4"};
  EXPECT_TRUE(start().hasOffsets());
}

} // namespace

} // namespace imageposition
