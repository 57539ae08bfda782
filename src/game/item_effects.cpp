#include "game/item_effects.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "game/placement.h"
#include "game/speed.h"
#include "model/feed.h"

namespace coilrun {
namespace {

constexpr std::string_view kCollectSound = "\\snd\\collect.wav";
constexpr std::string_view kLiveSound = "\\snd\\live.wav";

constexpr int kYellowPoints = 10;
constexpr int kRedPoints = 30;
constexpr int kBluePoints = 60;
constexpr int kPowerCost = 100;
constexpr int kPowerSeconds = 20;
/// How many blue items bring a life or a frag.
constexpr int kBluesForReward = 10;
/// Up to this gain in speed, in percent, there is no message.
constexpr int kSpeedWorthTelling = 10;

using std::to_string;

bool IsMultiplayer(const State& state) {
  return coilrun::IsMultiplayer(state.mode.GameMode);
}

/// Takes an eaten coloured item from its place: it is hidden until the next death, or moves on to
/// another place.
void Remove(State& state, ItemKind kind, ItemRec& item, int slot) {
  if (state.level.HideCollected) {
    item.Present = false;
    item.Collected = true;
    return;
  }
  if (state.SpawnPoints.Holds(item.SpawnPoint)) {
    state.SpawnPoints(item.SpawnPoint).State = SpawnUse{SpawnUse::Kind::kJustEaten, {}};
  }
  if (!PlaceItem(state, kind, slot, false)) item.Present = false;
}

/// Rolls for how long a change of speed lasts, sets the timer, and returns the seconds.
int RollSpeedSeconds(State& state) {
  const int seconds = state.Rnd.Below(6) + 4;
  state.timers.SetInterval(state.timers.ResetSpeed, seconds * 1000);
  return seconds;
}

/// `Interval` in percent of `PrevInterval`, cut to a whole number.
int PercentOfPrevious(const State& state, const SnakeRec& eater) {
  const int previous = state.settings.PrevInterval;
  return previous == 0 ? 100 : static_cast<int>(eater.Interval * 100.0 / previous);
}

void TellBoost(State& state, const SnakeRec& eater, int seconds) {
  const int percent = 100 - PercentOfPrevious(state, eater);
  if (percent <= kSpeedWorthTelling) return;
  std::string text = "You are now " + to_string(percent) + "% faster";
  if (!IsMultiplayer(state) && !state.settings.NoSpeedReset) {
    text += " for " + to_string(seconds) + " seconds";
  }
  MessagePrint(state, text);
}

void TakeInterval(State& state, int snake) {
  state.timers.SetInterval(StepTimer(state, snake), state.Snakes(snake).Interval);
}

void Boost(State& state, int snake) {
  SnakeRec& eater = state.Snakes(snake);
  const double fastest = state.settings.MaxSpeed;
  const double boosted = static_cast<double>(eater.BaseInterval) - state.Rnd.Below(fastest);
  eater.Interval = StepPeriod(std::max(boosted, fastest));
  const int seconds = RollSpeedSeconds(state);
  if (snake == kPlayer) TellBoost(state, eater, seconds);
  state.feed.DispMsg = true;
  state.timers.Start(state.timers.ResetSpeed);
  TakeInterval(state, snake);
}

void SlowDown(State& state, int snake) {
  SnakeRec& eater = state.Snakes(snake);
  state.settings.PrevInterval = eater.Interval;
  eater.Interval =
      std::int64_t{eater.BaseInterval} + std::int64_t{state.Rnd.Below(state.settings.MinSpeed)};
  const int seconds = RollSpeedSeconds(state);
  state.timers.Start(state.timers.ResetSpeed);
  if (snake == kPlayer) {
    const int percent = PercentOfPrevious(state, eater) - 100;
    MessagePrint(state, "You are now " + to_string(percent) + "% slower");
    if (!state.settings.NoSpeedReset) {
      MessagePrint(state, "for " + to_string(seconds) + " seconds");
    }
  }
  state.feed.DispMsg = true;
  TakeInterval(state, snake);
}

void LosePoints(State& state, int snake) {
  const int points = state.Rnd.Below(50) + 10;
  state.Snakes(snake).Score -= points;
  if (snake == kPlayer) MessagePrint(state, "You lost " + to_string(points) + " points!");
}

void RewardBlues(Game& game, int snake) {
  SnakeRec& eater = game.state.Snakes(snake);
  if (IsMultiplayer(game.state)) {
    ++eater.Frags;
    MessagePrint(game.state, eater.Name + " got another frag! (10xBlue)");
  } else {
    ++eater.Lives;
    MessagePrint(game.state, "You receive a new live!");
    game.host.PlayEffect(kLiveSound, snake);
  }
  game.host.PlayEffect(kLiveSound, snake);
}

}  // namespace

void EatYellow(Game& game, int snake, ItemRec& item, int slot) {
  State& state = game.state;
  Remove(state, ItemKind::kYellow, item, slot);
  const ItemList& reds = state.Items(ItemKind::kRed);
  if (!state.timers.ResetSpeed.Enabled && !reds(1).Present && reds.count != 0) ShowFirstRed(state);
  SnakeRec& eater = state.Snakes(snake);
  ++eater.Length;
  eater.Score += kYellowPoints;
  game.host.PlayEffect(kCollectSound, snake);
  ++eater.YellowEaten;
}

void EatRed(Game& game, int snake, ItemRec& item, int slot) {
  State& state = game.state;
  Remove(state, ItemKind::kRed, item, slot);
  SnakeRec& eater = state.Snakes(snake);
  eater.Score += kRedPoints;
  state.settings.PrevInterval = StepTimer(state, snake).Interval;
  if (snake == kPlayer) game.host.PlayEffect(kCollectSound, snake);
  if (!state.settings.IncSpeed) {
    Boost(state, snake);
  } else if (snake == kPlayer) {
    MessagePrint(state, "You got 30 points.");
  }
  ++eater.RedEaten;
  ++eater.Length;
}

void EatBlue(Game& game, int snake, ItemRec& item, int slot) {
  game.host.PlayEffect(kCollectSound, snake);
  Remove(game.state, ItemKind::kBlue, item, slot);
  item.Present = false;
  SnakeRec& eater = game.state.Snakes(snake);
  eater.Score += kBluePoints;
  ++eater.BlueEaten;
  if (eater.BlueEaten % kBluesForReward == 0) RewardBlues(game, snake);
  ++eater.Grow;
}

void EatBlack(Game& game, int snake, ItemRec& item, int slot) {
  State& state = game.state;
  Remove(state, ItemKind::kBlack, item, slot);
  item.Present = false;
  if (snake == kPlayer) game.host.PlayEffect(kCollectSound, snake);
  if (state.Rnd.Below(2) == 1) {
    SlowDown(state, snake);
  } else {
    LosePoints(state, snake);
  }
  ++state.Snakes(snake).BlackEaten;
}

void EatTnt(Game& game, int snake, ItemRec& item, int slot) {
  item.Present = false;
  PlaceItem(game.state, ItemKind::kTnt, slot, false);
  if (snake == kPlayer) game.host.PlayEffect(kCollectSound, snake);
  ++game.state.Snakes(snake).TNT;
  MessagePrint(game.state, "You got TNT, now you can blow walls!");
}

void EatPower(Game& game, int snake, ItemRec& item, int slot) {
  State& state = game.state;
  if (state.mode.GodMode || IsMultiplayer(state)) return;
  item.Present = false;
  PlaceItem(state, ItemKind::kPower, slot, false);
  SnakeRec& eater = state.Snakes(snake);
  eater.Score -= kPowerCost;
  game.host.PlayEffect(kCollectSound, snake);
  eater.Immortal = true;
  eater.ImmortalSecs += kPowerSeconds;
  ++eater.PowerEaten;
  MessagePrint(state, eater.Name + " has Atomic Power and is immortal for " +
                          to_string(eater.ImmortalSecs) + " seconds!");
}

}  // namespace coilrun
