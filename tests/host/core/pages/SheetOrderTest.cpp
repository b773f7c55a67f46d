#include "SheetOrder.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

constexpr SideOrder kTwoSided{PrintedSides::Both, false};
constexpr SideOrder kReversed{PrintedSides::Both, true};
constexpr SideOrder kFronts{PrintedSides::FrontsOnly, false};
constexpr SideOrder kBacks{PrintedSides::BacksOnly, false};

DocumentPages documentOf(int pages, int numberUp = 1, const char *ranges = nullptr,
                         PageSet set = PageSet::All) {
  DocumentPages document;
  document.pages = pages;
  document.numberUp = numberUp;
  document.choice.set = set;
  if (ranges != nullptr)
    document.choice.ranges = PageRanges::parse(ranges);
  return document;
}

/// "front/back" of each sheet, "-" for a blank side.
std::string sheetsOf(const SheetOrder &order) {
  const auto text = [](const std::optional<int> &side) {
    return side ? std::to_string(*side) : "-";
  };
  std::string result;
  for (int i = 0; i < order.sheets(); i++)
    result += (i == 0 ? "" : " ") + text(order.sheet(i).front) + "/" + text(order.sheet(i).back);
  return result;
}

TEST(SheetOrder, PairsTheSidesAsThePrinterDoes) {
  EXPECT_EQ(sheetsOf(SheetOrder(4, kTwoSided)), "0/1 2/3");
  EXPECT_EQ(sheetsOf(SheetOrder(5, kTwoSided)), "0/1 2/3 4/-");
  EXPECT_EQ(sheetsOf(SheetOrder(2, kFronts)), "0/- 1/-");
  EXPECT_EQ(sheetsOf(SheetOrder(2, kBacks)), "-/0 -/1");
  EXPECT_EQ(sheetsOf(SheetOrder(0, kTwoSided)), "");
}

TEST(SheetOrder, ReversedJobsHaveTheirFirstPageOnABack) {
  EXPECT_EQ(sheetsOf(SheetOrder(4, kReversed)), "1/0 3/2");
  EXPECT_EQ(sheetsOf(SheetOrder(5, kReversed)), "1/0 3/2 -/4");
}

TEST(SheetOrder, NamesThePagesOfEachSheet) {
  struct Row {
    DocumentPages document;
    SideOrder order;
    std::vector<std::string> words;
  };
  const std::vector<Row> rows{
      {documentOf(5), kTwoSided, {"1 and 2", "3 and 4", "5"}},
      {documentOf(2), kFronts, {"1", "2"}},
      {documentOf(9, 4), kTwoSided, {"1-8", "9"}},
      {documentOf(9, 2, "2-3"), kTwoSided, {"3-6"}},
      {documentOf(9, 1, "2,7,9"), kTwoSided, {"2, 7", "9"}},
      {documentOf(5, 1, nullptr, PageSet::Even), kTwoSided, {"2, 4"}},
      {documentOf(5, 1, "2-", PageSet::Odd), kFronts, {"3", "5"}},
      {documentOf(3, 1, "7-9"), kTwoSided, {}},
      {documentOf(3, 2, "2-"), kFronts, {"3"}},
  };
  for (const Row &row : rows) {
    const SheetOrder order(row.document, row.order);
    std::vector<std::string> words;
    for (int sheet = 0; sheet < order.sheets(); sheet++)
      words.push_back(order.pagesInWords(sheet));
    EXPECT_EQ(words, row.words) << &row - rows.data();
  }
}

TEST(SheetOrder, CountsThePagesOnASheet) {
  const SheetOrder order(documentOf(9, 4), kTwoSided);
  EXPECT_EQ(order.numberOfPages(0), 8);
  EXPECT_EQ(order.numberOfPages(1), 1);
  EXPECT_EQ(order.numberOfPages(2), 0);
}

TEST(SheetOrder, SaysWhichPagesToLayOut) {
  const SheetOrder order(documentOf(100, 2, "2-4,40-"), kTwoSided);
  EXPECT_EQ(order.pages(0, 2), "3-6");
  EXPECT_EQ(order.pages(0, 4), "3-8,79-80");
  EXPECT_EQ(order.pages(2, 2), "");
}

TEST(SheetOrder, KnowsNoPagesOfALaidOutDocument) {
  const SheetOrder order(4, kTwoSided);
  EXPECT_EQ(order.pagesInWords(0), "");
  EXPECT_EQ(order.pages(0, 2), "");
  EXPECT_EQ(order.numberOfPages(0), 0);
}

TEST(SheetOrder, HasNoSidesBeyondItsEnds) {
  const SheetOrder order(5, kTwoSided);
  EXPECT_EQ(order.firstSide(-3), 0);
  EXPECT_EQ(order.firstSide(3), 5);
  EXPECT_EQ(order.firstSide(100), 5);
}

} // namespace

} // namespace imageposition
