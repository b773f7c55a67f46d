#import "ErrorLabel.h"

#import "Labels.h"
#import "TextBridge.h"
#import "Theme.h"

@implementation ErrorLabel

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) == nil)
    return nil;
  imageposition::makeIntoLabel(self, "", false);
  [[self cell] setWraps:YES];
  [self setTextColor:imageposition::warningTextColor()];
  [self setHidden:YES];
  return self;
}

- (BOOL)showError:(const std::string &)error width:(CGFloat)width {
  NSString *const text = imageposition::toString(error);
  if ([[self stringValue] isEqualToString:text])
    return NO;
  NSFont *const font = imageposition::fontThatShows(text, [NSFont systemFontOfSize:0]);
  [self setFont:font];
  [self setStringValue:text];
  [self setFrameSize:NSMakeSize(width, imageposition::paragraphHeight(text, font, width))];
  [self setHidden:error.empty()];
  return YES;
}

@end
