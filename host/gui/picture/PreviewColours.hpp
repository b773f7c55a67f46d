/// The colours of the picture beside the panel.
#ifndef IMAGEPOSITION_HOST_PREVIEWCOLOURS_HPP
#define IMAGEPOSITION_HOST_PREVIEWCOLOURS_HPP

namespace imageposition {

/// Red, green and blue from 0 to 255.
struct Colour {
  int red;
  int green;
  int blue;
};

/// Front, back and loss are a blue, a green and a vermilion that people with any kind of
/// colour blindness tell apart; line patterns and names repeat what they say.
struct PreviewColours {
  Colour text;
  Colour secondaryText;
  Colour paper;
  Colour outline;   ///< The edge of the paper.
  Colour printable; ///< The edge of the imageable area, and the grid's axes.
  Colour gridLine;
  Colour front;
  Colour back;
  Colour lost;
};

constexpr PreviewColours kLightPreview = {{28, 28, 30},    {90, 90, 96},    {255, 255, 255},
                                          {120, 120, 128}, {110, 110, 118}, {224, 226, 232},
                                          {0, 40, 130},    {0, 133, 100},   {206, 64, 0}};

constexpr PreviewColours kDarkPreview = {{240, 240, 242}, {176, 176, 184}, {44, 45, 50},
                                         {130, 131, 140}, {150, 151, 160}, {66, 68, 76},
                                         {110, 160, 255}, {120, 240, 150}, {255, 138, 66}};

} // namespace imageposition

#endif
