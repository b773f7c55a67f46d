#import "NamePanel.h"

#import "Labels.h"
#import "ModalPanel.h"
#import "NotePanel.h"
#include "QuestionTexts.hpp"
#import "TextBridge.h"
#include "TicketName.hpp"

#include <cstdlib>
#include <filesystem>

namespace imageposition {

namespace {

constexpr CGFloat kNameWidth = 340;
constexpr CGFloat kPathWidth = 480;
constexpr CGFloat kGap = 8;

struct Question {
  std::string title, text, suggestion, confirmTitle;
  CGFloat width;
};

std::optional<std::string> ask(NSWindow *parent, const Question &question) {
  NSTextField *const label = makeLabel(question.text);
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  const CGFloat fieldHeight = [[field cell] cellSize].height;
  ModalPanel panel(question.title, question.width, NSHeight([label frame]) + kGap + fieldHeight,
                   question.confirmTitle, messages::kCancel);
  [label setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + fieldHeight + kGap)];
  [field setFrame:NSMakeRect(kPanelMargin, panel.bottom(), question.width - 2 * kPanelMargin,
                             fieldHeight)];
  [field setStringValue:toString(question.suggestion)];
  panel.add(label);
  panel.add(field);
  const bool isConfirmed = panel.run(parent, {field});
  const std::string name = toText([field stringValue]);
  if (!isConfirmed || name.empty())
    return std::nullopt;
  return name;
}

bool mayReplace(NSWindow *parent, const std::string &path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored))
    return true; // writing it fails with a message where that is impossible
  return isConfirmed(parent, {messages::kReplace, messages::ticketExists(path), messages::kReplace,
                              messages::kCancel});
}

} // namespace

std::optional<std::string> askForName(NSWindow *parent, const std::string &question,
                                      const std::string &suggestion) {
  return ask(parent, {question, question, suggestion, messages::kOk, kNameWidth});
}

std::optional<std::string> askForTicket(NSWindow *parent, const std::string &suggestion) {
  const char *const home = std::getenv("HOME");
  const auto typed = ask(parent, {messages::kSaveAsTicket, messages::kTicketQuestion, suggestion,
                                  messages::kSave, kPathWidth});
  const std::string path = typed ? ticketPath(*typed, home != nullptr ? home : "") : "";
  if (path.empty() || !mayReplace(parent, path))
    return std::nullopt;
  return path;
}

} // namespace imageposition
