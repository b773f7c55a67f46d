// print-dialog-examiner DOCUMENT: writes the facts about a document for print-dialog, or nothing.
#include "PdfFacts.hpp"
#include "ResourceLimits.hpp"

#include <cstdio>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr rlim_t kMemory = IMAGEPOSITION_EXAMINER_MEMORY; // bytes, besides the mapped document
constexpr rlim_t kSeconds = 5;                            // of the processor
constexpr unsigned kLifetime = 10;                        // seconds; the dialog is more impatient

rlim_t sizeOf(const char *path) {
  struct stat status {};
  return stat(path, &status) == 0 && S_ISREG(status.st_mode) ? static_cast<rlim_t>(status.st_size)
                                                             : 0;
}

} // namespace

int main(int argc, char **argv) {
  using imageposition::limitResource;
  if (argc != 2)
    return 2;
  limitResource(RLIMIT_AS, kMemory == RLIM_INFINITY ? kMemory : kMemory + sizeOf(argv[1]));
  limitResource(RLIMIT_CPU, kSeconds);
  limitResource(RLIMIT_FSIZE, 0);
  limitResource(RLIMIT_CORE, 0);
  alarm(kLifetime);
  // QPDF takes a lack of memory for damage.
  std::set_new_handler([] { _exit(1); });
  const std::string line = imageposition::reportOnPdf(argv[1]);
  const ssize_t count = write(STDOUT_FILENO, line.data(), line.size());
  return !line.empty() && count == static_cast<ssize_t>(line.size()) ? 0 : 1;
}
