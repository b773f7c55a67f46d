// Options with several choices, and custom values, from the job to the filter.
#include "CustomValue.hpp"
#include "JobFixture.hpp"
#include "JobSubmission.hpp"
#include "PrinterDescription.hpp"

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::Pair;
using testing::StrEq;

class EnteredValueJob : public JobFixture {
protected:
  void SetUp() override {
    JobFixture::SetUp();
    addQueue("finisher", "finisher.ppd");
  }

  static JobRequest requestWith(const std::string &name, const std::string &value) {
    JobRequest request = requestFor("finisher");
    request.settings.set(name, value);
    PrinterDescription printer = samplePrinter();
    request.compounds = compoundOptions(printer.ppd());
    request.secrets = hiddenSettings(printer.ppd(), request.settings);
    return request;
  }
  static PrinterDescription samplePrinter() {
    return PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/finisher.ppd");
  }
};

TEST_F(EnteredValueJob, ReachesTheFilterUnchanged) {
  const std::pair<const char *, const char *> rows[] = {
      {"Finishing", "Staple,Fold"},
      {"Finishing", "Punch"},
      {"Finishing", ""},
      {"PageSize", "Custom.100x200.5mm"},
      {"Trim", "Custom.10.5mm"},
      {"Holes", "Custom.7"},
      {"Gloss", "{Amount=0.5 Light=0 Dark=1}"},
      {"Stamp", "Custom.two words"},
      {"Stamp", "Custom.It's \"mine\", \\ {x}"},
      {"Stamp", "Custom.Größe 文"},
      {"Secret", "{User=me Password=abcd Code=1234}"},
      {"Secret", R"({User="a b" Password="x\"y'z\\" Code=1234})"}};
  std::vector<int> jobs;
  for (const auto &[name, value] : rows)
    jobs.push_back(submitJob(requestWith(name, value), {document()}).id);
  for (std::size_t i = 0; i < jobs.size(); i++) {
    const PrintedJob job = printed(jobs[i]);
    EXPECT_THAT(job.options, Contains(Pair(rows[i].first, rows[i].second))) << job.optionText;
  }
}

/// Marks the choice with the same libcups calls as filters.
TEST_F(EnteredValueJob, IsMarkedByAFilterAsEntered) {
  const std::string value = R"({User="a b" Password="x\"y'z\\" Code=1234})";
  const PrintedJob job = printed(submitJob(requestWith("Secret", value), {document()}).id);
  PrinterDescription printer = samplePrinter();
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(job.optionText.c_str(), 0, &options);
  cupsMarkOptions(printer.ppd(), count, options);
  cupsFreeOptions(count, options);
  EXPECT_THAT(ppdFindMarkedChoice(printer.ppd(), "Secret")->choice, StrEq("Custom"));
  const auto current = [&](const char *name) {
    ppd_coption_t *const option = ppdFindCustomOption(printer.ppd(), "Secret");
    return ppdFindCustomParam(option, name)->current.custom_string;
  };
  EXPECT_THAT(current("User"), StrEq("a b"));
  EXPECT_THAT(current("Password"), StrEq("x\"y'z\\"));
  EXPECT_THAT(current("Code"), StrEq("1234"));
}

/// Such a job is created by a different request, which must keep the other settings and errors.
TEST_F(EnteredValueJob, WithSeveralPartsKeepsTheRestOfTheJob) {
  JobRequest request = requestWith("Gloss", "{Amount=0.5 Light=0 Dark=1}");
  request.title = "Jahresbericht";
  request.settings.set("copies", "2");
  request.settings.set("Duplex", "DuplexTumble");
  const PrintedJob job = printed(submitJob(request, {document(5000)}).id);
  EXPECT_EQ(job.arguments.at(2), "Jahresbericht");
  EXPECT_THAT(job.options, Contains(Pair("Duplex", "DuplexTumble")));
  EXPECT_EQ(job.bytes, 5000u);
  request.printer = "gone";
  EXPECT_EQ(refusal(request, document()).problem(), JobProblem::QueueGone);
}

TEST_F(EnteredValueJob, HidesPasswords) {
  const JobRequest request = requestWith("Secret", "{User=me Password=abcd Code=1234}");
  EXPECT_THAT(writeRequestText(request), HasSubstr("job Secret (nameWithoutLanguage) = ••••\n"));
  EXPECT_THAT(writeRequestText(request), Not(HasSubstr("abcd")));
  EXPECT_THAT(writeRequestText(requestWith("Secret", "None")), HasSubstr(" = None\n"));
}

} // namespace
