#import "host/OptionsView.h"

#import "host/Labels.h"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

#include <algorithm>

using namespace imageposition;

namespace imageposition {

struct OptionsViewRow {
  std::string keyword;
  std::vector<std::string> choices;
  NSPopUpButton *popUp; // the view's
};

namespace {

constexpr CGFloat kMargin = 12;
constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kRowGap = 6;
constexpr CGFloat kColumnGap = 10;

std::string shapeOf(const std::vector<OptionGroup> &groups) {
  std::string shape;
  for (const OptionGroup &group : groups) {
    shape += group.text + '\n';
    for (const PrinterOption &option : group.options) {
      shape += option.keyword + '\t';
      for (const OptionChoice &choice : option.choices)
        shape += choice.keyword + '\t';
      shape += '\n';
    }
  }
  return shape;
}

void select(const OptionsViewRow &row, const PrinterOption &option) {
  const auto chosen = std::find(row.choices.begin(), row.choices.end(), option.chosen);
  [row.popUp selectItemAtIndex:chosen == row.choices.end() ? -1 : chosen - row.choices.begin()];
  [row.popUp setEnabled:!option.isLocked];
}

} // namespace

} // namespace imageposition

/// Lays rows out from the top.
@interface OptionRows : NSView
@end

@implementation OptionRows

- (BOOL)isFlipped {
  return YES;
}

@end

@implementation OptionsView

- (id)initWithFrame:(NSRect)frame owner:(id<OptionsViewOwner>)theOwner {
  if ((self = [super initWithFrame:frame]) == nil)
    return nil;
  owner = theOwner;
  rows = new std::vector<OptionsViewRow>;
  shape = new std::string;
  [self setBorderType:NSBezelBorder];
  return self;
}

- (void)dealloc {
  delete rows;
  delete shape;
  [super dealloc];
}

/// Its controls do.
- (BOOL)acceptsFirstResponder {
  return NO;
}

- (void)choose:(id)sender {
  const NSInteger tag = [sender tag];
  const OptionsViewRow &row = (*rows)[tag];
  const NSInteger chosen = [sender indexOfSelectedItem];
  if (chosen >= 0)
    [owner option:row.keyword wasChosen:row.choices[chosen] by:sender];
}

- (NSPopUpButton *)popUpFor:(const PrinterOption &)option frame:(NSRect)frame {
  NSPopUpButton *const popUp = [[[NSPopUpButton alloc] initWithFrame:frame
                                                           pullsDown:NO] autorelease];
  OptionsViewRow row{option.keyword, {}, popUp};
  for (const OptionChoice &choice : option.choices) {
    [[popUp menu] addItemWithTitle:toString(choice.text) action:NULL keyEquivalent:@""];
    row.choices.push_back(choice.keyword);
  }
  [popUp setAutoenablesItems:NO];
  [popUp setTag:rows->size()];
  [popUp setTarget:self];
  [popUp setAction:@selector(choose:)];
  rows->push_back(row);
  return popUp;
}

- (CGFloat)add:(const OptionGroup &)group to:(NSView *)document below:(CGFloat)top {
  const CGFloat width = [self contentSize].width - 2 * kMargin;
  const CGFloat column = std::floor(width * 0.45);
  NSTextField *const heading = makeLabel(group.text, true);
  [heading setFrameOrigin:NSMakePoint(kMargin, top)];
  [document addSubview:heading];
  top = NSMaxY([heading frame]) + kRowGap;
  for (const PrinterOption &option : group.options) {
    NSTextField *const title = makeLabel(messages::asLabel(option.text));
    const NSSize size = [title frame].size;
    const CGFloat titleWidth = std::min(size.width, column);
    [title setFrame:NSMakeRect(kMargin + column - titleWidth, top + (kRowHeight - size.height) / 2,
                               titleWidth, size.height)];
    [document addSubview:title];
    const CGFloat left = kMargin + column + kColumnGap;
    const NSRect frame = NSMakeRect(left, top, width + kMargin - left, kRowHeight);
    [document addSubview:[self popUpFor:option frame:frame]];
    top += kRowHeight + kRowGap;
  }
  return top + kRowGap;
}

- (void)build:(const std::vector<OptionGroup> &)groups {
  rows->clear();
  NSView *const document = [[[OptionRows alloc] initWithFrame:NSZeroRect] autorelease];
  CGFloat top = kMargin;
  for (const OptionGroup &group : groups)
    top = [self add:group to:document below:top];
  const NSSize visible = [self contentSize];
  [document setFrameSize:NSMakeSize(visible.width, std::max(top, visible.height))];
  [self setDocumentView:document];
}

- (void)showGroups:(const std::vector<OptionGroup> &)groups {
  const std::string wanted = shapeOf(groups);
  if (wanted != *shape || [self documentView] == nil)
    [self build:groups];
  *shape = wanted;
  std::size_t at = 0;
  for (const OptionGroup &group : groups)
    for (const PrinterOption &option : group.options)
      select((*rows)[at++], option);
}

@end
