#include "menus/match_page.h"

#include <algorithm>

#include "game/game_over.h"
#include "game/match.h"
#include "game/match_limit.h"
#include "menus/question.h"
#include "menus/word_steps.h"

namespace coilrun {
namespace {

constexpr int kSmallestLimit = 5;
constexpr int kLimitStep = 5;
constexpr Point kPictureAt{365, 204};
constexpr Point kTitleAt{365, 368};
constexpr Point kStartsAt{365, 386};

MatchChoice& Match(MenuContext& menus) {
  return menus.state.more.Match;
}

int LargestLimit(MatchMode mode) {
  constexpr int kLength = 95;
  constexpr int kFrags = 200;
  return mode == MatchMode::kHunting ? kLength : kFrags;
}

MatchMode AskedMode(const GameAsked& asked) {
  if (!IsMultiplayer(asked.GameMode)) return MatchMode::kCampaign;
  return asked.HuntingMode ? MatchMode::kHunting : MatchMode::kDeathmatch;
}

/// What wins a match in this mode when the level says nothing.
int LimitOf(const State& state, MatchMode mode) {
  const GameAsked& asked = state.more.Asked;
  if (mode == AskedMode(asked) && asked.MatchLimit > 1) return asked.MatchLimit;
  return UsualMatchLimit(mode == MatchMode::kHunting);
}

/// How many computer snakes have a start besides the people's.
int MostComputers(const State& state, const LevelOutline& level) {
  return std::max(level.starts - PeopleInPlay(state), 0);
}

/// Adopts what the level suggests, and no more rivals than it has starts for.
void FitTo(State& state, const LevelOutline* level) {
  MatchChoice& match = state.more.Match;
  int limit = LimitOf(state, match.Mode);
  if (level != nullptr) {
    limit = level->matchLimit.value_or(limit);
    match.Computers = std::min<int>(match.Computers, MostComputers(state, *level));
  }
  match.Limit = std::min(limit, LargestLimit(match.Mode));
}

void ChangeMode(MenuContext& menus, LineAct act, int /*subject*/) {
  const int step = StepOrEnter(act);
  if (step == 0) return;
  StepWord(Match(menus).Mode, step);
  FitTo(menus.state, menus.levels.Find(Match(menus).Level));
}

void ChangeLevel(MenuContext& menus, LineAct act, int /*subject*/) {
  const int step = StepOrEnter(act);
  const auto& all = menus.levels.All();
  if (step == 0 || all.empty()) return;
  const LevelOutline* const shown = menus.levels.Find(Match(menus).Level);
  const int last = static_cast<int>(all.size());
  const int number = shown == nullptr ? 0 : static_cast<int>(shown - all.data()) + 1;
  const int next = shown == nullptr ? 1 : Wrapped(number + step, last);
  const LevelOutline& level = all.at(static_cast<std::size_t>(next - 1));
  Match(menus).Level = level.file;
  FitTo(menus.state, &level);
}

void ChangeComputers(MenuContext& menus, LineAct act, int /*subject*/) {
  const LevelOutline* const level = menus.levels.Find(Match(menus).Level);
  const int most = level == nullptr ? 0 : MostComputers(menus.state, *level);
  Int16& computers = Match(menus).Computers;
  computers = std::clamp(computers + StepOrEnter(act), -1, most);
}

/// Moves to the next limit, by fives.
void ChangeLimit(MenuContext& menus, LineAct act, int /*subject*/) {
  const int step = StepOrEnter(act);
  if (step == 0) return;
  MatchChoice& match = Match(menus);
  const int limit = match.Limit;
  const int next = step > 0 ? limit / kLimitStep * kLimitStep + kLimitStep
                            : (limit + kLimitStep - 1) / kLimitStep * kLimitStep - kLimitStep;
  match.Limit = std::clamp(next, kSmallestLimit, LargestLimit(match.Mode));
}

void BeginAnew(State& state) {
  ModeState& mode = state.mode;
  mode.GodMode = false;
  mode.NoClip = false;
  mode.Cheated = false;
  SnakeRec& player = state.Snakes(kPlayer);
  player.TotalScore = 0;
  player.Lives = kLivesOfAGame;
}

void Start(MenuContext& menus, LineAct act, int /*subject*/) {
  State& state = menus.state;
  if (act != LineAct::kEnter || AsksFirst(state)) return;
  menus.game.host.PlayEffect("\\snd\\collect.wav", kPlayer);
  BeginAnew(state);
  BeginMatch(state);
  menus.game.host.LoadLevel(InProgramFolder("\\lvl\\", state.more.Match.Level));
  if (state.shell.NoGameRunning) return;
  menus.host.StorePage();
  state.more.Page = MorePage::kNone;
  state.more.Cursor = 0;
  state.shell.InMenu = false;
  state.shell.LevelIntroPending = true;
}

std::string ComputersText(MenuContext& menus, int /*subject*/) {
  const int computers = Match(menus).Computers;
  return computers < 0 ? "the level's own" : std::to_string(computers);
}

std::string LimitText(MenuContext& menus, int /*subject*/) {
  const MatchChoice& match = Match(menus);
  const std::string number = std::to_string(match.Limit);
  return match.Mode == MatchMode::kHunting ? "length " + number : number + " frags";
}

TextLook LookOfLimit(MenuContext& menus, int /*subject*/) {
  return Match(menus).Mode == MatchMode::kCampaign ? TextLook::kDimmed : TextLook::kPlain;
}

std::string StartsText(const State& state, const LevelOutline& level) {
  const int most = MostComputers(state, level);
  if (most == 0) return "No starts for computer snakes";
  return "Starts for " + std::to_string(most) +
         (most == 1 ? " computer snake" : " computer snakes");
}

}  // namespace

Lines MatchLines(MenuContext& /*menus*/) {
  constexpr int kX = 55;
  return {
      {.at = {kX, 215},
       .label = "Mode: ",
       .value = [](MenuContext& m, int) { return std::string{Word(Match(m).Mode)}; },
       .help = "Campaign: level by level. Deathmatch: frags win. Hunting: length wins",
       .act = ChangeMode},
      {.at = {kX, 240},
       .label = "Level: ",
       .value = [](MenuContext& m, int) { return Match(m).Level; },
       .help = "The level that the game is played in, or begins with",
       .act = ChangeLevel},
      {.at = {kX, 265},
       .label = "Computer snakes: ",
       .value = ComputersText,
       .help = "How many rivals; no more than the level has starts for",
       .act = ChangeComputers},
      {.at = {kX, 290},
       .label = "Limit: ",
       .value = LimitText,
       .help = "What wins a match; a campaign needs none",
       .act = ChangeLimit,
       .look = LookOfLimit},
      {.at = {kX, 330}, .label = "Start", .help = "Start the game", .act = Start},
  };
}

void DrawMatchLevel(MenuContext& menus) {
  const std::string& file = Match(menus).Level;
  MenuPages& page = menus.renderer.Menus();
  const LevelOutline* const level = menus.levels.Find(file);
  const State* const field = menus.levels.FieldOf(file);
  if (level == nullptr || field == nullptr) {
    return page.DrawText("There is no such level", kPictureAt, TextLook::kWarning);
  }
  menus.renderer.DrawLevelPicture(*field, file, kPictureAt.x, kPictureAt.y);
  page.DrawText(level->title, kTitleAt, TextLook::kPlain);
  page.DrawText(StartsText(menus.state, *level), kStartsAt, TextLook::kDimmed);
}

void LookAtLevels(MenuContext& menus) {
  menus.levels.Forget();
  menus.renderer.ForgetLevelPicture();
  MatchChoice& match = Match(menus);
  const auto& all = menus.levels.All();
  if (all.empty() || menus.levels.Find(match.Level) != nullptr) return;
  match.Level = all.front().file;
  FitTo(menus.state, &all.front());
}

void ChooseFirstMatch(State& state, LevelChoice& levels) {
  MatchChoice& match = state.more.Match;
  match.Mode = AskedMode(state.more.Asked);
  const auto first = levels.First();
  if (first) match.Level = first->file;
  FitTo(state, first ? &*first : nullptr);
}

}  // namespace coilrun
