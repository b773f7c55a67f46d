#include "Figures.hpp"

#include <algorithm>
#include <cstdio>

namespace imageposition::bench {

namespace {

struct Column {
  const char *title;
  double Measured::*value;
};

constexpr Column kColumns[] = {
    {"painted, ms", &Measured::painted},
    {"complete, ms", &Measured::complete},
    {"processor until painted, ms", &Measured::processorUntilPainted},
    {"processor until complete, ms", &Measured::processorUntilComplete},
    {"peak memory, MiB", &Measured::peakMemory},
    {"memory's share, MiB", &Measured::peakShare},
};

std::vector<double> sorted(const Dialog &dialog, double Measured::*value) {
  std::vector<double> values;
  for (const Measured &run : dialog.runs)
    values.push_back(run.*value);
  std::sort(values.begin(), values.end());
  return values;
}

double median(const Dialog &dialog, double Measured::*value) {
  const auto values = sorted(dialog, value);
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

void printFigures(const std::vector<Dialog> &dialogs) {
  std::printf("%-30s", "median (smallest), ratio");
  for (const Dialog &dialog : dialogs)
    std::printf(" %24s", dialog.name.c_str());
  std::printf("\n");
  for (const Column &column : kColumns) {
    std::printf("%-30s", column.title);
    const double own = median(dialogs.front(), column.value);
    for (const Dialog &dialog : dialogs) {
      const double other = median(dialog, column.value);
      std::printf(" %8.1f (%6.1f)%7.2f", other, sorted(dialog, column.value).front(), own / other);
    }
    std::printf("\n");
  }
}

} // namespace imageposition::bench
