#import "NotePanel.h"

#include "HelpTexts.hpp"
#import "Labels.h"
#import "ModalPanel.h"

namespace imageposition {

namespace {

constexpr CGFloat kNoteWidth = 440;
constexpr CGFloat kProposalWidth = 480;

bool show(NSWindow *parent, const Proposal &proposal, CGFloat width) {
  NSTextField *const text = makeParagraph(proposal.text, width - 2 * kPanelMargin);
  ModalPanel panel(proposal.title, width, NSHeight([text frame]), proposal.confirmTitle,
                   proposal.cancelTitle);
  [text setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
  panel.add(text);
  return panel.run(parent, {}, proposal.losesSomething ? panel.preferCancel() : nil);
}

} // namespace

void showNote(NSWindow *parent, const std::string &title, const std::string &note) {
  show(parent, {title, note, messages::kClose, {}, false}, kNoteWidth);
}

bool isConfirmed(NSWindow *parent, const Proposal &proposal) {
  return show(parent, proposal, kProposalWidth);
}

} // namespace imageposition
