#import "NotePanel.h"

#include "HelpTexts.hpp"
#import "Labels.h"
#import "ModalPanel.h"

namespace imageposition {

namespace {

constexpr CGFloat kWidth = 440;

} // namespace

void showNote(NSWindow *parent, const std::string &title, const std::string &note) {
  NSTextField *const text = makeParagraph(note, kWidth - 2 * kPanelMargin);
  ModalPanel panel(title, kWidth, NSHeight([text frame]), messages::kClose);
  [text setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
  panel.add(text);
  panel.run(parent, {});
}

} // namespace imageposition
