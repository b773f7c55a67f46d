#import "HelpWindow.h"

#import "HelpPicture.h"
#include "HelpTexts.hpp"
#import "KeyScrollView.h"
#import "Labels.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#import "NotePanel.h"
#include "PasteboardTrouble.hpp"
#include "QuestionTexts.hpp"
#import "TextBridge.h"
#import "WindowPlacement.h"

#include <algorithm>
#include <string>
#include <vector>

@interface HelpContent : NSView
@end

@implementation HelpContent

- (BOOL)isFlipped {
  return YES;
}

@end

/// Can be used while the dialog waits for its window.
@interface BesideWindow : KeyWindow
@end

@implementation BesideWindow

- (BOOL)worksWhenModal {
  return YES;
}

@end

namespace imageposition {

namespace {

constexpr CGFloat kCharactersInLine = 58;
constexpr CGFloat kGap = 5;
constexpr CGFloat kSectionGap = 14;
constexpr CGFloat kScroller = 20;

/// A label and its distance from the upper left corner.
struct Placed {
  NSView *view;
  CGFloat left;
  CGFloat top;
};

/// Puts labels one below the other.
class Column {
public:
  explicit Column(CGFloat width)
      : width_(width), indent_(NSWidth([makeLabel("0.") frame]) + kGap) {}

  void add(const HelpSection &section) {
    height_ += height_ > 0 ? kSectionGap : 0;
    place(makeLabel(section.title, true), 0);
    int step = 0;
    for (const std::string &paragraph : section.paragraphs) {
      if (section.areSteps)
        texts_.push_back({makeLabel(std::to_string(++step) + "."), 0, height_ + kGap});
      const CGFloat indent = section.areSteps ? indent_ : 0;
      height_ += kGap;
      place(makeParagraph(paragraph, width_ - indent), indent);
    }
  }

  CGFloat height() const { return height_; }
  const std::vector<Placed> &texts() const { return texts_; }

private:
  void place(NSTextField *text, CGFloat left) {
    texts_.push_back({text, left, height_});
    height_ += NSHeight([text frame]);
  }

  CGFloat width_;
  CGFloat indent_;
  CGFloat height_ = 0;
  std::vector<Placed> texts_;
};

/// The text and the picture beside it, in a flipped view as large as they are.
NSView *makeContent() {
  const CGFloat width = kCharactersInLine * [[NSFont systemFontOfSize:0] widthOfString:@"n"];
  Column column(width);
  for (const HelpSection &section : helpSections())
    column.add(section);
  const NSSize picture = [HelpPicture preferredSize];
  const CGFloat height = std::max(column.height(), picture.height);
  NSView *const content = [[[HelpContent alloc]
      initWithFrame:NSMakeRect(0, 0, width + kPanelMargin + picture.width, height)] autorelease];
  for (const Placed &text : column.texts()) {
    [text.view setFrameOrigin:NSMakePoint(text.left, text.top)];
    [content addSubview:text.view];
  }
  const NSRect frame = NSMakeRect(width + kPanelMargin, 0, picture.width, picture.height);
  [content addSubview:[[[HelpPicture alloc] initWithFrame:frame] autorelease]];
  return content;
}

} // namespace

} // namespace imageposition

using namespace imageposition;

@interface HelpWindow ()
- (void)build;
@end

@implementation HelpWindow

- (id)init {
  if ((self = [super init]) != nil)
    [self build];
  return self;
}

- (void)dealloc {
  [window setDelegate:nil];
  [window close];
  [window release];
  [super dealloc];
}

- (void)build {
  NSView *const content = makeContent();
  const NSSize room = roomOnScreen();
  const CGFloat foot = 2 * kPanelMargin + kButtonHeight;
  const CGFloat ring = 2 * [KeyScrollView roomForFocus];
  const NSSize text = {[content frame].size.width + ring, [content frame].size.height + ring};
  const CGFloat height = std::min(text.height, room.height - foot - kPanelMargin);
  const CGFloat width = text.width + (height < text.height ? kScroller : 0);
  window = [[BesideWindow alloc]
      initWithContentRect:NSMakeRect(0, 0, width + 2 * kPanelMargin, height + foot + kPanelMargin)
                styleMask:NSTitledWindowMask | NSClosableWindowMask
                  backing:NSBackingStoreBuffered
                    defer:NO];
  [window setReleasedWhenClosed:NO];
  [window setTitle:toString(messages::kHelpWindow)];
  [window setDelegate:self];
  KeyScrollView *const scroll = [[[KeyScrollView alloc]
      initWithFrame:NSMakeRect(kPanelMargin, foot, width, height)] autorelease];
  [scroll leaveRoomForFocus];
  [scroll showRows:content];
  [[window contentView] addSubview:scroll];
  NSButton *const close = makeButton(messages::kClose, self, @selector(dismiss));
  [close setFrameOrigin:NSMakePoint(kPanelMargin + width - NSWidth([close frame]), kPanelMargin)];
  [[window contentView] addSubview:close];
  [window reach:close by:messages::kClose];
  [window setDefaultButtonCell:[close cell]];
  [close setNextKeyView:[scroll hasMore] ? (NSView *)scroll : close];
  [scroll setNextKeyView:close];
  [window setInitialFirstResponder:[scroll hasMore] ? (NSView *)scroll : close];
}

- (KeyWindow *)window {
  return window;
}

- (void)showBeside:(NSWindow *)parent {
  if (![window isVisible]) {
    placeBeside(window, parent);
    [parent addChildWindow:window ordered:NSWindowAbove];
  }
  [window makeKeyAndOrderFront:nil];
  [window makeFirstResponder:[window initialFirstResponder]];
}

- (void)hide {
  if (![window isVisible])
    return;
  NSWindow *const parent = [window parentWindow];
  [parent removeChildWindow:window];
  [window orderOut:nil];
  [parent makeKeyAndOrderFront:nil];
}

- (void)confirm {
  [self hide];
}

- (void)dismiss {
  [self hide];
}

- (void)help {
  [self hide];
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  [self hide];
  return NO;
}

/// No plug-in's code runs here.
- (void)exception:(NSString *)what in:(NSView *)view {
  (void)view;
  showNote(window, messages::kDialogFault, messages::dialogFailed(toText(what)));
}

- (void)pasteboardFailed:(NSString *)what {
  showNote(window, messages::kCopyAndPaste, pasteboardTrouble(toText(what)));
}

@end
