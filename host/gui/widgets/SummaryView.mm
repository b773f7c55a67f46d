#import "SummaryView.h"

#include "JobTexts.hpp"
#import "Labels.h"
#include "Phrases.hpp"
#include "WidgetTexts.hpp"

#include <algorithm>
#include <cmath>

using imageposition::SummaryLine;
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

/// Per section; each line has two views.
constexpr std::size_t kMostLines = 500;

constexpr CGFloat kMargin = 12;
constexpr CGFloat kLineGap = 5;
constexpr CGFloat kColumnGap = 12;

/// Before the title of a line that differs from the printer's default; its value is bold.
constexpr const char *kMark = "\u2022 ";

std::string titleOf(const SummaryLine &line) {
  return (line.differs ? kMark : "") + imageposition::messages::asLabel(line.title);
}

std::size_t shownLines(const SummarySection &section) {
  return std::min(section.lines.size(), kMostLines);
}

/// As wide as the widest title, but leaves room for the values.
CGFloat titleColumn(const std::vector<SummarySection> &sections, CGFloat width) {
  CGFloat widest = 0;
  for (const SummarySection &section : sections)
    for (std::size_t i = 0; i < shownLines(section); i++)
      widest =
          std::max(widest, NSWidth([imageposition::makeLabel(titleOf(section.lines[i])) frame]));
  return std::min<CGFloat>(widest, std::floor(width * 0.6));
}

/// Adds lines from the top; titles end where the values begin.
class Writer {
public:
  Writer(NSView *rows, CGFloat width, CGFloat column)
      : rows_(rows), width_(width), column_(column) {}

  CGFloat top() const { return top_; }
  bool hasMarks() const { return hasMarks_; }

  void addSection(const SummarySection &section) {
    addLine(imageposition::makeLabel(section.panelName, true));
    const std::size_t shown = shownLines(section);
    for (std::size_t i = 0; i < shown; i++)
      addRow(section.lines[i]);
    if (section.lines.size() > shown)
      addLine(imageposition::makeLabel(
          imageposition::messages::linesNotShown(section.lines.size() - shown)));
    if (section.lines.empty())
      addLine(imageposition::makeLabel(imageposition::messages::kNothingToSummarize));
    top_ += kMargin - kLineGap;
  }

  void addLine(NSTextField *label) {
    [label setFrameOrigin:NSMakePoint(kMargin, top_)];
    [rows_ addSubview:label];
    top_ += NSHeight([label frame]) + kLineGap;
  }

private:
  void addRow(const SummaryLine &line) {
    const std::string title = titleOf(line);
    NSTextField *const label = imageposition::makeLabel(title);
    if (NSWidth([label frame]) > column_)
      imageposition::showCut(label, title, column_);
    const CGFloat right = kMargin + column_;
    [label setFrameOrigin:NSMakePoint(right - NSWidth([label frame]), top_)];
    const CGFloat rest = width_ - right - kColumnGap - kMargin;
    NSTextField *const value = imageposition::makeParagraph(line.value, rest, line.differs);
    [value setFrameOrigin:NSMakePoint(right + kColumnGap, top_)];
    [rows_ addSubview:label];
    [rows_ addSubview:value];
    top_ += std::max(NSHeight([value frame]), NSHeight([label frame])) + kLineGap;
    hasMarks_ = hasMarks_ || line.differs;
  }

  NSView *rows_;
  CGFloat width_;
  CGFloat column_;
  CGFloat top_ = kMargin;
  bool hasMarks_ = false;
};

} // namespace

@implementation SummaryView

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil) {
    [self setBorderType:NSBezelBorder];
  }
  return self;
}

- (void)showSections:(const std::vector<SummarySection> &)sections {
  NSView *const rows = [[[SummaryRows alloc] initWithFrame:NSZeroRect] autorelease];
  // A scroller may appear and must not cover anything.
  const CGFloat width = NSWidth([self frame]) - [NSScroller scrollerWidth] - 4;
  Writer writer(rows, width, titleColumn(sections, width));
  for (const SummarySection &section : sections)
    writer.addSection(section);
  if (writer.hasMarks())
    writer.addLine(
        imageposition::makeLabel(kMark + imageposition::messages::kDifferingLegend.str()));
  [rows setFrameSize:NSMakeSize(width, writer.top())];
  [self showRows:rows];
}

@end
