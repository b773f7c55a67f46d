#include "JobRequest.hpp"

#include "ExitCode.hpp"

#include <gmock/gmock.h>

#include <map>

namespace {

using namespace imageposition;
using testing::HasSubstr;
using testing::Pair;
using testing::UnorderedElementsAre;

std::map<std::string, std::string> sentBy(const JobRequest &request) {
  const PrintSettingsStore options = optionsToSend(request);
  std::map<std::string, std::string> sent;
  for (int i = 0; i < options.optionCount(); i++)
    sent[options.options()[i].name] = options.options()[i].value;
  return sent;
}

JobRequest requestWith(const std::map<std::string, std::string> &settings) {
  JobRequest request;
  request.printer = "office";
  request.title = "letter";
  for (const auto &[name, value] : settings)
    request.settings.set(name, value);
  return request;
}

TEST(JobRequest, SettingsOverrideTheDefaultsOfTheDestination) {
  JobRequest request = requestWith({{"MediaType", "Heavy"}});
  request.defaults.set("MediaType", "Plain");
  request.defaults.set("job-sheets", "none,none");
  EXPECT_THAT(sentBy(request),
              UnorderedElementsAre(Pair("MediaType", "Heavy"), Pair("job-sheets", "none,none")));
}

TEST(JobRequest, ASettingOverridesTheDefaultOfASynonymousOption) {
  const struct {
    const char *standard;
    const char *setting;
  } kRows[] = {{"sides", "Duplex"},
               {"Duplex", "sides"},
               {"media", "PageSize"},
               {"PageRegion", "media"},
               {"OutputBin", "output-bin"},
               {"print-color-mode", "ColorModel"},
               {"landscape", "orientation-requested"},
               {"print-scaling", "fit-to-page"},
               {"fitplot", "print-scaling"},
               {"page-delivery", "outputorder"}};
  for (const auto &row : kRows) {
    JobRequest request = requestWith({{row.setting, "chosen"}});
    request.defaults.set(row.standard, "before");
    EXPECT_THAT(sentBy(request), UnorderedElementsAre(Pair(row.setting, "chosen"))) << row.standard;
  }
}

TEST(JobRequest, ADefaultIsSentUnlessItIsOverridden) {
  JobRequest request = requestWith({});
  request.defaults.set("sides", "two-sided-long-edge");
  EXPECT_THAT(sentBy(request), UnorderedElementsAre(Pair("sides", "two-sided-long-edge")));
}

TEST(JobRequest, ALockedSettingIsSentUnchanged) {
  JobRequest request;
  request.settings.set("LeftRightMargin", "-3", true);
  EXPECT_THAT(sentBy(request), UnorderedElementsAre(Pair("LeftRightMargin", "-3")));
}

TEST(JobRequest, PageRangesAreSentInAscendingOrder) {
  EXPECT_THAT(sentBy(requestWith({{"page-ranges", "7, 1-3"}, {"page-set", "even"}})),
              UnorderedElementsAre(Pair("page-ranges", "1-3,7"), Pair("page-set", "even")));
  JobRequest request = requestWith({});
  request.defaults.set("page-ranges", "7,1-3");
  EXPECT_THAT(sentBy(request), UnorderedElementsAre(Pair("page-ranges", "1-3,7")));
}

TEST(JobRequest, EmptyPageRangesRemoveThoseOfTheDestination) {
  JobRequest request = requestWith({{"page-ranges", ""}});
  request.defaults.set("page-ranges", "1-3");
  EXPECT_THAT(sentBy(request), UnorderedElementsAre());
}

TEST(JobRequest, InvalidPageRangesAreRefusedWithAMessage) {
  try {
    optionsToSend(requestWith({{"page-ranges", "x"}}));
    FAIL();
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Usage);
    EXPECT_THAT(failure.what(), HasSubstr("\"x\" is not a page range"));
  }
}

TEST(JobRequestText, ListsEachAttributeWithItsGroupTypeAndValue) {
  JobRequest request = requestWith({{"LeftRightMargin", "-3"},
                                    {"Duplex", "DuplexNoTumble"},
                                    {"copies", "2"},
                                    {"page-ranges", "1-3, 7"}});
  request.printerUri = "ipp://localhost/printers/office";
  const std::string text = writeRequestText(request);
  for (const char *line :
       {"operation printer-uri (uri) = ipp://localhost/printers/office\n",
        "operation job-name (nameWithoutLanguage) = letter\n", "job copies (integer) = 2\n",
        "job Duplex (nameWithoutLanguage) = DuplexNoTumble\n",
        "job LeftRightMargin (nameWithoutLanguage) = -3\n"})
    EXPECT_THAT(text, HasSubstr(line));
  EXPECT_THAT(text, HasSubstr("job page-ranges (rangeOfInteger) = 1-3,7-7\n"));
}

TEST(JobRequestText, EndsWithTheNamesOfTheDocuments) {
  JobRequest request = requestWith({});
  const std::string without = writeRequestText(request);
  const auto documents = [&](const std::vector<std::string> &paths) {
    const std::string text = writeRequestText(request, paths);
    EXPECT_EQ(text.substr(0, without.size()), without);
    return text.substr(without.size());
  };
  EXPECT_EQ(documents({"letters/a.pdf", "-", "b\x1b.pdf"}),
            "operation document-name (nameWithoutLanguage) = a.pdf\n"
            "operation document-name (nameWithoutLanguage) = (stdin)\n"
            "operation document-name (nameWithoutLanguage) = b\\x1b.pdf\n");
  request.documentNames = {"report.pdf"};
  EXPECT_EQ(documents({"/proc/self/fd/7"}),
            "operation document-name (nameWithoutLanguage) = report.pdf\n");
}

TEST(JobRequestText, ShowsTheWordThatFiltersReadForABoolean) {
  const char *const kFlag = "com.morva.printsettings.19AImagePositionEnable";
  EXPECT_THAT(writeRequestText(requestWith({{kFlag, "True"}})),
              HasSubstr("job com.morva.printsettings.19AImagePositionEnable (boolean) = true\n"
                        "    filters read: com.morva.printsettings.19AImagePositionEnable\n"));
  EXPECT_THAT(writeRequestText(requestWith({{kFlag, "False"}})),
              HasSubstr("job com.morva.printsettings.19AImagePositionEnable (boolean) = false\n"
                        "    filters read: nocom.morva.printsettings.19AImagePositionEnable\n"));
}

} // namespace
