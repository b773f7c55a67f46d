#import "host/Labels.h"

#import "platform/TextBridge.h"

#include <cmath>

namespace imageposition {

namespace {

constexpr CGFloat kCellMargin = 2; // of a text field, to both sides of its text

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

NSTextField *makeParagraph(const std::string &text, CGFloat width) {
  NSTextField *const label = makeLabel(text);
  [[label cell] setWraps:YES];
  [label setFrameSize:NSMakeSize(width, paragraphHeight([label stringValue], [label font], width))];
  return label;
}

void cutWithEllipsis(NSTextField *label) {
  [[label cell] setLineBreakMode:NSLineBreakByTruncatingTail];
  [label setToolTip:[label stringValue]];
}

} // namespace imageposition
