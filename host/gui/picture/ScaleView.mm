#import "ScaleView.h"

#import "PreviewDrawing.h"
#import "TextBridge.h"
#import "ThemeColors.h"
#include "Units.hpp"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace {

double pixels(double millimetres) { return millimetres * kScalePointsPerMillimetre; }

/// Draws in millimetres about a point in the middle of a pixel, so that whole lines are crisp.
class ScaleDrawing {
public:
  explicit ScaleDrawing(NSSize size)
      : centre_(NSMakePoint(std::floor(size.width / 2) + 0.5, std::floor(size.height / 2) + 0.5)) {}

  void draw(const Figure &figure, Rgb colour) const {
    setColour(colour);
    for (const FigureLine &line : figure.lines)
      stroke(line);
    if (figure.triangle)
      fill(*figure.triangle);
    for (const FigureLabel &label : figure.labels)
      write(label, colour);
  }

  void fillArea(const SheetArea &area, Rgb colour) const {
    setColour(colour);
    const NSPoint corner = at({area.left, area.top});
    [NSBezierPath
        fillRect:NSMakeRect(corner.x, corner.y, pixels(area.width()), pixels(area.height()))];
  }

private:
  NSPoint at(SheetPoint point) const {
    return NSMakePoint(centre_.x + pixels(point.x), centre_.y + pixels(point.y));
  }

  void stroke(const FigureLine &line) const {
    NSBezierPath *const path = [NSBezierPath bezierPath];
    [path setLineWidth:std::max(1.0, pixels(line.width))];
    [path moveToPoint:at(line.from)];
    [path lineToPoint:at(line.to)];
    [path stroke];
  }

  void fill(const FigureTriangle &triangle) const {
    const bool isUpright = triangle.tip.x == triangle.base.x;
    const double across = isUpright ? triangle.halfBase : 0;
    const double along = isUpright ? 0 : triangle.halfBase;
    NSBezierPath *const path = [NSBezierPath bezierPath];
    [path moveToPoint:at(triangle.tip)];
    [path lineToPoint:at({triangle.base.x - across, triangle.base.y - along})];
    [path lineToPoint:at({triangle.base.x + across, triangle.base.y + along})];
    [path closePath];
    [path fill];
  }

  /// Centred by the digits' height, as on the sheet.
  void write(const FigureLabel &label, Rgb colour) const {
    constexpr double kDigitHeight = 0.73; // of the size, in the usual sans-serif fonts
    // With a fractional size, GNUstep's typesetter on 32-bit processors may never end.
    NSFont *const font =
        [NSFont systemFontOfSize:std::round(pixels(label.size * kMillimetresPerPoint))];
    NSString *const text = toString(label.text);
    const NSPoint middle = at(label.centre);
    const double top = middle.y + kDigitHeight * [font pointSize] / 2 - [font ascender];
    [text drawAtPoint:NSMakePoint(middle.x - [font widthOfString:text] / 2, top)
        withAttributes:[NSDictionary
                           dictionaryWithObjectsAndKeys:font, NSFontAttributeName, toColor(colour),
                                                        NSForegroundColorAttributeName, nil]];
  }

  NSPoint centre_;
};

} // namespace

@implementation ScaleView

+ (NSSize)preferredSize {
  const double side = std::ceil(pixels(2 * kPictureReach));
  return NSMakeSize(side, side);
}

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil)
    picture = new ScalePicture;
  return self;
}

- (void)dealloc {
  delete picture;
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)showPicture:(const ScalePicture &)thePicture {
  if (*picture == thePicture)
    return;
  *picture = thePicture;
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  const PaperColours &colours = paperColours();
  const NSSize size = [self bounds].size;
  const PixelRectangle paper{0, 0, size.width, size.height};
  setColour(colours.paper);
  NSRectFill(toRect(paper));
  const ScaleDrawing drawing(size);
  for (const SheetArea &mark : picture->marks)
    drawing.fillArea(mark, colours.mark);
  drawing.draw(picture->through, colours.through);
  drawing.draw(picture->near, colours.ink);
  strokeRectangle(paper, colours.outline, false);
}

@end
