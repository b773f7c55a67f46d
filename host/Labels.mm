#import "host/Labels.h"

#import "platform/TextBridge.h"

namespace imageposition {

NSTextField *makeLabel(const std::string &text, bool bold) {
  NSTextField *const label = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  [label setEditable:NO];
  [label setSelectable:NO];
  [label setBezeled:NO];
  [label setBordered:NO];
  [label setDrawsBackground:NO];
  const CGFloat size = [NSFont systemFontSize];
  [label setFont:bold ? [NSFont boldSystemFontOfSize:size] : [NSFont systemFontOfSize:size]];
  [label setStringValue:toString(text)];
  [label sizeToFit];
  return label;
}

} // namespace imageposition
