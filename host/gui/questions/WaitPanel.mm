#import "WaitPanel.h"

#import "Labels.h"
#import "ModalPanel.h"
#include "QuestionTexts.hpp"

namespace imageposition {

namespace {

constexpr CGFloat kWidth = 440;

} // namespace

WaitPanel::WaitPanel()
    : wake_([this] {
        if (window_ == nil || !isOver_())
          return;
        [NSApp stopModal];
        wakeModalLoop(window_);
      }) {}

void WaitPanel::show(NSWindow *parent, const std::string &text,
                     const std::function<bool()> &isOver) {
  NSTextField *const paragraph = makeParagraph(text, kWidth - 2 * kPanelMargin);
  ModalPanel panel(messages::kPleaseWait, kWidth, NSHeight([paragraph frame]), messages::kCancel);
  [paragraph setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
  panel.add(paragraph);
  isOver_ = isOver;
  window_ = panel.window();
  if (!isOver()) // a signal may have come before there was a window
    panel.run(parent, {});
  window_ = nil;
}

} // namespace imageposition
