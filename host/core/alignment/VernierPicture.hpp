/// The scales of an alignment sheet as figures: for the sheets, and for the window in which the
/// reader enters what they show.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_VERNIERPICTURE_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_VERNIERPICTURE_HPP

#include "SheetLayout.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Lengths are in millimetres.
struct FigureLine {
  SheetPoint from;
  SheetPoint to;
  double width = 0;
};

/// A string that is centred about a point.
struct FigureLabel {
  SheetPoint centre;
  std::string text;
  double size = 0; ///< Of the type, in points of 1/72 inch.
};

/// Filled. The middle of its base is at `base`.
struct FigureTriangle {
  SheetPoint tip;
  SheetPoint base;
  double halfBase = 0;
};

struct Figure {
  std::vector<FigureLine> lines;
  std::vector<FigureLabel> labels;
  std::optional<FigureTriangle> triangle;
};

/// As the reader of the back sees them against the light, upright.
Figure frontComb(const Vernier &vernier);
Figure backComb(const Vernier &vernier);
/// The name beside a back's comb, as `vernierName`.
FigureLabel nameBeside(const Vernier &vernier, const std::string &name);
/// "A →"
std::string vernierName(VernierIndex index);

/// A ruler that a crease crosses, with an arrow in its direction.
Figure creaseRuler(const Vernier &ruler);

/// The grey of what shines through the paper; 0 is black, 1 is white.
constexpr double kShownThrough = 0.55;

/// What a reader compares with a scale on the paper. It is drawn about the origin.
struct ScalePicture {
  Figure through; ///< Shines through, or is folded: fainter than the rest.
  Figure near;
  std::vector<SheetArea> marks; ///< Where a line of one comb continues a line of the other.
};

bool operator==(const ScalePicture &a, const ScalePicture &b) noexcept;

/// A vernier of a back that is displaced.
ScalePicture vernierPicture(VernierIndex index, TenthMillimetre displacement);
/// A ruler that a crease crosses at `place`.
ScalePicture creasePicture(Direction direction, TenthMillimetre place);

/// Of the example on the sheets, which `sheetExample` explains.
constexpr TenthMillimetre kExampleDisplacement = {17};

/// Half the side of a square about the origin that has room for every picture.
constexpr double kPictureReach = 17.5;

} // namespace imageposition

#endif
