#import "PageImage.h"

#include <algorithm>
#include <utility>

namespace imageposition {

namespace {

/// On white paper, the least of the three colours is what the ink lets through of all of them.
void writeInk(std::uint32_t pixel, unsigned char *ink) {
  const auto red = static_cast<unsigned char>(pixel >> 16);
  const auto green = static_cast<unsigned char>(pixel >> 8);
  const auto blue = static_cast<unsigned char>(pixel);
  const unsigned char paper = std::min({red, green, blue});
  ink[0] = static_cast<unsigned char>(red - paper);
  ink[1] = static_cast<unsigned char>(green - paper);
  ink[2] = static_cast<unsigned char>(blue - paper);
  ink[3] = static_cast<unsigned char>(255 - paper);
}

} // namespace

PageImage::PageImage(std::shared_ptr<const RenderedPage> page, bool flipsLeftRight,
                     bool flipsTopBottom)
    : page_(std::move(page)), flipsLeftRight_(flipsLeftRight), flipsTopBottom_(flipsTopBottom) {}

PageImage::~PageImage() { [image_ release]; }

NSImage *PageImage::image() const {
  if (image_ != nil)
    return image_;
  const RenderedPage &page = *page_;
  image_ = [[NSImage alloc] initWithSize:NSMakeSize(page.width, page.height)];
  NSBitmapImageRep *const bitmap =
      [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                              pixelsWide:page.width
                                              pixelsHigh:page.height
                                           bitsPerSample:8
                                         samplesPerPixel:4
                                                hasAlpha:YES
                                                isPlanar:NO
                                          colorSpaceName:NSDeviceRGBColorSpace
                                             bytesPerRow:4 * NSInteger{page.width}
                                            bitsPerPixel:32];
  unsigned char *const data = [bitmap bitmapData];
  for (int y = 0; y < page.height; y++)
    for (int x = 0; x < page.width; x++) {
      const int fromX = flipsLeftRight_ ? page.width - 1 - x : x;
      const int fromY = flipsTopBottom_ ? page.height - 1 - y : y;
      const auto from = static_cast<std::size_t>(fromY) * static_cast<std::size_t>(page.width) +
                        static_cast<std::size_t>(fromX);
      const auto to = static_cast<std::size_t>(y) * static_cast<std::size_t>(page.width) +
                      static_cast<std::size_t>(x);
      writeInk(page.pixels[from], data + 4 * to);
    }
  [image_ addRepresentation:bitmap];
  [bitmap release];
  return image_;
}

void PageImage::draw(const PixelRectangle &place, double opacity) const {
  [image() drawInRect:NSMakeRect(place.x, place.y, place.width, place.height)
             fromRect:NSZeroRect
            operation:NSCompositeSourceOver
             fraction:opacity
       respectFlipped:YES
                hints:nil];
}

bool SheetPainter::take(const std::optional<SheetSideImages> &sides) {
  if (sides.has_value() == sides_.has_value() &&
      (!sides || (sides->front == sides_->front && sides->back == sides_->back)))
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
  const auto image = [](const std::shared_ptr<const RenderedPage> &page, bool leftRight,
                        bool topBottom) {
    return page != nullptr ? std::make_shared<const PageImage>(page, leftRight, topBottom)
                           : nullptr;
  };
  pages_ = {image(sides_->front, false, false), image(sides_->back, false, false),
            image(sides_->front, isFlipped, !isFlipped)};
  return &*pages_;
}

} // namespace imageposition
