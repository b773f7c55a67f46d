// What poppler makes of any bytes: the pages of a document have the size that both processes
// calculate, are opaque, and can be reported. A document may make poppler crash, or take all time
// and memory, as the renderer's process does not survive either: that is not a finding.
#include "Check.hpp"
#include "PageDrawing.hpp"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace imageposition;
using namespace imageposition::fuzz;

namespace {

constexpr int kWrong = 42;         // the status of a process that found something
constexpr rlim_t kSeconds = 1;     // of the processor
constexpr unsigned kLifetime = 20; // seconds

bool isRight(const PageDrawing &drawing, const RenderRequest &request) {
  const auto report = readPageReport(lineOf(drawing.report));
  if (!report)
    return false;
  const PixelSize size = pixelSizeOf(*report, request);
  return size.pixels() == drawing.pixels.size() && size.width <= request.mostPixels &&
         size.height <= request.mostPixels &&
         std::all_of(drawing.pixels.begin(), drawing.pixels.end(),
                     [](std::uint32_t pixel) { return pixel >= 0xFF000000U; });
}

/// Returns `kWrong`, or a number that depends on what was drawn.
int outcomeOf(std::string_view content) {
  const RenderableDocument document(content);
  if (document.problem() != nullptr)
    return 0;
  const RenderRequest request{{0, 1}, 0.5, 60};
  std::uint32_t sum = 1;
  for (const int page : request.pages) {
    const PageDrawing drawing = document.draw(page, request);
    if (!isRight(drawing, request))
      return kWrong;
    for (const std::uint32_t pixel : drawing.pixels)
      sum = (sum ^ pixel) * 16777619U;
  }
  return static_cast<int>(sum % kWrong);
}

/// Without the handlers of the fuzzer, which would report a crash and save the input.
void becomeExpendable() {
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM})
    std::signal(signal, SIG_DFL);
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
  setrlimit(RLIMIT_FSIZE, &none);
  dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
  const rlimit time{kSeconds, kSeconds};
  setrlimit(RLIMIT_CPU, &time);
  alarm(kLifetime);
}

/// libFuzzer keeps an input that raises one of these for the first time. Of poppler's code it knows
/// nothing, so it keeps inputs with new drawings.
__attribute__((section("__libfuzzer_extra_counters"))) unsigned char drawings[kWrong + 1];

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const pid_t process = fork();
  if (process == 0) {
    becomeExpendable();
    _exit(outcomeOf({reinterpret_cast<const char *>(data), size}));
  }
  int status = 0;
  pid_t ended = -1;
  do // the fuzzer's own timer interrupts
    ended = waitpid(process, &status, 0);
  while (ended < 0 && errno == EINTR);
  check(process > 0 && ended == process, "a process can be started");
  if (WIFEXITED(status))
    drawings[WEXITSTATUS(status)] = 1;
  check(!WIFEXITED(status) || WEXITSTATUS(status) != kWrong, "a page is what it should be");
  return 0;
}
