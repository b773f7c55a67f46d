/// Runs the program that renders pages.
#ifndef IMAGEPOSITION_CORE_RENDER_RENDERERRUN_HPP
#define IMAGEPOSITION_CORE_RENDER_RENDERERRUN_HPP

#include "PageRenderer.hpp"

#include <string>

namespace imageposition {

/// `renderPages` with the program at this path, which is not trusted.
std::vector<RenderedPage> renderPagesWith(const std::string &program, const Descriptor &pdf,
                                          const RenderRequest &request,
                                          const KeepWaiting &keepWaiting);

} // namespace imageposition

#endif
