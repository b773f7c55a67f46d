#import "Theme.h"

#import "DialogTheme.h"
#import "RedrawRounding.h"

namespace imageposition {

namespace {

const ThemeColors &colorsInUse() {
  DialogTheme *const theme = [DialogTheme current];
  return theme != nil ? theme->palette : themeColors(Appearance::Light);
}

/// The platform puts the theme that the user's defaults name in place of this one whenever any
/// default changes.
void keepTheme() {
  [[NSNotificationCenter defaultCenter] removeObserver:[GSTheme class]
                                                  name:NSUserDefaultsDidChangeNotification
                                                object:nil];
}

} // namespace

void setTextScale(double scale) {
  if (scale == 1)
    return;
  // Letters as wide as they are drawn: widths in whole pixels of the unscaled size would not do.
  // Cairo's figures: bits 4 and up for metrics (1: not rounded), the others for shapes (2: slight).
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
  keepTheme();
}

NSColor *accentColor() { return toColor(colorsInUse().accent); }
NSColor *secondaryTextColor() { return toColor(colorsInUse().secondaryText); }
NSColor *warningTextColor() { return toColor(colorsInUse().warningText); }
NSColor *outlineColor() { return toColor(colorsInUse().outline); }

} // namespace imageposition
