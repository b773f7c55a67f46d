#import "host/Theme.h"

#import "host/DialogTheme.h"

namespace imageposition {

namespace {

const ThemeColors &colorsInUse() {
  DialogTheme *const theme = [DialogTheme current];
  return theme != nil ? theme->palette : themeColors(Appearance::Light);
}

} // namespace

void setTextScale(double scale) {
  NSDictionary *const defaults =
      [NSDictionary dictionaryWithObject:[NSNumber numberWithDouble:scale] forKey:@"GSScaleFactor"];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

void installTheme(Appearance appearance) {
  replacePlatformDrawing();
  DialogTheme *const theme =
      [[[DialogTheme alloc] initWithPalette:themeColors(appearance)] autorelease];
  [GSTheme setTheme:theme];
}

NSColor *accentColor() { return toColor(colorsInUse().accent); }
NSColor *secondaryTextColor() { return toColor(colorsInUse().secondaryText); }
NSColor *warningTextColor() { return toColor(colorsInUse().warningText); }
NSColor *outlineColor() { return toColor(colorsInUse().outline); }

} // namespace imageposition
