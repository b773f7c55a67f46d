/// The colours of the picture beside the panel.
#ifndef IMAGEPOSITION_GUI_PICTURE_PREVIEWCOLOURS_HPP
#define IMAGEPOSITION_GUI_PICTURE_PREVIEWCOLOURS_HPP

#include "Rgb.hpp"

namespace imageposition {

/// Front, back and lost areas are blue, green and vermilion, which users with any kind of colour
/// blindness can tell apart. Line patterns and labels make the same distinction.
struct PreviewColours {
  Rgb text;
  Rgb secondaryText;
  Rgb paper;
  Rgb outline;   ///< The edge of the paper.
  Rgb printable; ///< The edge of the imageable area, and the grid's axes.
  Rgb gridLine;
  Rgb front;
  Rgb back;
  Rgb lost;
};

constexpr PreviewColours kLightPreview = {0x1C1C1E, 0x5A5A60, 0xFFFFFF, 0x787880, 0x6E6E76,
                                          0xE0E2E8, 0x002882, 0x008564, 0xCE4000};

constexpr PreviewColours kDarkPreview = {0xF0F0F2, 0xB0B0B8, 0x2C2D32, 0x82838C, 0x9697A0,
                                         0x42444C, 0x6EA0FF, 0x78F096, 0xFF8A42};

/// The colours of a scale on an alignment sheet, which looks like paper in a dark window, too.
struct PaperColours {
  Rgb paper;
  Rgb outline;
  Rgb ink;
  Rgb through; ///< What shines through.
  Rgb mark;    ///< Behind lines that continue each other; hardly stands out from the paper.
};

constexpr PaperColours kLightPaper = {0xFFFFFF, 0x787880, 0x000000, 0x8C8C8C, 0xDCE6FF};
constexpr PaperColours kDarkPaper = {0xDCDCE0, 0x9697A0, 0x000000, 0x78787C, 0xBACAF0};

} // namespace imageposition

#endif
