/// Has pages of a document rendered by another process.
#ifndef IMAGEPOSITION_CORE_RENDER_PAGERENDERER_HPP
#define IMAGEPOSITION_CORE_RENDER_PAGERENDERER_HPP

#include "FileContent.hpp"
#include "RenderTask.hpp"

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <vector>

namespace imageposition {

/// A page as a reader displays it: cropped, turned, on white.
struct RenderedPage {
  int width = 0, height = 0;   ///< In pixels; 0 for a page that could not be rendered.
  Point pageWidth, pageHeight; ///< 0 for a page that could not be rendered.
  /// 0xFFRRGGBB, rows from the top, `width` times `height` of them.
  std::vector<std::uint32_t> pixels;
};

enum class RenderProblem {
  Password, ///< Only a password opens the document.
  Damaged,  ///< Not a PDF, or too damaged or too large to be read.
  TooLong,  ///< No page was rendered in time.
  Fault     ///< The program is missing, ended early, or sent an impossible report.
};

/// Why there are no pages. The message is for developers.
class RenderFailure : public std::runtime_error {
public:
  explicit RenderFailure(RenderProblem problem);
  RenderProblem problem() const noexcept { return problem_; }

private:
  RenderProblem problem_;
};

/// Called at least 20 times each second on the thread that waits. Returns false to cancel.
using KeepWaiting = std::function<bool()>;

/// Renders pages of a PDF file, in a process that can do nothing but render: the document may be
/// malicious. Takes a few seconds at most. Waits for the process, so call it on a
/// background thread; calls at the same time are possible.
///
/// Returns the pages in the order of the request. A page that could not be rendered has no pixels:
/// it is not in the document, or it took too long, but other pages were rendered. Returns no pages
/// if `keepWaiting` has cancelled, which takes less than 0.2 s and leaves nothing behind. Throws a
/// `RenderFailure`, or a `std::invalid_argument` for a request that is not valid.
///
/// `pdf` is a regular file, open for reading; its position is not used.
std::vector<RenderedPage> renderPages(const Descriptor &pdf, const RenderRequest &request,
                                      const KeepWaiting &keepWaiting);

} // namespace imageposition

#endif
