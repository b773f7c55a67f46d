/// A page of the document as the picture draws it.
#ifndef IMAGEPOSITION_GUI_PICTURE_PAGEIMAGE_H
#define IMAGEPOSITION_GUI_PICTURE_PAGEIMAGE_H

#import <AppKit/AppKit.h>

#include "PageInk.hpp"
#include "PreviewLayout.hpp"

#include <memory>
#include <optional>

namespace imageposition {

/// Draws the ink from the memory that it is kept in. Main thread.
class PageImage {
public:
  /// `page` has pixels. The flips show it as it shines through the sheet.
  PageImage(std::shared_ptr<const PageInk> page, bool flipsLeftRight, bool flipsTopBottom);
  ~PageImage();
  PageImage(const PageImage &) = delete;
  PageImage &operator=(const PageImage &) = delete;

  Point width() const noexcept { return page_->pageWidth; }
  Point height() const noexcept { return page_->pageHeight; }
  /// Draws in the focused view, which is flipped.
  void draw(const PixelRectangle &place, double opacity) const;

private:
  const std::shared_ptr<const PageInk> page_;
  const bool flipsLeftRight_;
  const bool flipsTopBottom_;
  NSImage *const image_; // owned
};

/// A sheet's sides. Null for a blank side, and for one that could not be rendered or is not there
/// yet.
struct SheetSideImages {
  std::shared_ptr<const PageInk> front;
  std::shared_ptr<const PageInk> back;
  bool isFrontThere = true, isBackThere = true;
};

/// The same, ready to be drawn.
struct SheetPages {
  std::shared_ptr<const PageImage> front;
  std::shared_ptr<const PageImage> back;
  std::shared_ptr<const PageImage> frontSeenThrough;
  bool isFrontThere = true, isBackThere = true; ///< Otherwise there will be an image.
};

/// Makes the images that can be drawn, and keeps them until the sides change.
class SheetPainter {
public:
  /// Returns whether anything has changed. No value means that there is no sheet.
  bool take(const std::optional<SheetSideImages> &sides);
  /// For a sheet that is turned like the preview's; null if there is none.
  const SheetPages *pages(const Preview &preview);

private:
  std::optional<SheetSideImages> sides_;
  std::optional<SheetPages> pages_;
  bool isFlippedLeftRight_ = false; // the front, seen through the sheet
};

} // namespace imageposition

#endif
