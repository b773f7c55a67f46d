// compare-dialogs [--runs N] [--trace] NAME=COMMAND...: runs the dialogs in turn on the display
// that DISPLAY names, and prints the time and memory of each, and how the first compares with the
// others.
#include "Figures.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

using namespace imageposition::bench;

namespace {

constexpr std::chrono::milliseconds kWatched{1500};

double load() {
  double averages[1] = {};
  getloadavg(averages, 1);
  return averages[0];
}

Dialog toDialog(const std::string &argument) {
  const std::size_t sign = argument.find('=');
  if (sign == std::string::npos)
    throw std::runtime_error("Neither an option nor NAME=COMMAND: " + argument);
  return {argument.substr(0, sign), argument.substr(sign + 1), {}};
}

void run(int argc, char **argv) {
  int runs = 15;
  bool isTracing = false;
  std::vector<Dialog> dialogs;
  for (int i = 1; i < argc; i++) {
    if (std::strcmp(argv[i], "--runs") == 0 && i + 1 < argc)
      runs = std::atoi(argv[++i]);
    else if (std::strcmp(argv[i], "--trace") == 0)
      isTracing = true;
    else
      dialogs.push_back(toDialog(argv[i]));
  }
  if (runs < 1 || dialogs.empty())
    throw std::runtime_error("Name a dialog, and at least one run.");
  WatchedScreen screen;
  const double before = load();
  for (Dialog &dialog : dialogs) // a first run fills the disk cache and is not measured
    runDialog(screen, dialog.command, kWatched, false);
  for (int i = 0; i < runs; i++)
    for (Dialog &dialog : dialogs) {
      if (isTracing)
        std::fprintf(stderr, "%s\n", dialog.name.c_str());
      dialog.runs.push_back(runDialog(screen, dialog.command, kWatched, isTracing));
    }
  std::printf("%d runs of each; the machine's load was %.2f before and %.2f after\n", runs, before,
              load());
  printFigures(dialogs);
}

} // namespace

int main(int argc, char **argv) {
  try {
    run(argc, argv);
    return 0;
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "compare-dialogs: %s\n", failure.what());
    return 1;
  }
}
