#import "Theme.h"

#import "DialogTheme.h"
#import "RedrawRounding.h"

namespace imageposition {

namespace {

const ThemeColors &colorsInUse() {
  DialogTheme *const theme = [DialogTheme current];
  return theme != nil ? theme->palette : themeColors(Appearance::Light);
}

/// Whenever a default changes, GNUstep would replace this theme with the one that the user's
/// defaults name.
void keepTheme() {
  [[NSNotificationCenter defaultCenter] removeObserver:[GSTheme class]
                                                  name:NSUserDefaultsDidChangeNotification
                                                object:nil];
}

} // namespace

void setTextScale(double scale) {
  if (scale == 1)
    return;
  // Does not round glyph widths: GNUstep would round them to whole pixels at the unscaled size. The
  // values are Cairo's: bits 4 and up for metrics (1: not rounded), the others for shapes (2:
  // slight).
  constexpr int kHinting = 1 << 4 | 2;
  NSDictionary *const defaults = [NSDictionary
      dictionaryWithObjectsAndKeys:[NSNumber numberWithDouble:scale], @"GSScaleFactor",
                                   [NSNumber numberWithInt:kHinting], @"GSFontHinting", nil];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

void installTheme(Appearance appearance) {
  replacePlatformDrawing();
  drawOnceAtAnyScale();
  DialogTheme *const theme =
      [[[DialogTheme alloc] initWithPalette:themeColors(appearance)] autorelease];
  [theme setName:@"PrintDialog"];
  [GSTheme setTheme:theme];
  replacePlatformImages(); // a new theme would look for the files of all named images
  keepTheme();
}

void drawTick(NSRect box, bool flipped, NSColor *color) {
  const CGFloat side = NSWidth(box);
  const auto point = [=](CGFloat x, CGFloat y) {
    return NSMakePoint(NSMinX(box) + x * side, NSMinY(box) + (flipped ? 1 - y : y) * side);
  };
  NSBezierPath *const path = [NSBezierPath bezierPath];
  [path moveToPoint:point(0.24, 0.50)];
  [path lineToPoint:point(0.43, 0.30)];
  [path lineToPoint:point(0.76, 0.71)];
  [path setLineWidth:2];
  [path setLineCapStyle:NSRoundLineCapStyle];
  [path setLineJoinStyle:NSRoundLineJoinStyle];
  [color set];
  [path stroke];
}

NSColor *accentColor() { return toColor(colorsInUse().accent); }
NSColor *secondaryTextColor() { return toColor(colorsInUse().secondaryText); }
NSColor *warningTextColor() { return toColor(colorsInUse().warningText); }
NSColor *outlineColor() { return toColor(colorsInUse().outline); }

} // namespace imageposition
