#import "ModalPanel.h"

#import "MnemonicControls.h"
#import "NotePanel.h"
#include "PasteboardTrouble.hpp"
#include "QuestionTexts.hpp"
#import "TextBridge.h"
#import "WindowFocus.h"
#import "WindowPlacement.h"
#import "XWindow.h"

@interface ModalPanelController : NSObject <KeyWindowDelegate> {
@public
  KeyWindow *window;                       ///< Not owned.
  BOOL isFirst;                            ///< The program has no other window.
  const std::function<bool()> *mayConfirm; ///< Borrowed while the panel runs.
}
@end

@implementation ModalPanelController

/// A program that had no window for a moment has lost the focus.
- (void)takeFocus {
  if (isFirst && ![NSApp isActive]) {
    [NSApp activateIgnoringOtherApps:YES];
    [window makeKeyAndOrderFront:nil];
  }
  imageposition::askForFocus(window);
}

- (void)confirm {
  if (mayConfirm != nullptr && *mayConfirm && !(*mayConfirm)())
    return;
  [NSApp stopModalWithCode:NSOKButton];
}

- (void)dismiss {
  [NSApp stopModalWithCode:NSCancelButton];
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  [self dismiss];
  return NO;
}

/// No plug-in's code runs here.
- (void)exception:(NSString *)what in:(NSView *)view {
  (void)view;
  imageposition::showNote(window, imageposition::messages::kDialogFault,
                          imageposition::messages::dialogFailed(imageposition::toText(what)));
}

- (void)pasteboardFailed:(NSString *)what {
  imageposition::showNote(window, imageposition::messages::kCopyAndPaste,
                          imageposition::pasteboardTrouble(imageposition::toText(what)));
}

@end

namespace imageposition {

namespace {

constexpr NSTimeInterval kFocusDelays[] = {0.2, 1, 3}; // seconds

} // namespace

ModalPanel::ModalPanel(const std::string &title, CGFloat width, CGFloat height,
                       const std::string &confirmTitle, const std::string &cancelTitle)
    : window_([[KeyWindow alloc]
          initWithContentRect:NSMakeRect(0, 0, width, height + kButtonHeight + 3 * kPanelMargin)
                    styleMask:NSTitledWindowMask | NSClosableWindowMask
                      backing:NSBackingStoreBuffered
                        defer:NO]),
      controller_([[ModalPanelController alloc] init]), confirm_(nil), cancel_(nil) {
  [window_ setReleasedWhenClosed:NO];
  [window_ setTitle:toString(title)];
  static_cast<ModalPanelController *>(controller_)->window = window_;
  [window_ setDelegate:controller_];
  confirm_ = makeButton(confirmTitle, controller_, @selector(confirm));
  [window_ reach:confirm_ by:confirmTitle];
  if (!cancelTitle.empty()) {
    cancel_ = makeButton(cancelTitle, controller_, @selector(dismiss));
    [window_ reach:cancel_ by:cancelTitle];
    add(cancel_);
  }
  add(confirm_);
  placeButtons();
  [window_ setDefaultButtonCell:[confirm_ cell]];
}

ModalPanel::~ModalPanel() {
  [window_ setDelegate:nil];
  [window_ close];
  [window_ release];
  [controller_ release];
}

void ModalPanel::placeButtons() {
  const CGFloat width = NSWidth([[window_ contentView] frame]);
  CGFloat left = width - kPanelMargin - NSWidth([confirm_ frame]);
  [confirm_ setFrameOrigin:NSMakePoint(left, kPanelMargin)];
  if (cancel_ == nil)
    return;
  left -= kPanelMargin / 2 + NSWidth([cancel_ frame]);
  [cancel_ setFrameOrigin:NSMakePoint(left, kPanelMargin)];
}

void ModalPanel::retitleButtons(const std::string &confirmTitle, const std::string &cancelTitle) {
  retitle(confirm_, confirmTitle);
  [cancel_ setHidden:cancelTitle.empty()];
  if (!cancelTitle.empty())
    retitle(cancel_, cancelTitle);
  placeButtons();
  [[window_ contentView] setNeedsDisplay:YES];
}

void ModalPanel::link(const std::vector<NSView *> &order) {
  std::vector<NSView *> loop = order;
  if (cancel_ != nil)
    loop.push_back(cancel_);
  loop.push_back(confirm_);
  for (std::size_t i = 0; i < loop.size(); i++)
    [loop[i] setNextKeyView:loop[(i + 1) % loop.size()]];
}

CGFloat ModalPanel::bottom() const noexcept { return 2 * kPanelMargin + kButtonHeight; }

NSButton *ModalPanel::preferCancel() {
  [window_ setDefaultButtonCell:[cancel_ cell]];
  return cancel_;
}

void ModalPanel::add(NSView *view) { [[window_ contentView] addSubview:view]; }

bool ModalPanel::run(NSWindow *parent, const std::vector<NSView *> &order, NSView *first,
                     const std::function<bool()> &mayConfirm) {
  static_cast<ModalPanelController *>(controller_)->mayConfirm = &mayConfirm;
  link(order);
  if (first == nil)
    first = order.empty() ? confirm_ : order.front();
  [window_ setInitialFirstResponder:first];
  static_cast<ModalPanelController *>(controller_)->isFirst = parent == nil;
  if (parent == nil) {
    [window_ center];
    activateApplication();
  } else
    placeOver(window_, parent);
  [parent addChildWindow:window_ ordered:NSWindowAbove];
  describeAsDialog(window_, parent != nil);
  [window_ makeKeyAndOrderFront:nil];
  [window_ makeFirstResponder:first];
  for (const NSTimeInterval delay : kFocusDelays)
    [controller_ performSelector:@selector(takeFocus)
                      withObject:nil
                      afterDelay:delay
                         inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
  const NSInteger answer = [NSApp runModalForWindow:window_];
  [NSObject cancelPreviousPerformRequestsWithTarget:controller_];
  static_cast<ModalPanelController *>(controller_)->mayConfirm = nullptr;
  [window_ makeFirstResponder:nil];
  [parent removeChildWindow:window_];
  [window_ orderOut:nil];
  [parent makeKeyAndOrderFront:nil];
  return answer == NSOKButton;
}

} // namespace imageposition
