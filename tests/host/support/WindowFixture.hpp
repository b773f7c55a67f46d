/// The dialog's window, used with real key events.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_WINDOWFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_WINDOWFIXTURE_HPP

#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"
#include "Waiting.hpp"

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace imageposition::test {

class Window : public DialogFixture {
protected:
  const std::string ticket = folder.path("job.json");
  const std::string journal = folder.path("journal");
  std::unique_ptr<Process> dialogProcess;

  /// Opens the dialog and waits until it has the keyboard focus.
  void open(const std::string &printer, const Words &words = {}, const Words &environment = {}) {
    Words all{"--ppd", sample(printer), "--ticket", ticket};
    all.insert(all.end(), words.begin(), words.end());
    start(all, environment);
  }

  void start(const Words &words, const Words &environment) {
    Words all{PRINT_DIALOG};
    all.insert(all.end(), words.begin(), words.end());
    dialogProcess = std::make_unique<Process>(all, environment);
    ASSERT_TRUE(becomesTrue([&] { return hasKeyboard() || dialogProcess->hasEnded(); }));
    ASSERT_FALSE(dialogProcess->hasEnded()) << testing::PrintToString(dialogProcess->wait());
  }

  void openFixture(const std::string &behaviour) {
    open("duplex-shift.ppd", {"--plugin", FIXTURE_PLUGIN},
         {"FIXTURE_BEHAVIOUR=" + behaviour, "FIXTURE_JOURNAL=" + journal});
  }

  /// Whether a window with that title has the keyboard focus.
  static bool isFocused(const std::string &title) {
    return runProcess({"xdotool", "getwindowfocus", "getwindowname"}).output == title + "\n";
  }

  static bool hasKeyboard() { return isFocused("Print"); }

  /// The position of each row of the window, counted backwards from the pane's first control.
  enum Back { kPanes = 1, kMedia, kTwoSided, kPages, kCollate, kCopies, kPresets };
  static void goTo(Back control) { press(Words(control, "shift+Tab")); }

  static void type(const std::string &text) {
    ASSERT_EQ(runProcess({"xdotool", "type", "--", text}).status, 0);
  }

  static void press(const Words &keys) {
    Words words{"xdotool", "key"};
    words.insert(words.end(), keys.begin(), keys.end());
    ASSERT_EQ(runProcess(words).status, 0);
  }

  bool journalEndsWith(const std::string &lines) {
    return becomesTrue([&] {
      const std::string text = contentOf(journal);
      return text.size() >= lines.size() &&
             text.compare(text.size() - lines.size(), lines.size(), lines) == 0;
    });
  }

  bool says(const std::string &text) {
    return becomesTrue(
        [&] { return dialogProcess->errorsSoFar().find(text) != std::string::npos; });
  }

  /// Waits for the dialog to exit and returns its result.
  const ProcessResult &ended() {
    EXPECT_TRUE(becomesTrue([&] { return dialogProcess->hasEnded(); }));
    return dialogProcess->wait();
  }

  std::map<std::string, std::string> printed() const {
    return settingsIn(contentOf(folder.path("job.options")));
  }
};

class QueueWindow : public WithOfficeQueue<Window> {
protected:
  void openQueue(const Words &words = {}) {
    Words all{"-d", "office"};
    all.insert(all.end(), words.begin(), words.end());
    all.push_back(sample("two-sided.pdf"));
    start(all, cups->environment());
  }
};

} // namespace imageposition::test

#endif
