/// Sheets that are turned in tests, without images.
#ifndef IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_TURNEDSHEETS_H
#define IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_TURNEDSHEETS_H

#import "SheetBar.h"

#include <optional>
#include <string>

namespace imageposition::test {

struct TurnedSheets {
  SheetImages &images; // GNU's Objective-C cannot encode its members
};

/// Prints on both sides. Nothing is fetched while the images have no scale.
inline ShownDocument documentWith(std::optional<DocumentPages> pages) {
  const std::string identity = pages ? std::to_string(pages->pages) : "unknown";
  return {nullptr, "a.pdf", {}, std::move(pages), {}, identity};
}

} // namespace imageposition::test

/// Turns as it is told.
@interface SheetTurner : NSObject <SheetTurning> {
@public
  const imageposition::test::TurnedSheets *sheets; ///< Borrowed.
}
@end

#endif
