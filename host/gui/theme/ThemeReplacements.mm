#import "DialogTheme.h"
#import "Theme.h"

#include <cmath>
#include <objc/runtime.h>

namespace imageposition {

namespace {

using Colour = NSColor *(*)(id, SEL);
using BackgroundDrawing = void (*)(id, SEL, NSRect, NSView *);
using TitleDrawing = NSRect (*)(id, SEL, NSAttributedString *, NSRect, NSView *);
using ImageDrawing = void (*)(id, SEL, NSImage *, NSRect, NSView *);

Colour textFieldColor = nullptr;
BackgroundDrawing fieldBackground = nullptr;
Colour buttonColor = nullptr;
TitleDrawing buttonTitle = nullptr;
ImageDrawing buttonImage = nullptr;

template <typename Function> Function replace(Class owner, SEL operation, Function replacement) {
  Method const method = class_getInstanceMethod(owner, operation);
  if (method == nullptr) // other releases of GNUstep may draw this differently
    return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void *>(method_setImplementation(
      method, reinterpret_cast<IMP>(reinterpret_cast<void *>(replacement)))));
}

/// Panels set black for enabled text and light gray for disabled text, whatever the window's
/// colour. Uses the theme's colours for enabled and disabled text instead.
NSColor *themedTextColor(id cell, SEL operation) {
  NSColor *const color = textFieldColor(cell, operation);
  DialogTheme *const theme = [DialogTheme current];
  if (theme == nil)
    return color;
  if ([color isEqual:[NSColor blackColor]])
    return toColor(theme->palette.text);
  if ([color isEqual:[NSColor lightGrayColor]])
    return toColor(theme->palette.disabledText);
  return color;
}

/// The theme draws the background of a disabled field with its border.
void drawFieldBackground(id cell, SEL operation, NSRect frame, NSView *view) {
  if ([DialogTheme current] == nil || [cell isEnabled] || ![cell isBezeled])
    fieldBackground(cell, operation, frame, view);
}

NSColor *titleColor(id cell, SEL operation) {
  DialogTheme *const theme = [DialogTheme current];
  if (theme == nil)
    return buttonColor(cell, operation);
  if (![cell isEnabled])
    return toColor(theme->palette.disabledText);
  const bool isDefault = [[[cell controlView] window] defaultButtonCell] == cell;
  return toColor(isDefault ? theme->palette.onAccent : theme->palette.text);
}

enum class Picture { Other, Switch, Radio, PopUp, PullDown };

/// Recognizes GNUstep's images by their names.
Picture pictureOf(NSImage *image) {
  NSString *const name = [image name];
  if ([name hasPrefix:@"GSSwitch"] || [name hasPrefix:@"common_Switch"])
    return Picture::Switch;
  if ([name hasPrefix:@"GSRadio"] || [name hasPrefix:@"common_Radio"])
    return Picture::Radio;
  if ([name isEqualToString:@"common_Nibble"])
    return Picture::PopUp;
  if ([name isEqualToString:@"common_3DArrowDown"])
    return Picture::PullDown;
  return Picture::Other;
}

void drawSwitch(NSButtonCell *cell, NSRect frame, NSView *view, bool isRound) {
  const ThemeColors &palette = [DialogTheme current]->palette;
  constexpr CGFloat kSide = 14;
  const NSRect box = NSMakeRect(std::floor(NSMidX(frame) - kSide / 2),
                                std::floor(NSMidY(frame) - kSide / 2), kSide, kSide);
  const bool isOn = [cell state] != NSOffState;
  const bool isEnabled = [cell isEnabled];
  Rgb fill = isOn ? palette.accent : palette.field;
  Rgb edge = isOn ? palette.accent : palette.outline;
  if (!isEnabled) {
    fill = palette.disabledControl;
    edge = palette.disabledOutline;
  } else if ([cell isHighlighted]) {
    fill = isOn ? palette.pressedAccent : palette.pressedButton;
  }
  drawRoundRect(box, isRound ? kSide / 2 : 3, fill, edge);
  if (isEnabled && [cell showsFirstResponder])
    drawFocusRing(NSInsetRect(box, -2, -2), isRound ? kSide / 2 + 2 : 4, palette.focusRing);
  const Rgb mark = isEnabled ? palette.onAccent : palette.disabledText;
  if (isOn && isRound)
    drawRoundRect(NSInsetRect(box, 4, 4), 3, mark, mark);
  else if (isOn)
    drawTick(box, [view isFlipped], toColor(mark));
}

/// Marks a control that opens a menu, with one chevron or with two.
void drawMenuMark(NSCell *cell, NSRect frame, NSView *view, bool bothWays) {
  const ThemeColors &palette = [DialogTheme current]->palette;
  const Rgb color = [cell isEnabled] ? palette.text : palette.disabledText;
  const NSPoint centre = NSMakePoint(std::floor(NSMidX(frame)) + 0.5, NSMidY(frame));
  const bool flipped = [view isFlipped];
  const CGFloat away = bothWays ? (flipped ? -3.5 : 3.5) : 0;
  if (bothWays)
    drawChevron(NSMakePoint(centre.x, centre.y + away), 3, true, flipped, color);
  drawChevron(NSMakePoint(centre.x, centre.y - away), 3, false, flipped, color);
}

/// Moves the title away from the box, whose focus ring would touch it.
NSRect drawButtonTitle(id cell, SEL operation, NSAttributedString *title, NSRect frame,
                       NSView *view) {
  const Picture picture = [DialogTheme current] != nil ? pictureOf([cell image]) : Picture::Other;
  if (picture == Picture::Switch || picture == Picture::Radio)
    frame.origin.x += 3;
  return buttonTitle(cell, operation, title, frame, view);
}

void drawButtonImage(id cell, SEL operation, NSImage *image, NSRect frame, NSView *view) {
  const Picture picture = [DialogTheme current] != nil ? pictureOf(image) : Picture::Other;
  if (picture == Picture::Other)
    buttonImage(cell, operation, image, frame, view);
  else if (picture == Picture::Switch || picture == Picture::Radio)
    drawSwitch(cell, frame, view, picture == Picture::Radio);
  else
    drawMenuMark(cell, frame, view, picture == Picture::PopUp);
}

} // namespace

void replacePlatformDrawing() {
  if (textFieldColor != nullptr)
    return;
  textFieldColor = replace([NSTextFieldCell class], @selector(textColor), themedTextColor);
  fieldBackground =
      replace([NSTextFieldCell class], sel_registerName("_drawBackgroundWithFrame:inView:"),
              drawFieldBackground);
  buttonColor = replace([NSButtonCell class], @selector(textColor), titleColor);
  buttonTitle =
      replace([NSButtonCell class], @selector(drawTitle:withFrame:inView:), drawButtonTitle);
  buttonImage =
      replace([NSButtonCell class], @selector(drawImage:withFrame:inView:), drawButtonImage);
}

} // namespace imageposition
