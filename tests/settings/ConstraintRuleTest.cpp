#include "ConstraintRule.hpp"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace imageposition {
namespace {

using Subject = Condition::Subject;
using String = std::optional<std::string>;

Condition condition(String type, String pattern, String value) {
  RuleStrings rule;
  rule.conditionType = std::move(type);
  rule.conditionPattern = std::move(pattern);
  rule.conditionValue = std::move(value);
  return Condition::fromStrings(rule);
}

Condition onAttribute(String keyword, String value) {
  return condition("PPD", std::move(keyword), std::move(value));
}

Condition onSetting(String pattern, String value) {
  return condition("Setting", std::move(pattern), std::move(value));
}

TEST(ConstraintRuleCondition, AttributeMustHaveExactlyTheValue) {
  const Condition wide = onAttribute("ShiftRange", "Wide");
  EXPECT_EQ(wide.subject(), Subject::Attribute);
  EXPECT_EQ(wide.keyword(), "ShiftRange");
  EXPECT_TRUE(wide.isSatisfiedByAttribute("Wide"));
  for (const char *other : {"wide", "Wide ", " Wide", "Wid", "Wider", ""})
    EXPECT_FALSE(wide.isSatisfiedByAttribute(other)) << other;
  EXPECT_TRUE(onAttribute("Empty", "").isSatisfiedByAttribute(""));
}

TEST(ConstraintRuleCondition, AttributeWithoutAValueIsFalse) {
  EXPECT_FALSE(onAttribute("NoValue", "Wide").isSatisfiedByAttribute(nullptr));
  EXPECT_FALSE(onAttribute("NoValue", "").isSatisfiedByAttribute(nullptr));
}

TEST(ConstraintRuleCondition, AttributeConditionWithoutKeywordOrValueHasNoSubject) {
  EXPECT_EQ(onAttribute(std::nullopt, "Wide").subject(), Subject::Nothing);
  EXPECT_EQ(onAttribute("ShiftRange", std::nullopt).subject(), Subject::Nothing);
}

TEST(ConstraintRuleCondition, ConditionOfUnknownOrMissingTypeHasNoSubject) {
  for (const char *type : {"ppd", "setting", "Settings", "", "PPD "})
    EXPECT_EQ(condition(type, "Value", "5").subject(), Subject::Nothing) << type;
  EXPECT_EQ(condition(std::nullopt, "Value", "5").subject(), Subject::Nothing);
}

TEST(ConstraintRuleCondition, UnknownOrMissingPatternReadsNoValue) {
  EXPECT_TRUE(onSetting("Value", "5").readsValue());
  EXPECT_TRUE(onSetting("Range", "5:5").readsValue());
  for (const char *pattern : {"value", "range", "VALUE", "Range ", ""}) {
    EXPECT_EQ(onSetting(pattern, "5").subject(), Subject::Setting) << pattern;
    EXPECT_FALSE(onSetting(pattern, "5").readsValue()) << pattern;
  }
  EXPECT_FALSE(onSetting(std::nullopt, "5").readsValue());
}

TEST(ConstraintRuleCondition, ValueIsComparedAsString) {
  const auto holds = [](const char *expected, std::int32_t value) {
    const Condition tested = onSetting("Value", expected);
    EXPECT_EQ(tested.isSatisfiedBy(value), tested.isSatisfiedBy(std::to_string(value)))
        << expected << " " << value;
    return tested.isSatisfiedBy(value);
  };
  EXPECT_TRUE(holds("5", 5));
  EXPECT_TRUE(holds("-3", -3));
  EXPECT_TRUE(holds("0", 0));
  EXPECT_TRUE(holds("2147483647", INT32_MAX));
  EXPECT_TRUE(holds("-2147483648", INT32_MIN));
  for (const char *other : {"05", "+5", " 5", "5 ", "5x", "", "6", "-5", "5:5", "4294967301"})
    EXPECT_FALSE(holds(other, 5)) << other;
  EXPECT_FALSE(holds("-0", 0));
  EXPECT_FALSE(holds("", 0));
  EXPECT_FALSE(holds("abc", 0));
  EXPECT_FALSE(holds("2147483648", INT32_MAX));
  EXPECT_FALSE(holds("-2147483649", INT32_MIN));
}

TEST(ConstraintRuleCondition, ValueOfASettingMayBeAnyString) {
  EXPECT_TRUE(onSetting("Value", "five").isSatisfiedBy("five"));
  EXPECT_TRUE(onSetting("Value", "05").isSatisfiedBy("05"));
  EXPECT_FALSE(onSetting("Value", "5").isSatisfiedBy("05"));
  EXPECT_TRUE(onSetting("Range", "5:5").isSatisfiedBy(" 05x"));
}

TEST(ConstraintRuleCondition, SettingWithoutValueEqualsNoValueAndCountsAsZeroInARange) {
  EXPECT_FALSE(onSetting("Value", "").isSatisfiedBy(std::nullopt));
  EXPECT_FALSE(onSetting("Value", "0").isSatisfiedBy(std::nullopt));
  EXPECT_FALSE(onSetting("Value", std::nullopt).isSatisfiedBy(std::nullopt));
  EXPECT_TRUE(onSetting("Range", "0:0").isSatisfiedBy(std::nullopt));
  EXPECT_FALSE(onSetting("Range", "1:2").isSatisfiedBy(std::nullopt));
}

TEST(ConstraintRuleCondition, AbsentValueNeverMatchesAndAbsentRangeIsZeroToZero) {
  for (std::int32_t value : {-1, 0, 1}) {
    EXPECT_FALSE(onSetting("Value", std::nullopt).isSatisfiedBy(value)) << value;
    EXPECT_FALSE(onSetting("Value", std::nullopt).isSatisfiedBy(std::to_string(value))) << value;
    EXPECT_EQ(onSetting("Range", std::nullopt).isSatisfiedBy(value), value == 0) << value;
  }
}

TEST(ConstraintRuleCondition, RangeIncludesBothEnds) {
  for (std::int32_t value : {-10, 0, 10})
    EXPECT_TRUE(onSetting("Range", "-10:10").isSatisfiedBy(value)) << value;
  for (std::int32_t value : {-11, 11})
    EXPECT_FALSE(onSetting("Range", "-10:10").isSatisfiedBy(value)) << value;
}

TEST(ConstraintRuleCondition, InvertedRangeNeverHolds) {
  for (std::int32_t value : {3, 5, 7, 10, 20})
    EXPECT_FALSE(onSetting("Range", "10:5").isSatisfiedBy(value)) << value;
}

TEST(ConstraintRuleCondition, RangeWithoutColonReadsTheValueAndNeverHolds) {
  for (const char *text : {"5", "0", "", "abc"}) {
    EXPECT_TRUE(onSetting("Range", text).readsValue()) << text;
    for (std::int32_t value : {0, 5})
      EXPECT_FALSE(onSetting("Range", text).isSatisfiedBy(value)) << text;
  }
}

Action action(String pattern, String value) {
  RuleStrings rule;
  rule.actionPattern = std::move(pattern);
  rule.actionValue = std::move(value);
  return Action::fromStrings(rule);
}

TEST(ConstraintRuleAction, ValueIsKeptAsGiven) {
  for (const char *text : {"5", "12abc", "", " 7", "abc"}) {
    EXPECT_EQ(action("Value", text).kind, Action::Kind::SetValue) << text;
    EXPECT_EQ(action("Value", text).value, text);
  }
}

TEST(ConstraintRuleAction, ViewIsOnOrOffExactly) {
  EXPECT_EQ(action("View", "ON").kind, Action::Kind::SetAvailable);
  EXPECT_TRUE(action("View", "ON").available);
  EXPECT_EQ(action("View", "OFF").kind, Action::Kind::SetAvailable);
  EXPECT_FALSE(action("View", "OFF").available);
  for (const char *text : {"on", "off", "On", "", "1", "ON ", "TRUE"})
    EXPECT_EQ(action("View", text).kind, Action::Kind::Nothing) << text;
}

TEST(ConstraintRuleAction, RangeKeepsItsBoundsAsGiven) {
  const Action inverted = action("Range", "5:-5");
  EXPECT_EQ(inverted.kind, Action::Kind::SetRange);
  EXPECT_EQ(inverted.range.min, 5);
  EXPECT_EQ(inverted.range.max, -5);
  const Action more = action("Range", "-7:8:9");
  EXPECT_EQ(more.range.min, -7);
  EXPECT_EQ(more.range.max, 8);
}

TEST(ConstraintRuleAction, AbsentRangeIsZeroToZeroAndOneWithoutColonDoesNothing) {
  const Action absent = action("Range", std::nullopt);
  EXPECT_EQ(absent.kind, Action::Kind::SetRange);
  EXPECT_EQ(absent.range.min, 0);
  EXPECT_EQ(absent.range.max, 0);
  for (const char *text : {"", "5", "abc"})
    EXPECT_EQ(action("Range", text).kind, Action::Kind::Nothing) << text;
}

TEST(ConstraintRuleAction, DefaultIsReadAsAnInteger) {
  for (const auto &[text, number] : std::vector<std::pair<const char *, std::int32_t>>{
           {"5", 5}, {"-3x", -3}, {"abc", 0}, {"", 0}, {"99999999999", INT32_MAX}}) {
    EXPECT_EQ(action("Default", text).kind, Action::Kind::SetDefault) << text;
    EXPECT_EQ(action("Default", text).number, number) << text;
  }
}

TEST(ConstraintRuleAction, OtherActionsWithoutValueDoNothing) {
  for (const char *pattern : {"Value", "View", "Default"})
    EXPECT_EQ(action(pattern, std::nullopt).kind, Action::Kind::Nothing) << pattern;
}

TEST(ConstraintRuleAction, UnknownOrMissingPatternDoesNothing) {
  for (const char *pattern : {"value", "VIEW", "range", "Default ", "", "Max"})
    EXPECT_EQ(action(pattern, "5").kind, Action::Kind::Nothing) << pattern;
  EXPECT_EQ(action(std::nullopt, "5").kind, Action::Kind::Nothing);
}

} // namespace
} // namespace imageposition
