/// Renders pages of PDF files.
#ifndef IMAGEPOSITION_RENDERER_PAGEDRAWING_HPP
#define IMAGEPOSITION_RENDERER_PAGEDRAWING_HPP

#include "RenderTask.hpp"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace poppler {
class document;
}

namespace imageposition {

struct PageDrawing {
  PageReport report;
  std::vector<std::uint32_t> pixels; ///< 0xFFRRGGBB, as many as `pixelSizeOf` says.
};

/// A document that may be damaged or malicious. Rendering may take any time and much memory.
class RenderableDocument {
public:
  /// The content is borrowed for the object's life.
  explicit RenderableDocument(std::string_view content);
  ~RenderableDocument();
  RenderableDocument(const RenderableDocument &) = delete;
  RenderableDocument &operator=(const RenderableDocument &) = delete;

  /// `kPasswordLine` or `kDamagedLine`; null for a document with pages.
  const char *problem() const;

  /// The report has no size if the page is not in the document or cannot be rendered. Call it only
  /// without a problem.
  PageDrawing draw(int page, const RenderRequest &request) const;

private:
  std::unique_ptr<poppler::document> document_;
};

} // namespace imageposition

#endif
