#import "OptionsView.h"

#import "ChoicePopUp.h"
#import "Labels.h"
#import "ListPopUp.h"
#include "Mnemonic.hpp"
#import "MnemonicControls.h"
#include "OptionLimit.hpp"
#include "Phrases.hpp"
#import "TextBridge.h"
#include "WidgetTexts.hpp"

#include <algorithm>

using namespace imageposition;

namespace imageposition {

struct OptionsViewRow {
  std::string keyword;
  std::vector<std::string> choices;
  ListPopUp *popUp;                 // owned by the view; null for checkboxes
  std::vector<NSButton *> switches; // owned by the view; one for each choice
};

namespace {

/// GNUstep takes a fifth of a millisecond to make a control.
constexpr std::size_t kMostRows = 500;

constexpr CGFloat kMargin = 12;
constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kRowGap = 6;
constexpr CGFloat kColumnGap = 10;

std::string shapeOf(const std::vector<OptionGroup> &groups) {
  std::string shape;
  for (const OptionGroup &group : groups) {
    shape += group.text + '\n';
    for (const PrinterOption &option : group.options) {
      shape += option.keyword + '\t' + option.text + '\t';
      if (option.kind == PrinterOption::Kind::Several)
        for (const OptionChoice &choice : option.choices)
          shape += choice.keyword + '\t' + choice.text + '\t';
      shape += '\n';
    }
  }
  return shape;
}

void select(OptionsViewRow &row, const PrinterOption &option) {
  if (row.popUp != nil) {
    row.choices = showChoices(row.popUp, option);
    return;
  }
  const ChoiceSet chosen = option.chosenSet();
  for (std::size_t i = 0; i < row.switches.size(); i++) {
    [row.switches[i] setState:chosen.count(row.choices[i]) != 0 ? NSOnState : NSOffState];
    [row.switches[i] setEnabled:!option.isLocked];
  }
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

/// Only its controls accept the focus.
- (BOOL)acceptsFirstResponder {
  return NO;
}

- (void)choose:(id)sender {
  const OptionsViewRow row = rows->at([sender tag]); // a copy: the owner may replace the rows
  const NSInteger chosen = [sender indexOfSelectedItem];
  if (chosen >= static_cast<NSInteger>(row.choices.size()))
    [owner option:row.keyword wantsValueBy:sender];
  else if (chosen >= 0)
    [owner option:row.keyword wasChosen:row.choices[chosen] by:sender];
}

- (void)tick:(id)sender {
  const OptionsViewRow row = rows->at([sender tag]);
  const auto ticked = std::find(row.switches.begin(), row.switches.end(), sender);
  if (ticked != row.switches.end())
    [owner option:row.keyword
           choice:row.choices[ticked - row.switches.begin()]
        wasTicked:[sender state] == NSOnState
               by:sender];
}

- (ListPopUp *)popUpFor:(const PrinterOption &)option frame:(NSRect)frame {
  ListPopUp *const popUp = [[[ListPopUp alloc] initWithFrame:frame pullsDown:NO] autorelease];
  [popUp setAutoresizingMask:NSViewWidthSizable];
  [popUp setTag:static_cast<NSInteger>(rows->size())];
  [popUp setTarget:self];
  [popUp setAction:@selector(choose:)];
  rows->push_back({option.keyword, {}, popUp, {}});
  return popUp;
}

/// Places the checkboxes one below another; returns their lower edge.
- (CGFloat)addSwitchesFor:(const PrinterOption &)option to:(NSView *)document frame:(NSRect)frame {
  OptionsViewRow row{option.keyword, {}, nil, {}};
  for (const OptionChoice &choice : option.choices) {
    NSButton *const button = makeSwitch(withoutKey(choice.text), self, @selector(tick:));
    if (NSWidth([button frame]) > NSWidth(frame))
      [button setToolTip:toString(choice.text)];
    [button setFrame:NSMakeRect(NSMinX(frame), NSMinY(frame),
                                std::min(NSWidth([button frame]), NSWidth(frame)), kRowHeight)];
    [button setTag:static_cast<NSInteger>(rows->size())];
    [document addSubview:button];
    row.choices.push_back(choice.keyword);
    row.switches.push_back(button);
    frame.origin.y += kRowHeight;
  }
  rows->push_back(row);
  return NSMinY(frame);
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
    if (option.kind == PrinterOption::Kind::Several) {
      top = [self addSwitchesFor:option to:document frame:frame] + kRowGap;
      continue;
    }
    [document addSubview:[self popUpFor:option frame:frame]];
    top += kRowHeight + kRowGap;
  }
  return top + kRowGap;
}

- (void)build:(const std::vector<OptionGroup> &)groups leavingOut:(std::size_t)leftOut {
  rows->clear();
  const CGFloat width = [self contentSize].width;
  NSView *const document =
      [[[OptionRows alloc] initWithFrame:NSMakeRect(0, 0, width, 1)] autorelease];
  CGFloat top = kMargin;
  for (const OptionGroup &group : groups)
    top = [self add:group to:document below:top];
  if (leftOut > 0) {
    NSTextField *const note =
        makeParagraph(messages::optionsNotShown(leftOut), [self contentSize].width - 2 * kMargin);
    [note setFrameOrigin:NSMakePoint(kMargin, top)];
    [document addSubview:note];
    top = NSMaxY([note frame]) + kRowGap;
  }
  [document setFrameSize:NSMakeSize(width, top)];
  [document setAutoresizingMask:NSViewWidthSizable];
  [self setDocumentView:document];
}

- (void)showGroups:(std::vector<OptionGroup>)groups {
  const std::size_t leftOut = cutToRows(groups, kMostRows);
  const std::string wanted =
      shapeOf(groups) + std::to_string(leftOut) + '\t' + std::to_string(NSWidth([self frame]));
  if (wanted != *shape || [self documentView] == nil)
    [self build:groups leavingOut:leftOut];
  *shape = wanted;
  std::size_t at = 0;
  for (const OptionGroup &group : groups)
    for (const PrinterOption &option : group.options)
      select((*rows)[at++], option);
}

@end
