// The picture for any PPD: pages have a size that can be drawn, and everything is in its place.
#include "CheckText.hpp"
#include "PpdChecks.hpp"
#include "PreviewLayout.hpp"

#include <cmath>

namespace imageposition::fuzz {

namespace {

constexpr double kRounding = 1e-6; // for lengths that were added and subtracted

bool isOrdered(const PageRectangle &rectangle) {
  return std::isfinite(rectangle.left.count) && std::isfinite(rectangle.top.count) &&
         std::isfinite(rectangle.right.count) && std::isfinite(rectangle.bottom.count) &&
         rectangle.left.count <= rectangle.right.count &&
         rectangle.top.count <= rectangle.bottom.count;
}

void checkPage(const PageShape &page) {
  check(std::isfinite(page.width.count) && page.width.count > 0 &&
            std::isfinite(page.height.count) && page.height.count > 0,
        "a page has a size");
  check(isOrdered(page.imageable) && page.imageable.left.count >= 0 &&
            page.imageable.top.count >= 0 && page.imageable.right.count <= page.width.count &&
            page.imageable.bottom.count <= page.height.count,
        "the imageable area is on the page");
}

void checkSide(const SidePreview &side) {
  check(isOrdered(side.imageable) && isOrdered(side.content), "a side's areas have a size");
  for (const PageRectangle &part : side.lost)
    check(isOrdered(part) && part.left.count >= side.content.left.count &&
              part.top.count >= side.content.top.count &&
              part.right.count <= side.content.right.count &&
              part.bottom.count <= side.content.bottom.count,
          "the lost part is within the content");
}

bool isPlace(const PixelRectangle &place) {
  return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.width) &&
         std::isfinite(place.height) && place.width >= 0 && place.height >= 0;
}

void checkMark(const PreviewLayout &layout, const Offset &offset) {
  const Pixel mark = layout.mark(offset), centre = layout.gridCentre();
  const double most = 5 * layout.squarePixels + kRounding;
  check(std::abs(mark.x - centre.x) <= most && std::abs(mark.y - centre.y) <= most,
        "a mark is on the grid");
}

void checkLayout(const Preview &preview, const PictureSize &size) {
  const PreviewLayout layout = layOutPreview(preview, size);
  for (const PagePlace &page : layout.pages)
    check(isPlace(page.title) && isPlace(page.page) && isPlace(page.caption),
          "a page's rectangles are valid");
  check(isPlace(layout.legend) && isPlace(layout.enlargedTitle) && isPlace(layout.grid) &&
            isPlace(layout.relation),
        "the other rectangles are valid");
  check(layout.squareLength.count > 0 && layout.squarePixels >= 0, "grid squares have a size");
  check(layout.squaresPerNumber(40) > 0, "numbers do not overlap");
  for (const auto place :
       {PreviewLayout::Front, PreviewLayout::Back, PreviewLayout::AgainstLight}) {
    const PixelRectangle imageable = layout.onPage(place, preview.page.imageable);
    const PixelRectangle &page = layout.pages[place].page;
    check(isPlace(imageable) && imageable.right() <= page.right() + 1 &&
              imageable.bottom() <= page.bottom() + 1,
          "the imageable area is drawn on the page");
    check(isPlace(layout.onPage(place, preview.front.content)), "the content's rectangle is valid");
  }
  checkMark(layout, preview.front.offset);
  if (preview.frontSeenThrough)
    checkMark(layout, preview.frontSeenThrough->offset);
}

} // namespace

void checkPicture(PrinterDescription &printer, const PrintSettingsStore &job) {
  printer.mark(job);
  const Preview preview = makePreview(job, printer.ppd());
  checkPage(preview.page);
  checkSide(preview.front);
  check(preview.back.has_value() == (preview.turning != Turning::OneSided) &&
            preview.back.has_value() == preview.frontSeenThrough.has_value(),
        "two-sided printing has a back side");
  if (preview.back) {
    checkSide(*preview.back);
    checkSide(*preview.frontSeenThrough);
  }
  check(preview == makePreview(job, printer.ppd()), "the same job has the same picture");
  for (const std::string &sentence : describePreview(preview))
    checkWords(sentence, "a sentence about the picture");
  for (const PictureSize size :
       {preferredPictureSize(13), PictureSize{0, 0, 13}, PictureSize{90, 2000, 13}})
    checkLayout(preview, size);
}

} // namespace imageposition::fuzz
