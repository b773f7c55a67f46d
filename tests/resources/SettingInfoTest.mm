// Checks the definitions of the four settings against the code and the print dialog.
#import "ResourceFiles.h"

#import "Keys.h"
#import "Text.h"

#include "IntegerText.hpp"
#include "ValueRange.hpp"

#include <gmock/gmock.h>

#include <set>

using namespace imageposition;
using namespace imageposition::test;
using testing::ElementsAre;
using testing::Pair;

namespace {

std::vector<Record> definitions() { return indexedRecords("SettingInfo.plist"); }

std::vector<std::string> column(const std::string &key) {
  std::vector<std::string> values;
  for (const Record &definition : definitions())
    values.push_back(definition.at(key));
  return values;
}

std::vector<std::string> parts(const std::string &text) {
  std::vector<std::string> result(1);
  for (char unit : text) {
    if (unit == ':')
      result.emplace_back();
    else
      result.back() += unit;
  }
  return result;
}

} // namespace

TEST(SettingInfo, DefinesTheControllersFourSettingsInOrder) {
  EXPECT_THAT(column("SettingName"),
              ElementsAre(cxxString(kSettingFrontLRM), cxxString(kSettingFrontTBM),
                          cxxString(kSettingBackLRM), cxxString(kSettingBackTBM)));
}

TEST(SettingInfo, StoresTheOffsetsUnderTheSupportedOptionKeys) {
  EXPECT_THAT(column("TicketKey"), ElementsAre("LeftRightMargin", "TopBottomMargin",
                                               "BackLeftRightMargin", "BackTopBottomMargin"));
}

TEST(SettingInfo, EveryDefinitionHasExactlyTheKeys) {
  const std::set<std::string> expected = {
      cxxString(kRecordTicketKey),         cxxString(kRecordSettingName),
      cxxString(kRecordSummaryInfoName),   cxxString(kRecordRange),
      cxxString(kRecordRangeLabelWording), cxxString(kRecordDefaultValue)};
  for (const Record &definition : definitions()) {
    std::set<std::string> keys;
    for (const auto &[key, value] : definition)
      keys.insert(key);
    EXPECT_EQ(keys, expected) << definition.at("SettingName");
  }
}

TEST(SettingInfo, SummaryNamesAndTicketKeysAreDistinct) {
  for (const char *key : {"SummaryInfoName", "TicketKey"}) {
    const std::vector<std::string> values = column(key);
    EXPECT_EQ(std::set<std::string>(values.begin(), values.end()).size(), values.size()) << key;
  }
}

TEST(SettingInfo, DefaultsAreDecimalNumbersWithinTheirRange) {
  for (const Record &definition : definitions()) {
    const std::string &text = definition.at("DefaultValue");
    const std::int32_t value = readInteger(text);
    EXPECT_EQ(writeInteger(value), text);
    EXPECT_TRUE(readInterval(definition.at("Range")).value().contains(value));
  }
}

// Restoring the defaults sets 0, whatever the definition's default.
TEST(SettingInfo, RangesAreNotInvertedAndContainZero) {
  for (const Record &definition : definitions()) {
    const auto range = readInterval(definition.at("Range"));
    ASSERT_TRUE(range.has_value()) << definition.at("Range");
    EXPECT_LT(range->min, 0);
    EXPECT_GT(range->max, 0);
    EXPECT_EQ(writeInteger(range->min) + ":" + writeInteger(range->max), definition.at("Range"));
  }
}

TEST(SettingInfo, RangeLabelsHaveTwoPlaceholdersAndATemplate) {
  for (const Record &definition : definitions()) {
    const std::vector<std::string> wording = parts(definition.at("RangeLabelWording"));
    ASSERT_EQ(wording.size(), 3u) << definition.at("RangeLabelWording");
    // A placeholder inside the other one, or in the numbers that replace it, would garble the
    // label.
    EXPECT_THAT(wording[0], testing::Not(testing::HasSubstr(wording[1])));
    EXPECT_THAT(wording[1], testing::Not(testing::HasSubstr(wording[0])));
    for (const std::string &mark : {wording[0], wording[1]})
      EXPECT_EQ(mark.find_first_of("-0123456789"), std::string::npos) << mark;
    EXPECT_FALSE(wording[2].empty());
  }
}
