#include "ListKeys.hpp"

#include <gtest/gtest.h>

using namespace imageposition;

namespace {

/// The third item and the last one cannot be chosen.
const std::vector<ListItem> kSizes{{"a3"}, {"a4"},     {"a5", false},
                                   {"b5"}, {"letter"}, {"legal", false}};

TEST(ListKeys, MoveOverItemsThatCannotBeChosen) {
  struct Row {
    ListMove move;
    int from, to;
  };
  const Row rows[] = {
      {ListMove::Down, -1, 0},  {ListMove::Down, 1, 3},     {ListMove::Down, 4, 4},
      {ListMove::Up, 3, 1},     {ListMove::Up, 0, 0},       {ListMove::Up, -1, 4},
      {ListMove::Home, 3, 0},   {ListMove::End, 0, 4},      {ListMove::PageDown, 0, 1},
      {ListMove::PageUp, 4, 3}, {ListMove::PageDown, 3, 4}, {ListMove::PageUp, 1, 0},
  };
  constexpr int kPage = 3; // one item stays in sight, so that a page is a movement of two
  for (const Row &row : rows)
    EXPECT_EQ(movedInList(kSizes, row.from, row.move, kPage), row.to)
        << static_cast<int>(row.move) << " from " << row.from;
}

TEST(ListKeys, StayWhereNothingCanBeChosen) {
  EXPECT_EQ(movedInList({}, -1, ListMove::Down, 5), -1);
  EXPECT_EQ(movedInList({{"gone", false}}, -1, ListMove::End, 5), -1);
}

class TypedLetters : public testing::Test {
protected:
  int type(const std::string &letters, int milliseconds = 100) {
    now_ += std::chrono::milliseconds(milliseconds);
    const int found = typeAhead_.type(kSizes, at_, letters, now_);
    if (found >= 0)
      at_ = found;
    return found;
  }

  TypeAhead typeAhead_;
  TypeAhead::Time now_{std::chrono::hours(1)};
  int at_ = 0;
};

TEST_F(TypedLetters, FindTheItemThatStartsWithThem) {
  EXPECT_EQ(type("l"), 4);
  EXPECT_EQ(type("e"), 4);
  EXPECT_EQ(type("g"), -1); // it cannot be chosen
}

TEST_F(TypedLetters, StartAgainAfterAPause) {
  EXPECT_EQ(type("l"), 4);
  EXPECT_EQ(type("b", 1500), 3);
}

TEST_F(TypedLetters, LeadThroughTheItemsWhenRepeated) {
  EXPECT_EQ(type("a"), 1);
  EXPECT_EQ(type("a"), 0);
  EXPECT_EQ(type("a"), 1);
}

TEST_F(TypedLetters, FindATitleThatHasThemElsewhere) {
  const std::vector<ListItem> printers{{"plain"},
                                       {"hp indigo 001 (hp-indigo-001)"},
                                       {"hp indigo 042 (hp-indigo-042)"},
                                       {"hp-indigo-9"}};
  int at = 0;
  for (const char letter : std::string("hp-indigo-042")) {
    const int found = typeAhead_.type(printers, at, std::string(1, letter), now_);
    at = found >= 0 ? found : at;
  }
  EXPECT_EQ(at, 2);
  typeAhead_ = {};
  for (const char letter : std::string("042"))
    at = typeAhead_.type(printers, 0, std::string(1, letter), now_);
  EXPECT_EQ(at, 2);
}

TEST_F(TypedLetters, OfNoItemLeaveTheChoiceAlone) {
  EXPECT_EQ(type("x"), -1);
  EXPECT_EQ(at_, 0);
}

} // namespace
