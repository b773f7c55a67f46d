#import "Labels.h"

#import "TextBridge.h"
#include "TextFont.hpp"

#include <cmath>

namespace imageposition {

namespace {

constexpr NSUInteger kLongestLine = 1000;
constexpr NSUInteger kLeastBeforeEnding = 8; // characters of a string that is cut
constexpr NSUInteger kLongestParagraph = 4000;
constexpr CGFloat kCellMargin = 2; // of a text field, to both sides of its text

/// Keeps that many UTF-16 units, more of them at the end, where a path has its file name.
NSString *withoutMiddle(NSString *text, NSUInteger kept) {
  if (kept == 0)
    return toString("…");
  const NSUInteger head = kept / 3;
  const NSUInteger tail = [text length] - (kept - head);
  NSString *const before =
      [text substringToIndex:[text rangeOfComposedCharacterSequenceAtIndex:head].location];
  NSString *const after =
      [text substringFromIndex:NSMaxRange([text rangeOfComposedCharacterSequenceAtIndex:tail])];
  return [NSString stringWithFormat:@"%@%@%@", before, toString("…"), after];
}

} // namespace

NSTextField *makeLabel(const std::string &text, bool bold) {
  NSTextField *const label = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  makeIntoLabel(label, text, bold);
  return label;
}

void makeIntoLabel(NSTextField *field, const std::string &text, bool bold) {
  [field setEditable:NO];
  [field setSelectable:NO];
  [field setBezeled:NO];
  [field setBordered:NO];
  [field setDrawsBackground:NO];
  const CGFloat size = [NSFont systemFontSize];
  [field setFont:bold ? [NSFont boldSystemFontOfSize:size] : [NSFont systemFontOfSize:size]];
  [field setStringValue:toString(text)];
  [field sizeToFit];
}

CGFloat paragraphHeight(NSString *text, NSFont *font, CGFloat width) {
  NSDictionary *const attributes = [NSDictionary dictionaryWithObject:font
                                                               forKey:NSFontAttributeName];
  const NSRect drawn = [text boundingRectWithSize:NSMakeSize(width - 2 * kCellMargin, 10000)
                                          options:NSStringDrawingUsesLineFragmentOrigin
                                       attributes:attributes];
  return std::ceil(NSHeight(drawn));
}

NSString *cutTo(NSUInteger most, NSString *text) {
  return [text length] <= most ? text : withoutMiddle(text, most);
}

NSFont *fontThatShows(NSString *text, NSFont *font) {
  const std::string current = toText([font fontName]);
  const std::string name = fontFor(toText(text), current);
  if (name == current)
    return font;
  NSFont *const other = [NSFont fontWithName:toString(name) size:[font pointSize]];
  if (other == nil)
    return font;
  return other;
}

NSTextField *makeParagraph(const std::string &text, CGFloat width, bool bold) {
  NSTextField *const label = makeLabel("", bold);
  [label setStringValue:cutTo(kLongestParagraph, toString(text))];
  [[label cell] setWraps:YES];
  [label setFrameSize:NSMakeSize(width, paragraphHeight([label stringValue], [label font], width))];
  return label;
}

void showCut(NSTextField *label, const std::string &text, CGFloat width,
             const std::string &ending) {
  NSString *const end = cutTo(kLongestLine, toString(ending));
  NSString *const start = cutTo(kLongestLine, toString(text));
  NSString *const whole = [start stringByAppendingString:end];
  [label setFont:fontThatShows(whole, [NSFont systemFontOfSize:[[label font] pointSize]])];
  NSFont *const font = [label font];
  const CGFloat room = width - 2 * kCellMargin;
  const auto isTooWide = [=](NSString *line) { return [font widthOfString:line] > room; };
  NSString *shown = whole;
  for (NSUInteger kept = [start length]; kept > kLeastBeforeEnding && isTooWide(shown);)
    shown = [withoutMiddle(start, --kept) stringByAppendingString:end];
  if (isTooWide(shown))
    for (NSUInteger kept = [whole length]; kept > 0 && isTooWide(shown);)
      shown = withoutMiddle(whole, --kept);
  [label setStringValue:shown];
  [label setToolTip:shown == whole ? nil : whole];
  [label setFrameSize:NSMakeSize(width, NSHeight([label frame]))];
}

} // namespace imageposition
