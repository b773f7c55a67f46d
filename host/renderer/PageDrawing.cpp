#include "PageDrawing.hpp"

#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace imageposition {

namespace {

constexpr double kPointsPerInch = 72;

std::unique_ptr<poppler::document> opened(std::string_view content) {
  poppler::set_debug_error_function([](const std::string &, void *) {}, nullptr);
  if (content.empty() || content.size() > std::numeric_limits<int>::max())
    return nullptr;
  return std::unique_ptr<poppler::document>(
      poppler::document::load_from_raw_data(content.data(), static_cast<int>(content.size())));
}

/// As displayed.
PageReport reportOn(const poppler::page &page, int number) {
  const poppler::rectf box = page.page_rect();
  PageReport report{number, {std::abs(box.width())}, {std::abs(box.height())}};
  const auto orientation = page.orientation();
  if (orientation == poppler::page::landscape || orientation == poppler::page::seascape)
    std::swap(report.width, report.height);
  return isPageSize(report.width, report.height) ? report : PageReport{number, {}, {}};
}

/// The bytes of a pixel are blue, green, red and alpha.
std::vector<std::uint32_t> pixelsOf(const poppler::image &image) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(image.width()) *
                 static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); y++) {
    const char *const row =
        image.const_data() + static_cast<std::ptrdiff_t>(y) * image.bytes_per_row();
    for (std::size_t x = 0; x < static_cast<std::size_t>(image.width()); x++) {
      const auto byte = [&](std::size_t i) {
        return std::uint32_t{static_cast<unsigned char>(row[x * kBytesPerPixel + i])};
      };
      pixels.push_back(0xFF000000U | byte(2) << 16U | byte(1) << 8U | byte(0));
    }
  }
  return pixels;
}

} // namespace

RenderableDocument::RenderableDocument(std::string_view content) : document_(opened(content)) {}

RenderableDocument::~RenderableDocument() = default;

const char *RenderableDocument::problem() const {
  if (document_ == nullptr)
    return kDamagedLine;
  if (document_->is_locked())
    return kPasswordLine;
  return document_->pages() > 0 ? nullptr : kDamagedLine;
}

PageDrawing RenderableDocument::draw(int number, const RenderRequest &request) const {
  PageDrawing drawing{{number, {}, {}}, {}};
  const std::unique_ptr<poppler::page> page(
      number < document_->pages() ? document_->create_page(number) : nullptr);
  if (page == nullptr)
    return drawing;
  const PageReport report = reportOn(*page, number);
  if (!report.isRendered())
    return drawing;
  const PixelSize size = pixelSizeOf(report, request);
  poppler::page_renderer renderer;
  renderer.set_image_format(poppler::image::format_argb32);
  renderer.set_render_hint(poppler::page_renderer::antialiasing);
  renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
  const double resolution = size.pixelsPerPoint * kPointsPerInch;
  const poppler::image image =
      renderer.render_page(page.get(), resolution, resolution, 0, 0, size.width, size.height);
  const bool isRight = image.is_valid() && image.format() == poppler::image::format_argb32 &&
                       image.width() == size.width && image.height() == size.height;
  if (isRight)
    drawing = {report, pixelsOf(image)};
  return drawing;
}

} // namespace imageposition
