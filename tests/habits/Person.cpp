#include "Person.hpp"

#include "Contrast.hpp"
#include "DrawnBoxes.hpp"
#include "FileDrag.hpp"
#include "Focus.hpp"
#include "FocusedWindow.hpp"
#include "Waiting.hpp"

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <thread>

namespace imageposition::test {

namespace {

/// In the lines of lpstat, which begin with "queue-12"; 0 if there is none.
int lastJob(const std::string &jobs) {
  int last = 0;
  std::istringstream lines(jobs);
  for (std::string line; std::getline(lines, line);) {
    const std::string name = line.substr(0, line.find(' '));
    last = std::max(last, std::atoi(name.substr(name.rfind('-') + 1).c_str()));
  }
  return last;
}

constexpr int kClick = 80;   // milliseconds, of an ordinary click
constexpr int kGlance = 100; // milliseconds

std::string run(std::vector<std::string> words) {
  const ProcessResult result = runProcess(words);
  if (result.status != 0)
    throw StepFailure(words.front() + ": " + result.errors);
  return result.output;
}

void xdotool(std::vector<std::string> words) {
  words.insert(words.begin(), "xdotool");
  run(words);
}

/// A mouse button is down for as long as a hand takes.
void holdFor(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// Splits at blanks outside of quotes.
std::vector<std::string> wordsOf(const std::string &line) {
  std::vector<std::string> words;
  std::istringstream stream(line);
  for (std::string word; stream >> std::ws;) {
    if (stream.peek() == '"') {
      stream.get();
      std::getline(stream, word, '"');
    } else if (!(stream >> word))
      break;
    words.push_back(word);
  }
  return words;
}

bool startsWith(const std::string &text, const std::string &start) {
  return text.compare(0, start.size(), start) == 0;
}

/// As a shell does with a leading ~/.
std::string withHome(const std::string &word) {
  return startsWith(word, "~/") ? std::getenv("HOME") + word.substr(1) : word;
}

void signalCups(int signal) {
  const char *const server = std::getenv("CUPS_PID");
  if (server == nullptr || kill(std::atoi(server), signal) != 0)
    throw StepFailure("there is no CUPS server");
}

} // namespace

std::string Person::described() const {
  const Screen shown = screen();
  std::string text = "The window \"" + shown.keyWindow + "\" shows:";
  for (const Control &control : shown.controls)
    text += "\n  " + control.kind + (control.isEnabled ? " " : " (off) ") + control.text +
            (control.isOn ? " *" : "") + " at " + std::to_string(control.x) + "," +
            std::to_string(control.y) + " " + std::to_string(control.width) + "x" +
            std::to_string(control.height);
  return text;
}

void Person::see(const std::string &what, const Look &look) {
  if (!becomesTrue([&] { return look(screen()); }))
    throw StepFailure("the user does not see " + what + "\n" + described());
}

/// A user looks once more before the hand gets there: what was just resized or scrolled may move.
Control Person::find(const std::string &what,
                     const std::function<const Control *(const Screen &)> &search) {
  const auto look = [&] {
    Control result;
    see(what, [&](const Screen &shown) {
      const Control *const found = search(shown);
      if (found != nullptr)
        result = *found;
      return found != nullptr && found->isEnabled;
    });
    return result;
  };
  Control now = look(), before;
  do {
    before = now;
    holdFor(kGlance);
    now = look();
  } while (now.x != before.x || now.y != before.y);
  return now;
}

Control Person::button(const std::string &title) {
  return find("the button " + title,
              [&](const Screen &shown) { return shown.find("button", title); });
}

Control Person::beside(const std::string &label, const std::string &kind) {
  return find("the " + kind + " beside " + label,
              [&](const Screen &shown) { return shown.beside(label, kind); });
}

Control Person::item(const std::string &title) {
  return find("the item " + title, [&](const Screen &shown) -> const Control * {
    const auto found =
        std::find_if(shown.controls.begin(), shown.controls.end(), [&](const Control &control) {
          return control.kind == "item" && startsWith(control.text, title);
        });
    return found == shown.controls.end() ? nullptr : &*found;
  });
}

Control Person::visible(const std::string &kind, const std::string &text) {
  return find("the " + kind + " " + text, [&](const Screen &now) { return now.find(kind, text); });
}

/// The window with the keyboard is listed first.
Control Person::frontButton(const std::string &title) {
  return find("the button " + title, [&](const Screen &now) -> const Control * {
    const auto found =
        std::find_if(now.controls.begin(), now.controls.end(), [&](const Control &control) {
          return control.kind == "button" && control.text == title;
        });
    return found == now.controls.end() ? nullptr : &*found;
  });
}

/// The middle of the first of three pages in the upper half of the picture.
Control Person::frontPage() {
  Control place = visible("picture", "");
  place.width /= 3;
  place.height /= 2;
  return place;
}

void Person::open(const std::string &words) {
  std::vector<std::string> command{PRINT_DIALOG}, environment = environment_;
  for (const std::string &word : wordsOf(words))
    command.push_back(withHome(word));
  environment.push_back("OBSERVER_FILE=" + folder_.path("screen"));
  environment.push_back("PRINT_DIALOG_APPEARANCE=light");
  dialog_ = std::make_unique<Process>(command, environment);
  see("a window with the keyboard", [&](const Screen &shown) {
    if (dialog_->hasEnded())
      throw StepFailure("the dialog has ended: " + dialog_->wait().errors);
    return !shown.keyWindow.empty() && FocusedWindow::find().title == shown.keyWindow;
  });
}

void Person::pointAt(const Control &control) {
  xdotool({"mousemove", std::to_string(control.middleX()), std::to_string(control.middleY())});
}

void Person::click(const Control &control, int milliseconds) {
  pointAt(control);
  xdotool({"mousedown", "1"});
  holdFor(milliseconds);
  xdotool({"mouseup", "1"});
}

void Person::type(const std::string &text) { xdotool({"type", "--delay", "20", "--", text}); }

void Person::press(const std::string &key, int times) {
  for (int i = 0; i < times; i++)
    xdotool({"key", key});
}

/// From another application.
void Person::paste(const std::string &text) {
  clipboard_ = std::make_unique<Process>(std::vector<std::string>{
      "sh", "-c", "printf %s \"$0\" | xclip -quiet -selection clipboard", text});
  // xclip waits forever for an earlier owner that ends just then.
  if (!becomesTrue([&] {
        return runProcess({"timeout", "1", "xclip", "-o", "-selection", "clipboard"}).output ==
               text;
      }))
    throw StepFailure("the clipboard does not hold the text");
  press("ctrl+v", 1);
}

/// From a file manager, on the middle of the window.
void Person::drop(const std::string &files) {
  std::vector<std::string> paths;
  for (const std::string &file : wordsOf(files))
    paths.push_back(std::filesystem::absolute(withHome(file)).string());
  const Screen shown = screen();
  if (!dropFiles(paths, shown.x + 200, shown.y + 200))
    throw StepFailure("the window does not take the files");
}

void Person::resize(int width, int height) {
  xdotool(
      {"getwindowfocus", "windowsize", "--sync", std::to_string(width), std::to_string(height)});
}

void Person::seeValue(const std::string &value, const std::string &label) {
  see(value + " beside " + label, [&](const Screen &shown) {
    return std::any_of(shown.controls.begin(), shown.controls.end(), [&](const Control &control) {
      return (control.kind == "popup" || control.kind == "field") && control.text == value &&
             (shown.beside(label, "popup") == &control || shown.beside(label, "field") == &control);
    });
  });
}

void Person::seeOnDisplay(const std::string &title) {
  std::istringstream size(run({"xdotool", "getdisplaygeometry"}));
  int width = 0, height = 0;
  size >> width >> height;
  see("all of the button " + title, [&](const Screen &shown) {
    const Control *const found = shown.find("button", title);
    return found != nullptr && found->x >= 0 && found->y >= 0 && found->x + found->width <= width &&
           found->y + found->height <= height;
  });
}

/// Whether scrolling has brought it into sight.
void Person::seeInSight(const Control &control) {
  see("all of the control", [&](const Screen &shown) {
    const Control *largest = nullptr;
    for (const Control &one : shown.controls)
      if (one.kind == "viewport" &&
          (largest == nullptr || one.width * one.height > largest->width * largest->height))
        largest = &one;
    const auto now =
        std::find_if(shown.controls.begin(), shown.controls.end(), [&](const Control &one) {
          return one.kind == control.kind && one.text == control.text &&
                 one.width == control.width && one.x == control.x;
        });
    return largest != nullptr && now != shown.controls.end() && now->x >= largest->x &&
           now->y >= largest->y && now->x + now->width <= largest->x + largest->width &&
           now->y + now->height <= largest->y + largest->height;
  });
}

void Person::seeTexts() {
  constexpr double kEnough = 4.5;
  std::string faint;
  const auto isClear = [&] {
    const Screen shown = screen();
    faint.clear();
    for (const Control &control : shown.controls)
      if (control.isEnabled && !control.text.empty() && control.kind != "item" &&
          contrastOf(control) < kEnough)
        faint += control.text + ": " + std::to_string(contrastOf(control)) + "\n";
    return faint.empty() && !shown.controls.empty();
  };
  if (!becomesTrue(isClear))
    throw StepFailure("the user cannot read:\n" + faint);
}

void Person::seeOnTop(const std::string &title) {
  const auto top = [] {
    std::string words = run({"xprop", "-root", "_NET_CLIENT_LIST_STACKING"});
    words.erase(words.find_last_not_of(" \n") + 1);
    return runProcess({"xdotool", "getwindowname", words.substr(words.rfind(' ') + 1)}).output;
  };
  if (!becomesTrue([&] { return top() == title + "\n"; }))
    throw StepFailure(title + " is not on top, but " + top());
}

void Person::seeJobs(int count, const std::string &which) {
  std::string jobs;
  const auto counted = [&] {
    jobs = run({"lpstat", "-W", which, "-o"});
    return std::count(jobs.begin(), jobs.end(), '\n') == count;
  };
  if (!becomesTrue(counted))
    throw StepFailure("not " + std::to_string(count) + " jobs, but: " + jobs);
}

void Person::seeReceived(const std::string &name, const std::string &value) {
  http_t *const http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                    1, 30000, nullptr);
  const std::string uri =
      "ipp://localhost/jobs/" + std::to_string(lastJob(run({"lpstat", "-W", "all", "-o"})));
  ipp_t *const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
  // Only its owner sees a document's name.
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ipp_t *const response = cupsDoRequest(http, request, "/jobs");
  char received[1024] = "";
  if (ipp_attribute_t *const attribute = ippFindAttribute(response, name.c_str(), IPP_TAG_ZERO))
    ippAttributeString(attribute, received, sizeof received);
  ippDelete(response);
  httpClose(http);
  if (value != received)
    throw StepFailure("CUPS received " + name + " as \"" + received + "\"");
}

void Person::seeMoved(int side, const std::string &file, const std::string &distances,
                      const std::string &other) {
  constexpr double kPointsPerMillimetre = 72 / 25.4, kTolerance = 0.05;
  double right = 0, down = 0;
  std::istringstream(distances) >> right >> down;
  const std::array<double, 4> expected{right, -down, right, -down}; // left, bottom, right, top
  const std::string home = std::string(std::getenv("HOME")) + "/";
  std::string seen;
  const auto isMoved = [&] {
    const auto here = boxesInPostScript(contentOf(home + file));
    const auto there = boxesInPostScript(contentOf(home + other));
    const auto index = static_cast<std::size_t>(side - 1);
    if (here.size() <= index || here.size() != there.size())
      return false;
    seen.clear();
    bool isNear = true;
    for (std::size_t i = 0; i < expected.size(); i++) {
      const double moved = (here[index][i] - there[index][i]) / kPointsPerMillimetre;
      isNear = isNear && std::abs(moved - expected[i]) <= kTolerance;
      seen += " " + std::to_string(moved);
    }
    return isNear;
  };
  if (!becomesTrue(isMoved))
    throw StepFailure("the edges have moved by" + seen);
}

void Person::endWith(int status) {
  if (!becomesTrue([&] { return dialog_->hasEnded(); }))
    throw StepFailure("the dialog does not end\n" + described());
  const ProcessResult &result = dialog_->wait();
  if (result.status != status)
    throw StepFailure("the dialog ends with status " + std::to_string(result.status) + ": " +
                      result.output + result.errors);
}

std::vector<Sentence> Person::sentences() {
  const auto number = [](const std::string &digits) { return std::atoi(digits.c_str()); };
  return {
      {"in the environment ...", [=](const StepValues &v) { environment_ = wordsOf(v[0]); }},
      {"open the dialog with ...", [=](const StepValues &v) { open(v[0]); }},
      {"open the dialog", [=](const StepValues &) { open(""); }},
      {"click on \"*\"", [=](const StepValues &v) { click(button(v[0]), kClick); }},
      {"click on \"*\" of the window in front",
       [=](const StepValues &v) { click(frontButton(v[0]), kClick); }},
      {"click on the list beside \"*\"",
       [=](const StepValues &v) { click(beside(v[0], "popup"), kClick); }},
      {"click on the list beside \"*\" for # ms",
       [=](const StepValues &v) { click(beside(v[0], "popup"), number(v[1])); }},
      {"click in the field beside \"*\"",
       [=](const StepValues &v) { click(beside(v[0], "field"), kClick); }},
      {"click on the list that shows \"*\"",
       [=](const StepValues &v) { click(visible("popup", v[0]), kClick); }},
      {"click on the picture", [=](const StepValues &) { click(frontPage(), kClick); }},
      {"click on the enlarged sheet",
       [=](const StepValues &) { click(visible("sheet", ""), kClick); }},
      {"point at the picture", [=](const StepValues &) { pointAt(frontPage()); }},
      {"drag the enlarged sheet",
       [=](const StepValues &) {
         pointAt(visible("sheet", ""));
         xdotool({"mousedown", "1", "mousemove_relative", "--", "0", "-40", "mousemove_relative",
                  "--", "0", "-60", "mouseup", "1"});
       }},
      {"click on the item \"*\"", [=](const StepValues &v) { click(item(v[0]), kClick); }},
      {"point at the item \"*\"", [=](const StepValues &v) { pointAt(item(v[0])); }},
      {"drag from the list beside \"*\" to the item \"*\"",
       [=](const StepValues &v) {
         pointAt(beside(v[0], "popup"));
         xdotool({"mousedown", "1"});
         pointAt(item(v[1]));
         see(v[1] + " highlighted", [&](const Screen &shown) {
           const Control *const found = shown.find("item", v[1]);
           return found != nullptr && found->isOn;
         });
         xdotool({"mouseup", "1"});
       }},
      {"turn the wheel # notches up",
       [=](const StepValues &v) {
         xdotool({"click", "--repeat", v[0], "--delay", "50", "4"});
       }},
      {"turn the wheel # notches down",
       [=](const StepValues &v) {
         xdotool({"click", "--repeat", v[0], "--delay", "50", "5"});
       }},
      {"type \"*\"", [=](const StepValues &v) { type(v[0]); }},
      {"paste \"*\"", [=](const StepValues &v) { paste(v[0]); }},
      {"drop ...", [=](const StepValues &v) { drop(v[0]); }},
      {"press \"*\"", [=](const StepValues &v) { press(v[0], 1); }},
      {"press \"*\" # times", [=](const StepValues &v) { press(v[0], number(v[1])); }},
      {"resize the window to # by #",
       [=](const StepValues &v) { resize(number(v[0]), number(v[1])); }},
      {"run ...",
       [=](const StepValues &v) {
         run({"sh", "-c", v[0]});
       }},
      {"CUPS hangs", [=](const StepValues &) { signalCups(SIGSTOP); }},
      {"CUPS goes on", [=](const StepValues &) { signalCups(SIGCONT); }},
      {"CUPS crashes", [=](const StepValues &) { signalCups(SIGKILL); }},
      {"see the list open",
       [=](const StepValues &) {
         see("an open list", [](const Screen &shown) { return shown.isListOpen(); });
       }},
      {"see no list",
       [=](const StepValues &) {
         see("the list closed", [](const Screen &shown) { return !shown.isListOpen(); });
       }},
      {"see the item \"*\"", [=](const StepValues &v) { item(v[0]); }},
      {"see \"*\" highlighted",
       [=](const StepValues &v) {
         see(v[0] + " highlighted", [&](const Screen &shown) {
           return std::any_of(
               shown.controls.begin(), shown.controls.end(), [&](const Control &control) {
                 return control.kind == "item" && control.isOn && startsWith(control.text, v[0]);
               });
         });
       }},
      {"see \"*\" beside \"*\"", [=](const StepValues &v) { seeValue(v[0], v[1]); }},
      {"see the button \"*\"", [=](const StepValues &v) { button(v[0]); }},
      {"see that \"*\" is disabled",
       [=](const StepValues &v) {
         see(v[0] + " disabled", [&](const Screen &shown) {
           const Control *const found = shown.find("button", v[0]);
           return found != nullptr && !found->isEnabled;
         });
       }},
      {"see no button \"*\"",
       [=](const StepValues &v) {
         see("that there is no button " + v[0],
             [&](const Screen &shown) { return shown.find("button", v[0]) == nullptr; });
       }},
      {"click on the upper arrow beside \"*\"",
       [=](const StepValues &v) {
         Control arrow = beside(v[0], "stepper");
         arrow.height /= 2;
         click(arrow, kClick);
       }},
      {"see the field \"*\"",
       [=](const StepValues &v) {
         see("the field " + v[0],
             [&](const Screen &shown) { return shown.find("field", v[0]) != nullptr; });
       }},
      {"see \"*\" ticked",
       [=](const StepValues &v) {
         see(v[0] + " ticked", [&](const Screen &shown) {
           const Control *const found = shown.find("button", v[0]);
           return found != nullptr && found->isOn;
         });
       }},
      {"read \"*\"",
       [=](const StepValues &v) {
         see(v[0], [&](const Screen &shown) { return shown.says(v[0]); });
       }},
      {"read \"*\" near \"*\"",
       [=](const StepValues &v) {
         see(v[0] + " near " + v[1], [&](const Screen &shown) {
           const Control *const label = shown.find("label", v[1]);
           return label != nullptr &&
                  std::any_of(shown.controls.begin(), shown.controls.end(),
                              [&](const Control &control) {
                                return control.kind == "label" && control.y > label->y &&
                                       control.y < label->y + 3 * label->height &&
                                       control.text.find(v[0]) != std::string::npos;
                              });
         });
       }},
      {"no longer read \"*\"",
       [=](const StepValues &v) {
         see("that it is gone: " + v[0], [&](const Screen &shown) { return !shown.says(v[0]); });
       }},
      {"see the window \"*\"",
       [=](const StepValues &v) {
         see("the window " + v[0], [&](const Screen &shown) {
           return shown.keyWindow == v[0] && FocusedWindow::find().title == v[0];
         });
       }},
      {"look at the picture", [=](const StepValues &) { picture_ = Picture(screen()); }},
      {"see the picture change",
       [=](const StepValues &) {
         see("another picture", [&](const Screen &shown) { return Picture(shown) != picture_; });
       }},
      {"see the picture as it was",
       [=](const StepValues &) {
         see("the picture as it was", [&](const Screen &now) { return Picture(now) == picture_; });
       }},
      {"see the pages in the picture",
       [=](const StepValues &) {
         see("a page", [](const Screen &now) { return Picture(now).pageInkLeft() >= 0; });
       }},
      {"see the pages further right",
       [=](const StepValues &) {
         see("a page that has moved", [&](const Screen &now) {
           return Picture(now).pageInkLeft() > picture_.pageInkLeft();
         });
       }},
      {"look at the enlarged sheet",
       [=](const StepValues &) { picture_ = Picture(screen(), "sheet"); }},
      {"see the enlarged sheet",
       [=](const StepValues &) {
         see("a page", [](const Screen &now) { return Picture(now, "sheet").pageInkLeft() >= 0; });
       }},
      {"see the enlarged sheet change",
       [=](const StepValues &) {
         see("another sheet", [&](const Screen &now) { return Picture(now, "sheet") != picture_; });
       }},
      {"look at the drawing", [=](const StepValues &) { picture_ = Picture(screen(), "drawing"); }},
      {"see the drawing change",
       [=](const StepValues &) {
         see("another drawing",
             [&](const Screen &shown) { return Picture(shown, "drawing") != picture_; });
       }},
      {"see all of \"*\"", [=](const StepValues &v) { seeOnDisplay(v[0]); }},
      {"see all of the field beside \"*\"",
       [=](const StepValues &v) { seeInSight(beside(v[0], "field")); }},
      {"see no picture",
       [=](const StepValues &) {
         see("that there is no picture",
             [](const Screen &shown) { return shown.find("picture", "") == nullptr; });
       }},
      {"see a picture",
       [=](const StepValues &) {
         see("a picture", [](const Screen &shown) { return shown.find("picture", "") != nullptr; });
       }},
      {"see # bars that scroll \"*\"",
       [=](const StepValues &v) {
         see(v[0] + " bars", [&](const Screen &shown) {
           return std::count_if(shown.controls.begin(), shown.controls.end(),
                                [&](const Control &control) {
                                  return control.kind == "scroller" && control.text == v[1];
                                }) == number(v[0]);
         });
       }},
      {"see the focus after each of # presses of Tab",
       [=](const StepValues &v) {
         const std::string missing = looksWithoutFocus(number(v[0]), [&] {
           xdotool({"key", "Tab"});
         });
         if (!missing.empty())
           throw StepFailure("the user cannot see the focus\n" + missing);
       }},
      {"see every text with enough contrast", [=](const StepValues &) { seeTexts(); }},
      {"see the window \"*\" on top", [=](const StepValues &v) { seeOnTop(v[0]); }},
      {"see # jobs printed", [=](const StepValues &v) { seeJobs(number(v[0]), "all"); }},
      {"see # jobs waiting", [=](const StepValues &v) { seeJobs(number(v[0]), "not-completed"); }},
      {"see side # of \"*\" moved by \"*\" mm from \"*\"",
       [=](const StepValues &v) { seeMoved(number(v[0]), v[1], v[2], v[3]); }},
      {"CUPS received \"*\" as \"*\"", [=](const StepValues &v) { seeReceived(v[0], v[1]); }},
      {"it writes \"*\"",
       [=](const StepValues &v) {
         const std::string written = dialog_->wait().output + dialog_->wait().errors;
         if (written.find(v[0]) == std::string::npos)
           throw StepFailure("the output is: " + written);
       }},
      {"it does not write \"*\"",
       [=](const StepValues &v) {
         if (dialog_->wait().output.find(v[0]) != std::string::npos)
           throw StepFailure("the output is: " + dialog_->wait().output);
       }},
      {"the dialog ends with status #", [=](const StepValues &v) { endWith(number(v[0])); }},
  };
}

} // namespace imageposition::test
