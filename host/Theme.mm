#import "host/Theme.h"

#import "host/DialogTheme.h"

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
  NSDictionary *const defaults =
      [NSDictionary dictionaryWithObject:[NSNumber numberWithDouble:scale] forKey:@"GSScaleFactor"];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

void installTheme(Appearance appearance) {
  replacePlatformDrawing();
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
