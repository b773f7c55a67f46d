#import "PageImage.h"

#include <utility>

namespace imageposition {

namespace {

/// Borrows the pixels, which must outlive the image.
NSImage *newImageOf(const PageInk &page) {
  // A bitmap that is only drawn does not write to its planes.
  unsigned char *planes[] = {
      const_cast<unsigned char *>(reinterpret_cast<const unsigned char *>(page.pixels.data()))};
  NSBitmapImageRep *const bitmap =
      [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:planes
                                              pixelsWide:page.width
                                              pixelsHigh:page.height
                                           bitsPerSample:8
                                         samplesPerPixel:4
                                                hasAlpha:YES
                                                isPlanar:NO
                                          colorSpaceName:NSDeviceRGBColorSpace
                                             bytesPerRow:4 * NSInteger{page.width}
                                            bitsPerPixel:32];
  NSImage *const image = [[NSImage alloc] initWithSize:NSMakeSize(page.width, page.height)];
  [image addRepresentation:bitmap];
  [bitmap release];
  return image;
}

/// About the middle of `place`.
void flip(const PixelRectangle &place, bool leftRight, bool topBottom) {
  const CGFloat x = place.x + place.width / 2, y = place.y + place.height / 2;
  NSAffineTransform *const transform = [NSAffineTransform transform];
  [transform translateXBy:x yBy:y];
  [transform scaleXBy:leftRight ? -1 : 1 yBy:topBottom ? -1 : 1];
  [transform translateXBy:-x yBy:-y];
  [transform concat];
}

} // namespace

PageImage::PageImage(std::shared_ptr<const PageInk> page, bool flipsLeftRight, bool flipsTopBottom)
    : page_(std::move(page)), flipsLeftRight_(flipsLeftRight), flipsTopBottom_(flipsTopBottom),
      image_(newImageOf(*page_)) {}

PageImage::~PageImage() { [image_ release]; }

void PageImage::draw(const PixelRectangle &place, double opacity) const {
  [NSGraphicsContext saveGraphicsState];
  if (flipsLeftRight_ || flipsTopBottom_)
    flip(place, flipsLeftRight_, flipsTopBottom_);
  [image_ drawInRect:NSMakeRect(place.x, place.y, place.width, place.height)
            fromRect:NSZeroRect
           operation:NSCompositeSourceOver
            fraction:opacity
      respectFlipped:YES
               hints:nil];
  [NSGraphicsContext restoreGraphicsState];
}

bool SheetPainter::take(const std::optional<SheetSideImages> &sides) {
  if (sides.has_value() == sides_.has_value() &&
      (!sides ||
       (sides->front == sides_->front && sides->back == sides_->back &&
        sides->isFrontThere == sides_->isFrontThere && sides->isBackThere == sides_->isBackThere)))
    return false;
  sides_ = sides;
  pages_.reset();
  return true;
}

const SheetPages *SheetPainter::pages(const Preview &preview) {
  if (!sides_)
    return nullptr;
  const bool isFlipped = turnsAboutVerticalAxis(preview.page, preview.turning);
  if (pages_ && isFlipped == isFlippedLeftRight_)
    return &*pages_;
  isFlippedLeftRight_ = isFlipped;
  const auto image = [](const std::shared_ptr<const PageInk> &page, bool leftRight,
                        bool topBottom) {
    return page != nullptr ? std::make_shared<const PageImage>(page, leftRight, topBottom)
                           : nullptr;
  };
  pages_ = {image(sides_->front, false, false), image(sides_->back, false, false),
            image(sides_->front, isFlipped, !isFlipped), sides_->isFrontThere, sides_->isBackThere};
  return &*pages_;
}

} // namespace imageposition
