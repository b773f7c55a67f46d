/// What the picture beside the panel is drawn with. Into the focused view, which is flipped.
#ifndef IMAGEPOSITION_HOST_PREVIEWDRAWING_H
#define IMAGEPOSITION_HOST_PREVIEWDRAWING_H

#import <AppKit/AppKit.h>

#include "PreviewColours.hpp"
#include "PreviewLayout.hpp"

#include <string>

namespace imageposition {

/// The colours that go with the window's.
const PreviewColours &previewColours();

void setColour(Rgb colour, double opacity = 1);
NSRect toRect(const PixelRectangle &rectangle);

/// The font of all texts in the picture, and its bold form.
NSFont *previewFont();
NSFont *previewBoldFont();
/// Of a line in that font, in whole pixels.
double previewLineHeight();

enum class Alignment { Left, Centre, Right };

/// In one line, in the middle of the place's height; it may reach beyond the place.
void drawLine(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour,
              Alignment alignment);
/// In as many lines as it takes, from the top.
void drawParagraph(const std::string &text, const PixelRectangle &place, NSFont *font, Rgb colour);
double widthOf(const std::string &text, NSFont *font);

/// One pixel wide, along the inside of the rectangle.
void strokeRectangle(const PixelRectangle &rectangle, Rgb colour, bool dashed);

/// The pattern of what cannot be printed.
void hatch(const PixelRectangle &rectangle, Rgb colour);

/// "→ 2.5  ↓ 1 mm"; empty for no shift.
std::string arrowText(const Offset &offset);

/// The row of pages with titles and captions, and the legend below it.
void drawPreviewPages(const Preview &preview, const PreviewLayout &layout);

/// The enlarged centre with its title and what it says in words.
void drawPreviewMarks(const Preview &preview, const PreviewLayout &layout);

} // namespace imageposition

#endif
