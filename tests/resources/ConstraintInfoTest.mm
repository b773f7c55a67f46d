// Checks the shipped rules against the settings that they act on.
#import "ResourceFiles.h"

#import "Keys.h"
#import "SettingRules.h"
#import "Text.h"

#include "IntegerText.hpp"

#include <gmock/gmock.h>

#include <set>

using namespace imageposition;
using namespace imageposition::test;

namespace {

std::vector<Record> rules() { return indexedRecords("ConstraintInfo.plist"); }

Record definitionOf(const std::string &settingName) {
  for (const Record &definition : indexedRecords("SettingInfo.plist")) {
    if (definition.at("SettingName") == settingName)
      return definition;
  }
  ADD_FAILURE() << "no setting is named " << settingName;
  return {};
}

ValueRange entryRangeOf(const std::string &settingName) {
  return readInterval(definitionOf(settingName).at("Range")).value();
}

// The rules with the same action on the same setting, for a printer that has these attributes.
std::vector<Record> firing(const std::string &settingName, const std::string &pattern,
                           const std::string &attribute, const std::string &value) {
  std::vector<Record> result;
  for (const Record &rule : rules()) {
    if (rule.at("ActionObj") == settingName && rule.at("ActionPattern") == pattern &&
        rule.at("ConditionPattern") == attribute && rule.at("ConditionValue") == value)
      result.push_back(rule);
  }
  return result;
}

const std::vector<std::string> kSettings = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

} // namespace

TEST(ConstraintInfo, EveryRuleHasExactlyTheKeysOfAPpdRule) {
  const std::set<std::string> expected = {
      cxxString(kRuleConditionType),  cxxString(kRuleConditionPattern),
      cxxString(kRuleConditionValue), cxxString(kRuleActionObj),
      cxxString(kRuleActionPattern),  cxxString(kRuleActionValue)};
  for (const Record &rule : rules()) {
    std::set<std::string> keys;
    for (const auto &[key, value] : rule) {
      keys.insert(key);
      EXPECT_NE(value, "") << key;
    }
    EXPECT_EQ(keys, expected);
    EXPECT_EQ(rule.at("ConditionType"), "PPD");
  }
}

// A rule that does nothing is a mistake in the file.
TEST(ConstraintInfo, EveryRuleDoesSomethingToAnExistingSetting) {
  const SettingRules read(propertyList("ConstraintInfo.plist"));
  std::size_t found = 0;
  for (const std::string &setting : kSettings) {
    for (const SettingRule *rule : read.actingOn(nsString(setting))) {
      EXPECT_NE(rule->action.kind, Action::Kind::Nothing) << cxxString(rule->dictionary);
      ++found;
    }
  }
  EXPECT_EQ(found, rules().size());
}

// The controller updates availability after the rules, and would undo the effect of such a rule.
TEST(ConstraintInfo, NoRuleSetsAvailabilityOrOverridesWhatTheUserTyped) {
  for (const Record &rule : rules())
    EXPECT_THAT(rule.at("ActionPattern"), testing::AnyOf("Range", "Default"));
}

// The entry field does not receive a rule's range. It would reject numbers outside its own range
// that the range label offers.
TEST(ConstraintInfo, RangesContainZeroAndStayWithinWhatTheEntryFieldAccepts) {
  for (const Record &rule : rules()) {
    if (rule.at("ActionPattern") != "Range")
      continue;
    const auto range = readInterval(rule.at("ActionValue"));
    ASSERT_TRUE(range.has_value()) << rule.at("ActionValue");
    const ValueRange entry = entryRangeOf(rule.at("ActionObj"));
    EXPECT_TRUE(range->contains(0)) << rule.at("ActionValue");
    EXPECT_GE(range->min, entry.min) << rule.at("ActionValue");
    EXPECT_LE(range->max, entry.max) << rule.at("ActionValue");
  }
}

TEST(ConstraintInfo, DefaultsAreWithinEveryRange) {
  for (const Record &rule : rules()) {
    if (rule.at("ActionPattern") != "Default")
      continue;
    const std::string &text = rule.at("ActionValue");
    EXPECT_EQ(writeInteger(readInteger(text)), text);
    for (const Record &other : rules()) {
      if (other.at("ActionPattern") == "Range" && other.at("ActionObj") == rule.at("ActionObj")) {
        EXPECT_TRUE(readInterval(other.at("ActionValue"))->contains(readInteger(text))) << text;
      }
    }
  }
}

TEST(ConstraintInfo, ShiftRangesApplyToAllFourSettings) {
  const std::map<std::string, std::string> ranges = {{"Narrow", "-50:50"}, {"Wide", "-200:200"}};
  for (const std::string &setting : kSettings) {
    for (const auto &[value, range] : ranges) {
      const std::vector<Record> found = firing(setting, "Range", "MVDuplexShiftRange", value);
      ASSERT_EQ(found.size(), 1u) << setting << " " << value;
      EXPECT_EQ(found[0].at("ActionValue"), range);
    }
    // The plug-in offers the panel only if this attribute is "true", so this rule always fires.
    const std::vector<Record> always =
        firing(setting, "Range", "AdjustDuplexPositionSupport", "true");
    ASSERT_EQ(always.size(), 1u) << setting;
    EXPECT_EQ(always[0].at("ActionValue"), "-100:100");
  }
}

// Later rules override earlier ones.
TEST(ConstraintInfo, RulesForEveryPrinterPrecedeRulesForSomePrinters) {
  bool named = false;
  for (const Record &rule : rules()) {
    const bool general = rule.at("ConditionPattern") == "AdjustDuplexPositionSupport";
    named |= !general;
    EXPECT_FALSE(general && named);
  }
}

TEST(ConstraintInfo, OnlyTheBackSideHasDefaultsAndTheyEqualTheAttribute) {
  const std::map<std::string, std::string> attributes = {{"BackLRM", "MVBackLeftRightDefault"},
                                                         {"BackTBM", "MVBackTopBottomDefault"}};
  std::map<std::string, std::set<std::string>> offered;
  for (const Record &rule : rules()) {
    if (rule.at("ActionPattern") != "Default")
      continue;
    ASSERT_EQ(attributes.count(rule.at("ActionObj")), 1u) << rule.at("ActionObj");
    EXPECT_EQ(rule.at("ConditionPattern"), attributes.at(rule.at("ActionObj")));
    EXPECT_EQ(rule.at("ActionValue"), rule.at("ConditionValue"));
    EXPECT_TRUE(offered[rule.at("ActionObj")].insert(rule.at("ActionValue")).second);
  }
  EXPECT_EQ(offered["BackLRM"], (std::set<std::string>{"-10", "-5", "5", "10"}));
  EXPECT_EQ(offered["BackTBM"], offered["BackLRM"]);
}
