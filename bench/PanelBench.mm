// Making a panel, loading its view and preparing to show it, in a running host.
#import "BenchHost.h"

#import "TestPool.h"

#include <benchmark/benchmark.h>

namespace {

using imageposition::bench::BenchHost;
using imageposition::test::Pool;

void MakePanel(benchmark::State &state) {
  BenchHost host;
  for (auto _ : state) {
    const Pool pool;
    [host.makePanel() release];
  }
}
BENCHMARK(MakePanel)->Unit(benchmark::kMillisecond);

void FirstPanelView(benchmark::State &state) {
  BenchHost host;
  for (auto _ : state) {
    state.PauseTiming();
    {
      const Pool pool;
      id panel = host.makePanel();
      state.ResumeTiming();
      [panel panelView];
      state.PauseTiming();
      [panel release];
    }
    state.ResumeTiming();
  }
}
BENCHMARK(FirstPanelView)->Unit(benchmark::kMillisecond);

void SecondPanelView(benchmark::State &state) {
  BenchHost host;
  const Pool pool;
  id panel = host.makePanel();
  [panel panelView];
  for (auto _ : state)
    benchmark::DoNotOptimize([panel panelView]);
  [panel release];
}
BENCHMARK(SecondPanelView)->Unit(benchmark::kNanosecond);

void FirstWillShow(benchmark::State &state) {
  BenchHost host;
  for (auto _ : state) {
    state.PauseTiming();
    {
      const Pool pool;
      id panel = host.makePanel();
      [panel panelView];
      state.ResumeTiming();
      [panel willShow];
      state.PauseTiming();
      [panel release];
    }
    state.ResumeTiming();
  }
}
BENCHMARK(FirstWillShow)->Unit(benchmark::kMicrosecond);

void SecondWillShow(benchmark::State &state) {
  BenchHost host;
  const Pool pool;
  id panel = host.makePanel();
  [panel panelView];
  [panel willShow];
  for (auto _ : state) {
    const Pool inner;
    [panel willShow];
  }
  [panel release];
}
BENCHMARK(SecondWillShow)->Unit(benchmark::kMicrosecond);

/// All of the above once: what the user waits for after choosing the pane. Does not measure the
/// deallocation of the panel, nor of the objects in the autorelease pool.
void PanelShownReady(benchmark::State &state) {
  BenchHost host;
  for (auto _ : state) {
    id panel;
    {
      const Pool pool;
      panel = host.makePanel();
      [panel panelView];
      [panel willShow];
      state.PauseTiming();
    }
    [panel release];
    state.ResumeTiming();
  }
}
BENCHMARK(PanelShownReady)->Unit(benchmark::kMillisecond);

} // namespace
