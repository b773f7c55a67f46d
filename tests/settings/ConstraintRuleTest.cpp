#include "settings/ConstraintRule.hpp"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace imageposition {
namespace {

/// A printer and settings that are nothing but tables, and a record of what was asked of them.
class FakeSource : public ConditionSource {
public:
  struct Setting {
    std::string name;
    std::optional<std::int32_t> value;
    std::optional<std::string> text;
  };

  const char *attributeValue(const std::string &keyword) override {
    const auto found = attributes.find(keyword);
    return found == attributes.end() ? nullptr : found->second;
  }
  std::size_t settingCount() override { return settings.size(); }
  bool isSettingNamed(std::size_t index, const std::string &name) override {
    visited.push_back(index);
    const bool named = settings.at(index).name == name;
    if (growsWhenVisited) {
      growsWhenVisited = false;
      settings.push_back(laterSetting);
    }
    return named;
  }
  std::optional<std::int32_t> settingValue(std::size_t index) override {
    return settings.at(index).value;
  }
  std::optional<std::string> settingText(std::size_t index) override {
    return settings.at(index).text;
  }

  FakeSource &with(const std::string &name, std::int32_t value) {
    settings.push_back({name, value, std::to_string(value)});
    return *this;
  }
  FakeSource &withText(const std::string &name, std::optional<std::string> text) {
    settings.push_back({name, std::nullopt, std::move(text)});
    return *this;
  }

  std::map<std::string, const char *> attributes;
  std::vector<Setting> settings;
  std::vector<std::size_t> visited;
  bool growsWhenVisited = false;
  Setting laterSetting;
};

RuleTexts ppdRule(std::optional<std::string> keyword, std::optional<std::string> value) {
  RuleTexts texts;
  texts.conditionType = "PPD";
  texts.conditionPattern = std::move(keyword);
  texts.conditionValue = std::move(value);
  return texts;
}

RuleTexts settingRule(const std::string &name, const std::string &pattern,
                      std::optional<std::string> value) {
  RuleTexts texts;
  texts.conditionType = "Setting";
  texts.conditionObj = name;
  texts.conditionPattern = pattern;
  texts.conditionValue = std::move(value);
  return texts;
}

bool holds(const RuleTexts &texts, FakeSource source) {
  return Condition::fromTexts(texts).holds(source);
}

TEST(ConstraintRuleCondition, AttributeMustHaveExactlyTheValue) {
  FakeSource source;
  source.attributes = {{"ShiftRange", "Wide"}, {"Empty", ""}, {"NoValue", nullptr}};
  EXPECT_TRUE(holds(ppdRule("ShiftRange", "Wide"), source));
  for (const char *other : {"wide", "Wide ", " Wide", "Wid", "Wider", ""})
    EXPECT_FALSE(holds(ppdRule("ShiftRange", other), source)) << other;
  EXPECT_TRUE(holds(ppdRule("Empty", ""), source));
}

TEST(ConstraintRuleCondition, AttributeThatIsMissingOrHasNoValueIsFalse) {
  FakeSource source;
  source.attributes = {{"NoValue", nullptr}};
  EXPECT_FALSE(holds(ppdRule("Missing", "Wide"), source));
  EXPECT_FALSE(holds(ppdRule("Missing", ""), source));
  EXPECT_FALSE(holds(ppdRule("NoValue", ""), source));
  EXPECT_FALSE(holds(ppdRule("NoValue", std::nullopt), source));
}

TEST(ConstraintRuleCondition, AttributeConditionWithoutKeywordOrValueIsFalse) {
  FakeSource source;
  source.attributes = {{"ShiftRange", "Wide"}, {"Empty", ""}, {"", ""}};
  EXPECT_FALSE(holds(ppdRule(std::nullopt, "Wide"), source));
  EXPECT_FALSE(holds(ppdRule("ShiftRange", std::nullopt), source));
  EXPECT_FALSE(holds(ppdRule("Empty", std::nullopt), source));
}

TEST(ConstraintRuleCondition, AttributeConditionIgnoresTheConditionObject) {
  FakeSource source;
  source.attributes = {{"ShiftRange", "Wide"}};
  RuleTexts texts = ppdRule("ShiftRange", "Wide");
  texts.conditionObj = "BackLRM";
  EXPECT_TRUE(holds(texts, source));
  EXPECT_TRUE(holds(texts, FakeSource(source).with("BackLRM", 3)));
}

TEST(ConstraintRuleCondition, UnknownOrMissingTypeIsFalse) {
  FakeSource source;
  source.with("A", 5).attributes = {{"Value", "5"}};
  for (const char *type : {"ppd", "setting", "Settings", "", "PPD "}) {
    RuleTexts texts = settingRule("A", "Value", "5");
    texts.conditionType = type;
    EXPECT_FALSE(holds(texts, source)) << type;
  }
  RuleTexts texts = settingRule("A", "Value", "5");
  texts.conditionType = std::nullopt;
  EXPECT_FALSE(holds(texts, source));
}

TEST(ConstraintRuleCondition, SettingsPatternMustBeValueOrRangeExactly) {
  for (const char *pattern : {"value", "range", "VALUE", "Range ", ""})
    EXPECT_FALSE(holds(settingRule("A", pattern, "5"), FakeSource().with("A", 5))) << pattern;
  RuleTexts texts = settingRule("A", "Value", "5");
  texts.conditionPattern = std::nullopt;
  EXPECT_FALSE(holds(texts, FakeSource().with("A", 5)));
}

TEST(ConstraintRuleCondition, ValueIsComparedAsText) {
  const auto holdsFor = [](const char *expected, std::int32_t value) {
    return holds(settingRule("A", "Value", expected), FakeSource().with("A", value));
  };
  EXPECT_TRUE(holdsFor("5", 5));
  EXPECT_TRUE(holdsFor("-3", -3));
  EXPECT_TRUE(holdsFor("0", 0));
  EXPECT_TRUE(holdsFor("2147483647", INT32_MAX));
  EXPECT_TRUE(holdsFor("-2147483648", INT32_MIN));
  for (const char *other : {"05", "+5", " 5", "5 ", "5x", "", "6", "-5", "5:5", "4294967301"})
    EXPECT_FALSE(holdsFor(other, 5)) << other;
  EXPECT_FALSE(holdsFor("-0", 0));
  EXPECT_FALSE(holdsFor("", 0));
  EXPECT_FALSE(holdsFor("abc", 0));
  EXPECT_FALSE(holdsFor("2147483648", INT32_MAX));
  EXPECT_FALSE(holdsFor("-2147483649", INT32_MIN));
}

TEST(ConstraintRuleCondition, TextOfASettingCountsWhenItsValueIsNotKnown) {
  EXPECT_TRUE(holds(settingRule("A", "Value", "five"), FakeSource().withText("A", "five")));
  EXPECT_TRUE(holds(settingRule("A", "Value", "05"), FakeSource().withText("A", "05")));
  EXPECT_FALSE(holds(settingRule("A", "Value", "5"), FakeSource().withText("A", "05")));
  EXPECT_TRUE(holds(settingRule("A", "Range", "5:5"), FakeSource().withText("A", " 05x")));
}

TEST(ConstraintRuleCondition, SettingWithoutTextHasNoValueAndReadsAsZero) {
  const FakeSource source = FakeSource().withText("A", std::nullopt);
  EXPECT_FALSE(holds(settingRule("A", "Value", ""), source));
  EXPECT_FALSE(holds(settingRule("A", "Value", "0"), source));
  EXPECT_TRUE(holds(settingRule("A", "Range", "0:0"), source));
  EXPECT_FALSE(holds(settingRule("A", "Range", "1:2"), source));
}

TEST(ConstraintRuleCondition, AbsentValueNeverMatchesAndAbsentRangeIsZeroToZero) {
  for (std::int32_t value : {-1, 0, 1}) {
    const FakeSource source = FakeSource().with("A", value);
    EXPECT_FALSE(holds(settingRule("A", "Value", std::nullopt), source)) << value;
    EXPECT_EQ(holds(settingRule("A", "Range", std::nullopt), source), value == 0) << value;
  }
}

TEST(ConstraintRuleCondition, RangeIncludesBothEnds) {
  for (std::int32_t value : {-10, 0, 10})
    EXPECT_TRUE(holds(settingRule("A", "Range", "-10:10"), FakeSource().with("A", value))) << value;
  for (std::int32_t value : {-11, 11})
    EXPECT_FALSE(holds(settingRule("A", "Range", "-10:10"), FakeSource().with("A", value)))
        << value;
}

TEST(ConstraintRuleCondition, InvertedRangeHoldsForNothing) {
  for (std::int32_t value : {3, 5, 7, 10, 20})
    EXPECT_FALSE(holds(settingRule("A", "Range", "10:5"), FakeSource().with("A", value))) << value;
}

TEST(ConstraintRuleCondition, RangeWithoutColonIsFalse) {
  for (const char *text : {"5", "0", "", "abc"})
    for (std::int32_t value : {0, 5})
      EXPECT_FALSE(holds(settingRule("A", "Range", text), FakeSource().with("A", value))) << text;
}

TEST(ConstraintRuleCondition, NameMustMatchExactly) {
  for (const char *name : {"a", "A ", "AA", ""})
    EXPECT_FALSE(holds(settingRule(name, "Value", "5"), FakeSource().with("A", 5))) << name;
  RuleTexts texts = settingRule("A", "Value", "5");
  texts.conditionObj = std::nullopt;
  EXPECT_FALSE(holds(texts, FakeSource().with("A", 5)));
  EXPECT_FALSE(holds(texts, FakeSource().with("", 5)));
}

TEST(ConstraintRuleCondition, AnySettingOfTheNameSuffices) {
  const RuleTexts texts = settingRule("A", "Value", "5");
  EXPECT_FALSE(holds(texts, FakeSource()));
  EXPECT_FALSE(holds(texts, FakeSource().with("B", 5)));
  EXPECT_TRUE(holds(texts, FakeSource().with("B", 1).with("A", 5)));
  EXPECT_TRUE(holds(texts, FakeSource().with("A", 5).with("A", 6)));
  EXPECT_TRUE(holds(texts, FakeSource().with("A", 6).with("A", 5)));
}

TEST(ConstraintRuleCondition, EverySettingIsVisitedInOrderEvenAfterOneMatched) {
  FakeSource source;
  source.with("A", 5).with("B", 5).with("A", 5);
  EXPECT_TRUE(Condition::fromTexts(settingRule("A", "Value", "5")).holds(source));
  EXPECT_EQ(source.visited, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(ConstraintRuleCondition, SettingsThatAppearDuringTheWalkAreVisited) {
  FakeSource source;
  source.with("B", 1);
  source.growsWhenVisited = true;
  source.laterSetting = {"A", 5, "5"};
  EXPECT_TRUE(Condition::fromTexts(settingRule("A", "Value", "5")).holds(source));
  EXPECT_EQ(source.visited, (std::vector<std::size_t>{0, 1}));
}

Action action(std::optional<std::string> pattern, std::optional<std::string> value) {
  RuleTexts texts;
  texts.actionObj = "A";
  texts.actionPattern = std::move(pattern);
  texts.actionValue = std::move(value);
  return Action::fromTexts(texts);
}

TEST(ConstraintRuleAction, ValueKeepsItsTextAsItIs) {
  for (const char *text : {"5", "12abc", "", " 7", "abc"}) {
    EXPECT_EQ(action("Value", text).kind, Action::Kind::SetValue) << text;
    EXPECT_EQ(action("Value", text).text, text);
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

TEST(ConstraintRuleAction, AbsentRangeIsZeroToZeroAndOneWithoutColonNothing) {
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

TEST(ConstraintRuleAction, AbsentValueOfTheOthersIsNothing) {
  for (const char *pattern : {"Value", "View", "Default"})
    EXPECT_EQ(action(pattern, std::nullopt).kind, Action::Kind::Nothing) << pattern;
}

TEST(ConstraintRuleAction, UnknownOrMissingPatternIsNothing) {
  for (const char *pattern : {"value", "VIEW", "range", "Default ", "", "Max"})
    EXPECT_EQ(action(pattern, "5").kind, Action::Kind::Nothing) << pattern;
  EXPECT_EQ(action(std::nullopt, "5").kind, Action::Kind::Nothing);
}

TEST(ConstraintRule, HasTheConditionAndTheActionOfItsTexts) {
  RuleTexts texts = settingRule("A", "Value", "5");
  texts.actionObj = "B";
  texts.actionPattern = "Default";
  texts.actionValue = "9";
  const ConstraintRule rule = ConstraintRule::fromTexts(texts);
  FakeSource source;
  source.with("A", 5);
  EXPECT_TRUE(rule.condition.holds(source));
  EXPECT_EQ(rule.action.number, 9);
}

} // namespace
} // namespace imageposition
