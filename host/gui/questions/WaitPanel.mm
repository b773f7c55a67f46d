#import "WaitPanel.h"

#import "Labels.h"
#import "ModalPanel.h"
#include "QuestionTexts.hpp"
#import "TextBridge.h"

#include <algorithm>

namespace imageposition {

namespace {

constexpr CGFloat kWidth = 440;

} // namespace

WaitPanel::WaitPanel() : wake_([this] { look(); }) {}

void WaitPanel::look() {
  if (window_ == nil)
    return;
  if (!isOver_()) {
    [label_ setStringValue:toString(text_())];
    return;
  }
  [NSApp stopModal];
  wakeModalLoop(window_);
}

bool WaitPanel::await(const std::function<bool()> &isOver, NSWindow *parent,
                      const std::function<std::string()> &text) {
  label_ = makeParagraph(text(), kWidth - 2 * kPanelMargin);
  const CGFloat height = std::max(NSHeight([label_ frame]),
                                  paragraphHeight(@"\n", [label_ font], NSWidth([label_ frame])));
  [label_ setFrameSize:NSMakeSize(NSWidth([label_ frame]), height)];
  ModalPanel panel(messages::kPleaseWait, kWidth, height, messages::kCancel);
  [label_ setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
  panel.add(label_);
  isOver_ = isOver;
  text_ = text;
  window_ = panel.window();
  if (!isOver()) // a signal may have come before there was a window
    panel.run(parent, {});
  window_ = nil;
  return isOver();
}

} // namespace imageposition
