#include "settings/ConstraintTable.hpp"

#include <gtest/gtest.h>

namespace imageposition {
namespace {

using Positions = std::vector<ConstraintTable::Position>;

RuleTexts actingOn(std::optional<std::string> setting, const std::string &value = "1") {
  RuleTexts texts;
  texts.actionObj = std::move(setting);
  texts.actionPattern = "Value";
  texts.actionValue = value;
  return texts;
}

TEST(ConstraintTable, IsEmptyAtFirst) {
  const ConstraintTable table;
  EXPECT_EQ(table.size(), 0u);
  EXPECT_EQ(table.rulesActingOn("FrontLRM"), Positions());
}

TEST(ConstraintTable, PositionsAreIndexes) {
  ConstraintTable table;
  EXPECT_EQ(table.append(actingOn("A", "10")), 0u);
  EXPECT_EQ(table.append(actingOn(std::nullopt)), 1u);
  EXPECT_EQ(table.append(actingOn("A", "12")), 2u);
  EXPECT_EQ(table.size(), 3u);
  EXPECT_EQ(table[0].action.text, "10");
  EXPECT_EQ(table[2].action.text, "12");
}

TEST(ConstraintTable, FindsTheRulesOfASettingInIndexOrder) {
  ConstraintTable table;
  for (const char *name : {"A", "B", "A", "C", "B", "A"})
    table.append(actingOn(name));
  EXPECT_EQ(table.rulesActingOn("A"), (Positions{0, 2, 5}));
  EXPECT_EQ(table.rulesActingOn("B"), (Positions{1, 4}));
  EXPECT_EQ(table.rulesActingOn("C"), (Positions{3}));
}

TEST(ConstraintTable, NamesAreComparedExactly) {
  ConstraintTable table;
  table.append(actingOn("BackTBM"));
  table.append(actingOn(""));
  for (const char *name : {"backtbm", "BackTB", "BackTBM ", " BackTBM"})
    EXPECT_EQ(table.rulesActingOn(name), Positions()) << name;
  EXPECT_EQ(table.rulesActingOn(""), (Positions{1}));
}

TEST(ConstraintTable, RuleWithoutActionObjectIsNeverFound) {
  ConstraintTable table;
  table.append(actingOn(std::nullopt));
  table.append(actingOn("A"));
  EXPECT_EQ(table.rulesActingOn(""), Positions());
  EXPECT_EQ(table.rulesActingOn("A"), (Positions{1}));
}

} // namespace
} // namespace imageposition
