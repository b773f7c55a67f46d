#import "HelpPicture.h"

#include "HelpTexts.hpp"
#import "PreviewDrawing.h"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace {

constexpr double kPageWidth = 150;
constexpr double kPageHeight = 200;
constexpr double kGap = 12;
constexpr double kShift = 26; // of the image from its place, along both axes
constexpr double kSwatch = 18;

/// Along an axis.
void drawArrow(NSPoint from, NSPoint to, Rgb colour) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const NSPoint way = NSMakePoint((to.x - from.x) / length, (to.y - from.y) / length);
  constexpr double kHead = 7;
  const auto point = [=](double back, double aside) {
    return NSMakePoint(to.x - back * way.x - aside * way.y, to.y - back * way.y + aside * way.x);
  };
  setColour(colour);
  NSBezierPath *const line = [NSBezierPath bezierPath];
  [line moveToPoint:from];
  [line lineToPoint:point(kHead, 0)];
  [line setLineWidth:2];
  [line stroke];
  NSBezierPath *const head = [NSBezierPath bezierPath];
  [head moveToPoint:to];
  [head lineToPoint:point(kHead, kHead / 2)];
  [head lineToPoint:point(kHead, -kHead / 2)];
  [head closePath];
  [head fill];
}

PixelRectangle moved(PixelRectangle rectangle, double by) {
  rectangle.x += by;
  rectangle.y += by;
  return rectangle;
}

/// Stands for lines of text in an image.
void drawContent(const PixelRectangle &image, Rgb colour) {
  setColour(colour, 0.35);
  for (double top = image.y + 14; top + 4 < image.bottom() - 8; top += 12)
    NSRectFillUsingOperation(NSMakeRect(image.x + 12, top, image.width - 24, 4),
                             NSCompositeSourceOver);
}

/// A piece of an outline and what it means.
void drawLegend(const std::string &text, double top, Rgb colour, bool dashed) {
  const double height = previewLineHeight();
  strokeRectangle({0, top + std::round((height - 10) / 2), kSwatch, 10}, colour, dashed);
  drawLine(text, {kSwatch + kGap / 2, top, 0, height}, previewFont(), previewColours().text,
           Alignment::Left);
}

void drawPlus(double x, double y) {
  drawLine("+", {x - 10, y - 10, 20, 20}, [NSFont boldSystemFontOfSize:[NSFont systemFontSize] + 3],
           previewColours().text, Alignment::Centre);
}

} // namespace

@implementation HelpPicture

+ (NSSize)preferredSize {
  const HelpPictureTexts texts = helpPictureTexts();
  const double legend = std::max(widthOf(texts.wanted, previewFont()), //
                                 widthOf(texts.printed, previewFont()));
  return NSMakeSize(std::ceil(std::max(kPageWidth, kSwatch + kGap / 2 + legend)),
                    kPageHeight + kGap + 2 * (previewLineHeight() + 4));
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  const PreviewColours &colours = previewColours();
  const HelpPictureTexts texts = helpPictureTexts();
  const PixelRectangle page{0, 0, kPageWidth, kPageHeight};
  setColour(colours.paper);
  NSRectFill(toRect(page));
  strokeRectangle(page, colours.outline, false);
  const PixelRectangle place{page.x + 36, page.y + 40, kPageWidth - 60, kPageHeight - 70};
  const PixelRectangle image = moved(place, -kShift);
  drawContent(image, colours.back);
  strokeRectangle(image, colours.back, true);
  strokeRectangle(place, colours.front, false);
  const double middle = image.y + 52;
  drawArrow(NSMakePoint(image.right(), middle), NSMakePoint(place.right(), middle), colours.text);
  const double centre = image.x + image.width / 2;
  drawArrow(NSMakePoint(centre, image.bottom()), NSMakePoint(centre, place.bottom()), colours.text);
  drawPlus(image.right() + kShift / 2, middle - 12);
  drawPlus(centre - 12, image.bottom() + kShift / 2);
  drawLegend(texts.printed, page.bottom() + kGap, colours.back, true);
  drawLegend(texts.wanted, page.bottom() + kGap + previewLineHeight() + 4, colours.front, false);
}

@end
