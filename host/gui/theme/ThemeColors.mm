#import "ThemeColors.h"

#include <utility>

namespace imageposition {

namespace {

const ThemeColors kLight = {
    .window = 0xF5F5F6,
    .text = 0x1C1D20,
    .secondaryText = 0x5C5F66,
    .disabledText = 0x85888F,
    .warningText = 0xA63A00,
    .field = 0xFFFFFF,
    .disabledControl = 0xEDEDEF,
    .button = 0xFFFFFF,
    .pressedButton = 0xDCDEE3,
    .outline = 0x8A8D94,
    .disabledOutline = 0xCFD1D6,
    .accent = 0x2563C9,
    .pressedAccent = 0x1B4C9F,
    .onAccent = 0xFFFFFF,
    .focusRing = 0x2F6FE0,
    .selection = 0xB9D3FA,
    .menu = 0xFFFFFF,
    .scrollerKnob = 0x8A8D94,
};

const ThemeColors kDark = {
    .window = 0x25272B,
    .text = 0xEDEEF0,
    .secondaryText = 0xB4B7BE,
    .disabledText = 0x82858D,
    .warningText = 0xFFB074,
    .field = 0x191A1D,
    .disabledControl = 0x2C2E33,
    .button = 0x3A3D43,
    .pressedButton = 0x54575F,
    .outline = 0x7F838C,
    .disabledOutline = 0x43464D,
    .accent = 0x2E6CD8,
    .pressedAccent = 0x4A86EE,
    .onAccent = 0xFFFFFF,
    .focusRing = 0x6FA6FF,
    .selection = 0x2A559C,
    .menu = 0x2F3136,
    .scrollerKnob = 0x7F838C,
};

} // namespace

const ThemeColors &themeColors(Appearance appearance) {
  return appearance == Appearance::Dark ? kDark : kLight;
}

NSColor *toColor(Rgb rgb, double opacity) {
  constexpr CGFloat kMost = 255;
  return [NSColor colorWithCalibratedRed:redOf(rgb) / kMost
                                   green:greenOf(rgb) / kMost
                                    blue:blueOf(rgb) / kMost
                                   alpha:opacity];
}

NSColorList *makeSystemColors(const ThemeColors &c) {
  const std::pair<NSString *, Rgb> named[] = {
      {@"windowBackgroundColor", c.window},
      {@"windowFrameColor", c.window},
      {@"windowFrameTextColor", c.text},
      {@"controlBackgroundColor", c.field},
      {@"controlColor", c.button},
      {@"controlHighlightColor", c.button},
      {@"controlLightHighlightColor", c.button},
      {@"controlShadowColor", c.disabledOutline},
      {@"controlDarkShadowColor", c.outline},
      {@"controlTextColor", c.text},
      {@"disabledControlTextColor", c.disabledText},
      {@"selectedControlColor", c.accent},
      {@"selectedControlTextColor", c.onAccent},
      {@"alternateSelectedControlColor", c.accent},
      {@"alternateSelectedControlTextColor", c.onAccent},
      {@"secondarySelectedControlColor", c.selection},
      {@"textColor", c.text},
      {@"textBackgroundColor", c.field},
      {@"selectedTextColor", c.text},
      {@"selectedTextBackgroundColor", c.selection},
      {@"selectedMenuItemColor", c.accent},
      {@"selectedMenuItemTextColor", c.onAccent},
      {@"keyboardFocusIndicatorColor", c.focusRing},
      {@"highlightColor", c.button},
      {@"shadowColor", c.outline},
      {@"gridColor", c.disabledOutline},
      {@"headerColor", c.window},
      {@"headerTextColor", c.text},
      {@"scrollBarColor", c.window},
      {@"selectedKnobColor", c.accent},
      {@"knobColor", c.scrollerKnob},
      {@"labelColor", c.text},
      {@"rowBackgroundColor", c.field},
      {@"alternateRowBackgroundColor", c.window},
      {@"toolTipColor", c.menu},
      {@"toolTipTextColor", c.text},
  };
  NSColorList *const list = [[[NSColorList alloc] initWithName:@"System"] autorelease];
  for (const auto &color : named)
    [list setColor:toColor(color.second) forKey:color.first];
  return list;
}

} // namespace imageposition
