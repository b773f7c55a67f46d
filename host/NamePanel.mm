#import "host/NamePanel.h"

#import "host/Labels.h"
#import "host/ModalPanel.h"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

namespace imageposition {

std::optional<std::string> askForName(NSWindow *parent, const std::string &question,
                                      const std::string &suggestion) {
  constexpr CGFloat kWidth = 340, kFieldHeight = 24, kGap = 8;
  NSTextField *const label = makeLabel(question);
  const CGFloat height = NSHeight([label frame]) + kGap + kFieldHeight;
  ModalPanel panel(question, kWidth, height, messages::kOk, messages::kCancel);
  [label setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + kFieldHeight + kGap)];
  panel.add(label);
  const NSRect frame =
      NSMakeRect(kPanelMargin, panel.bottom(), kWidth - 2 * kPanelMargin, kFieldHeight);
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:frame] autorelease];
  [field setStringValue:toString(suggestion)];
  panel.add(field);
  const bool isConfirmed = panel.run(parent, {field});
  const std::string name = toText([field stringValue]);
  if (!isConfirmed || name.empty())
    return std::nullopt;
  return name;
}

} // namespace imageposition
