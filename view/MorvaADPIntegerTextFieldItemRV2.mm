#import "MorvaADPIntegerTextFieldItemRV2.h"

#include "EntryFilter.hpp"
#include "IntegerText.hpp"
#import "TextBridge.h"

#include <algorithm>

using imageposition::toString;
using imageposition::toUtf16;

@implementation MorvaADPIntegerTextFieldItemRV2

- (void)setRange:(int32_t)max Min:(int32_t)min {
  Max = max;
  Min = min;
}

- (id)init {
  self = [super init];
  if (self != nil) {
    Max = 0;
    Min = 0;
  }
  return self;
}

- (void)setViewAvailable:(BOOL)available {
  [self setEnabled:available];
  if (!available)
    [self setTextColor:[NSColor lightGrayColor]];
  ViewState = available;
}

- (void)catchEventCall {
}

// Does not call super, which would post a notification with the unfiltered text.
- (void)textDidChange:(NSNotification *)notification {
  (void)notification;
  const std::u16string typed = toUtf16([self stringValue]);
  NSText *editor = [self currentEditor];
  const std::size_t caret = editor != nil ? [editor selectedRange].location : typed.size();
  const std::string shown = imageposition::filterEntry(typed, {Min, Max});
  [self setString:toString(shown)];
  // Setting the text selects all of it, so the next key would replace it.
  editor = [self currentEditor];
  const std::size_t place = imageposition::caretAfterFilter(typed, caret, shown);
  [editor setSelectedRange:NSMakeRange(std::min<std::size_t>(place, [[editor string] length]), 0)];
}

- (NSString *)getString {
  return [self stringValue];
}

// Not `intValue`, which wraps beyond 32 bits where integers are 64 bits wide.
- (int32_t)getInt {
  return imageposition::readInteger(toUtf16([self stringValue]));
}

- (void)setString:(NSString *)string {
  [self setStringValue:string];
}

@end
