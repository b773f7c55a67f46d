// Checks the panel's strings in every language against the keys that the code and the definitions
// use.
#import "ResourceFiles.h"

#import "Keys.h"
#import "Text.h"

#include "RangeText.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

using namespace imageposition;
using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

namespace {

struct Wording {
  std::string minMark;
  std::string maxMark;
  std::string templateKey;
};

std::vector<Wording> wordings() {
  std::vector<Wording> result;
  for (const Record &definition : indexedRecords("SettingInfo.plist")) {
    const std::string &text = definition.at("RangeLabelWording");
    const std::size_t first = text.find(':');
    const std::size_t second = text.find(':', first + 1);
    result.push_back({text.substr(0, first), text.substr(first + 1, second - first - 1),
                      text.substr(second + 1)});
  }
  return result;
}

std::set<std::string> keysInUse() {
  std::set<std::string> keys;
  for (NSString *key : {kTextPluginName, kTextEnable, kTextRestoreDefaults, kTextLRM, kTextTBM})
    keys.insert(cxxString(key));
  for (const Record &definition : indexedRecords("SettingInfo.plist")) {
    keys.insert(definition.at("SettingName"));
    keys.insert(definition.at("SummaryInfoName"));
  }
  for (const Wording &wording : wordings())
    keys.insert(wording.templateKey);
  return keys;
}

std::set<std::string> distinct(const std::map<std::string, std::string> &texts,
                               const std::vector<std::string> &keys) {
  std::set<std::string> result;
  for (const std::string &key : keys)
    result.insert(texts.at(key));
  return result;
}

std::string testName(const testing::TestParamInfo<std::string> &language) {
  std::string name = language.param;
  name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
  return name;
}

class LocalizedStrings : public testing::TestWithParam<std::string> {
protected:
  std::map<std::string, std::string> strings_ = localizedStrings(GetParam());
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, LocalizedStrings, testing::ValuesIn(languages()), testName);

TEST(StringsFolders, TheBundleIsBuiltWithSevenLanguages) {
  EXPECT_THAT(languages(),
              testing::UnorderedElementsAre("en", "de", "fr", "es", "it", "ja", "zh-Hans"));
}

TEST_P(LocalizedStrings, HasExactlyTheKeysInUse) {
  std::set<std::string> keys;
  for (const auto &[key, text] : strings_)
    keys.insert(key);
  EXPECT_EQ(keys, keysInUse());
}

TEST_P(LocalizedStrings, KeysAreInTheSameOrderAsInEnglish) {
  std::vector<std::string> keys, english;
  for (const auto &[key, text] : orderedStrings(GetParam()))
    keys.push_back(key);
  for (const auto &[key, text] : orderedStrings("en"))
    english.push_back(key);
  EXPECT_EQ(keys, english);
}

TEST_P(LocalizedStrings, NoStringIsEmptyItsKeyOrPadded) {
  for (const auto &[key, text] : strings_) {
    ASSERT_FALSE(text.empty()) << key;
    EXPECT_NE(text, key);
    EXPECT_NE(text.front(), ' ') << key;
    EXPECT_NE(text.back(), ' ') << key;
  }
}

TEST_P(LocalizedStrings, NothingIsLeftInEnglish) {
  if (GetParam() == "en")
    return;
  for (const auto &[key, text] : localizedStrings("en"))
    EXPECT_NE(strings_.at(key), text) << key;
}

// Two equal titles would share one entry in the summary.
TEST_P(LocalizedStrings, SummaryTitlesAreDistinctWithTheCheckboxOnAndOff) {
  EXPECT_EQ(distinct(strings_, {"EnableImgPstAdj", "FrontLRMSummary", "FrontTBMSummary",
                                "BackLRMSummary", "BackTBMSummary"})
                .size(),
            5u);
  EXPECT_EQ(
      distinct(strings_, {"EnableImgPstAdj", "LRM", "TBM", "BackLRMSummary", "BackTBMSummary"})
          .size(),
      5u);
}

TEST_P(LocalizedStrings, NameLabelsAreDistinctWithTheCheckboxOnAndOff) {
  EXPECT_EQ(distinct(strings_, {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM", "LRM", "TBM"}).size(),
            6u);
}

// The front offsets' titles in the panel are also titles in the summary, where the dialog adds a
// colon.
TEST_P(LocalizedStrings, NoNameEndsWithAColon) {
  for (const char *key : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM", "LRM", "TBM"})
    EXPECT_THAT(strings_.at(key),
                Not(testing::AnyOf(testing::EndsWith(":"), testing::EndsWith("："))))
        << key;
}

TEST_P(LocalizedStrings, EveryNameAndSummaryTitleShowsTheUnit) {
  const std::string unit = GetParam() == "zh-Hans" ? "毫米" : "mm";
  const bool hasPoint = GetParam() == "en" || GetParam() == "ja" || GetParam() == "zh-Hans";
  for (const char *key : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM", "LRM", "TBM",
                          "FrontLRMSummary", "FrontTBMSummary", "BackLRMSummary", "BackTBMSummary"})
    EXPECT_THAT(strings_.at(key), HasSubstr((hasPoint ? "0.1 " : "0,1 ") + unit)) << key;
}

TEST_P(LocalizedStrings, RangeStringsShowBothNumbersAndNoPlaceholder) {
  for (const Wording &wording : wordings()) {
    const std::string &text = strings_.at(wording.templateKey);
    EXPECT_THAT(text, HasSubstr(wording.minMark));
    EXPECT_THAT(text, HasSubstr(wording.maxMark));
    const std::string composed =
        composeRangeText(text, wording.maxMark, wording.minMark, {-200, 150});
    EXPECT_THAT(composed, HasSubstr("-200"));
    EXPECT_THAT(composed, HasSubstr("150"));
    EXPECT_EQ(composed.find_first_of("{}"), std::string::npos) << composed;
  }
}

TEST_P(LocalizedStrings, RangeStringsOfTheTwoDirectionsDiffer) {
  const std::vector<Wording> all = wordings();
  EXPECT_EQ(all.at(0).templateKey, all.at(2).templateKey);
  EXPECT_EQ(all.at(1).templateKey, all.at(3).templateKey);
  EXPECT_NE(strings_.at(all.at(0).templateKey), strings_.at(all.at(1).templateKey));
}
