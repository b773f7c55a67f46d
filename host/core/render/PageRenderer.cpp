#include "PageRenderer.hpp"

#include "ProgramFolder.hpp"
#include "RendererRun.hpp"

namespace imageposition {

namespace {

const char *messageOf(RenderProblem problem) {
  switch (problem) {
  case RenderProblem::Password:
    return "the document has a password";
  case RenderProblem::Damaged:
    return "the document cannot be read";
  case RenderProblem::TooLong:
    return "rendering takes too long";
  default:
    return "the renderer is missing or failed";
  }
}

} // namespace

RenderFailure::RenderFailure(RenderProblem problem)
    : std::runtime_error(messageOf(problem)), problem_(problem) {}

std::vector<RenderedPage> renderPages(const Descriptor &pdf, const RenderRequest &request,
                                      const KeepWaiting &keepWaiting) {
  const std::string program = installedProgram(IMAGEPOSITION_RENDERER);
  if (program.empty())
    throw RenderFailure(RenderProblem::Fault);
  return renderPagesWith(program, pdf, request, keepWaiting);
}

} // namespace imageposition
