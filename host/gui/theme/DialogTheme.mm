#import "DialogTheme.h"

using namespace imageposition;

@implementation DialogTheme

- (id)initWithPalette:(const ThemeColors &)thePalette {
  if ((self = [super initWithBundle:nil]) != nil) {
    palette = thePalette;
    systemColors = [makeSystemColors(palette) retain];
  }
  return self;
}

- (void)dealloc {
  [systemColors release];
  [super dealloc];
}

+ (DialogTheme *)current {
  GSTheme *const theme = [GSTheme theme];
  return [theme isKindOfClass:[DialogTheme class]] ? (DialogTheme *)theme : nil;
}

/// No window shows an icon.
- (NSImage *)icon {
  return nil;
}

- (NSColorList *)colors {
  return systemColors;
}

- (NSColor *)colorNamed:(NSString *)name state:(GSThemeControlState)state {
  (void)state;
  if ([name isEqualToString:@"highlightedTableRowBackgroundColor"])
    return toColor(palette.accent);
  if ([name isEqualToString:@"tableHeaderTextColor"])
    return toColor(palette.secondaryText);
  return nil;
}

@end

namespace imageposition {

void drawRoundRect(NSRect rect, CGFloat radius, Rgb fill, Rgb edge, CGFloat lineWidth) {
  const NSRect line = NSInsetRect(rect, lineWidth / 2, lineWidth / 2);
  NSBezierPath *const path = [NSBezierPath bezierPath];
  [path appendBezierPathWithRoundedRect:line xRadius:radius yRadius:radius];
  [toColor(fill) set];
  [path fill];
  [path setLineWidth:lineWidth];
  [toColor(edge) set];
  [path stroke];
}

void drawFocusRing(NSRect rect, CGFloat radius, Rgb color) {
  NSBezierPath *const path = [NSBezierPath bezierPath];
  [path appendBezierPathWithRoundedRect:NSInsetRect(rect, 1, 1) xRadius:radius yRadius:radius];
  [path setLineWidth:2];
  [toColor(color) set];
  [path stroke];
}

void drawChevron(NSPoint centre, CGFloat halfWidth, bool up, bool flipped, Rgb color) {
  const CGFloat rise = (up != flipped ? halfWidth : -halfWidth) / 2;
  NSBezierPath *const path = [NSBezierPath bezierPath];
  [path moveToPoint:NSMakePoint(centre.x - halfWidth, centre.y - rise)];
  [path lineToPoint:NSMakePoint(centre.x, centre.y + rise)];
  [path lineToPoint:NSMakePoint(centre.x + halfWidth, centre.y - rise)];
  [path setLineWidth:1.5];
  [path setLineCapStyle:NSRoundLineCapStyle];
  [path setLineJoinStyle:NSRoundLineJoinStyle];
  [toColor(color) set];
  [path stroke];
}

} // namespace imageposition
