#import "PreviewDrawing.h"

#include "PictureTexts.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace imageposition {
namespace {

void strokeLine(Pixel from, Pixel to) {
  [NSBezierPath strokeLineFromPoint:NSMakePoint(from.x, from.y) toPoint:NSMakePoint(to.x, to.y)];
}

/// A line one pixel wide is crisp when it is centred on a pixel.
double crisp(double coordinate) { return std::floor(coordinate) + 0.5; }

void drawGridLines(const PreviewLayout &layout) {
  const PixelRectangle &grid = layout.grid;
  const Pixel centre = layout.gridCentre();
  const int reach = static_cast<int>(std::max(grid.width, grid.height)) / 2 / layout.squarePixels;
  [NSBezierPath setDefaultLineWidth:1];
  for (int i = -reach; i <= reach; i++) {
    setColour(previewColours().gridLine);
    const double x = crisp(centre.x + i * layout.squarePixels);
    const double y = crisp(centre.y + i * layout.squarePixels);
    if (x < grid.right())
      strokeLine({x, grid.y}, {x, grid.bottom()});
    if (y > grid.y && y < grid.bottom())
      strokeLine({grid.x, y}, {grid.right(), y});
  }
  setColour(previewColours().printable);
  strokeLine({crisp(centre.x), grid.y}, {crisp(centre.x), grid.bottom()});
  strokeLine({grid.x, crisp(centre.y)}, {grid.right(), crisp(centre.y)});
}

/// A number on an axis.
struct ScaleNumber {
  std::string text;
  PixelRectangle place;
};

/// Both axes in millimetres, at every second square or less often.
std::vector<ScaleNumber> scaleNumbers(const PreviewLayout &layout) {
  const PixelRectangle &grid = layout.grid;
  const Pixel centre = layout.gridCentre();
  const double line = previewLineHeight();
  const auto label = [&](int squares) {
    return numberText({std::abs(squares) * layout.squareLength.count});
  };
  std::vector<ScaleNumber> numbers;
  if (layout.squarePixels <= 0)
    return numbers;
  double widest = 0;
  for (int squares = 2; squares * layout.squarePixels < grid.width / 2 - line; squares += 2)
    widest = std::max(widest, widthOf(label(squares), previewFont()));
  const int every = layout.squaresPerNumber(widest);
  for (int squares = every; squares * layout.squarePixels < grid.width / 2 - line;
       squares += every) {
    const std::string text = label(squares);
    const double width = widthOf(text, previewFont());
    for (const int signedSquares : {-squares, squares}) {
      const double at = signedSquares * layout.squarePixels;
      numbers.push_back({text, {centre.x + at - width / 2, centre.y + 1, width, line}});
      if (std::abs(at) + line / 2 < grid.height / 2)
        numbers.push_back({text, {centre.x - 3 - width, centre.y + at - line / 2, width, line}});
    }
  }
  return numbers;
}

/// A cross in a circle for the front; a dashed cross in a diamond for the back.
struct Mark {
  Offset offset;
  Rgb colour;
  std::string name;
  bool isBack;
};

/// Draws a line to the mark from its unshifted position.
void strokeShift(const PreviewLayout &layout, const Mark &mark) {
  const Pixel centre = layout.gridCentre();
  const Pixel at = layout.mark(mark.offset);
  [NSBezierPath setDefaultLineWidth:1.5];
  setColour(mark.colour, 0.6);
  strokeLine({centre.x + 0.5, centre.y + 0.5}, {at.x + 0.5, at.y + 0.5});
}

void strokeMark(const PreviewLayout &layout, const Mark &mark) {
  constexpr double kRadius = 8;
  constexpr double kArm = 14;
  const Pixel found = layout.mark(mark.offset);
  const Pixel at = {found.x + 0.5, found.y + 0.5};
  NSBezierPath *const path = [NSBezierPath bezierPath];
  if (mark.isBack) {
    [path moveToPoint:NSMakePoint(at.x, at.y - kRadius)];
    [path lineToPoint:NSMakePoint(at.x + kRadius, at.y)];
    [path lineToPoint:NSMakePoint(at.x, at.y + kRadius)];
    [path lineToPoint:NSMakePoint(at.x - kRadius, at.y)];
    [path closePath];
  } else {
    [path appendBezierPathWithOvalInRect:NSMakeRect(at.x - kRadius, at.y - kRadius, 2 * kRadius,
                                                    2 * kRadius)];
  }
  [path setLineWidth:2];
  setColour(mark.colour);
  [path stroke];
  NSBezierPath *const cross = [NSBezierPath bezierPath];
  [cross moveToPoint:NSMakePoint(at.x - kArm, at.y)];
  [cross lineToPoint:NSMakePoint(at.x + kArm, at.y)];
  [cross moveToPoint:NSMakePoint(at.x, at.y - kArm)];
  [cross lineToPoint:NSMakePoint(at.x, at.y + kArm)];
  if (mark.isBack) {
    const CGFloat pattern[] = {3, 3};
    [cross setLineDash:pattern count:2 phase:0];
  }
  [cross setLineWidth:2];
  [cross stroke];
}

/// Labels the mark where nothing in `taken` is covered, if possible. Adds the label's place to it.
void labelMark(const PreviewLayout &layout, const Mark &mark, bool toTheLeft, bool above,
               std::vector<PixelRectangle> &taken) {
  const double width = widthOf(mark.name, previewBoldFont()) + 4;
  const PixelRectangle place = layout.labelPlace(
      layout.mark(mark.offset), {0, 0, width, previewLineHeight()}, toTheLeft, above, taken);
  setColour(previewColours().paper, 0.85);
  [NSBezierPath fillRect:toRect(place)];
  drawLine(mark.name, place, previewBoldFont(), mark.colour, Alignment::Centre);
  taken.push_back(place);
}

void drawMarks(const Preview &preview, const PreviewLayout &layout,
               std::vector<PixelRectangle> taken) {
  const Mark front = {preview.frontSeenThrough->offset, previewColours().front,
                      messages::kPreviewFront, false};
  const Mark back = {preview.back->offset, previewColours().back, messages::kPreviewBack, true};
  const bool frontIsLeft = front.offset.right.count <= back.offset.right.count;
  strokeShift(layout, front);
  strokeShift(layout, back);
  const bool frontIsAbove = front.offset.down.count <= back.offset.down.count;
  labelMark(layout, front, frontIsLeft, frontIsAbove, taken);
  labelMark(layout, back, !frontIsLeft, !frontIsAbove, taken);
  strokeMark(layout, front);
  strokeMark(layout, back);
}

/// What the settings do to the back.
std::string movement(const Preview &preview) {
  if (const std::string apart = arrowText(backAgainstFront(preview)); !apart.empty())
    return messages::previewMoves(apart);
  return preview.back->offset == Offset{} ? messages::kPreviewNothingMoves
                                          : messages::kPreviewMovesTogether;
}

} // namespace

void drawPreviewMarks(const Preview &preview, const PreviewLayout &layout) {
  const PreviewColours &colours = previewColours();
  if (!preview.availability.isAvailable() || !preview.frontSeenThrough) {
    drawParagraph(reasonText(preview.availability), layout.grid, previewBoldFont(), colours.text);
    return;
  }
  if (layout.squarePixels == 0)
    return;
  drawLine(messages::kPreviewEnlarged, layout.enlargedTitle, previewBoldFont(), colours.text,
           Alignment::Left);
  drawLine(messages::previewSquare(lengthText(layout.squareLength)), layout.enlargedTitle,
           previewFont(), colours.text, Alignment::Right);
  setColour(colours.paper);
  NSRectFill(toRect(layout.grid));
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(toRect(layout.grid));
  drawGridLines(layout);
  std::vector<PixelRectangle> taken;
  for (const ScaleNumber &number : scaleNumbers(layout)) {
    drawLine(number.text, number.place, previewFont(), previewColours().secondaryText,
             Alignment::Left);
    taken.push_back(number.place);
  }
  drawMarks(preview, layout, std::move(taken));
  [NSGraphicsContext restoreGraphicsState];
  strokeRectangle(layout.grid, colours.outline, false);
  drawLine(movement(preview), layout.relation, previewFont(), colours.text, Alignment::Left);
}

} // namespace imageposition
