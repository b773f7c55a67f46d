// print-dialog-renderer: renders pages of a document for print-dialog, which starts it with the
// words and the descriptors of RenderTask.hpp.
#include "FileContent.hpp"
#include "FontFolders.hpp"
#include "PageDrawing.hpp"
#include "Sandbox.hpp"

#include <algorithm>
#include <exception>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

namespace {

bool tell(const std::string &line) { return writeAll(STDOUT_FILENO, line); }

bool render(const RenderRequest &request) try {
  const Descriptor file(kRendererDocument);
  const MappedFile mapped(file);
  const RenderableDocument document(mapped.content());
  if (document.problem() != nullptr)
    return tell(document.problem());
  for (const int page : request.pages) {
    const PageDrawing drawing = document.draw(page, request);
    const auto *const bytes = reinterpret_cast<const char *>(drawing.pixels.data());
    if (!writeAll(kRendererResult, {bytes, drawing.pixels.size() * kBytesPerPixel}) ||
        !tell(lineOf(drawing.report)))
      return false;
  }
  _exit(0); // skips destructors: the process ends anyway
} catch (const FileTrouble &) {
  return tell(kDamagedLine);
}

std::size_t documentSize() {
  struct stat status {};
  const bool isFile = fstat(kRendererDocument, &status) == 0 && S_ISREG(status.st_mode);
  constexpr auto kLargest = static_cast<off_t>(std::numeric_limits<int>::max()); // for poppler
  return isFile ? static_cast<std::size_t>(std::min(status.st_size, kLargest)) : 0;
}

/// Returns the exit status.
int run(const std::vector<std::string> &words) {
  const auto request = readRenderRequest(words);
  if (!request)
    return 2;
  const auto folders = prepareFonts(); // before files can no longer be written: fontconfig's cache
  limitProcess(largestResult(*request), documentSize());
  enterSandbox(folders, kRendererResult);
  return render(*request) ? 0 : 1;
}

} // namespace

} // namespace imageposition

int main(int argc, char **argv) try {
  _exit(imageposition::run({argv + 1, argv + argc}));
} catch (const std::exception &) {
  _exit(1);
}
