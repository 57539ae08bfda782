#include "game/match.h"

#include <optional>

#include "game/game_over.h"
#include "game/waiting.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

bool IsMatch(const MatchChoice& match) {
  return match.Mode != MatchMode::kCampaign;
}

void SetComputers(ModeState& mode, std::optional<double> computers) {
  mode.AiSwitchGiven = computers.has_value();
  mode.AiCount = computers.value_or(0);
  mode.AiEnabled = mode.AiCount > 0;
}

}  // namespace

void NoteAskedGame(State& state) {
  const ModeState& mode = state.mode;
  const bool isMatch = IsMultiplayer(mode.GameMode);
  GameAsked& asked = state.more.Asked;
  asked.GameMode = mode.GameMode;
  asked.HuntingMode = isMatch && mode.HuntingMode;
  asked.MatchLimit = mode.MatchLimit;
  if (mode.AiSwitchGiven) asked.Computers = mode.AiCount;
}

void BeginMatch(State& state) {
  const MatchChoice& match = state.more.Match;
  ModeState& mode = state.mode;
  mode.GameMode = IsMatch(match) ? GameMode::kDeathmatch : GameMode::kSingle;
  mode.HuntingMode = match.Mode == MatchMode::kHunting;
  mode.MatchLimit = match.Limit;
  SetComputers(mode, match.Computers < 0 ? std::nullopt : std::optional<double>{match.Computers});
  state.more.isFromMatchPage = true;
}

void EndMatch(State& state) {
  if (!state.more.isFromMatchPage) return;
  const GameAsked& asked = state.more.Asked;
  ModeState& mode = state.mode;
  mode.GameMode = asked.GameMode;
  mode.HuntingMode = asked.HuntingMode;
  mode.MatchLimit = asked.MatchLimit;
  SetComputers(mode, asked.Computers);
  state.more.isFromMatchPage = false;
}

bool EndsWithItsLevel(const State& state) {
  return state.more.isFromMatchPage && IsMultiplayer(state.mode.GameMode);
}

void FinishMatch(Game& game) {
  State& state = game.state;
  state.shell.Running = false;
  state.overlay = WaitOverlay::kMatchResult;
  WaitForKey(game, kKeyEnter);
  state.overlay = WaitOverlay::kNone;
  for (int snake = 1; snake <= SnakesInPlay(state); ++snake) ResetSnakeBody(state, snake);
  LeaveGame(state);
  state.more.Page = MorePage::kMatch;
  state.more.Cursor = kMatchPageStart;
  state.shell.Running = true;
  game.host.RunMenus();
  state.Snakes(kPlayer).Score = 0;
}

}  // namespace coilrun
