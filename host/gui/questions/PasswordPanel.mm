#import "PasswordPanel.h"

#include "CupsTexts.hpp"
#import "Labels.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#include "QuestionTexts.hpp"
#import "TextBridge.h"

#include <algorithm>

namespace imageposition {

namespace {

constexpr CGFloat kWidth = 400;
constexpr CGFloat kGap = 8;

template <typename Field> Field *makeField(Class kind, const std::string &text) {
  Field *const field = [[[kind alloc] initWithFrame:NSZeroRect] autorelease];
  [field setStringValue:toString(text)];
  return field;
}

/// Puts a title into its column, which is `column` wide, and the field to the right of it.
void addRow(ModalPanel &panel, NSTextField *title, CGFloat column, NSTextField *field,
            CGFloat bottom) {
  const CGFloat height = [[field cell] cellSize].height;
  const CGFloat left = kPanelMargin + column + kGap;
  [field setFrame:NSMakeRect(left, bottom, kWidth - kPanelMargin - left, height)];
  const NSSize size = [title frame].size;
  [title setFrameOrigin:NSMakePoint(kPanelMargin + column - size.width,
                                    bottom + std::floor((height - size.height) / 2))];
  panel.add(title);
  panel.add(field);
}

std::string questionFor(const std::string &printer, const PasswordRequest &request) {
  const std::string question =
      request.isAgain ? messages::wrongPassword(printer) : messages::passwordWanted(printer);
  return request.exposedTo.empty()
             ? question
             : question + "\n\n" + messages::passwordExposed(request.exposedTo);
}

} // namespace

std::optional<Credentials> askForPassword(NSWindow *parent, const std::string &printer,
                                          const PasswordRequest &request) {
  NSTextField *const question =
      makeParagraph(questionFor(printer, request), kWidth - 2 * kPanelMargin);
  NSTextField *const userTitle = makeTitle(messages::kUserRow);
  NSTextField *const passwordTitle = makeTitle(messages::kPasswordRow);
  NSTextField *const user = makeField<NSTextField>([NSTextField class], request.user);
  NSTextField *const password = makeField<NSTextField>([NSSecureTextField class], "");
  const CGFloat row = [[user cell] cellSize].height + kGap;
  ModalPanel panel(request.isAgain ? messages::kWrongPasswordWindow : messages::kPasswordWindow,
                   kWidth, NSHeight([question frame]) + kGap + 2 * row, messages::kOk,
                   messages::kCancel);
  const CGFloat column = std::max(NSWidth([userTitle frame]), NSWidth([passwordTitle frame]));
  addRow(panel, passwordTitle, column, password, panel.bottom());
  addRow(panel, userTitle, column, user, panel.bottom() + row);
  [question setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + 2 * row + kGap)];
  panel.add(question);
  [panel.window() reach:user by:messages::kUserRow];
  [panel.window() reach:password by:messages::kPasswordRow];
  if (!panel.run(parent, {user, password}, password))
    return std::nullopt;
  return Credentials{toText([user stringValue]), toText([password stringValue])};
}

} // namespace imageposition
