#include "content/ai_snakes.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "content/lines.h"
#include "game/game.h"

namespace coilrun {
namespace {

constexpr std::size_t kMaxNames = 99;

using Names = std::vector<std::string>;

/// The non-blank lines of the names file: an empty list when there is no such file, nothing when
/// the file has no lines at all.
std::optional<Names> LoadAiNames(const Files& files) {
  const auto file = files.Read(InProgramFolder("\\AI_Names.lst"));
  if (!file) return Names{};
  if (file->empty()) return std::nullopt;
  Names names;
  LineReader lines(TextOf(*file));
  for (std::size_t count = 0; count < kMaxNames; ++count) {
    const auto line = lines.Next();
    if (!line) break;
    if (line->find_first_not_of(' ') != line->npos) names.emplace_back(*line);
  }
  return names;
}

/// Rolls a name that no other snake of this set-up gets; a numbered one when none is left.
std::string TakeName(State& state, Names& names, int snake) {
  if (names.empty()) return "AI_Snake " + std::to_string(snake - 1);
  const int rolled = state.Rnd.Below(static_cast<double>(names.size()));
  const std::string name = names.at(static_cast<std::size_t>(rolled));
  std::erase(names, name);
  return "<bot> " + name;
}

bool IsHeld(const State& state, int model) {
  return std::any_of(state.Snakes.begin(), state.Snakes.end(),
                     [model](const SnakeRec& snake) { return snake.Model == model; });
}

}  // namespace

int ChooseAiModel(State& state) {
  for (int model = 0; model <= state.LastModel; ++model) {
    if (!IsHeld(state, model)) return model;
  }
  return state.Rnd.Below(state.LastModel + 1);
}

bool SetupAiSnakes(State& state, const Files& files) {
  const int last = std::min<int>(state.mode.NumSnakes, kMaxSnakes);
  if (last < 2) return true;
  auto names = LoadAiNames(files);
  if (!names) return false;
  for (int number = kPlayer + 1; number <= last; ++number) {
    SnakeRec& snake = state.Snakes(number);
    snake.Dir = Dir::kForw;
    snake.NextDir = Dir::kForw;
    PutOnStart(snake);
    snake.Interval = snake.BaseInterval;
    snake.Model = ChooseAiModel(state);
    snake.Name = TakeName(state, *names, number);
    state.timers.Start(StepTimer(state, number));
  }
  return true;
}

}  // namespace coilrun
