#include "ReadingForm.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace imageposition {

namespace {

using testing::HasSubstr;

ReadingForm formWith(const std::vector<std::vector<std::string>> &rows) {
  ReadingForm form(3, true);
  for (std::size_t row = 0; row < rows.size(); row++)
    for (std::size_t column = 0; column < rows[row].size(); column++)
      form.enter({row, column}, rows[row][column]);
  return form;
}

TEST(ReadingForm, TakesNumbersInMillimetres) {
  const struct {
    const char *typed;
    std::int64_t tenths;
    const char *shown;
  } rows[] = {{"1.7", 17, "1.7"},   {"-0.3", -3, "-0.3"},    {"1,7", 17, "1.7"},
              {" 2 ", 20, "2"},     {"+0.4", 4, "0.4"},      {"−0.3", -3, "-0.3"},
              {"１.５", 15, "1.5"}, {"1.75", 18, "1.8"},     {"10.5", 105, "10.5"},
              {".5", 5, "0.5"},     {"-10.5", -105, "-10.5"}};
  for (const auto &row : rows) {
    ReadingForm form(3, true);
    form.enter({1, kSecondDown}, row.typed);
    EXPECT_EQ(form.shown({1, kSecondDown}).count, row.tenths) << row.typed;
    EXPECT_EQ(form.text({1, kSecondDown}), row.shown) << row.typed;
    EXPECT_EQ(form.mistake({1, kSecondDown}), "") << row.typed;
  }
}

TEST(ReadingForm, RefusesWhatIsNoNumberOfTheScales) {
  for (const char *const typed : {"x", "10.6", "-11", "17", "1.2.3", "nan", "-", "1 mm"}) {
    ReadingForm form(3, true);
    form.enter({0, 0}, typed);
    EXPECT_THAT(form.mistake({0, 0}), HasSubstr("from -10.5 to 10.5")) << typed;
    EXPECT_EQ(form.text({0, 0}), typed);
    ASSERT_TRUE(form.problem()) << typed;
    EXPECT_EQ(form.problem()->text, form.mistake({0, 0})) << typed;
  }
}

TEST(ReadingForm, ShowsTheLastNumberWhileAnEntryIsWrong) {
  ReadingForm form(3, true);
  form.enter({0, 0}, "1.5");
  form.enter({0, 0}, "1.5x");
  EXPECT_EQ(form.shown({0, 0}).count, 15);
  form.enter({0, 0}, "");
  EXPECT_EQ(form.shown({0, 0}).count, 0);
}

TEST(ReadingForm, CountsInTenthsWithinTheScale) {
  ReadingForm form(3, true);
  form.step({0, 0}, 1); // from an empty entry
  EXPECT_EQ(form.text({0, 0}), "0.1");
  form.step({0, 0}, -2);
  EXPECT_EQ(form.text({0, 0}), "-0.1");
  form.enter({0, 0}, "10.4");
  for (int i = 0; i < 3; i++)
    form.step({0, 0}, 1);
  EXPECT_EQ(form.text({0, 0}), "10.5");
  form.enter({0, 0}, "-10.5");
  form.step({0, 0}, -1);
  EXPECT_EQ(form.text({0, 0}), "-10.5");
}

TEST(ReadingForm, ReadsTheSheetsThatAreComplete) {
  const std::vector<std::string> sheet{"1.7", "-0.3", "1.6", "-0.2"};
  const struct {
    std::vector<std::vector<std::string>> rows;
    std::size_t sheets;
  } rows[] = {{{}, 0},
              {{sheet}, 1},
              {{{}, sheet}, 1},
              {{sheet, {}, sheet}, 2},
              {{sheet, sheet, sheet}, 3},
              {{sheet, {"1", "2", "3"}}, 1}};
  for (const auto &row : rows)
    EXPECT_EQ(formWith(row.rows).readings().size(), row.sheets);
  const SheetReading read = formWith({{}, sheet}).readings().at(0);
  EXPECT_EQ(read.first, (Offset{{17}, {-3}}));
  EXPECT_EQ(read.second, (Offset{{16}, {-2}}));
}

TEST(ReadingForm, NeedsWholeSheets) {
  const std::vector<std::string> sheet{"0", "0", "0", "0"};
  const struct {
    std::vector<std::vector<std::string>> rows;
    std::size_t row, column;
    const char *text;
  } rows[] = {{{}, 0, 0, "at least one sheet"},
              {{{}, {}, {}, {"1", "1"}}, 0, 0, "at least one sheet"},
              {{sheet, {"1", "", "1", "1"}}, 1, 1, "all four"},
              {{sheet, {}, {"", "1"}}, 2, 0, "all four"},
              {{sheet, {}, {}, {"1"}}, 3, 1, "both"},
              {{sheet, {}, {}, {"1", "x"}}, 3, 1, "from"},
              {{{"1", "", "", "x"}}, 0, 3, "from"}};
  for (const auto &row : rows) {
    const auto problem = formWith(row.rows).problem();
    ASSERT_TRUE(problem) << row.text;
    EXPECT_EQ(problem->place.row, row.row) << row.text;
    EXPECT_EQ(problem->place.column, row.column) << row.text;
    EXPECT_THAT(problem->text, HasSubstr(row.text));
  }
  EXPECT_FALSE(formWith({sheet}).problem());
  EXPECT_FALSE(formWith({{}, {}, sheet, {"1", "-1"}}).problem());
}

TEST(ReadingForm, HasACreaseIfItIsWanted) {
  EXPECT_FALSE(formWith({}).crease());
  EXPECT_FALSE(formWith({{}, {}, {}, {"1"}}).crease());
  EXPECT_EQ(formWith({{}, {}, {}, {"1", "-0.5"}}).crease(), (Offset{{10}, {-5}}));
  const ReadingForm onSmallPaper(3, false);
  EXPECT_EQ(onSmallPaper.rows(), 3U);
  EXPECT_FALSE(onSmallPaper.crease());
}

TEST(ReadingForm, DrawsTheScaleOfEachEntry) {
  const ReadingForm form = formWith({{"1.7"}, {"", "-2"}, {}, {"3", "-4"}});
  EXPECT_EQ(form.picture({0, 0}), vernierPicture(kFirstAcross, {17}));
  EXPECT_EQ(form.picture({1, 1}), vernierPicture(kFirstDown, {-20}));
  EXPECT_EQ(form.picture({2, 3}), vernierPicture(kSecondDown, {0}));
  EXPECT_EQ(form.picture({3, 0}), creasePicture(Direction::Across, {30}));
  EXPECT_EQ(form.picture({3, 1}), creasePicture(Direction::Down, {-40}));
}

} // namespace

} // namespace imageposition
