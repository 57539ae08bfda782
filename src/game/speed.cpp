#include "game/speed.h"

#include <algorithm>
#include <cmath>

#include "game/game.h"
#include "model/numbers.h"

namespace coilrun {
namespace {

/// The level clock stops here.
constexpr int kLastSecond = 32001;
/// Ticks of the level clock between two steps of the "Speed!" option.
constexpr int kSpeedUpTicks = 2;

/// The player's normal step period minus what the "Speed!" option has taken off it.
int SpedUpPeriod(const State& state) {
  const SettingsState& settings = state.settings;
  const double period = std::trunc(state.Snakes(kPlayer).BaseInterval - settings.SpeedGain);
  return StepPeriod(std::max<double>(period, settings.MaxSpeed));
}

bool LevelClockRuns(const ShellState& shell) {
  return shell.lvlTime && !shell.IsPause && !shell.InMenu;
}

void SpeedUp(State& state) {
  state.settings.SpeedGain += state.settings.SpeedRate;
  state.timers.SetInterval(StepTimer(state, kPlayer), SpedUpPeriod(state));
}

}  // namespace

void TickSecond(State& state) {
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    if (state.Snakes(s).Immortal) --state.Snakes(s).ImmortalSecs;
  }
  if (!LevelClockRuns(state.shell)) return;
  if (state.level.ElapsedSecs < kLastSecond) ++state.level.ElapsedSecs;
  ++state.settings.SpeedTicks;
  if (state.settings.IncSpeed && state.settings.SpeedTicks % kSpeedUpTicks == 0) SpeedUp(state);
}

void SpeedReset(State& state) {
  Timers& timers = state.timers;
  if (!state.settings.NoSpeedReset) {
    const int normal = state.Snakes(kPlayer).BaseInterval;
    timers.SetInterval(StepTimer(state, kPlayer),
                       state.settings.IncSpeed ? SpedUpPeriod(state) : normal);
    const bool redReturns = state.Rnd.Below(5) == 2;
    if (redReturns && !state.level.HideCollected) ShowFirstRed(state);
  }
  timers.Stop(timers.ResetSpeed);
}

void ShowFirstRed(State& state) {
  ItemRec& first = state.Items(ItemKind::kRed)(1);
  if (first.At() != kParked) first.Present = true;
}

Int16 StepPeriod(double milliseconds) {
  if (std::isnan(milliseconds)) return {};
  return static_cast<std::int64_t>(std::clamp(RoundHalfEven(milliseconds),
                                              static_cast<double>(Int16::kMin),
                                              static_cast<double>(Int16::kMax)));
}

}  // namespace coilrun
