#import "host/DialogViews.h"

#include "host/HelpTexts.hpp"
#import "host/KeyLoop.h"
#import "host/Labels.h"
#import "host/MnemonicControls.h"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

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
  Builder(NSSize pane, const std::string &document, const DialogActions &actions)
      : pane_(pane), document_(document), actions_(actions) {}

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

  NSSize pane_;
  std::string document_;
  const DialogActions &actions_;
  DialogViews views_{};
  std::vector<Row> rows_;
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
  [views_.copiesStepper setMaxValue:9999];
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
  documentName_ = makeLabel(document_);
  if (!document_.empty())
    rows_.push_back({messages::kDocumentRow, {documentName_}});
  rows_.push_back({messages::kPresetsRow, {views_.presets}});
  rows_.push_back({messages::kCopiesRow, {views_.copies, views_.copiesStepper, views_.collate}});
  rows_.push_back({messages::kPagesRow, {views_.pages, views_.ranges}});
  rows_.push_back({messages::kTwoSidedRow, {views_.twoSided}});
  rows_.push_back({messages::kMediaRow, {views_.media}});
  rows_.push_back({messages::kPaneRow, {views_.panes}});
}

void Builder::makeWindow() {
  const NSSize picture = [PreviewView preferredSize];
  const CGFloat rows = rows_.size() * (kRowHeight + kRowGap);
  const CGFloat foot = kHintHeight + messageHeight() + kRowHeight + 3 * kGap;
  const CGFloat body = std::max(rows + kGap + pane_.height, picture.height);
  const NSSize size = {pane_.width + picture.width + 3 * kMargin, body + foot + 2 * kMargin};
  paneTop_ = size.height - kMargin - rows - kGap;
  views_.window = [[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                               styleMask:NSTitledWindowMask | NSClosableWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:YES];
  [views_.window setReleasedWhenClosed:NO];
  [views_.window setTitle:toString(messages::kPrintWindow)];
  const NSRect frame = NSMakeRect(2 * kMargin + pane_.width, size.height - kMargin - picture.height,
                                  picture.width, picture.height);
  views_.preview = [[[PreviewView alloc] initWithFrame:frame] autorelease];
  add(views_.preview);
}

void Builder::addRows() {
  CGFloat titleWidth = 0;
  std::vector<NSTextField *> titles;
  for (const Row &row : rows_) {
    titles.push_back(makeTitle(row.title));
    if (!row.controls.empty())
      [views_.window reach:row.controls.front() by:row.title];
    titleWidth = std::max(titleWidth, NSWidth([titles.back() frame]));
  }
  CGFloat middle = NSHeight([[views_.window contentView] frame]) - kMargin - kRowHeight / 2;
  for (std::size_t i = 0; i < rows_.size(); i++, middle -= kRowHeight + kRowGap) {
    NSTextField *const title = titles[i];
    [title setFrameOrigin:NSMakePoint(kMargin + titleWidth - NSWidth([title frame]),
                                      std::round(middle - NSHeight([title frame]) / 2))];
    add(title);
    CGFloat left = kMargin + titleWidth + kGap;
    for (NSView *control : rows_[i].controls) {
      NSRect frame = [control frame];
      const CGFloat rest = pane_.width + kMargin - left;
      if (control == documentName_)
        showCut(documentName_, document_, rest);
      // One that is still to come takes what is left.
      frame.size.width = control == views_.printerState ? rest : std::min(NSWidth(frame), rest);
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

DialogViews buildDialog(NSSize pane, const std::string &document, const DialogActions &actions) {
  return Builder(pane, document, actions).build();
}

void showInPaneArea(const DialogViews &views, NSView *pane) {
  NSArray *const shown = [NSArray arrayWithArray:[views.paneArea subviews]];
  for (NSUInteger i = 0; i < [shown count]; i++)
    if ([shown objectAtIndex:i] != pane)
      [[shown objectAtIndex:i] removeFromSuperview];
  const NSRect area = [views.paneArea frame];
  const CGFloat left = std::floor((NSWidth(area) - NSWidth([pane frame])) / 2);
  [pane setFrameOrigin:NSMakePoint(left, NSHeight(area) - NSHeight([pane frame]))];
  if ([pane superview] != views.paneArea)
    [views.paneArea addSubview:pane];
  [views.paneArea setNeedsDisplay:YES];
  linkPane(pane, views.panes, views.resolve);
}

} // namespace imageposition
