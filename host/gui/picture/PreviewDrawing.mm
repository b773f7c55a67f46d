#import "PreviewDrawing.h"

#include "MeasureTexts.hpp"
#import "TextBridge.h"
#import "ThemeColors.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace imageposition {
namespace {

NSDictionary *attributesOf(NSFont *font, Rgb colour) {
  return [NSDictionary dictionaryWithObjectsAndKeys:font, NSFontAttributeName, toColor(colour),
                                                    NSForegroundColorAttributeName, nil];
}

bool isDark() {
  NSColor *const background =
      [[NSColor windowBackgroundColor] colorUsingColorSpaceName:NSCalibratedWhiteColorSpace];
  return background != nil && [background whiteComponent] < 0.5;
}

} // namespace

const PreviewColours &previewColours() { return isDark() ? kDarkPreview : kLightPreview; }

const PaperColours &paperColours() { return isDark() ? kDarkPaper : kLightPaper; }

void setColour(Rgb colour, double opacity) { [toColor(colour, opacity) set]; }

NSRect toRect(const PixelRectangle &rectangle) {
  return NSMakeRect(rectangle.x, rectangle.y, rectangle.width, rectangle.height);
}

NSFont *previewFont() { return [NSFont systemFontOfSize:[NSFont smallSystemFontSize]]; }

NSFont *previewBoldFont() { return [NSFont boldSystemFontOfSize:[NSFont smallSystemFontSize]]; }

double previewLineHeight() { return std::ceil([previewFont() defaultLineHeightForFont]); }

double widthOf(const std::string &text, NSFont *font) {
  return [font widthOfString:toString(text)];
}

void drawLine(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour,
              Alignment alignment) {
  const double rest = place.width - widthOf(text, font);
  double left = place.x;
  if (alignment == Alignment::Centre)
    left += rest / 2;
  if (alignment == Alignment::Right)
    left += rest;
  const double top = place.y + (place.height - previewLineHeight()) / 2;
  [toString(text) drawAtPoint:NSMakePoint(std::round(left), std::round(top))
               withAttributes:attributesOf(font, colour)];
}

void drawParagraph(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour) {
  [toString(text) drawInRect:toRect(place) withAttributes:attributesOf(font, colour)];
}

void strokeRectangle(const PixelRectangle &rectangle, Rgb colour, bool dashed) {
  if (rectangle.width < 1 || rectangle.height < 1)
    return;
  NSBezierPath *const path =
      [NSBezierPath bezierPathWithRect:NSInsetRect(toRect(rectangle), 0.5, 0.5)];
  [path setLineWidth:1];
  if (dashed) {
    const CGFloat pattern[] = {3, 2};
    [path setLineDash:pattern count:2 phase:0];
  }
  setColour(colour);
  [path stroke];
}

void hatch(const PixelRectangle &rectangle, Rgb colour) {
  constexpr double kDistance = 4;
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(toRect(rectangle));
  setColour(colour, 0.3);
  [NSBezierPath fillRect:toRect(rectangle)];
  NSBezierPath *const lines = [NSBezierPath bezierPath];
  // All parts share one grid, which continues the pattern across their edges.
  const double first = std::floor((rectangle.x + rectangle.y) / kDistance) * kDistance;
  const double last = rectangle.right() + rectangle.bottom();
  const int count = static_cast<int>((last - first) / kDistance);
  for (int i = 0; i <= count; i++) {
    const double sum = first + i * kDistance;
    [lines moveToPoint:NSMakePoint(sum - rectangle.y, rectangle.y)];
    [lines lineToPoint:NSMakePoint(sum - rectangle.bottom(), rectangle.bottom())];
  }
  [lines setLineWidth:1.5];
  setColour(colour);
  [lines stroke];
  [NSGraphicsContext restoreGraphicsState];
}

std::string arrowText(const Offset &offset) {
  std::string text;
  const auto add = [&text](TenthMillimetre length, const char *forwards, const char *backwards) {
    if (length.count == 0)
      return;
    text += text.empty() ? "" : "  ";
    text += length.count > 0 ? forwards : backwards;
    text += " " + numberText(length.count > 0 ? length : -length);
  };
  add(offset.right, "→", "←");
  add(offset.down, "↓", "↑");
  return text.empty() ? text : messages::inMillimetres(text);
}

} // namespace imageposition
