#import "ChoiceListView.h"

#import "Labels.h"
#import "Theme.h"

#include <algorithm>
#include <cmath>

using imageposition::kListRowHeight;

namespace {

constexpr CGFloat kTextLeft = 24; // leaves room for the mark of the chosen item
constexpr CGFloat kTextRight = 12;
constexpr CGFloat kTick = 14;
constexpr NSUInteger kMostCharacters = 200; // AppKit lays out all of a title, whatever is visible

} // namespace

@interface ChoiceListView ()
- (void)drawRow:(NSInteger)row;
@end

@implementation ChoiceListView

- (id)initWithTitles:(NSArray *)theTitles font:(NSFont *)font {
  if ((self = [super initWithFrame:NSZeroRect]) == nil)
    return nil;
  NSMutableArray *const all = [NSMutableArray array];
  NSMutableArray *const each = [NSMutableArray array];
  for (NSUInteger i = 0; i < [theTitles count]; i++) {
    NSString *const title = imageposition::cutTo(kMostCharacters, [theTitles objectAtIndex:i]);
    [all addObject:title];
    [each addObject:imageposition::fontThatShows(title, font)];
  }
  titles = [all copy];
  fonts = [each copy];
  disabled = [[NSIndexSet indexSet] retain];
  chosen = -1;
  highlighted = -1;
  [self setFrameSize:[self wantedSize]];
  return self;
}

- (id)initWithPopUp:(NSPopUpButton *)popUp {
  if ((self = [self initWithTitles:[popUp itemTitles] font:[popUp font]]) == nil)
    return nil;
  NSMutableIndexSet *const off = [NSMutableIndexSet indexSet];
  for (NSInteger i = 0; i < [popUp numberOfItems]; i++)
    if (![[popUp itemAtIndex:i] isEnabled])
      [off addIndex:static_cast<NSUInteger>(i)];
  [disabled release];
  disabled = [off copy];
  chosen = [popUp indexOfSelectedItem];
  return self;
}

- (void)dealloc {
  [titles release];
  [disabled release];
  [fonts release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (NSSize)wantedSize {
  CGFloat widest = 0;
  for (NSUInteger i = 0; i < [titles count]; i++)
    widest = std::max(widest, [[fonts objectAtIndex:i] widthOfString:[titles objectAtIndex:i]]);
  return NSMakeSize(std::ceil(kTextLeft + widest + kTextRight),
                    kListRowHeight * static_cast<CGFloat>([titles count]));
}

- (NSInteger)numberOfItems {
  return static_cast<NSInteger>([titles count]);
}

- (NSString *)itemTitleAtIndex:(NSInteger)index {
  return [titles objectAtIndex:static_cast<NSUInteger>(index)];
}

- (BOOL)isItemEnabledAtIndex:(NSInteger)index {
  return ![disabled containsIndex:static_cast<NSUInteger>(index)];
}

- (NSRect)rectOfItemAtIndex:(NSInteger)index {
  return NSMakeRect(0, kListRowHeight * static_cast<CGFloat>(index), NSWidth([self bounds]),
                    kListRowHeight);
}

- (NSInteger)itemAt:(NSPoint)place {
  if (!NSMouseInRect(place, [self bounds], YES))
    return -1;
  const NSInteger row = static_cast<NSInteger>(std::floor(place.y / kListRowHeight));
  return row < [self numberOfItems] ? row : -1;
}

- (NSInteger)highlightedItemIndex {
  return highlighted;
}

- (void)highlight:(NSInteger)index {
  if (index == highlighted)
    return;
  [self setNeedsDisplayInRect:[self rectOfItemAtIndex:highlighted]];
  highlighted = index;
  [self setNeedsDisplayInRect:[self rectOfItemAtIndex:highlighted]];
}

- (NSColor *)highlightColor {
  return imageposition::accentColor();
}

- (NSColor *)highlightedTextColor {
  return [NSColor selectedMenuItemTextColor];
}

- (void)drawRect:(NSRect)dirty {
  [[NSColor textBackgroundColor] set];
  NSRectFill(dirty);
  const NSInteger first = static_cast<NSInteger>(std::floor(NSMinY(dirty) / kListRowHeight));
  const NSInteger last = static_cast<NSInteger>(std::ceil(NSMaxY(dirty) / kListRowHeight));
  for (NSInteger row = std::max<NSInteger>(first, 0); row < std::min(last, [self numberOfItems]);
       row++)
    [self drawRow:row];
}

- (void)drawRow:(NSInteger)row {
  const NSRect frame = [self rectOfItemAtIndex:row];
  const bool isHighlighted = row == highlighted;
  if (isHighlighted) {
    [[self highlightColor] set];
    NSRectFill(frame);
  }
  NSColor *const color = ![self isItemEnabledAtIndex:row] ? [NSColor disabledControlTextColor]
                         : isHighlighted                  ? [self highlightedTextColor]
                                                          : [NSColor controlTextColor];
  if (row == chosen)
    imageposition::drawTick(NSMakeRect(NSMinX(frame) + (kTextLeft - kTick) / 2,
                                       NSMidY(frame) - kTick / 2, kTick, kTick),
                            true, color);
  NSDictionary *const look = [NSDictionary
      dictionaryWithObjectsAndKeys:[fonts objectAtIndex:static_cast<NSUInteger>(row)],
                                   NSFontAttributeName, color, NSForegroundColorAttributeName, nil];
  NSString *const title = [self itemTitleAtIndex:row];
  const CGFloat height = [title sizeWithAttributes:look].height;
  [title drawAtPoint:NSMakePoint(NSMinX(frame) + kTextLeft, std::round(NSMidY(frame) - height / 2))
      withAttributes:look];
}

@end
