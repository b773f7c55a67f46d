/// What many starts of several dialogs come to.
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

/// A table of medians and smallest figures, and of the medians' ratios to the first dialog's.
void printFigures(const std::vector<Dialog> &dialogs);

} // namespace imageposition::bench

#endif
