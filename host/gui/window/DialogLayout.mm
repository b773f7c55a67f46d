#import "DialogLayout.h"

#import "Labels.h"
#import "MnemonicControls.h"
#import "PreviewView.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>
#include <cmath>

namespace imageposition {

namespace {

constexpr CGFloat kMargin = 20;
constexpr CGFloat kGap = kControlGap;
constexpr CGFloat kRowGap = 8;
constexpr CGFloat kHintHeight = 36;
constexpr int kMessageLines = 3; // more of them scroll
constexpr CGFloat kSmallestPaneHeight = 72;

CGFloat messageHeight() {
  return kMessageLines * paragraphHeight(@"Ag", [NSFont systemFontOfSize:0], 100) + 3;
}

/// Whether Tab visits the control: a stepper's field takes the arrow keys in its place.
bool isInTabOrder(NSView *control) {
  if ([control isKindOfClass:[NSTextField class]])
    return [(NSTextField *)control isEditable];
  return ![control isKindOfClass:[NSStepper class]];
}

class Layout {
public:
  Layout(const DialogContent &content, NSSize pane, NSSize room)
      : content_(content), pane_(pane), room_(room) {}

  KeyWindow *build() {
    makeTitles();
    makeWindow();
    placeRows();
    placeMessages();
    placeButtons();
    linkKeys();
    return window_;
  }

private:
  void makeTitles();
  void makeWindow();
  void placeRow(const DialogRow &row, NSTextField *title, CGFloat middle);
  void placeRows();
  void placeMessages();
  void placeButtons();
  void linkKeys();
  void add(NSView *view, NSRect frame) {
    [view setFrame:frame];
    [[window_ contentView] addSubview:view];
  }
  NSSize size() const { return [[window_ contentView] frame].size; }

  const DialogContent &content_;
  NSSize pane_; // becomes what of it has room
  NSSize room_;
  KeyWindow *window_ = nil;
  std::vector<NSTextField *> titles_;
  CGFloat titleWidth_ = 0;
  CGFloat rowsRight_ = 0;
};

void Layout::makeTitles() {
  for (const DialogRow &row : content_.rows) {
    titles_.push_back(makeTitle(row.title));
    titleWidth_ = std::max(titleWidth_, NSWidth([titles_.back() frame]));
  }
}

void Layout::makeWindow() {
  NSSize picture = [PreviewView preferredSize];
  const CGFloat rows = static_cast<CGFloat>(content_.rows.size()) * (kRowHeight + kRowGap);
  const CGFloat rowsWidth = titleWidth_ + kGap + kPopUpWidth;
  const CGFloat foot = kHintHeight + messageHeight() + kRowHeight + 3 * kGap;
  NSSize size = {pane_.width + picture.width + 3 * kMargin, 0};
  if (size.width > room_.width) {
    size.width = std::min(room_.width,
                          std::max(pane_.width, rowsWidth + kMargin + picture.width) + 2 * kMargin);
    picture.width = std::clamp<CGFloat>(size.width - rowsWidth - 3 * kMargin, 0.0, picture.width);
    picture.height = std::min(picture.height, rows);
    pane_.width = size.width - 2 * kMargin;
  }
  const CGFloat paneRoom = room_.height - rows - kGap - foot - 2 * kMargin;
  pane_.height = std::min(pane_.height, std::max(paneRoom, kSmallestPaneHeight));
  size.height = std::max(rows + kGap + pane_.height, picture.height) + foot + 2 * kMargin;
  window_ = [[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                         styleMask:NSTitledWindowMask | NSClosableWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:YES];
  [window_ setReleasedWhenClosed:NO];
  [window_ setTitle:toString(messages::kPrintWindow)];
  const CGFloat pictureLeft = size.width - kMargin - picture.width;
  rowsRight_ = pictureLeft - kMargin;
  add(content_.picture, NSMakeRect(pictureLeft, size.height - kMargin - picture.height,
                                   picture.width, picture.height));
  const CGFloat paneTop = size.height - kMargin - rows - kGap;
  add(content_.paneArea, NSMakeRect(kMargin, paneTop - pane_.height, pane_.width, pane_.height));
}

void Layout::placeRow(const DialogRow &row, NSTextField *title, CGFloat middle) {
  NSRect frame = [title frame];
  frame.origin =
      NSMakePoint(kMargin + titleWidth_ - NSWidth(frame), std::round(middle - NSHeight(frame) / 2));
  add(title, frame);
  CGFloat left = kMargin + titleWidth_ + kGap;
  for (const RowControl &control : row.controls) {
    frame = [control.view frame];
    const CGFloat rest = rowsRight_ - left;
    frame.size.width = control.takesRest ? rest : std::min(NSWidth(frame), rest);
    frame.origin = NSMakePoint(left, std::round(middle - NSHeight(frame) / 2));
    add(control.view, frame);
    [window_ reach:control.view by:control.title];
    left = NSMaxX(frame) + control.gap;
  }
  if (!row.controls.empty())
    [window_ reach:row.controls.front().view by:row.title];
}

void Layout::placeRows() {
  CGFloat middle = size().height - kMargin - kRowHeight / 2;
  for (std::size_t i = 0; i < titles_.size(); i++, middle -= kRowHeight + kRowGap)
    placeRow(content_.rows[i], titles_[i], middle);
}

void Layout::placeMessages() {
  const CGFloat width = size().width - 2 * kMargin;
  const CGFloat messageBottom = kMargin + kRowHeight + kGap;
  const CGFloat hintBottom = messageBottom + messageHeight() + kGap;
  NSRect resolve = [content_.resolve frame];
  resolve.origin =
      NSMakePoint(kMargin + width - NSWidth(resolve), hintBottom + (kHintHeight - kRowHeight) / 2);
  add(content_.hint, NSMakeRect(kMargin, hintBottom, width - NSWidth(resolve) - kGap, kHintHeight));
  add(content_.resolve, resolve);
  add(content_.message, NSMakeRect(kMargin, messageBottom, width, messageHeight()));
}

void Layout::placeButtons() {
  NSRect help = [content_.help frame], cancel = [content_.cancel frame];
  NSRect print = [content_.print frame];
  help.origin = NSMakePoint(kMargin, kMargin);
  print.origin = NSMakePoint(size().width - kMargin - NSWidth(print), kMargin);
  cancel.origin = NSMakePoint(NSMinX(print) - kGap - NSWidth(cancel), kMargin);
  const CGFloat barLeft = NSMaxX(help) + kMargin;
  add(content_.progress,
      NSMakeRect(barLeft, kMargin + 4, NSMinX(cancel) - kMargin - barLeft, kRowHeight - 8));
  add(content_.help, help);
  add(content_.cancel, cancel);
  add(content_.print, print);
  [window_ setDefaultButtonCell:[content_.print cell]];
}

void Layout::linkKeys() {
  std::vector<NSView *> order;
  for (const DialogRow &row : content_.rows)
    for (const RowControl &control : row.controls)
      if (isInTabOrder(control.view))
        order.push_back(control.view);
  order.insert(order.end(), {content_.resolve, content_.help, content_.cancel, content_.print});
  for (std::size_t i = 0; i < order.size(); i++)
    [order[i] setNextKeyView:order[(i + 1) % order.size()]];
}

} // namespace

ListPopUp *makePopUp(id target, SEL action) {
  const NSRect frame = NSMakeRect(0, 0, kPopUpWidth, kRowHeight);
  ListPopUp *const popUp = [[[ListPopUp alloc] initWithFrame:frame pullsDown:NO] autorelease];
  [popUp setTarget:target];
  [popUp setAction:action];
  return popUp;
}

NSTextField *makeField(CGFloat width, id target, SEL action) {
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  const CGFloat height = [[field cell] cellSize].height; // a higher field has its text at the top
  [field setFrameSize:NSMakeSize(width, height)];
  [field setTarget:target];
  [field setAction:action];
  [field setDelegate:target];
  return field;
}

void addItem(NSPopUpButton *popUp, const std::string &title, bool enabled) {
  id<NSMenuItem> const item = [[popUp menu] addItemWithTitle:toString(title)
                                                      action:nullptr
                                               keyEquivalent:@""];
  [item setEnabled:enabled];
}

void addCommand(ListPopUp *popUp, const std::string &title, bool enabled) {
  addItem(popUp, title, enabled);
  [popUp markLastItemAsCommand];
}

KeyWindow *layOutDialog(const DialogContent &content, NSSize pane, NSSize room) {
  return Layout(content, pane, room).build();
}

} // namespace imageposition
