// Comparable work in libcups: marking a choice and checking the printer's constraints.
#include "TestPpd.h"

#include <benchmark/benchmark.h>

namespace {

using imageposition::test::TestPpd;

// Two options, and constraints between choices that are not marked.
std::vector<std::string> constrainedPrinter(int constraints) {
  std::vector<std::string> first{"Auto"};
  std::vector<std::string> lines;
  for (int index = 0; index < constraints; ++index)
    first.push_back("C" + std::to_string(index));
  for (const auto &option :
       {TestPpd::option("First", first), TestPpd::option("Second", {"Off", "On"})})
    lines.insert(lines.end(), option.begin(), option.end());
  for (int index = 0; index < constraints; ++index)
    lines.push_back("*UIConstraints: *First C" + std::to_string(index) + " *Second On");
  return lines;
}

void CupsMarkOptionAndFindConflicts(benchmark::State &state) {
  TestPpd ppd(constrainedPrinter(static_cast<int>(state.range(0))));
  bool on = false;
  for (auto _ : state) {
    on = !on;
    ppdMarkOption(ppd, "Second", on ? "On" : "Off");
    benchmark::DoNotOptimize(ppdConflicts(ppd));
  }
  state.counters["constraints"] = static_cast<double>(state.range(0));
}
BENCHMARK(CupsMarkOptionAndFindConflicts)->Arg(0)->Arg(8)->Arg(100)->Arg(1000);

void CupsFindAttribute(benchmark::State &state) {
  TestPpd ppd({"*MVDuplexShiftRange: \"Narrow\""});
  for (auto _ : state)
    benchmark::DoNotOptimize(ppdFindAttr(ppd, "MVDuplexShiftRange", nullptr));
}
BENCHMARK(CupsFindAttribute);

} // namespace
