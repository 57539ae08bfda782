#include "content/load_level.h"

#include <algorithm>
#include <utility>

#include "content/ai_snakes.h"
#include "content/level_reader.h"
#include "content/lines.h"
#include "content/user_items.h"
#include "game/game.h"
#include "game/match_limit.h"
#include "game/placement.h"
#include "game/snake_timers.h"
#include "model/feed.h"
#include "model/numbers.h"

namespace coilrun {
namespace {

void ClearField(State& state) {
  for (WallRec& wall : state.Walls) wall.Present = false;
  ItemList& power = state.Items(ItemKind::kPower);
  for (int slot = 1; slot <= power.Live(); ++slot) power(slot).Present = false;
  for (SpawnRec& point : state.SpawnPoints) {
    point.Present = false;
    point.State = {};
  }
  for (UserItemRec& item : state.UserItems) {
    item.Present = false;
    item.Name.clear();
  }
  for (const ItemKind kind :
       {ItemKind::kRed, ItemKind::kBlue, ItemKind::kBlack, ItemKind::kTnt, ItemKind::kPower}) {
    state.Items(kind).count = 0;
  }
}

/// Puts a snake back on its start cell in the previous level: the new one is not known yet.
void ResetSnake(State& state, int number) {
  SnakeRec& snake = state.Snakes(number);
  snake.Dir = Dir::kNone;
  snake.NextDir = Dir::kNone;
  ResetSnakeBody(state, number);
  if (state.People.Holds(number)) state.People(number) = {};
  for (Int16 SnakeRec::*const field :
       {&SnakeRec::Frags, &SnakeRec::Deaths, &SnakeRec::RedEaten, &SnakeRec::BlueEaten,
        &SnakeRec::BlackEaten, &SnakeRec::YellowEaten, &SnakeRec::PowerEaten, &SnakeRec::TNT}) {
    snake.*field = 0;
  }
  snake.Score = 0;
  snake.Interval = snake.BaseInterval;
  PutOnStart(snake);
  if (number <= state.mode.NumSnakes) {
    state.timers.SetInterval(StepTimer(state, number), snake.BaseInterval);
  }
}

void ResetProperties(State& state) {
  LevelState& level = state.level;
  state.mode.NumSnakes = 1;
  level.blueRate = 40;
  level.powerRate = 200;
  level.reqYellow = level.reqRed = level.reqBlue = level.reqBlack = 0;
  level.reqScore = 0;
  state.shell.lvlTime = false;
  level.ElapsedSecs = 0;
  level.Timeout = 0;
  for (bool LevelState::*const flag :
       {&LevelState::UsesRed, &LevelState::UsesBlue, &LevelState::UsesBlack, &LevelState::UsesTNT,
        &LevelState::UsesPower, &LevelState::hasOpenWalls, &LevelState::HideCollected,
        &LevelState::UserItemsUsed, &LevelState::SetsPeriod}) {
    level.*flag = false;
  }
}

void ResetMenus(MenuState& menus) {
  menus.MainCursor = 1;
  menus.OptionsCursor = 1;
  menus.EntryLit(1) = true;
  menus.StatusText = "Welcome to Coilrun";
}

/// Empties what the map and the keys of the new level will add to.
void ResetTables(State& state) {
  constexpr Point kDefaultStart{310, 230};
  state.numSpawnPoints = 0;
  state.numUserItems = 0;
  state.Items(ItemKind::kYellow).count = 0;
  state.numWalls = 0;
  SnakeRec& player = state.Snakes(kPlayer);
  player.StartX = kDefaultStart.x;
  player.StartY = kDefaultStart.y;
  player.Dir = Dir::kNone;
  player.NextDir = Dir::kNone;
}

bool PlaceItems(State& state) {
  for (const ItemKind kind : {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue, ItemKind::kBlack,
                              ItemKind::kTnt, ItemKind::kPower}) {
    ItemList& items = state.Items(kind);
    for (int slot = 1; slot <= items.Live(); ++slot) {
      items(slot).Present = PlaceItem(state, kind, slot, true);
    }
    if (items.count > kMaxItems) return false;
  }
  return true;
}

bool LoadPictures(const ContentContext& context) {
  State& state = context.state;
  ConsolePrint(state, "LoadLevel: Loading background image: " + state.level.BkgPic);
  context.host.LoadBackground();
  ConsolePrint(state, "LoadLevel: Loading Textures...");
  context.host.PrepareLvlGfx();
  return !state.level.UserItemsUsed || LoadUserItems(context);
}

/// Sets up the AI snakes that the command line or the level asks for, as far as the map has starts.
bool SetupSnakes(const ContentContext& context) {
  State& state = context.state;
  ModeState& mode = state.mode;
  if (!mode.AiEnabled) {
    StopSnakeTimers(state);
    mode.NumSnakes = 1;
    return true;
  }
  const double asked =
      mode.AiSwitchGiven ? mode.AiCount + 1 : static_cast<double>(int{mode.NumSnakes});
  const double offered = std::min<int>(state.level.MapSnakeCount, kMaxSnakes);
  mode.NumSnakes = RoundToInt(std::clamp(asked, 1.0, std::max(offered, 1.0)));
  StartSnakeTimers(state);
  state.timers.SetInterval(StepTimer(state, kPlayer), state.Snakes(kPlayer).Interval);
  return SetupAiSnakes(state, context.files);
}

void SetMatchLimit(ModeState& mode) {
  if (mode.MatchLimit <= 1) mode.MatchLimit = UsualMatchLimit(mode.HuntingMode);
}

using Fault = std::optional<LevelFault>;

Fault FaultOf(std::string what) {
  return LevelFault{.what = std::move(what)};
}

Fault TryLoadLevel(const ContentContext& context, const std::string& path) {
  State& state = context.state;
  ResetLevelState(context);
  ResetSnakeTimers(state);
  ResetTables(state);
  ConsolePrint(state, "LoadLevel: Loading Level " + path);
  const auto file = context.files.Read(path);
  if (!file) return FaultOf("cannot be read");
  LevelReader reader(context);
  if (!reader.Read(TextOf(*file))) return reader.Fault();
  state.shell.WaitingForStart = true;
  MessagePrint(state, "Welcome!");
  state.shell.Running = true;
  if (!PlaceItems(state)) return FaultOf("more than 300 items of a kind");
  state.numWalls = reader.WallCount();
  if (!LoadPictures(context)) return FaultOf("the picture of a user item cannot be loaded");
  if (!SetupSnakes(context)) return FaultOf("AI_Names.lst is empty");
  SetMatchLimit(state.mode);
  state.shell.ShowLevelScreen = true;
  state.shell.NoGameRunning = false;
  state.level.ElapsedSecs = 0;
  return std::nullopt;
}

}  // namespace

void ResetLevelState(const ContentContext& context) {
  State& state = context.state;
  ClearField(state);
  state.settings.SpeedGain = 0;
  state.settings.SpeedTicks = 0;
  for (int number = 1; number <= kMaxSnakes; ++number) ResetSnake(state, number);
  ResetProperties(state);
  context.host.LoadSettings();
  state.level.BkgPic = "\\gfx\\bkg_standart.bmp";
  state.music.refused.clear();
  ResetMenus(state.menus);
}

std::optional<LevelFault> LoadLevel(const ContentContext& context, const std::string& path) {
  const Fault fault = TryLoadLevel(context, path);
  if (!fault) return std::nullopt;
  State& state = context.state;
  state.shell.NoGameRunning = true;
  state.shell.InMenu = true;
  state.shell.LevelIntroPending = false;
  state.shell.ShowLevelScreen = false;
  state.shell.Running = true;
  state.menus.StatusText = "Level " + path + " does not exist";
  DebugPrint(state, state.menus.StatusText);
  return fault;
}

}  // namespace coilrun
