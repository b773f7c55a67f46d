#include "Alignments.hpp"

#include "TemporaryFolder.hpp"
#include "TestPpd.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

AlignmentKey keyOf(const std::string &queue, Turning turning = Turning::LongEdge,
                   const std::string &tray = "Tray1", const std::string &paper = "A4") {
  return {queue, turning, tray, paper};
}

MeasuredAlignment alignmentOf(const AlignmentKey &key, int right) {
  return {key, {{{1}, {2}}, {{right}, {-4}}}, {{1}, {2}}, 3, "2026-11-22"};
}

class AlignmentFile : public testing::Test {
protected:
  void SetUp() override { setenv("XDG_CONFIG_HOME", folder_.path("config").c_str(), 1); }
  void TearDown() override { unsetenv("XDG_CONFIG_HOME"); }

  std::string path() const { return folder_.path("config/print-dialog/alignments.json"); }
  Alignments read() { return Alignments::read(errors_); }
  bool store(const MeasuredAlignment &alignment) {
    return changeAlignments([&](Alignments &alignments) { alignments.store(alignment); }, errors_);
  }

  TemporaryFolder folder_;
  std::ostringstream errors_;
};

TEST_F(AlignmentFile, IsEmptyBeforeTheFirstMeasurement) {
  EXPECT_TRUE(read().all().empty());
  EXPECT_FALSE(read().find(keyOf("office")));
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(AlignmentFile, KeepsMeasurementsPerQueueTurningTrayAndPaper) {
  ASSERT_TRUE(store(alignmentOf(keyOf("office"), 3)));
  ASSERT_TRUE(store(alignmentOf(keyOf("office", Turning::LongEdge, "Tray2"), 5)));
  ASSERT_TRUE(store(alignmentOf(keyOf("office", Turning::LongEdge, "Tray1", "A5"), 7)));
  ASSERT_TRUE(store(alignmentOf(keyOf("home"), 9)));
  const auto backOf = [this](const AlignmentKey &key) {
    return read().find(key).value().offsets.back.right.count;
  };
  EXPECT_EQ(backOf(keyOf("OFFICE")), 3);
  EXPECT_EQ(backOf(keyOf("office", Turning::LongEdge, "Tray2")), 5);
  EXPECT_EQ(backOf(keyOf("office", Turning::LongEdge, "Tray1", "A5")), 7);
  EXPECT_EQ(backOf(keyOf("home")), 9);
  EXPECT_FALSE(read().find(keyOf("home", Turning::LongEdge, "")));
  EXPECT_FALSE(read().find(keyOf("home", Turning::OneSided)));
  EXPECT_EQ(read().find(keyOf("office"))->date, "2026-11-22");
  ASSERT_TRUE(store(alignmentOf(keyOf("office"), 4)));
  EXPECT_EQ(backOf(keyOf("office")), 4);
  EXPECT_EQ(read().all().size(), 4U);
}

TEST_F(AlignmentFile, ServesTheShortEdgeWithTurnedSignsUntilItIsMeasured) {
  ASSERT_TRUE(store(alignmentOf(keyOf("office"), 3)));
  const auto turned = read().find(keyOf("office", Turning::ShortEdge));
  ASSERT_TRUE(turned);
  EXPECT_TRUE(turned->isOfOtherTurning);
  EXPECT_EQ(turned->offsets, (SideOffsets{{{1}, {2}}, {{-3}, {4}}}));
  ASSERT_TRUE(store(alignmentOf(keyOf("office", Turning::ShortEdge), 8)));
  const auto measured = read().find(keyOf("office", Turning::ShortEdge));
  ASSERT_TRUE(measured);
  EXPECT_FALSE(measured->isOfOtherTurning);
  EXPECT_EQ(measured->offsets.back.right.count, 8);
}

TEST_F(AlignmentFile, DoesNotServeTheLongEdgeWithTheShortEdges) {
  ASSERT_TRUE(store(alignmentOf(keyOf("office", Turning::ShortEdge), 8)));
  EXPECT_FALSE(read().find(keyOf("office")));
}

TEST_F(AlignmentFile, RemembersTheOffsetsOfThePrintedSheets) {
  const SideOffsets offsets{{{1}, {2}}, {{3}, {4}}};
  EXPECT_FALSE(read().printed(keyOf("office")));
  ASSERT_TRUE(changeAlignments(
      [&](Alignments &alignments) { alignments.setPrinted(keyOf("office"), offsets); }, errors_));
  EXPECT_EQ(read().printed(keyOf("office")), offsets);
  EXPECT_FALSE(read().printed(keyOf("office", Turning::ShortEdge)));
}

TEST_F(AlignmentFile, DeletesWhatWasMeasuredForAQueue) {
  ASSERT_TRUE(store(alignmentOf(keyOf("office"), 3)));
  ASSERT_TRUE(store(alignmentOf(keyOf("office", Turning::ShortEdge), 3)));
  ASSERT_TRUE(store(alignmentOf(keyOf("home"), 3)));
  std::size_t count = 0;
  ASSERT_TRUE(changeAlignments(
      [&](Alignments &alignments) {
        alignments.setPrinted(keyOf("office"), {});
        count = alignments.removeQueue("office");
      },
      errors_));
  EXPECT_EQ(count, 2U);
  EXPECT_EQ(read().all().size(), 1U);
  EXPECT_FALSE(read().printed(keyOf("office")));
}

TEST_F(AlignmentFile, IsReadableOnlyByItsOwner) {
  ASSERT_TRUE(store(alignmentOf(keyOf("office"), 3)));
  struct stat status {};
  ASSERT_EQ(stat(path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(AlignmentFile, OfOtherContentIsIgnoredAndKept) {
  for (const char *content : {"", "Dear diary", "[]", "{}", "{\"alignments\": 1}",
                              "{\"alignments\": [{\"queue\": \"office\""}) {
    folder_.write("config/print-dialog/alignments.json", content);
    errors_.str("");
    EXPECT_TRUE(read().all().empty()) << content;
    EXPECT_THAT(errors_.str(), HasSubstr("alignments.json")) << content;
    EXPECT_FALSE(store(alignmentOf(keyOf("office"), 3))) << content;
    EXPECT_EQ(contentOf(path()), content);
  }
}

TEST_F(AlignmentFile, LosesNothingButWhatItCannotUse) {
  const std::string key = R"("queue": "b", "tray": "", "paper": "A4", "turning": "long-edge")";
  folder_.write("config/print-dialog/alignments.json",
                R"({"alignments": [7, {"queue": "a"}, {)" + key +
                    R"(, "front": [0, 0], "back": [101, 0], "date": "2026-01-01"}, {)" + key +
                    R"(, "front": [0, 0], "back": ["x", 0], "date": "2026-01-01"}, {)" + key +
                    R"(, "front": [0, 0], "back": [7, 0], "date": "2026-01-01", "sheets": 2}]})");
  const Alignments alignments = read();
  ASSERT_EQ(alignments.all().size(), 1U);
  EXPECT_EQ(alignments.all()[0].offsets.back.right.count, 7);
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(AlignmentFile, IgnoresEntriesWithNumbersThatItCannotHave) {
  for (const char *const numbers :
       {R"("front": [4294967297, 0], "sheets": 3)", R"("front": [18446744073709551615, 0])",
        R"("front": [1e30, 0])", R"("front": [0.5, 0])", R"("front": [101, 0])",
        R"("front": [1, 0], "sheets": 4294967297)", R"("front": [1, 0], "sheets": 1e30)",
        R"("front": [1, 0], "spread": [4294967297, 0])"}) {
    const auto alignments = Alignments::fromText(
        R"({"alignments": [{"queue": "office", "turning": "long-edge", "tray": "", "paper": "A4", )"
        R"("back": [0, 0], "date": "2026-11-22", )" +
        std::string(numbers) + "}]}");
    ASSERT_TRUE(alignments) << numbers;
    EXPECT_TRUE(alignments->all().empty()) << numbers;
  }
}

TEST_F(AlignmentFile, ThatCannotBeWrittenSaysSo) {
  folder_.write("config", "a file where the folder should be");
  EXPECT_FALSE(store(alignmentOf(keyOf("office"), 3)));
  EXPECT_THAT(errors_.str(), HasSubstr("Cannot save the measurements"));
}

TEST(AlignmentKey, IsOfTheMarkedChoices) {
  auto lines = TestPpd::option("InputSlot", {"Tray1", "Tray2"});
  for (const std::string &line : TestPpd::option("Duplex", {"DuplexTumble", "None"}))
    lines.push_back(line);
  TestPpd ppd(lines);
  ppd.mark("InputSlot", "Tray2");
  const AlignmentKey key = alignmentKeyOf("office/draft", ppd);
  EXPECT_EQ(key.queue, "office");
  EXPECT_EQ(key.turning, Turning::ShortEdge);
  EXPECT_EQ(key.tray, "Tray2");
  ppd.mark("Duplex", "None");
  EXPECT_EQ(alignmentKeyOf("office", ppd).turning, Turning::OneSided);
}

TEST(Today, IsADate) {
  const std::string date = today();
  ASSERT_EQ(date.size(), 10U);
  EXPECT_EQ(date[4], '-');
  EXPECT_EQ(date[7], '-');
}

TEST(AlignmentLine, NamesEverything) {
  EXPECT_EQ(
      alignmentLine(alignmentOf(keyOf("office", Turning::ShortEdge), 15)),
      "office: A4, Tray1, turned about the short edge: front: right 0.1 mm, down 0.2 mm; back: "
      "right 1.5 mm, down -0.4 mm (measured on 2026-11-22)");
}

} // namespace

} // namespace imageposition
