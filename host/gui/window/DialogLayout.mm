#import "DialogLayout.h"

#import "DropView.h"
#import "Labels.h"
#import "MnemonicControls.h"
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
constexpr CGFloat kSmallestPaneHeight = 110;
constexpr CGFloat kLargestPicture = 1.6;  // times its usual size
constexpr CGFloat kSmallestPicture = 0.8; // smaller, its texts overlap

CGFloat messageHeight() {
  return kMessageLines * paragraphHeight(@"Ag", [NSFont systemFontOfSize:0], 100) + 3;
}

/// Whether Tab visits the control: a stepper's field takes the arrow keys in its place.
bool isInTabOrder(NSView *control) {
  if ([control isKindOfClass:[NSTextField class]])
    return [(NSTextField *)control isEditable];
  return ![control isKindOfClass:[NSStepper class]];
}

/// GNUstep's views do not adapt their content to `setFrame:`.
void place(NSView *view, NSRect frame) {
  [view setFrameOrigin:frame.origin];
  [view setFrameSize:frame.size];
}

bool isShown(const DialogRow &row) {
  return std::any_of(row.controls.begin(), row.controls.end(),
                     [](const RowControl &control) { return ![control.view isHidden]; });
}

/// A text may have several lines.
CGFloat heightOf(const DialogRow &row) {
  CGFloat height = kRowHeight;
  for (const RowControl &control : row.controls)
    if (control.takesRest)
      height = std::max(height, NSHeight([control.view frame]));
  return height;
}

/// The size of the window that shows everything, as far as the screen has room.
NSSize wantedSize(NSSize pane, CGFloat rows, CGFloat rowsWidth, CGFloat foot, NSSize room) {
  const NSSize picture = [PictureArea preferredSize];
  const NSSize wide = {pane.width + picture.width + 3 * kMargin,
                       std::max(rows + kGap + pane.height, picture.height) + foot + kMargin};
  const CGFloat narrow = std::max(pane.width, rowsWidth + kMargin + picture.width) + 2 * kMargin;
  const NSSize size = {wide.width <= room.width ? wide.width : narrow,
                       wide.width <= room.width ? wide.height
                                                : rows + kGap + pane.height + foot + kMargin};
  return NSMakeSize(std::min(size.width, room.width), std::min(size.height, room.height));
}

} // namespace

DialogLayout::DialogLayout(const DialogContent &content, NSSize pane, NSSize room)
    : content_(content), pane_(pane), room_(room) {
  CGFloat titleWidth = 0;
  for (const DialogRow &row : content_.rows) {
    titles_.push_back(makeTitle(row.title));
    titleWidth = std::max(titleWidth, NSWidth([titles_.back() frame]));
  }
  titleWidth_ = titleWidth;
  makeWindow(wantedSize(pane, rowsHeight(), rowsWidth(), footHeight(true), room), room);
  addViews();
  linkKeys();
  layOut();
}

DialogLayout::~DialogLayout() { [scroll_ release]; }

void DialogLayout::takePane(NSSize pane) {
  pane_ = pane;
  const NSSize wanted = wantedSize(pane, rowsHeight(), rowsWidth(), footHeight(true), room_);
  const NSSize now = [[window_ contentView] frame].size;
  if (now.width >= wanted.width)
    return;
  NSRect frame = [window_ frame];
  frame.size.width += wanted.width - now.width;
  frame.origin.x -= std::floor((wanted.width - now.width) / 2);
  frame.origin.x = std::max<CGFloat>(frame.origin.x, 0);
  [window_ setFrame:frame display:YES];
}

CGFloat DialogLayout::rowsHeight() const {
  CGFloat height = 0;
  for (const DialogRow &row : content_.rows)
    height += isShown(row) ? heightOf(row) + kRowGap : 0;
  return height;
}

CGFloat DialogLayout::rowsWidth() const { return titleWidth_ + kGap + kPopUpWidth; }

/// The buttons, the message and the hint; the texts only if they have something to say, or if
/// there is room anyway.
CGFloat DialogLayout::footHeight(bool hasRoom) const {
  CGFloat height = kMargin + kRowHeight + kGap;
  if (hasRoom || [content_.message hasText])
    height += messageHeight() + kGap;
  if (hasRoom || hasHint())
    height += kHintHeight + kGap;
  return height;
}

bool DialogLayout::hasHint() const {
  return [[content_.hint stringValue] length] > 0 || ![content_.resolve isHidden];
}

void DialogLayout::makeWindow(NSSize size, NSSize room) {
  const NSUInteger style = NSTitledWindowMask | NSClosableWindowMask | NSMiniaturizableWindowMask |
                           NSResizableWindowMask;
  window_ = [[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                         styleMask:style
                                           backing:NSBackingStoreBuffered
                                             defer:YES];
  [window_ setReleasedWhenClosed:NO];
  [window_ setTitle:toString(messages::kPrintWindow)];
  [window_
      setContentView:[[[DropView alloc] initWithFrame:[[window_ contentView] frame]] autorelease]];
  const CGFloat buttons = NSWidth([content_.help frame]) + NSWidth([content_.cancel frame]) +
                          NSWidth([content_.print frame]) + 2 * kMargin;
  const NSSize smallest = {std::max(rowsWidth(), buttons) + 2 * kMargin,
                           footHeight(false) + kSmallestPaneHeight};
  [window_ setContentMinSize:NSMakeSize(std::min(smallest.width, room.width),
                                        std::min(smallest.height, room.height))];
}

void DialogLayout::addViews() {
  scroll_ = [[KeyScrollView alloc] initWithFrame:NSZeroRect];
  upper_ = [[[NSView alloc] initWithFrame:NSZeroRect] autorelease];
  [scroll_ setDocumentView:upper_];
  NSView *const content = [window_ contentView];
  for (NSView *view : std::initializer_list<NSView *>{
           scroll_, content_.hint, content_.resolve, content_.message, content_.progress,
           content_.help, content_.cancel, content_.print})
    [content addSubview:view];
  [upper_ addSubview:content_.picture];
  [upper_ addSubview:content_.paneArea];
  for (std::size_t i = 0; i < titles_.size(); i++) {
    const DialogRow &row = content_.rows[i];
    [upper_ addSubview:titles_[i]];
    for (const RowControl &control : row.controls) {
      [upper_ addSubview:control.view];
      widths_.push_back(NSWidth([control.view frame]));
      [window_ reach:control.view by:control.title];
    }
    if (!row.controls.empty())
      [window_ reach:row.controls.front().view by:row.title];
  }
  [window_ setDefaultButtonCell:[content_.print cell]];
}

void DialogLayout::layOut() {
  const NSSize size = [[window_ contentView] frame].size;
  const CGFloat full = kMargin + rowsHeight() + kGap + pane_.height + footHeight(true);
  const bool hasRoom = size.height >= full && ![content_.paneArea usesMoreRoom];
  const CGFloat foot = footHeight(hasRoom);
  placeFoot(size, hasRoom);
  placeUpper(NSMakeSize(size.width, std::max<CGFloat>(size.height - foot, 1)), foot);
}

void DialogLayout::placeFoot(NSSize size, bool hasRoom) {
  NSRect help = [content_.help frame], cancel = [content_.cancel frame];
  NSRect print = [content_.print frame];
  help.origin = NSMakePoint(kMargin, kMargin);
  print.origin = NSMakePoint(size.width - kMargin - NSWidth(print), kMargin);
  cancel.origin = NSMakePoint(NSMinX(print) - kGap - NSWidth(cancel), kMargin);
  place(content_.help, help);
  place(content_.cancel, cancel);
  place(content_.print, print);
  const CGFloat barLeft = NSMaxX(help) + kMargin;
  place(content_.progress,
        NSMakeRect(barLeft, kMargin + 4, std::max<CGFloat>(NSMinX(cancel) - kMargin - barLeft, 0),
                   kRowHeight - 8));
  const CGFloat width = size.width - 2 * kMargin;
  CGFloat bottom = kMargin + kRowHeight + kGap;
  const bool hasMessage = hasRoom || [content_.message hasText];
  place(content_.message, NSMakeRect(kMargin, bottom, width, hasMessage ? messageHeight() : 0));
  [content_.message setHidden:!hasMessage];
  bottom += hasMessage ? messageHeight() + kGap : 0;
  const CGFloat hint = hasRoom || hasHint() ? kHintHeight : 0;
  [content_.hint setHidden:hint <= 0];
  NSRect resolve = [content_.resolve frame];
  resolve.origin = NSMakePoint(kMargin + width - NSWidth(resolve),
                               bottom + std::max<CGFloat>((hint - kRowHeight) / 2, 0));
  place(content_.resolve, resolve);
  place(content_.hint, NSMakeRect(kMargin, bottom, width - NSWidth(resolve) - kGap, hint));
}

void DialogLayout::placeUpper(NSSize size, CGFloat foot) {
  const CGFloat scroller = [NSScroller scrollerWidth];
  const bool hasPicture = ![content_.picture isHidden];
  const NSSize picture = [PictureArea preferredSize];
  const bool isBeside = hasPicture && size.width - scroller - rowsWidth() - 3 * kMargin >=
                                          kSmallestPicture * picture.width;
  const CGFloat below = hasPicture && !isBeside ? picture.height + kGap : 0;
  const CGFloat paneHeight = std::min(pane_.height, kSmallestPaneHeight);
  const CGFloat needed = kMargin + rowsHeight() + kGap + paneHeight + below;
  const CGFloat least = leastWidth();
  const bool isTooNarrow = least > size.width - (needed > size.height ? scroller : 0);
  const CGFloat inSight = size.height - (isTooNarrow ? scroller : 0);
  const bool scrolls = needed > inSight;
  const CGFloat width = std::max(least, size.width - (scrolls ? scroller : 0));
  // Where everything scrolls anyway, the pane need not scroll, too.
  const CGFloat height = scrolls ? needed - paneHeight + pane_.height : inSight;
  place(scroll_, NSMakeRect(0, foot, size.width, size.height));
  [scroll_ scrollUpright:scrolls sideways:isTooNarrow];
  [upper_ setFrameSize:NSMakeSize(width, height)];
  if (scrolls && !scrolled_) // begins with the first control
    [upper_ scrollRectToVisible:NSMakeRect(0, height - 1, 1, 1)];
  scrolled_ = scrolls;
  const CGFloat paneTop = height - kMargin - rowsHeight() - kGap;
  place(content_.paneArea, !hasPicture ? placeAlone(width, paneTop)
                           : isBeside  ? placeBeside(width, height, paneTop)
                                       : placeBelow(width, paneTop));
  placeRows(height - kMargin);
}

/// The width below which everything scrolls sideways: a panel cannot be narrower. It may scroll
/// vertically.
CGFloat DialogLayout::leastWidth() const {
  const bool hasPanel = ![content_.picture isHidden];
  const CGFloat pane = hasPanel ? pane_.width + [NSScroller scrollerWidth] + 2 : 0;
  return std::max(pane, rowsWidth()) + 2 * kMargin;
}

/// Without the picture; returns the place of the panes.
NSRect DialogLayout::placeAlone(CGFloat width, CGFloat paneTop) {
  rowsRight_ = width - kMargin;
  return NSMakeRect(kMargin, 0, width - 2 * kMargin, paneTop);
}

/// Places the picture beside the rows; returns the place of the panes.
NSRect DialogLayout::placeBeside(CGFloat width, CGFloat height, CGFloat paneTop) {
  const NSSize picture = [PictureArea preferredSize];
  const bool isWide = width >= pane_.width + picture.width + 3 * kMargin;
  NSSize shown = picture;
  if (isWide) {
    shown.width = std::min(width - pane_.width - 3 * kMargin, kLargestPicture * picture.width);
    shown.height = std::min(height - kMargin, picture.height * shown.width / picture.width);
  } else {
    shown.width = std::min(width - rowsWidth() - 3 * kMargin, picture.width);
    shown.height = std::min(picture.height, rowsHeight());
  }
  const CGFloat left = width - kMargin - shown.width;
  place(content_.picture,
        NSMakeRect(left, height - kMargin - shown.height, shown.width, shown.height));
  rowsRight_ = left - kMargin;
  return NSMakeRect(kMargin, 0, (isWide ? left - kMargin : width - kMargin) - kMargin, paneTop);
}

/// Places the picture below the panes; returns the place of the panes.
NSRect DialogLayout::placeBelow(CGFloat width, CGFloat paneTop) {
  const NSSize picture = [PictureArea preferredSize];
  const CGFloat whole = width - 2 * kMargin;
  place(content_.picture, NSMakeRect(kMargin, 0, std::min(whole, picture.width), picture.height));
  rowsRight_ = std::max(width - kMargin, kMargin + rowsWidth());
  const CGFloat bottom = picture.height + kGap;
  return NSMakeRect(kMargin, bottom, whole, paneTop - bottom);
}

void DialogLayout::placeRows(CGFloat top) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < titles_.size(); i++) {
    [titles_[i] setHidden:!isShown(content_.rows[i])];
    if (!isShown(content_.rows[i])) {
      at += content_.rows[i].controls.size();
      continue;
    }
    const CGFloat middle = top - heightOf(content_.rows[i]) / 2;
    top -= heightOf(content_.rows[i]) + kRowGap;
    NSRect frame = [titles_[i] frame];
    frame.origin = NSMakePoint(kMargin + titleWidth_ - NSWidth(frame),
                               std::round(middle - NSHeight(frame) / 2));
    place(titles_[i], frame);
    CGFloat left = kMargin + titleWidth_ + kGap;
    for (const RowControl &control : content_.rows[i].controls) {
      const CGFloat width = widths_[at++];
      if ([control.view isHidden])
        continue;
      frame = [control.view frame];
      const CGFloat rest = rowsRight_ - left;
      frame.size.width = control.takesRest ? rest : std::min(width, rest);
      frame.origin = NSMakePoint(left, std::round(middle - NSHeight(frame) / 2));
      place(control.view, frame);
      left = NSMaxX(frame) + control.gap;
    }
  }
}

void DialogLayout::linkKeys() {
  std::vector<NSView *> order;
  for (const DialogRow &row : content_.rows)
    for (const RowControl &control : row.controls)
      if (isInTabOrder(control.view))
        order.push_back(control.view);
  order.insert(order.end(), {[content_.sheets previousButton],
                             [content_.sheets nextButton],
                             content_.enlarge,
                             content_.align,
                             content_.resolve,
                             content_.help,
                             content_.cancel,
                             content_.print});
  for (std::size_t i = 0; i < order.size(); i++)
    [order[i] setNextKeyView:order[(i + 1) % order.size()]];
}

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

} // namespace imageposition
