#import "SheetView.h"

#import "Click.h"
#import "KeyWindow.h"
#import "PreviewDrawing.h"
#import "SheetPictures.h"
#import "Theme.h"
#include "Units.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

using namespace imageposition;

struct imageposition::SheetViewState {
  const SheetImages &images;
  const Preview preview;
  id<SheetTurning> target; // not owned
  PreviewLayout::Place place = PreviewLayout::Front;
  SheetPainter painter;
  NSPoint pressed = {};
};

namespace {

constexpr double kMargin = 24; // for the numbers of the scales
constexpr int kMillimetresPerNumber[] = {20, 50, 100};
constexpr double kLeastSquare = 4;            // pixels; narrower lines would hide the page
constexpr double kFine = 0.10, kCoarse = 0.2; // opacities

double crisp(double coordinate) { return std::floor(coordinate) + 0.5; }

void strokeLine(double x1, double y1, double x2, double y2) {
  [NSBezierPath strokeLineFromPoint:NSMakePoint(x1, y1) toPoint:NSMakePoint(x2, y2)];
}

/// From the sheet's upper left corner.
void drawGrid(const PixelRectangle &page, double pixelsPerMillimetre, Rgb colour) {
  const int every = pixelsPerMillimetre >= kLeastSquare ? 1 : 10;
  [NSBezierPath setDefaultLineWidth:1];
  const auto reach = static_cast<int>(std::max(page.width, page.height) / pixelsPerMillimetre);
  for (int millimetre = every; millimetre <= reach; millimetre += every) {
    setColour(colour, millimetre % 10 == 0 ? kCoarse : kFine);
    const double x = crisp(page.x + millimetre * pixelsPerMillimetre);
    const double y = crisp(page.y + millimetre * pixelsPerMillimetre);
    if (x < page.right())
      strokeLine(x, page.y, x, page.bottom());
    if (y < page.bottom())
      strokeLine(page.x, y, page.right(), y);
  }
}

/// Keeps the numbers apart.
int millimetresPerNumber(double pixelsPerMillimetre) {
  const double least = widthOf("300", previewFont()) + 6;
  for (const int millimetres : kMillimetresPerNumber)
    if (millimetres * pixelsPerMillimetre >= least)
      return millimetres;
  return *std::rbegin(kMillimetresPerNumber);
}

/// Along the upper and the left edge.
void drawNumbers(const PixelRectangle &page, double pixelsPerMillimetre) {
  const Rgb colour = previewColours().secondaryText;
  const double line = previewLineHeight();
  const int every = millimetresPerNumber(pixelsPerMillimetre);
  for (int millimetre = 0; millimetre * pixelsPerMillimetre <= std::max(page.width, page.height);
       millimetre += every) {
    const double at = millimetre * pixelsPerMillimetre;
    const std::string text = std::to_string(millimetre);
    if (at <= page.width)
      drawLine(text, {page.x + at - kMargin, page.y - line - 1, 2 * kMargin, line}, previewFont(),
               colour, Alignment::Centre);
    if (at <= page.height && millimetre > 0)
      drawLine(text, {page.x - kMargin - 4, page.y + at - line / 2, kMargin, line}, previewFont(),
               colour, Alignment::Right);
  }
}

/// Around the sheet.
void drawFocus(const PixelRectangle &page) {
  NSBezierPath *const path = [NSBezierPath bezierPathWithRect:NSInsetRect(toRect(page), -1, -1)];
  [path setLineWidth:2];
  [accentColor() set];
  [path stroke];
}

} // namespace

@interface SheetView ()
- (PreviewLayout)layout;
@end

@implementation SheetView

- (id)initWithFrame:(NSRect)frame
             images:(const SheetImages &)images
            preview:(const Preview &)preview
             target:(id<SheetTurning>)target {
  if ((self = [super initWithFrame:frame]) == nil)
    return nil;
  state = new SheetViewState{images, preview, target, PreviewLayout::Front, {}, {}};
  [self refresh];
  return self;
}

- (void)dealloc {
  delete state;
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (void)showPlace:(PreviewLayout::Place)place {
  state->place = place;
  [self setNeedsDisplay:YES];
}

- (void)refresh {
  state->painter.take(sheetSides(state->images));
  [self setNeedsDisplay:YES];
}

- (PreviewLayout)layout {
  const NSSize size = [self bounds].size;
  return layOutOnePage(state->preview, state->place,
                       {2 * kMargin, kMargin, size.width - 3 * kMargin, size.height - kMargin - 4});
}

- (double)pixelsPerPoint {
  return [self layout].pixelsPerPoint;
}

- (void)mouseDown:(NSEvent *)event {
  state->pressed = [self convertPoint:[event locationInWindow] fromView:nil];
}

- (void)mouseUp:(NSEvent *)event {
  const NSPoint at = [self convertPoint:[event locationInWindow] fromView:nil];
  if (isClick(state->pressed, at) && [self layout].pages[state->place].page.contains({at.x, at.y}))
    [(id<KeyWindowDelegate>)[[self window] delegate] dismiss];
}

- (void)scrollWheel:(NSEvent *)event {
  const int sheet = state->images.sheet() + sheetsOfWheel(event);
  if (sheet != state->images.sheet())
    [state->target turnTo:sheet];
}

- (void)keyDown:(NSEvent *)event {
  const int sheet = sheetAfterKey(event, state->images);
  if (sheet != state->images.sheet())
    [state->target turnTo:sheet];
  else
    [super keyDown:event];
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  const PreviewLayout layout = [self layout];
  const PixelRectangle &page = layout.pages[state->place].page;
  if (page.width < 1 || page.height < 1)
    return;
  const SheetPages *const pages = state->painter.pages(state->preview);
  drawPreviewPage(state->preview, layout, state->place, pages);
  const double pixelsPerMillimetre = layout.pixelsPerPoint * toPoints(TenthMillimetre{10}).count;
  drawGrid(page, pixelsPerMillimetre, pageColours(pages).front);
  drawNumbers(page, pixelsPerMillimetre);
  if ([[self window] firstResponder] == self)
    drawFocus(page);
}

@end
