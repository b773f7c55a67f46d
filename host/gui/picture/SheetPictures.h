/// The visible sheet of the document for the views that draw it.
#ifndef IMAGEPOSITION_GUI_PICTURE_SHEETPICTURES_H
#define IMAGEPOSITION_GUI_PICTURE_SHEETPICTURES_H

#import "PageImage.h"
#include "SheetImages.hpp"

#include <optional>

namespace imageposition {

/// None while no side of the visible sheet is there.
inline std::optional<SheetSideImages> sheetSides(const SheetImages &images) {
  SheetSideImages sides{images.front(), images.back()};
  sides.isFrontThere = images.hasFront();
  sides.isBackThere = images.hasBack();
  const bool isThere = images.state() == SheetImages::State::Shown || sides.front || sides.back;
  return isThere ? std::optional(sides) : std::nullopt;
}

} // namespace imageposition

#endif
