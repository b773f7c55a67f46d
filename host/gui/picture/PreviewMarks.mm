#import "PreviewDrawing.h"

#include "PictureTexts.hpp"

#include <algorithm>
#include <cmath>

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

/// Labels both axes in millimetres, at every second square or less often.
void drawScale(const PreviewLayout &layout) {
  const PixelRectangle &grid = layout.grid;
  const Pixel centre = layout.gridCentre();
  const double line = previewLineHeight();
  const auto label = [&](int squares) {
    return numberText({std::abs(squares) * layout.squareLength.count});
  };
  if (layout.squarePixels <= 0)
    return;
  double widest = 0;
  for (int squares = 2; squares * layout.squarePixels < grid.width / 2 - line; squares += 2)
    widest = std::max(widest, widthOf(label(squares), previewFont()));
  const int every = layout.squaresPerNumber(widest);
  for (int squares = every; squares * layout.squarePixels < grid.width / 2 - line;
       squares += every) {
    for (const int signedSquares : {-squares, squares}) {
      const double at = signedSquares * layout.squarePixels;
      drawLine(label(squares), {centre.x + at, centre.y + 1, 0, line}, previewFont(),
               previewColours().secondaryText, Alignment::Centre);
      if (std::abs(at) + line / 2 < grid.height / 2)
        drawLine(label(squares), {centre.x - 3, centre.y + at - line / 2, 0, line}, previewFont(),
                 previewColours().secondaryText, Alignment::Right);
    }
  }
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

/// Labels the mark on the given side, or as near to it as the label fits in the grid.
void labelMark(const PreviewLayout &layout, const Mark &mark, bool toTheLeft, bool above) {
  constexpr double kDistance = 11;
  const PixelRectangle &grid = layout.grid;
  const Pixel at = layout.mark(mark.offset);
  const double line = previewLineHeight();
  const double width = widthOf(mark.name, previewBoldFont()) + 4;
  double left = toTheLeft ? at.x - kDistance - width : at.x + kDistance;
  double top = above ? at.y - 4 - line : at.y + 4;
  left = std::min(std::max(left, grid.x + 1), grid.right() - width - 1);
  top = std::min(std::max(top, grid.y + 1), grid.bottom() - line - 1);
  const PixelRectangle place = {std::round(left), std::round(top), width, line};
  setColour(previewColours().paper, 0.85);
  [NSBezierPath fillRect:toRect(place)];
  drawLine(mark.name, place, previewBoldFont(), mark.colour, Alignment::Centre);
}

void drawMarks(const Preview &preview, const PreviewLayout &layout) {
  const Mark front = {preview.front.offset, previewColours().front, messages::kPreviewFront, false};
  const Mark back = {preview.backSeenThrough->offset, previewColours().back, messages::kPreviewBack,
                     true};
  const bool frontIsLeft = front.offset.right.count <= back.offset.right.count;
  strokeShift(layout, front);
  strokeShift(layout, back);
  const bool frontIsAbove = front.offset.down.count <= back.offset.down.count;
  labelMark(layout, front, frontIsLeft, frontIsAbove);
  labelMark(layout, back, !frontIsLeft, !frontIsAbove);
  strokeMark(layout, front);
  strokeMark(layout, back);
}

} // namespace

void drawPreviewMarks(const Preview &preview, const PreviewLayout &layout) {
  const PreviewColours &colours = previewColours();
  if (!preview.availability.isAvailable() || !preview.backSeenThrough) {
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
  drawScale(layout);
  drawMarks(preview, layout);
  [NSGraphicsContext restoreGraphicsState];
  strokeRectangle(layout.grid, colours.outline, false);
  const std::string apart = arrowText(backAgainstFront(preview));
  drawLine(apart.empty() ? messages::kPreviewMarksCoincide : messages::previewMarksApart(apart),
           layout.relation, previewFont(), colours.text, Alignment::Left);
}

} // namespace imageposition
