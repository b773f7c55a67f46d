// What the dialog skips or postpones at startup without a visible effect.
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;
namespace fs = std::filesystem;

class Start : public Window {
protected:
  static std::string windowId() {
    const std::string id = runProcess({"xdotool", "search", "--name", "^Print$"}).output;
    return id.substr(0, id.find('\n'));
  }

  /// The line of a server's output that is only a whole number.
  static std::string numberLine(const std::string &text) {
    std::istringstream lines(text.substr(0, text.rfind('\n') + 1));
    for (std::string line; std::getline(lines, line);)
      if (!line.empty() && line.find_first_not_of("0123456789") == std::string::npos)
        return line;
    return {};
  }

  /// The numbers of a property, which xprop writes after the equals sign.
  static std::vector<int> numbersOf(const Words &window, const std::string &property) {
    Words words{"xprop"};
    words.insert(words.end(), window.begin(), window.end());
    words.push_back(property);
    const std::string text = runProcess(words).output;
    std::vector<int> numbers;
    std::istringstream values(text.substr(std::min(text.find('='), text.size() - 1) + 1));
    for (int number; values >> number; values.ignore(1, ','))
      numbers.push_back(number);
    return numbers;
  }
};

/// Uses a keyboard with dead keys for accents.
class AccentKeys : public Start {
protected:
  void SetUp() override {
    ASSERT_EQ(runProcess({"setxkbmap", "us", "-variant", "intl"}).status, 0);
  }
  void TearDown() override { runProcess({"setxkbmap", "us"}); }
  const Words utf8{"LC_ALL=C.UTF-8"};
};

TEST_F(AccentKeys, TheVeryFirstKeyIsComposedWithTheSecond) {
  open("duplex-shift.ppd", {}, utf8);
  press({"dead_acute", "1", "2", "Return"}); // no digit has an accent: both are dropped
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_EQ(printed(), offsets("2", "0", "0", "0", "False"));
}

TEST_F(AccentKeys, AnAccentAndALetterAreOneCharacter) {
  open("duplex-shift.ppd", {}, utf8);
  press({"alt+a", "space", "Down", "Down", "Down", "Return", "dead_acute", "e", "Return"});
  EXPECT_TRUE(says("\"é\"")) << dialogProcess->errorsSoFar();
}

TEST_F(Start, TheFirstProgramOnADisplayKnowsTheFramesOfWindows) {
  runProcess({"xprop", "-root", "-remove", "_GNUSTEP_FRAME_OFFSETS"});
  open("duplex-shift.ppd");
  const auto frame = numbersOf({"-id", windowId()}, "_NET_FRAME_EXTENTS");
  const auto known = numbersOf({"-root"}, "_GNUSTEP_FRAME_OFFSETS");
  ASSERT_EQ(frame.size(), 4U);
  ASSERT_EQ(known.size(), 60U);
  EXPECT_GT(frame[2], 0); // a title bar
  constexpr int kTitledClosableMiniaturizableResizable = 15;
  const auto first = known.begin() + 4 * (kTitledClosableMiniaturizableResizable - 1);
  EXPECT_EQ(std::vector<int>(first, first + 4), frame);
}

TEST_F(Start, NoOtherProgramIsStarted) {
  open("duplex-shift.ppd");
  const auto mine = runProcess({"pgrep", "-P", std::to_string(dialogProcess->id())});
  EXPECT_EQ(mine.output, "");
}

/// GNUstep would wait for more than a minute, or twenty seconds.
TEST_F(Start, DoesNotWaitForTheDefaultsLockOfAKilledProgram) {
  const fs::path lock =
      fs::path(std::getenv("HOME")) / "GNUstep/Defaults/.lck/.GNUstepDefaults.lck";
  for (const auto age : {std::chrono::hours(1), std::chrono::hours(-1)}) {
    fs::create_directories(lock);
    fs::last_write_time(lock, fs::file_time_type::clock::now() - age);
    constexpr int kPatience = 15; // seconds
    Process batch({PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd")}, {}, kPatience);
    EXPECT_EQ(batch.wait().status, kDone);
    EXPECT_FALSE(fs::exists(lock));
  }
}

TEST_F(Start, ADocumentNamedFirstIsPrinted) {
  start({sample("two-sided.pdf"), "--ppd", sample("duplex-shift.ppd"), "--ticket", ticket}, {});
}

TEST_F(QueueWindow, ADocumentWithALatin1NamePrints) {
  const std::string latin = folder.path("caf\xE9.pdf");
  std::filesystem::copy_file(sample("two-sided.pdf"), latin);
  start({"-d", "office", latin}, cups->environment());
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(ended().output, testing::HasSubstr("request id is office-"));
}

TEST_F(Start, WithoutAWindowManagerTheWindowIsCentred) {
  Process server(
      {"Xvfb", "-displayfd", "2", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
  std::string display;
  ASSERT_TRUE(becomesTrue([&] {
    display = "DISPLAY=:" + numberLine(server.errorsSoFar());
    return display.back() != ':';
  }));
  Process shown({PRINT_DIALOG, "--ppd", sample("duplex-shift.ppd"), "--ticket", ticket}, {display});
  std::string window;
  ASSERT_TRUE(becomesTrue([&] {
    window = runProcess({"xwininfo", "-name", "Print"}, {display}).output;
    return window.find("IsViewable") != std::string::npos;
  }));
  const auto numberAfter = [&](const std::string &words) {
    return std::stoi(window.substr(window.find(words) + words.size()));
  };
  EXPECT_EQ(numberAfter("upper-left X:"), (1280 - numberAfter("Width:")) / 2);
  EXPECT_EQ(numberAfter("upper-left Y:"), (1024 - numberAfter("Height:")) / 2);
}

} // namespace
