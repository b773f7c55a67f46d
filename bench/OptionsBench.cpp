// What the window does with a printer's options and constraints, from a few to more than any
// printer has. The time should grow as n log n of their number.
#include "LargePpd.hpp"
#include "OptionConflicts.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace imageposition;
using namespace imageposition::test;

void FindConflicts(benchmark::State &state) {
  auto printer = largePrinter(violatedPairs(static_cast<int>(state.range(0))));
  PrintSettingsStore job;
  OptionConflicts conflicts(printer, job);
  for (auto _ : state)
    benchmark::DoNotOptimize(conflicts.find());
  state.SetComplexityN(state.range(0));
}
// Ten sizes, as in the benchmarks below.
BENCHMARK(FindConflicts)
    ->RangeMultiplier(2)
    ->Range(128, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

void ChooseAndFindConflicts(benchmark::State &state) {
  auto printer = largePrinter(violatedPairs(static_cast<int>(state.range(0))));
  PrintSettingsStore job;
  OptionConflicts conflicts(printer, job);
  bool isGood = false;
  for (auto _ : state) {
    isGood = !isGood;
    PrinterOptions(printer, job).choose("O1", isGood ? "Good" : "Bad");
    benchmark::DoNotOptimize(conflicts.find());
    benchmark::DoNotOptimize(conflicts.proposal("O1"));
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(ChooseAndFindConflicts)
    ->RangeMultiplier(2)
    ->Range(128, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

void ChooseAmongOptions(benchmark::State &state) {
  auto printer = largePrinter(manyOptions(static_cast<int>(state.range(0))));
  PrintSettingsStore job;
  bool isGood = false;
  for (auto _ : state) {
    isGood = !isGood;
    PrinterOptions(printer, job).choose("O1", isGood ? "Good" : "Bad");
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(ChooseAmongOptions)
    ->RangeMultiplier(2)
    ->Range(16, 8192)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

void ListChoicesOfSeveral(benchmark::State &state) {
  const int count = static_cast<int>(state.range(0));
  auto printer = largePrinter(manyChoices(count));
  PrintSettingsStore job;
  job.set("Several", allChoices(count));
  PrinterOptions options(printer, job);
  for (auto _ : state) {
    const auto several = options.find("Several");
    benchmark::DoNotOptimize(several->textOf(several->chosen));
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(ListChoicesOfSeveral)
    ->RangeMultiplier(2)
    ->Range(8, 4096)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

} // namespace
