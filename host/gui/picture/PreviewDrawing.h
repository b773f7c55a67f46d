/// Draws the picture beside the panel into the focused view, which is flipped.
#ifndef IMAGEPOSITION_GUI_PICTURE_PREVIEWDRAWING_H
#define IMAGEPOSITION_GUI_PICTURE_PREVIEWDRAWING_H

#import <AppKit/AppKit.h>

#import "PageImage.h"
#include "PreviewColours.hpp"
#include "PreviewLayout.hpp"

#include <string>

namespace imageposition {

/// The colours that suit the window's background.
const PreviewColours &previewColours();
const PaperColours &paperColours();
/// The colours of lines on a page. Real pages look like paper in a dark window, too; a sample page,
/// which `pages` lacks, has the window's colours.
const PreviewColours &pageColours(const SheetPages *pages);

void setColour(Rgb colour, double opacity = 1);
NSRect toRect(const PixelRectangle &rectangle);

/// The font of all text in the picture, and its bold form.
NSFont *previewFont();
NSFont *previewBoldFont();
/// The height of a line in that font, in whole pixels.
double previewLineHeight();

enum class Alignment { Left, Centre, Right };

/// Draws one line, vertically centred in `place`; it may extend beyond it.
void drawLine(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour,
              Alignment alignment);
/// Draws as many lines as needed, from the top.
void drawParagraph(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour);
double widthOf(const std::string &text, NSFont *font);

/// Draws a line one pixel wide along the inside of the rectangle.
void strokeRectangle(const PixelRectangle &rectangle, Rgb colour, bool dashed);

/// Fills the rectangle with the pattern for areas that cannot be printed.
void hatch(const PixelRectangle &rectangle, Rgb colour);

/// "→ 2.5  ↓ 1 mm"; empty for no shift.
std::string arrowText(const Offset &offset);

/// Draws the row of pages with titles and captions, and the legend below it. Without `pages`, draws
/// a sample page in their place.
void drawPreviewPages(const Preview &preview, const PreviewLayout &layout, const SheetPages *pages);

/// Draws one of the pages alone, as `layOutOnePage` has placed it.
void drawPreviewPage(const Preview &preview, const PreviewLayout &layout,
                     PreviewLayout::Place place, const SheetPages *pages);

/// Draws the enlarged centre with its title and description.
void drawPreviewMarks(const Preview &preview, const PreviewLayout &layout);

} // namespace imageposition

#endif
