#include <algorithm>
#include <ctime>

#include <benchmark/benchmark.h>

#include "rivals/rivals.h"
#include "support/arena.h"
#include "support/match.h"

namespace coilrun::bench {
namespace {

constexpr int kRivals = 15;

Match LongRunning(RivalKind kind, bool open) {
  const ArenaPlan plan{.openEdges = open, .rivals = kRivals};
  return Match({.level = Arena(plan).Text()}, MakeDrivers({{kind}}));
}

/// One choice of each rival a round, in a match that goes on for a second between rounds. The
/// longest round, in processor time, is what a frame costs at most in which all step.
void Choose(benchmark::State& run, RivalKind kind, bool open) {
  Match match = LongRunning(kind, open);
  Drivers drivers = MakeDrivers({{kind}});
  match.Play(60);
  double longest = 0;
  for (auto _ : run) {
    const std::clock_t start = std::clock();
    for (int s = 2; s <= kRivals + 1; ++s) {
      benchmark::DoNotOptimize(drivers.Choose(match.state(), s));
    }
    const double taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    run.SetIterationTime(taken / kRivals);
    longest = std::max(longest, taken);
    match.Play(1);
  }
  run.counters["frame_ms"] = 1000 * longest;
}

/// A minute of a match with 16 snakes.
void PlayMatch(benchmark::State& run, RivalKind kind) {
  constexpr int kSeconds = 60;
  for (auto _ : run) {
    Match match = LongRunning(kind, false);
    match.Play(kSeconds);
  }
  run.counters["times_real"] = benchmark::Counter(static_cast<double>(run.iterations()) * kSeconds,
                                                  benchmark::Counter::kIsRate);
}

bool Register() {
  for (const RivalKind kind : {RivalKind::kClassic, RivalKind::kClever, RivalKind::kMaster}) {
    const std::string name = RivalText({{kind}});
    for (const bool open : {false, true}) {
      const std::string edges = open ? "/open" : "/closed";
      benchmark::RegisterBenchmark(("rivals/choose/" + name + edges).c_str(), Choose, kind, open)
          ->Unit(benchmark::kMicrosecond)
          ->UseManualTime()
          ->Iterations(200);
    }
    benchmark::RegisterBenchmark(("rules/match/" + name).c_str(), PlayMatch, kind)
        ->Unit(benchmark::kMillisecond);
  }
  return true;
}

const bool kRegistered = Register();

}  // namespace
}  // namespace coilrun::bench
