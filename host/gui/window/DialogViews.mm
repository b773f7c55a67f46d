#import "DialogViews.h"

#include "Copies.hpp"
#include "HelpTexts.hpp"
#import "KeyLoop.h"
#import "KeyScrollView.h"
#import "Labels.h"
#import "MnemonicControls.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace imageposition {

namespace {

constexpr CGFloat kMargin = 20;
constexpr CGFloat kGap = 10;
constexpr CGFloat kRowGap = 8;
constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kHintHeight = 36;
constexpr int kMessageLines = 3; // it scrolls when there are more
constexpr CGFloat kPopUpWidth = 280;
constexpr CGFloat kSmallestPaneHeight = 72;
constexpr NSSize kWindowFrame = {8, 40}; // pixels, of most window managers

NSPopUpButton *makePopUp(id target, SEL action) {
  const NSRect frame = NSMakeRect(0, 0, kPopUpWidth, kRowHeight);
  NSPopUpButton *const popUp = [[[NSPopUpButton alloc] initWithFrame:frame
                                                           pullsDown:NO] autorelease];
  [popUp setAutoenablesItems:NO];
  [popUp setTarget:target];
  [popUp setAction:action];
  return popUp;
}

NSTextField *makeField(CGFloat width, id target, SEL action) {
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  const CGFloat height = [[field cell] cellSize].height; // it writes at the top of a higher one
  [field setFrameSize:NSMakeSize(width, height)];
  [field setTarget:target];
  [field setAction:action];
  [field setDelegate:target];
  return field;
}

NSTextField *makeMessage(NSRect frame) {
  NSTextField *const label = makeLabel("");
  [[label cell] setWraps:YES];
  [label setFrame:frame];
  return label;
}

/// A title and what stands beside it, from the left.
struct Row {
  std::string title;
  std::vector<NSView *> controls;
};

CGFloat messageHeight() {
  return kMessageLines * paragraphHeight(@"Ag", [NSFont systemFontOfSize:0], 100) + 3;
}

class Builder {
public:
  Builder(NSSize pane, NSSize room, const std::string &document, const DialogActions &actions)
      : pane_(pane), room_(room), document_(document), actions_(actions) {}

  DialogViews build() {
    makeControls();
    makeWindow();
    addRows();
    addPane();
    addButtons();
    linkKeys();
    return views_;
  }

private:
  void makeControls();
  void makeWindow();
  void addRows();
  void addPane();
  void addButtons();
  void linkKeys();
  void add(NSView *view) { [[views_.window contentView] addSubview:view]; }

  NSSize pane_; // what of it has room
  NSSize room_;
  std::string document_;
  const DialogActions &actions_;
  DialogViews views_{};
  std::vector<Row> rows_;
  std::vector<NSTextField *> titles_;
  CGFloat titleWidth_ = 0;
  CGFloat rowsRight_ = 0;
  CGFloat paneTop_ = 0;
  NSTextField *documentName_ = nil;
};

void Builder::makeControls() {
  const id target = actions_.target;
  views_.printers = makePopUp(target, actions_.printerChosen);
  views_.printerState = makeLabel("");
  views_.presets = makePopUp(target, actions_.presetChosen);
  views_.copies = makeField(56, target, actions_.copiesChanged);
  views_.copiesStepper = [[[NSStepper alloc] initWithFrame:NSMakeRect(0, 0, 19, 27)] autorelease];
  [views_.copiesStepper setMinValue:1];
  [views_.copiesStepper setMaxValue:kMostCopies];
  [views_.copiesStepper setValueWraps:NO];
  [views_.copiesStepper setTarget:target];
  [views_.copiesStepper setAction:actions_.copiesStepped];
  views_.collate = makeSwitch(messages::kCollate, target, actions_.collateChanged);
  views_.pages = makePopUp(target, actions_.pagesChosen);
  [views_.pages setFrameSize:NSMakeSize(130, kRowHeight)];
  views_.ranges = makeField(kPopUpWidth - 130 - kGap, target, actions_.rangesChanged);
  views_.twoSided = makePopUp(target, actions_.twoSidedChosen);
  views_.media = makePopUp(target, actions_.mediaChosen);
  views_.panes = makePopUp(target, actions_.paneChosen);
  rows_.push_back({messages::kPrinterRow, {views_.printers}});
  rows_.push_back({"", {views_.printerState}});
  documentName_ = makeLabel("");
  if (!document_.empty())
    rows_.push_back({messages::kDocumentRow, {documentName_}});
  rows_.push_back({messages::kPresetsRow, {views_.presets}});
  rows_.push_back({messages::kCopiesRow, {views_.copies, views_.copiesStepper, views_.collate}});
  rows_.push_back({messages::kPagesRow, {views_.pages, views_.ranges}});
  rows_.push_back({messages::kTwoSidedRow, {views_.twoSided}});
  rows_.push_back({messages::kMediaRow, {views_.media}});
  rows_.push_back({messages::kPaneRow, {views_.panes}});
  for (const Row &row : rows_) {
    titles_.push_back(makeTitle(row.title));
    titleWidth_ = std::max(titleWidth_, NSWidth([titles_.back() frame]));
  }
}

void Builder::makeWindow() {
  NSSize picture = [PreviewView preferredSize];
  const CGFloat rows = static_cast<CGFloat>(rows_.size()) * (kRowHeight + kRowGap);
  const CGFloat rowsWidth = titleWidth_ + kGap + kPopUpWidth;
  const CGFloat foot = kHintHeight + messageHeight() + kRowHeight + 3 * kGap;
  const bool isNarrow = pane_.width + picture.width + 3 * kMargin > room_.width;
  NSSize size = {pane_.width + picture.width + 3 * kMargin, 0};
  if (isNarrow) {
    size.width = std::min(room_.width,
                          std::max(pane_.width, rowsWidth + kMargin + picture.width) + 2 * kMargin);
    picture.width = std::clamp<CGFloat>(size.width - rowsWidth - 3 * kMargin, 0.0, picture.width);
    picture.height = std::min(picture.height, rows);
    pane_.width = size.width - 2 * kMargin;
  }
  const CGFloat paneRoom = room_.height - rows - kGap - foot - 2 * kMargin;
  pane_.height = std::min(pane_.height, std::max(paneRoom, kSmallestPaneHeight));
  const CGFloat body = std::max(rows + kGap + pane_.height, picture.height);
  size.height = body + foot + 2 * kMargin;
  paneTop_ = size.height - kMargin - rows - kGap;
  views_.window = [[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                               styleMask:NSTitledWindowMask | NSClosableWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:YES];
  [views_.window setReleasedWhenClosed:NO];
  [views_.window setTitle:toString(messages::kPrintWindow)];
  const NSRect frame =
      NSMakeRect(size.width - kMargin - picture.width, size.height - kMargin - picture.height,
                 picture.width, picture.height);
  rowsRight_ = NSMinX(frame) - kMargin;
  views_.preview = [[[PreviewView alloc] initWithFrame:frame] autorelease];
  add(views_.preview);
}

void Builder::addRows() {
  for (const Row &row : rows_)
    if (!row.controls.empty())
      [views_.window reach:row.controls.front() by:row.title];
  CGFloat middle = NSHeight([[views_.window contentView] frame]) - kMargin - kRowHeight / 2;
  for (std::size_t i = 0; i < rows_.size(); i++, middle -= kRowHeight + kRowGap) {
    NSTextField *const title = titles_[i];
    [title setFrameOrigin:NSMakePoint(kMargin + titleWidth_ - NSWidth([title frame]),
                                      std::round(middle - NSHeight([title frame]) / 2))];
    add(title);
    CGFloat left = kMargin + titleWidth_ + kGap;
    for (NSView *control : rows_[i].controls) {
      NSRect frame = [control frame];
      const CGFloat rest = rowsRight_ - left;
      if (control == documentName_)
        showCut(documentName_, document_, rest);
      // What may be long, now or later, takes what is left.
      const bool isLong = control == views_.printerState || control == documentName_;
      frame.size.width = isLong ? rest : std::min(NSWidth(frame), rest);
      frame.origin = NSMakePoint(left, std::round(middle - NSHeight(frame) / 2));
      [control setFrame:frame];
      add(control);
      left = NSMaxX(frame) + (control == views_.copies ? 2 : kGap);
    }
  }
}

void Builder::addPane() {
  const CGFloat bottom = paneTop_ - pane_.height;
  views_.paneArea = [[[NSView alloc]
      initWithFrame:NSMakeRect(kMargin, bottom, pane_.width, pane_.height)] autorelease];
  add(views_.paneArea);
  const CGFloat width = NSWidth([[views_.window contentView] frame]) - 2 * kMargin;
  const CGFloat messageBottom = kMargin + kRowHeight + kGap;
  const CGFloat hintBottom = messageBottom + messageHeight() + kGap;
  views_.resolve = makeButton(messages::kResolve, actions_.target, actions_.resolve);
  const CGFloat resolveWidth = NSWidth([views_.resolve frame]);
  [views_.resolve setFrameOrigin:NSMakePoint(kMargin + width - resolveWidth,
                                             hintBottom + (kHintHeight - kRowHeight) / 2)];
  [views_.resolve setHidden:YES];
  views_.hint =
      makeMessage(NSMakeRect(kMargin, hintBottom, width - resolveWidth - kGap, kHintHeight));
  views_.message = [[[MessageView alloc]
      initWithFrame:NSMakeRect(kMargin, messageBottom, width, messageHeight())] autorelease];
  [views_.window reach:views_.collate by:messages::kCollate];
  [views_.window reach:views_.resolve by:messages::kResolve];
  add(views_.hint);
  add(views_.resolve);
  add(views_.message);
}

void Builder::addButtons() {
  views_.help = makeButton(messages::kHelpButton, actions_.target, actions_.help);
  views_.cancel = makeButton(messages::kCancel, actions_.target, actions_.cancel);
  views_.print = makeButton(messages::kPrint, actions_.target, actions_.print);
  const CGFloat right = NSWidth([[views_.window contentView] frame]) - kMargin;
  const CGFloat printLeft = right - NSWidth([views_.print frame]);
  const CGFloat cancelLeft = printLeft - kGap - NSWidth([views_.cancel frame]);
  [views_.print setFrameOrigin:NSMakePoint(printLeft, kMargin)];
  [views_.cancel setFrameOrigin:NSMakePoint(cancelLeft, kMargin)];
  [views_.help setFrameOrigin:NSMakePoint(kMargin, kMargin)];
  const CGFloat barLeft = NSMaxX([views_.help frame]) + kMargin;
  const NSRect bar =
      NSMakeRect(barLeft, kMargin + 4, cancelLeft - kMargin - barLeft, kRowHeight - 8);
  views_.progress = [[[NSProgressIndicator alloc] initWithFrame:bar] autorelease];
  [views_.progress setIndeterminate:NO];
  [views_.progress setMaxValue:1];
  [views_.progress setHidden:YES];
  [views_.window reach:views_.help by:messages::kHelpButton];
  [views_.window reach:views_.cancel by:messages::kCancel];
  [views_.window reach:views_.print by:messages::kPrint];
  add(views_.progress);
  add(views_.help);
  add(views_.cancel);
  add(views_.print);
  [views_.window setDefaultButtonCell:[views_.print cell]];
}

void Builder::linkKeys() {
  const std::vector<NSView *> order{
      views_.printers, views_.presets,  views_.copies, views_.collate, views_.pages,
      views_.ranges,   views_.twoSided, views_.media,  views_.panes,   views_.resolve,
      views_.help,     views_.cancel,   views_.print};
  for (std::size_t i = 0; i < order.size(); i++)
    [order[i] setNextKeyView:order[(i + 1) % order.size()]];
}

} // namespace

NSSize roomOnScreen() {
  NSScreen *const screen = [NSScreen mainScreen];
  const CGFloat scale = [screen userSpaceScaleFactor];
  const NSSize pixels = [screen visibleFrame].size;
  return NSMakeSize(std::floor((pixels.width - kWindowFrame.width) / scale),
                    std::floor((pixels.height - kWindowFrame.height) / scale));
}

DialogViews buildDialog(NSSize pane, NSSize room, const std::string &document,
                        const DialogActions &actions) {
  return Builder(pane, room, document, actions).build();
}

namespace {

/// The pane itself, or what scrolls it where it is higher than its area.
NSView *fitted(NSView *pane, NSRect area) {
  if (NSHeight([pane frame]) <= NSHeight(area) + 0.5)
    return pane;
  NSScrollView *const before = [pane enclosingScrollView];
  if (before != nil && [before documentView] == pane)
    return before;
  const CGFloat width =
      std::min(NSWidth(area), NSWidth([pane frame]) + [NSScroller scrollerWidth] + 2);
  KeyScrollView *const scroll =
      [[[KeyScrollView alloc] initWithFrame:NSMakeRect(0, 0, width, NSHeight(area))] autorelease];
  [scroll setBorderType:NSNoBorder];
  [scroll setDocumentView:pane];
  [pane scrollRectToVisible:NSMakeRect(0, NSMaxY([pane bounds]) - 1, 1, 1)]; // its upper edge
  return scroll;
}

} // namespace

void showInPaneArea(const DialogViews &views, NSView *pane) {
  const NSRect area = [views.paneArea frame];
  NSView *const shown = fitted(pane, area);
  NSArray *const before = [NSArray arrayWithArray:[views.paneArea subviews]];
  for (NSUInteger i = 0; i < [before count]; i++)
    if ([before objectAtIndex:i] != shown)
      [[before objectAtIndex:i] removeFromSuperview];
  const CGFloat left = std::floor((NSWidth(area) - NSWidth([shown frame])) / 2);
  [shown setFrameOrigin:NSMakePoint(left, NSHeight(area) - NSHeight([shown frame]))];
  if ([shown superview] != views.paneArea)
    [views.paneArea addSubview:shown];
  [views.paneArea setNeedsDisplay:YES];
  linkPane(pane, views.panes, views.resolve);
}

} // namespace imageposition
