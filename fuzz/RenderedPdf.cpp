// What poppler makes of any bytes: the pages of a document have the size that both processes
// calculate, are opaque, and can be reported; otherwise there is a reason.
#include "Check.hpp"
#include "PageDrawing.hpp"

#include <algorithm>

using namespace imageposition;
using namespace imageposition::fuzz;

namespace {

void checkDrawing(const PageDrawing &drawing, const RenderRequest &request) {
  const auto report = readPageReport(lineOf(drawing.report));
  check(report.has_value(), "a page can be reported");
  const PixelSize size = pixelSizeOf(*report, request);
  check(size.pixels() == drawing.pixels.size(), "a page has the calculated size");
  check(size.width <= request.mostPixels && size.height <= request.mostPixels,
        "a page is not too large");
  check(std::all_of(drawing.pixels.begin(), drawing.pixels.end(),
                    [](std::uint32_t pixel) { return pixel >= 0xFF000000U; }),
        "a page is opaque");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const RenderableDocument document({reinterpret_cast<const char *>(data), size});
  if (document.problem() != nullptr)
    return 0;
  const RenderRequest request{{0, 1}, 0.5, 60};
  for (const int page : request.pages)
    checkDrawing(document.draw(page, request), request);
  return 0;
}
