#import "PreviewDrawing.h"

#include "PictureTexts.hpp"
#include "ShiftTexts.hpp"

#include <algorithm>
#include <cmath>

namespace imageposition {
namespace {

/// A side of the sheet, as drawn on one of the pages.
struct DrawnSide {
  const SidePreview *side;
  Rgb colour;
  bool isBack;
  bool flipsLeftRight = false;
  bool flipsTopBottom = false;
  const PageImage *image = nullptr; ///< Null to draw a sample page, or nothing if `isBlank`.
  bool isBlank = false;
  double opacity = 1; ///< Of the image.
};

/// How much a side shines through the sheet.
constexpr double kShineThrough = 0.45;

PixelRectangle rounded(const PixelRectangle &rectangle) {
  const double left = std::round(rectangle.x);
  const double top = std::round(rectangle.y);
  return {left, top, std::round(rectangle.right()) - left, std::round(rectangle.bottom()) - top};
}

void fill(const PixelRectangle &rectangle, Rgb colour, double opacity) {
  if (rectangle.width <= 0 || rectangle.height <= 0)
    return;
  setColour(colour, opacity);
  [NSBezierPath fillRect:toRect(rectangle)];
}

/// A part of a page's text or picture, in fractions of the content.
struct Block {
  double left;
  double top;
  double right;
  double bottom;
};

/// A heading, two paragraphs with a short last line, and a picture: mirroring changes all of them.
constexpr Block kBlocks[] = {
    {0.08, 0.06, 0.55, 0.10}, {0.08, 0.17, 0.92, 0.19}, {0.08, 0.23, 0.92, 0.25},
    {0.08, 0.29, 0.92, 0.31}, {0.08, 0.35, 0.48, 0.37}, {0.08, 0.45, 0.92, 0.47},
    {0.08, 0.51, 0.92, 0.53}, {0.08, 0.57, 0.66, 0.59}, {0.08, 0.66, 0.42, 0.92},
};

void drawBlocks(const DrawnSide &drawn, const PixelRectangle &content) {
  for (Block block : kBlocks) {
    if (drawn.flipsLeftRight)
      block = {1 - block.right, block.top, 1 - block.left, block.bottom};
    if (drawn.flipsTopBottom)
      block = {block.left, 1 - block.bottom, block.right, 1 - block.top};
    PixelRectangle place = rounded(
        {content.x + block.left * content.width, content.y + block.top * content.height,
         (block.right - block.left) * content.width, (block.bottom - block.top) * content.height});
    place.height = std::max(place.height, 1.0);
    fill(place, drawn.colour, 0.45);
  }
}

/// To scale, but at least one pixel wide, beside the imageable area.
PixelRectangle visibleLoss(const PixelRectangle &exact, const PixelRectangle &imageable) {
  PixelRectangle loss = rounded(exact);
  if (loss.width < 1)
    loss = {loss.x < imageable.x + 1 ? imageable.x - 1 : imageable.right(), loss.y, 1, loss.height};
  if (loss.height < 1)
    loss = {loss.x, loss.y < imageable.y + 1 ? imageable.y - 1 : imageable.bottom(), loss.width, 1};
  return loss;
}

void drawLoss(const PixelRectangle &loss, Rgb colour) {
  constexpr double kNarrow = 3; // a pattern would not be recognized
  if (std::min(loss.width, loss.height) < kNarrow)
    fill(loss, colour, 1);
  else
    hatch(loss, colour);
}

void drawImage(const PreviewLayout &layout, PreviewLayout::Place place, const PageImage &image,
               const Offset &offset, double opacity) {
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(toRect(layout.pages[place].page));
  image.draw(layout.imageOnPage(place, image.width(), image.height(), offset), opacity);
  [NSGraphicsContext restoreGraphicsState];
}

void drawSamplePage(const DrawnSide &drawn, const PixelRectangle &imageable,
                    const PixelRectangle &content) {
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(toRect(imageable));
  fill(content, drawn.colour, 0.10);
  drawBlocks(drawn, content);
  [NSGraphicsContext restoreGraphicsState];
}

void drawSide(const PreviewLayout &layout, PreviewLayout::Place place, const DrawnSide &drawn,
              const PreviewColours &colours) {
  const PixelRectangle imageable = rounded(layout.onPage(place, drawn.side->imageable));
  const PixelRectangle content = rounded(layout.onPage(place, drawn.side->content));
  if (drawn.image != nullptr)
    drawImage(layout, place, *drawn.image, drawn.side->offset, drawn.opacity);
  else if (!drawn.isBlank)
    drawSamplePage(drawn, imageable, content);
  for (const PageRectangle &part : drawn.side->lost)
    drawLoss(visibleLoss(layout.onPage(place, part), imageable), colours.lost);
  strokeRectangle(imageable, colours.printable, true);
  strokeRectangle(content, drawn.colour, drawn.isBack);
}

/// The edge about which the sheet is turned, as seen from the back.
void drawTurningEdge(const PixelRectangle &page, bool isVertical, Rgb colour) {
  constexpr double kThickness = 3;
  const PixelRectangle edge =
      isVertical ? PixelRectangle{page.right() - 2, page.y, kThickness, page.height}
                 : PixelRectangle{page.x, page.bottom() - 2, page.width, kThickness};
  fill(edge, colour, 1);
}

void drawPaper(const PixelRectangle &page, const SheetPages *pages) {
  fill(page, pages != nullptr ? paperColours().paper : previewColours().paper, 1);
  strokeRectangle(page, previewColours().outline, false);
}

void drawTexts(const PagePlace &place, const std::string &title, const std::string &caption,
               Rgb colour) {
  drawLine(title, place.title, previewBoldFont(), colour, Alignment::Centre);
  drawLine(caption, place.caption, previewFont(), previewColours().text, Alignment::Centre);
}

std::string shiftCaption(const Offset &offset) {
  const std::string arrows = arrowText(offset);
  return arrows.empty() ? messages::kPreviewNotShifted.str() : arrows;
}

/// Shows content that is shifted beyond the page, as far as the next page allows.
void clipAround(const PixelRectangle &page) {
  NSRectClip(NSInsetRect(toRect(page), -previewLineHeight() / 2, -previewLineHeight() / 4));
}

DrawnSide withImage(DrawnSide drawn, const SheetPages *pages,
                    const std::shared_ptr<const PageImage> SheetPages::*side,
                    bool SheetPages::*isThere) {
  if (pages != nullptr) {
    drawn.image = (pages->*side).get();
    drawn.isBlank = drawn.image == nullptr && pages->*isThere;
  }
  return drawn;
}

/// With the back towards the reader.
void drawBothSides(const Preview &preview, const PreviewLayout &layout, const SheetPages *pages) {
  const PreviewColours &colours = pageColours(pages);
  const PixelRectangle &page = layout.pages[PreviewLayout::AgainstLight].page;
  const bool vertical = turnsAboutVerticalAxis(preview.page, preview.turning);
  drawPaper(page, pages);
  [NSGraphicsContext saveGraphicsState];
  clipAround(page);
  DrawnSide front =
      withImage({&*preview.frontSeenThrough, colours.front, false, vertical, !vertical}, pages,
                &SheetPages::frontSeenThrough, &SheetPages::isFrontThere);
  front.opacity = kShineThrough;
  drawSide(layout, PreviewLayout::AgainstLight, front, colours);
  if (pages != nullptr && pages->back != nullptr)
    drawImage(layout, PreviewLayout::AgainstLight, *pages->back, preview.back->offset, 1);
  strokeRectangle(rounded(layout.onPage(PreviewLayout::AgainstLight, preview.back->content)),
                  colours.back, true);
  [NSGraphicsContext restoreGraphicsState];
  drawTurningEdge(page, vertical, colours.text);
}

void drawOneSide(const PreviewLayout &layout, PreviewLayout::Place at, const DrawnSide &drawn,
                 const SheetPages *pages) {
  const PixelRectangle &page = layout.pages[at].page;
  drawPaper(page, pages);
  [NSGraphicsContext saveGraphicsState];
  clipAround(page);
  drawSide(layout, at, drawn, pageColours(pages));
  [NSGraphicsContext restoreGraphicsState];
}

DrawnSide frontOf(const Preview &preview, const SheetPages *pages) {
  return withImage({&preview.front, pageColours(pages).front, false}, pages, &SheetPages::front,
                   &SheetPages::isFrontThere);
}

DrawnSide backOf(const Preview &preview, const SheetPages *pages) {
  return withImage({&*preview.back, pageColours(pages).back, true}, pages, &SheetPages::back,
                   &SheetPages::isBackThere);
}

void drawTitledSide(const PreviewLayout &layout, PreviewLayout::Place at, const DrawnSide &drawn,
                    const std::string &title, const SheetPages *pages) {
  drawOneSide(layout, at, drawn, pages);
  drawTexts(layout.pages[at], title, shiftCaption(drawn.side->offset),
            drawn.isBack ? previewColours().back : previewColours().front);
}

/// Draws a sample of a pattern and its meaning. Returns where the next entry begins.
double drawLegendEntry(double left, const PixelRectangle &line, const std::string &meaning,
                       bool isLoss) {
  const double height = std::round(line.height * 0.6);
  const PixelRectangle sample = {std::round(left), std::round(line.y + (line.height - height) / 2),
                                 std::round(line.height), height};
  if (isLoss)
    hatch(sample, previewColours().lost);
  else
    strokeRectangle(sample, previewColours().printable, true);
  const PixelRectangle text = {sample.right() + 4, line.y, 0, line.height};
  drawLine(meaning, text, previewFont(), previewColours().secondaryText, Alignment::Left);
  return text.x + widthOf(meaning, previewFont()) + line.height;
}

bool losesSomething(const Preview &preview) {
  return !preview.front.lost.empty() || (preview.back && !preview.back->lost.empty());
}

} // namespace

void drawPreviewPages(const Preview &preview, const PreviewLayout &layout,
                      const SheetPages *pages) {
  const PreviewColours &colours = previewColours();
  drawTitledSide(layout, PreviewLayout::Front, frontOf(preview, pages), messages::kPreviewFront,
                 pages);
  if (preview.back) {
    drawTitledSide(layout, PreviewLayout::Back, backOf(preview, pages), messages::kPreviewBack,
                   pages);
    drawBothSides(preview, layout, pages);
    drawTexts(layout.pages[PreviewLayout::AgainstLight], messages::kPreviewAgainstLight,
              preview.turning == Turning::LongEdge ? messages::kPreviewLongEdge
                                                   : messages::kPreviewShortEdge,
              colours.text);
  }
  const double next =
      drawLegendEntry(layout.legend.x, layout.legend, messages::kPreviewPrintable, false);
  if (losesSomething(preview))
    drawLegendEntry(next, layout.legend, messages::kPreviewLost, true);
  drawLine(messages::kPreviewToScale, layout.legend, previewFont(), colours.secondaryText,
           Alignment::Right);
  if (preview.hasLandscapePages)
    drawLine(messages::kPreviewUprightSheet, layout.note, previewFont(), colours.text,
             Alignment::Left);
}

const PreviewColours &pageColours(const SheetPages *pages) {
  return pages != nullptr ? kLightPreview : previewColours();
}

void drawPreviewPage(const Preview &preview, const PreviewLayout &layout,
                     PreviewLayout::Place place, const SheetPages *pages) {
  if (place == PreviewLayout::Front)
    drawOneSide(layout, place, frontOf(preview, pages), pages);
  else if (preview.back && place == PreviewLayout::Back)
    drawOneSide(layout, place, backOf(preview, pages), pages);
  else if (preview.back)
    drawBothSides(preview, layout, pages);
}

} // namespace imageposition
