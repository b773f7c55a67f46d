/// The protocol between the dialog and the renderer.
#ifndef IMAGEPOSITION_CORE_RENDER_RENDERTASK_HPP
#define IMAGEPOSITION_CORE_RENDER_RENDERTASK_HPP

#include "Units.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// The descriptors of the renderer besides standard output, its report. It writes the pixels of the
/// pages to the result one after another, without gaps, before it reports the page. Its standard
/// input is a pipe; the renderer ends when the pipe's other end is closed.
enum RendererDescriptor { kRendererDocument = 3, kRendererResult = 4 };

struct RenderRequest {
  std::vector<int> pages;    ///< From 0; at most `kMostRenderedPages`.
  double pixelsPerPoint = 1; ///< Above 0. A page that would be too large gets fewer.
  int mostPixels = 0;        ///< Of width and of height, from 1 to `kMostPixelsOfSide`.
};

constexpr std::size_t kMostRenderedPages = 16;
constexpr int kMostPixelsOfSide = 4096;
constexpr std::size_t kBytesPerPixel = 4;

/// Whether all values are in their ranges.
bool isValid(const RenderRequest &request);

/// In bytes: no result that fits the request is larger.
std::size_t largestResult(const RenderRequest &request);

/// The renderer's arguments. None if the words are not what `wordsOf` returns for a valid request.
std::vector<std::string> wordsOf(const RenderRequest &request);
std::optional<RenderRequest> readRenderRequest(const std::vector<std::string> &words);

/// A page as displayed. Both lengths are 0 for a page that cannot be rendered.
struct PageReport {
  int page = 0;
  Point width, height;

  bool isRendered() const noexcept { return width.count > 0; }
};

/// Whether the page has a size that can be rendered.
bool isPageSize(Point width, Point height) noexcept;

/// The line that reports a page. None if the line is not what `lineOf` returns for a usable size.
std::string lineOf(const PageReport &report);
std::optional<PageReport> readPageReport(std::string_view line);

/// The report is one of these lines if no page can be read.
constexpr const char *kPasswordLine = "password\n";
constexpr const char *kDamagedLine = "damaged\n";

struct PixelSize {
  int width = 0, height = 0;
  double pixelsPerPoint = 0;

  std::size_t pixels() const noexcept {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
};

/// The size at which a page is rendered. Both processes calculate it, so the dialog need not
/// trust the renderer.
PixelSize pixelSizeOf(const PageReport &report, const RenderRequest &request) noexcept;

} // namespace imageposition

#endif
