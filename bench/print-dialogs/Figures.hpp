/// The results of many runs of several dialogs.
#ifndef IMAGEPOSITION_BENCH_FIGURES_HPP
#define IMAGEPOSITION_BENCH_FIGURES_HPP

#include "DialogRun.hpp"

#include <string>
#include <vector>

namespace imageposition::bench {

struct Dialog {
  std::string name, command;
  std::vector<Measured> runs;
};

/// Prints a table of medians and minimums, and of the ratio of the first dialog's median to each.
void printFigures(const std::vector<Dialog> &dialogs);

} // namespace imageposition::bench

#endif
