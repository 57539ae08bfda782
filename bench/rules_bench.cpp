#include <benchmark/benchmark.h>

#include "crowd.h"
#include "game/collision.h"

namespace coilrun::bench {
namespace {

/// Does nothing: rules that are only measured ask the host for nothing.
class SilentHost : public GameHost {
 public:
  void PlayEffect(std::string_view, int) override {}
  void DrawFrame() override {}
  void Yield() override {}
  void LoadLevel(const std::string&) override {}
  void RunMenus() override {}
  void LoadSettings() override {}
  void RefreshHighScores() override {}
  void SaveSettings() override {}
};

/// Puts the heads in a column of their own that no body, item or wall touches. Every test is made
/// and none hits, so each pass does the same full amount of work.
void ClearHeads(State& state) {
  constexpr int kColumn = 320;
  constexpr int kClearance = 60;
  const auto move = [](auto& at) {
    if (std::abs(at.X - kColumn) < kClearance) at.X = kColumn + kClearance;
  };
  for (int s = 1; s <= state.mode.NumSnakes; ++s) {
    SnakeRec& snake = state.Snakes(s);
    for (SegRec& seg : snake.Seg) move(seg);
    move(snake.Tail);
    snake.X = kColumn;
    snake.Y = 20 + 27 * (s - 1);
  }
  for (ItemList& items : state.itemLists) {
    for (ItemRec& item : items.slots) move(item);
  }
}

bool IsUntouched(const State& state) {
  for (int s = 1; s <= state.mode.NumSnakes; ++s) {
    const SnakeRec& snake = state.Snakes(s);
    if (snake.Length != kMaxLength || snake.Deaths != 0 || snake.Score != 0) return false;
  }
  return true;
}

void Rules(benchmark::State& run) {
  State state;
  Put(state, Worst());
  ClearHeads(state);
  state.level.reqYellow = 1000;
  SilentHost host;
  Game game{state, host};
  for (auto _ : run) {
    ColChk(game);
    benchmark::ClobberMemory();
  }
  if (!IsUntouched(state)) run.SkipWithError("something was hit: the worst case is gone");
}

const auto* const kRulesWorst =
    benchmark::RegisterBenchmark("rules/worst", Rules) -> Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coilrun::bench
