#import "host/SummaryView.h"

#import "host/Labels.h"
#include "host/Messages.hpp"
#import "platform/TextBridge.h"

#include <algorithm>

using imageposition::SummarySection;

/// Lays rows out from the top.
@interface SummaryRows : NSView
@end

@implementation SummaryRows

- (BOOL)isFlipped {
  return YES;
}

@end

namespace {

constexpr CGFloat kMargin = 12;
constexpr CGFloat kRowHeight = 20;
constexpr CGFloat kColumnGap = 12;

NSTextField *addLabel(NSView *rows, const std::string &text, bool bold) {
  NSTextField *const label = imageposition::makeLabel(text, bold);
  [rows addSubview:label];
  return label;
}

/// Title and value beside each other; answers the title's width.
struct Row {
  NSTextField *title;
  NSTextField *value;
};

std::vector<Row> addRows(NSView *rows, const SummarySection &section) {
  std::vector<Row> made;
  for (const auto &line : section.lines)
    made.push_back({addLabel(rows, line.title + ":", false), addLabel(rows, line.value, false)});
  if (section.lines.empty())
    made.push_back({addLabel(rows, imageposition::messages::kNothingToSummarize, false), nil});
  return made;
}

/// The titles end where the values begin. Answers the height below the last row.
CGFloat layOut(const std::vector<Row> &rows, CGFloat top) {
  CGFloat titleWidth = 0;
  for (const Row &row : rows)
    if (row.value != nil)
      titleWidth = std::max(titleWidth, NSWidth([row.title frame]));
  for (const Row &row : rows) {
    const CGFloat indent = row.value == nil ? 0 : titleWidth - NSWidth([row.title frame]);
    [row.title setFrameOrigin:NSMakePoint(kMargin + indent, top)];
    [row.value setFrameOrigin:NSMakePoint(kMargin + titleWidth + kColumnGap, top)];
    top += kRowHeight;
  }
  return top;
}

} // namespace

@implementation SummaryView

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil) {
    [self setHasVerticalScroller:YES];
    [self setAutohidesScrollers:YES];
    [self setBorderType:NSBezelBorder];
    [self setDrawsBackground:NO];
  }
  return self;
}

- (void)showSections:(const std::vector<SummarySection> &)sections {
  NSView *const rows = [[[SummaryRows alloc] initWithFrame:NSZeroRect] autorelease];
  CGFloat top = kMargin;
  for (const SummarySection &section : sections) {
    [addLabel(rows, section.panelName, true) setFrameOrigin:NSMakePoint(kMargin, top)];
    top = layOut(addRows(rows, section), top + kRowHeight + 2) + kMargin;
  }
  const NSSize visible = [self contentSize];
  [rows setFrameSize:NSMakeSize(visible.width, std::max(top, visible.height))];
  [self setDocumentView:rows];
}

@end
