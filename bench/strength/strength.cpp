#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

#include "rivals/rivals.h"
#include "support/arena.h"
#include "support/match.h"

namespace coilrun::bench {
namespace {

constexpr int kRuns = 3;
constexpr int kSecondsARun = 600;
/// Rivals are tuned on the seeds below this one.
constexpr int kFirstSeed = 100;

/// What all snakes of one kind went through in all runs.
struct Tally {
  Career career;
  int frags = 0;
  int snakes = 0;

  void Add(Match& match, int snake) {
    const Career& more = match.Of(snake);
    for (int Career::*const count :
         {&Career::byWall, &Career::byEdge, &Career::byItself, &Career::byOthers, &Career::eaten}) {
      career.*count += more.*count;
    }
    frags += match.state().Snakes(snake).Frags;
    ++snakes;
  }
};

void Print(const char* arena, int rivals, RivalKind kind, const Tally& tally) {
  const Career& career = tally.career;
  const double seconds = static_cast<double>(tally.snakes) * kSecondsARun;
  std::printf("%-8s %4d  %-8s %8.1f %7d %6d %6d %6d %6d %8.2f %8.1f\n", arena, rivals,
              RivalText({{kind}}).c_str(), seconds / std::max(career.Deaths(), 1), career.Deaths(),
              career.byWall, career.byEdge, career.byItself, career.byOthers,
              60 * tally.frags / seconds, 60 * career.eaten / seconds);
}

/// Plays the runs of one row of the table for each kind that takes part.
void PlayArena(const char* name, ArenaPlan plan, const RivalList& list) {
  std::array<Tally, 3> tallies;
  const std::clock_t start = std::clock();
  for (int run = 1; run <= kRuns; ++run) {
    plan.seed = static_cast<std::uint64_t>(kFirstSeed + run);
    Match match({.level = Arena(plan).Text(), .seed = plan.seed}, MakeDrivers(list));
    match.Play(kSecondsARun);
    for (int s = 2; s <= plan.rivals + 1; ++s) {
      const RivalKind kind = list.kinds[static_cast<std::size_t>(s - 2) % list.kinds.size()];
      tallies.at(static_cast<std::size_t>(kind)).Add(match, s);
    }
  }
  const double cpu = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / kRuns;
  for (const RivalKind kind : {RivalKind::kClassic, RivalKind::kClever, RivalKind::kMaster}) {
    const Tally& tally = tallies.at(static_cast<std::size_t>(kind));
    if (tally.snakes > 0) Print(name, plan.rivals, kind, tally);
  }
  std::printf("%60s %.2f s of processor time a run\n", "", cpu);
}

}  // namespace
}  // namespace coilrun::bench

/// Prints how the kinds given (a list as for `--rivals`) fare in deathmatches of ten minutes.
int main(int argc, char** argv) {
  using namespace coilrun;
  const auto list = RivalsFromText(argc > 1 ? argv[1] : "classic");
  if (!list) {
    std::fprintf(stderr, "%s is not a list of rivals\n", argv[1]);
    return 2;
  }
  std::printf("%-8s %4s  %-8s %8s %7s %6s %6s %6s %6s %8s %8s\n", "arena", "num", "kind", "life s",
              "deaths", "wall", "edge", "itself", "others", "frags/m", "eaten/m");
  for (const int rivals : {4, 8, 15}) {
    bench::PlayArena("open", {.openEdges = true, .rivals = rivals}, *list);
    bench::PlayArena("closed", {.rivals = rivals}, *list);
    bench::PlayArena("walled", {.rim = true, .segments = 12, .rivals = rivals}, *list);
  }
}
