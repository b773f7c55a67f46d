// print-dialog-examiner DOCUMENT: writes the facts about a document for print-dialog, or nothing.
#include "PdfFacts.hpp"

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr rlim_t kMemory = IMAGEPOSITION_EXAMINER_MEMORY; // bytes
constexpr rlim_t kSeconds = 5;                            // of the processor
constexpr unsigned kLifetime = 10;                        // seconds; the dialog is more impatient

/// A document may be damaged, or made to do harm. Exceeding a limit ends the process.
void limit(__rlimit_resource resource, rlim_t most) {
  rlimit limits{};
  getrlimit(resource, &limits);
  limits.rlim_cur = limits.rlim_max = most < limits.rlim_max ? most : limits.rlim_max;
  setrlimit(resource, &limits);
}

} // namespace

int main(int argc, char **argv) {
  if (argc != 2)
    return 2;
  limit(RLIMIT_AS, kMemory);
  limit(RLIMIT_CPU, kSeconds);
  limit(RLIMIT_FSIZE, 0);
  limit(RLIMIT_CORE, 0);
  alarm(kLifetime);
  const std::string line = imageposition::reportOnPdf(argv[1]);
  const ssize_t count = write(STDOUT_FILENO, line.data(), line.size());
  return !line.empty() && count == static_cast<ssize_t>(line.size()) ? 0 : 1;
}
