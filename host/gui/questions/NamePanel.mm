#import "NamePanel.h"

#import "Labels.h"
#import "ModalPanel.h"
#import "NotePanel.h"
#include "OutputName.hpp"
#include "QuestionTexts.hpp"
#import "TextBridge.h"

#include <cstdlib>
#include <filesystem>

namespace imageposition {

namespace {

constexpr CGFloat kNameWidth = 340;
constexpr CGFloat kPathWidth = 480;
constexpr CGFloat kGap = 8;

struct Look {
  std::string confirmTitle;
  CGFloat width;
};

std::optional<std::string> ask(NSWindow *parent, const NameQuestion &question, const Look &look,
                               const NameCheck &mayTake) {
  NSTextField *const label = makeLabel(question.text);
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  const CGFloat fieldHeight = [[field cell] cellSize].height;
  ModalPanel panel(question.title, look.width, NSHeight([label frame]) + kGap + fieldHeight,
                   look.confirmTitle, messages::kCancel);
  [label setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + fieldHeight + kGap)];
  [field setFrame:NSMakeRect(kPanelMargin, panel.bottom(), look.width - 2 * kPanelMargin,
                             fieldHeight)];
  [field setStringValue:toString(question.suggestion)];
  panel.add(label);
  panel.add(field);
  std::string name;
  const bool isConfirmed = panel.run(parent, {field}, nil, [&] {
    name = toText([field stringValue]);
    return name.empty() || !mayTake || mayTake(panel.window(), name);
  });
  if (!isConfirmed || name.empty())
    return std::nullopt;
  return name;
}

/// Writing to anything but a file fails with a message where it is impossible.
bool mayWrite(NSWindow *parent, const std::string &path) {
  std::error_code ignored;
  return !std::filesystem::is_regular_file(path, ignored) || mayReplace(parent, path);
}

} // namespace

bool mayReplace(NSWindow *parent, const std::string &name) {
  return isConfirmed(parent, {messages::kReplace, messages::alreadyExists(name), messages::kReplace,
                              messages::kCancel, true});
}

std::optional<std::string> askForName(NSWindow *parent, const NameQuestion &question,
                                      const NameCheck &mayTake) {
  return ask(parent, question, {messages::kOk, kNameWidth}, mayTake);
}

std::optional<std::string> askForFile(NSWindow *parent, const NameQuestion &question,
                                      const std::string &ending) {
  const char *const home = std::getenv("HOME");
  std::string path;
  const auto typed = ask(parent, question, {messages::kSave, kPathWidth},
                         [&](NSWindow *window, const std::string &name) {
                           path = outputPath(name, home != nullptr ? home : "", ending);
                           return path.empty() || mayWrite(window, path);
                         });
  if (!typed || path.empty())
    return std::nullopt;
  return path;
}

} // namespace imageposition
