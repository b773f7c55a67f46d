// first-page [--runs N] NAME=COMMAND...: prints when the programs show a document's first page, on
// the display that DISPLAY names; and of the last, print-dialog, how it shows the others.
#include "ColouredPages.hpp"
#include "PageRun.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

using namespace imageposition::bench;

namespace {

struct Program {
  std::string name, command;
};

int runs = 7;

void print(const std::string &program, const std::string &what, std::vector<double> values,
           const char *unit) {
  std::sort(values.begin(), values.end());
  std::printf("%-14s %-44s %7.1f %s (%.1f to %.1f)\n", program.c_str(), what.c_str(),
              values[values.size() / 2], unit, values.front(), values.back());
  std::fflush(stdout);
}

/// A document in the folder for temporary files, removed with the object.
class File {
public:
  File(const std::string &name, const std::string &content)
      : path_("/tmp/first-page-" + std::to_string(getpid()) + "-" + name) {
    std::ofstream(path_) << content;
  }
  ~File() { unlink(path_.c_str()); }
  File(const File &) = delete;
  File &operator=(const File &) = delete;

  const std::string &path() const { return path_; }

private:
  std::string path_;
};

void measureFirstPage(WatchedScreen &screen, const Program &program, const std::string &name,
                      const File &document) {
  std::vector<double> window, page;
  for (int i = -1; i < runs; i++) { // the first fills the disk cache
    PageRun run(screen, program.command + " " + document.path());
    const auto found = run.awaitFirstPage();
    if (i >= 0) {
      window.push_back(found.window);
      page.push_back(found.page);
    }
  }
  print(program.name, name + ": start to window", window, "ms");
  print(program.name, name + ": window to first page", page, "ms");
}

void measureUse(WatchedScreen &screen, const Program &program, const std::string &name, int pages,
                const File &document) {
  std::vector<double> steps, turns, ends;
  const int last = pages - 2; // on the front of the last sheet
  PageRun run(screen, program.command + " " + document.path());
  run.awaitFirstPage();
  run.awaitSilence();
  for (int i = 0; i < runs; i++)
    steps.push_back(run.step());
  run.focusSheets();
  for (int i = 0; i < runs; i++) {
    turns.push_back(run.turn(XK_Page_Down, 2));
    run.awaitSilence();
    ends.push_back(run.turn(XK_End, last));
    run.awaitSilence();
    run.turn(XK_Home, 0);
    run.awaitSilence();
  }
  print(program.name, name + ": step of an offset", steps, "ms");
  print(program.name, name + ": turn to the next sheet", turns, "ms");
  print(program.name, name + ": go to the last sheet", ends, "ms");
}

void measureMemory(WatchedScreen &screen, const Program &program, const File &document) {
  std::vector<double> without, shown, turned, enlarged;
  for (int i = 0; i < runs; i++) {
    without.push_back(peakMemoryOf(screen, program.command));
    PageRun run(screen, program.command + " " + document.path());
    run.awaitFirstPage();
    run.awaitSilence();
    shown.push_back(run.peakMemory());
    run.focusSheets();
    for (int turn = 1; turn <= 4; turn++) {
      run.turn(XK_Page_Down, 2 * turn);
      run.awaitSilence();
    }
    run.turn(XK_Page_Up, 6);
    run.awaitSilence();
    turned.push_back(run.peakMemory());
    run.enlarge();
    enlarged.push_back(run.peakMemory());
  }
  print(program.name, "peak memory without a document", without, "MiB");
  print(program.name, "with ten pages", shown, "MiB");
  print(program.name, "after turning five times", turned, "MiB");
  print(program.name, "after enlarging a sheet", enlarged, "MiB");
}

void run(int argc, char **argv) {
  std::vector<Program> programs;
  for (int i = 1; i < argc; i++) {
    char *const sign = std::strchr(argv[i], '=');
    if (std::strcmp(argv[i], "--runs") == 0 && i + 1 < argc)
      runs = std::atoi(argv[++i]);
    else if (sign != nullptr)
      programs.push_back({{argv[i], sign}, sign + 1});
    else
      throw std::runtime_error(std::string("Neither an option nor NAME=COMMAND: ") + argv[i]);
  }
  if (runs < 1 || programs.empty())
    throw std::runtime_error("Name a program, and at least one run.");
  WatchedScreen screen;
  const File ten("10.pdf", colouredText(10)), many("3000.pdf", colouredText(3000));
  const File images("images.pdf", colouredImages(200, 500'000));
  for (const Program &program : programs)
    try {
      measureFirstPage(screen, program, "10 pages", ten);
    } catch (const std::runtime_error &failure) {
      std::printf("%-14s %s\n", program.name.c_str(), failure.what());
    }
  const Program &dialog = programs.back();
  measureFirstPage(screen, dialog, "3,000 pages", many);
  measureFirstPage(screen, dialog, "200 pages of images", images);
  measureUse(screen, dialog, "10 pages", 10, ten);
  measureUse(screen, dialog, "3,000 pages", 3000, many);
  measureUse(screen, dialog, "200 pages of images", 200, images);
  measureMemory(screen, dialog, ten);
}

} // namespace

int main(int argc, char **argv) {
  try {
    run(argc, argv);
    return 0;
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "first-page: %s\n", failure.what());
    return 1;
  }
}
