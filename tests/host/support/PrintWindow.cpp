#include "PrintWindow.hpp"

#include "FocusedWindow.hpp"
#include "Waiting.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>

namespace imageposition::test {

namespace {

/// Aborts the test: further user actions would make no sense.
[[noreturn]] void giveUp(const std::string &missing, const Screen &shown) {
  std::string text = missing + ", in \"" + shown.keyWindow + "\" at " + std::to_string(shown.x) +
                     ", " + std::to_string(shown.y) + ":";
  for (const Control &control : shown.controls)
    text += "\n" + control.kind + (control.isEnabled ? " " : " (off) ") + control.text;
  throw std::runtime_error(text);
}

void xdotool(std::vector<std::string> words) {
  words.insert(words.begin(), "xdotool");
  const ProcessResult result = runProcess(words);
  if (result.status != 0)
    throw std::runtime_error(result.errors);
}

std::vector<std::string> commandFor(const std::vector<std::string> &words) {
  std::vector<std::string> all{PRINT_DIALOG};
  all.insert(all.end(), words.begin(), words.end());
  return all;
}

std::vector<std::string> environmentFor(std::vector<std::string> environment,
                                        const std::string &file) {
  environment.insert(environment.begin(), "XDG_STATE_HOME=" + file + "-state"); // no last job
  environment.push_back("OBSERVER_FILE=" + file);
  environment.push_back("PRINT_DIALOG_APPEARANCE=light");
  return environment;
}

bool startsWith(const std::string &text, const std::string &start) {
  return text.compare(0, start.size(), start) == 0;
}

} // namespace

PrintWindow::PrintWindow(const std::vector<std::string> &words,
                         const std::vector<std::string> &environment, const std::string &title)
    : file_(folder_.path("screen")), defaults_(loadObserver()),
      process_(std::make_unique<Process>(commandFor(words), environmentFor(environment, file_))) {
  awaitKeyboard(title);
}

PrintWindow::PrintWindow(pid_t program, const std::string &file, const std::string &title)
    : file_(file), program_(program) {
  awaitKeyboard(title);
}

std::unique_ptr<PlatformDefaults> PrintWindow::loadObserver() {
  return std::make_unique<PlatformDefaults>("GSAppKitUserBundles = (\"" OBSERVER_BUNDLE "\");");
}

bool PrintWindow::hasEnded() const {
  return process_ ? process_->hasEnded() : kill(program_, 0) != 0;
}

void PrintWindow::awaitKeyboard(const std::string &title) {
  if (!becomesTrue([&] { return hasEnded() || hasKeyboard(title); }))
    giveUp("no keyboard", screen());
  if (hasEnded())
    throw std::runtime_error(process_ ? testing::PrintToString(process_->wait())
                                      : "the program has ended");
}

bool PrintWindow::becomes(const std::function<bool(const Screen &)> &condition) const {
  return becomesTrue([&] { return condition(screen()); });
}

bool PrintWindow::says(const std::string &text) const {
  return becomes([&](const Screen &shown) { return shown.says(text); });
}

std::string PrintWindow::field(const std::string &label) const {
  const Screen shown = screen();
  const Control *const found = shown.beside(label, "field");
  return found != nullptr ? found->text : "?";
}

bool PrintWindow::hasKeyboard(const std::string &title) const {
  const Screen shown = screen();
  const FocusedWindow focused = FocusedWindow::find();
  return shown.keyWindow == title && focused.title == title && focused.x == shown.x &&
         focused.y == shown.y;
}

void PrintWindow::moveTo(int x, int y) {
  const auto leftEdge = [](const Screen &shown) {
    const Control *const picture = shown.find("picture", "");
    return picture != nullptr ? picture->x : 0;
  };
  const int before = leftEdge(screen());
  xdotool({"getactivewindow", "windowmove", std::to_string(x), std::to_string(y)});
  if (!becomes([&](const Screen &shown) { return leftEdge(shown) != before; }))
    giveUp("the window stays where it is", screen());
}

void PrintWindow::press(const std::string &key) { xdotool({"key", key}); }

void PrintWindow::write(const std::string &text) { xdotool({"type", "--", text}); }

Control PrintWindow::awaited(const std::string &what,
                             const std::function<const Control *(const Screen &)> &find) const {
  Control result;
  if (!becomes([&](const Screen &shown) {
        const Control *const found = find(shown);
        if (found != nullptr)
          result = *found;
        return found != nullptr && found->isEnabled;
      }))
    giveUp("no " + what, screen());
  return result;
}

void PrintWindow::clickAt(int x, int y, const std::function<void()> &before) {
  xdotool({"mousemove", std::to_string(x), std::to_string(y), "mousedown", "1"});
  // A mouse button that stayed down would fail every later test.
  try {
    if (!becomes([](const Screen &shown) { return shown.isTracking; }))
      giveUp("nothing to click on", screen());
    if (before)
      before();
  } catch (...) {
    xdotool({"mouseup", "1"});
    throw;
  }
  xdotool({"mouseup", "1"});
  if (!becomesTrue([&] {
        const Screen shown = screen();
        return hasEnded() || !shown.isTracking || shown.isListOpen();
      }))
    giveUp("the button is not let go", screen());
}

void PrintWindow::click(const std::string &button) {
  const Control found =
      awaited(button, [&](const Screen &shown) { return shown.find("button", button); });
  clickAt(found.middleX(), found.middleY());
}

void PrintWindow::choose(const std::string &label, const std::string &item) {
  const Control popUp =
      awaited(label, [&](const Screen &shown) { return shown.beside(label, "popup"); });
  clickAt(popUp.middleX(), popUp.middleY());
  chooseInList(item);
}

void PrintWindow::chooseInList(const std::string &item) {
  const auto find = [&](const Screen &shown) -> const Control * {
    for (const Control &control : shown.controls)
      if (control.kind == "item" && startsWith(control.text, item))
        return &control;
    return nullptr;
  };
  const Control chosen = awaited(item, find);
  clickAt(chosen.middleX(), chosen.middleY());
  if (!becomesTrue([&] { return hasEnded() || !screen().isListOpen(); }))
    giveUp("the list stays open", screen());
}

void PrintWindow::enter(const std::string &label, const std::string &text) {
  const Control found =
      awaited(label, [&](const Screen &shown) { return shown.beside(label, "field"); });
  clickAt(found.middleX(), found.middleY());
  press("ctrl+a");
  write(text);
  if (!becomes([&](const Screen &) { return field(label) == text; }))
    giveUp(text + " is not in " + label, screen());
  press("Tab");
}

void PrintWindow::step(const std::string &label, bool up) {
  const Control found =
      awaited(label, [&](const Screen &shown) { return shown.beside(label, "stepper"); });
  clickAt(found.middleX(), found.y + found.height * (up ? 1 : 3) / 4);
}

void PrintWindow::tick(const std::string &title, bool on) {
  const Control found =
      awaited(title, [&](const Screen &shown) { return shown.find("button", title); });
  if (found.isOn == on)
    return;
  clickAt(found.middleX(), found.middleY());
  if (!becomes([&](const Screen &shown) {
        const Control *const now = shown.find("button", title);
        return now != nullptr && now->isOn == on;
      }))
    giveUp("the tick stays", screen());
}

const ProcessResult &PrintWindow::ended() {
  if (!becomesTrue([&] { return hasEnded(); }))
    giveUp("it does not end", screen());
  return process_->wait();
}

} // namespace imageposition::test
