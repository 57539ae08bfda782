#include "menus/options_page.h"

#include <algorithm>

#include "model/numbers.h"
#include "model/shown_model.h"

namespace coilrun {
namespace {

constexpr int kModelLine = 14;

SettingsState& Settings(MenuContext& menus) {
  return menus.state.settings;
}

/// The step period that "Global Speed" stands for: the player's own, whatever the level has set.
double ShownGlobalSpeed(const State& state) {
  return state.level.SetsPeriod ? state.settings.GlobalSpeed
                                : int{state.Snakes(kPlayer).BaseInterval};
}

/// Name and author of the pack that a model is shown with; "" if there are no packs.
std::string ModelText(const State& state, int model) {
  const int shown = ShownModel(state, model);
  if (!state.ModelPacks.Holds(shown)) return {};
  const ModelPack& pack = state.ModelPacks(shown);
  return pack.Name + " by " + pack.Author;
}

void StepWithin(LineAct act, double& value, double by, double lowest, double highest) {
  value = std::min(std::max(value + StepOf(act) * by, lowest), highest);
}

void Toggle(LineAct act, bool& flag) {
  if (act != LineAct::kNone) flag = !flag;
}

void ChangeGlobalSpeed(MenuContext& menus, LineAct act, int /*subject*/) {
  State& state = menus.state;
  SettingsState& settings = state.settings;
  double speed = ShownGlobalSpeed(state);
  StepWithin(act, speed, 1, settings.MaxSpeed.Own(), settings.MinSpeed.Own());
  settings.GlobalSpeed = RoundToInt(speed);
  if (state.level.SetsPeriod) return;
  SnakeRec& player = state.Snakes(kPlayer);
  player.BaseInterval = RoundToInt(speed);
  state.timers.SetInterval(StepTimer(state, kPlayer), player.BaseInterval);
}

void TypePlayerName(MenuContext& menus, LineAct /*act*/, int /*subject*/) {
  menus.state.menus.TypingActive = true;
  menus.state.menus.InputTarget = InputTarget::kPlayerName;
}

void SwitchMusic(MenuContext& menus, LineAct act, int /*subject*/) {
  Toggle(act, Settings(menus).MusicEnabled);
  Music& music = menus.music;
  if (!music.Loaded() || !Settings(menus).MusicEnabled) {
    music.snStopMusic();
  } else if (!menus.state.music.MusicPlaying) {
    music.snPlayMusic(true, 0);
  }
}

void ChangeMusicVolume(MenuContext& menus, LineAct act, int /*subject*/) {
  Int16& volume = Settings(menus).MusicVolume;
  volume = std::clamp(volume + StepOf(act), 0, 100);
  menus.music.snMusicVolume(volume);
}

void ChangeModel(MenuContext& menus, LineAct act, int /*subject*/) {
  State& state = menus.state;
  Int16& model = state.Snakes(kPlayer).Model;
  model = std::max(std::min<int>(ShownModel(state, model) + StepOrEnter(act), state.LastModel), 0);
}

bool IsMatch(const State& state) {
  return IsMultiplayer(state.mode.GameMode);
}

TextLook LookOfMutator(MenuContext& menus, int /*subject*/) {
  return menus.state.mode.GameMode == GameMode::kDeathmatch ? TextLook::kDimmed : TextLook::kPlain;
}

Lines MakeLines() {
  using M = MenuContext;
  return {
      {{55, 220},
       195,
       "Maximum Speed: ",
       [](M& m, int) { return NumberText(Settings(m).MaxSpeed.Own()); },
       "Set the maximum game speed [10fast - 60slow]",
       [](M& m, LineAct a, int) { StepWithin(a, Settings(m).MaxSpeed.Own(), 1, 10, 60); },
       0,
       nullptr,
       "Speed Settings",
       {50, 200}},
      {{55, 240},
       195,
       "Minimum Speed: ",
       [](M& m, int) { return NumberText(Settings(m).MinSpeed.Own()); },
       "Set the minimum game speed [100fast - 250slow]",
       [](M& m, LineAct a, int) { StepWithin(a, Settings(m).MinSpeed.Own(), 1, 100, 250); }},
      {{55, 260},
       195,
       "Global Speed: ",
       [](M& m, int) { return NumberText(ShownGlobalSpeed(m.state)); },
       "Set the global game speed [maximum and minumem set above]",
       ChangeGlobalSpeed},
      {{55, 305},
       195,
       "No Speed Reset: ",
       [](M& m, int) { return YesNo(Settings(m).NoSpeedReset); },
       "Will cause the game not to reset the speed after you collected a banana [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, Settings(m).NoSpeedReset); },
       0,
       LookOfMutator,
       "Game (Speed) Mutators",
       {50, 285}},
      {{55, 325},
       195,
       "Speed!: ",
       [](M& m, int) { return YesNo(Settings(m).IncSpeed.Own()); },
       "Increase the game speed every 2 seconds [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, Settings(m).IncSpeed.Own()); },
       0,
       LookOfMutator},
      {{60, 345},
       190,
       "Speed rate: ",
       [](M& m, int) { return NumberText(Settings(m).SpeedRate.Own()); },
       "Set the speed increase value [0.5 - 30] (Speed will increase by it every 2 seconds)",
       [](M& m, LineAct a, int) { StepWithin(a, Settings(m).SpeedRate.Own(), 0.5, 0.5, 30); },
       0,
       LookOfMutator},
      {{55, 390},
       195,
       "Show FPS Counter: ",
       [](M& m, int) { return YesNo(m.state.shell.ShowFPS); },
       "Show an FPS counter in the top right edge [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, m.state.shell.ShowFPS); },
       0,
       nullptr,
       "Game Options",
       {50, 370}},
      {{50, 415},
       240,
       "Player Name: ",
       [](M& m, int) { return m.state.Snakes(kPlayer).Name; },
       "Type your name (14 chars max.) Press enter to clear",
       TypePlayerName},
      {{255, 220},
       300,
       "3D Items: ",
       [](M& m, int) { return YesNo(Settings(m).AnimatedItems); },
       "Show new animated 3D Items [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, Settings(m).AnimatedItems); },
       0,
       nullptr,
       "GFX:",
       {250, 200}},
      {{255, 260},
       300,
       "Effects enabled: ",
       [](M& m, int) { return YesNo(Settings(m).SndEnabled); },
       "Play sounds [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, Settings(m).SndEnabled); },
       0,
       nullptr,
       "Sound:",
       {250, 240}},
      {{255, 280},
       300,
       "AI Effects enabled: ",
       [](M& m, int) { return YesNo(Settings(m).KiSndEnabled); },
       "Allow AI Snakes to play sounds [Yes/No]",
       [](M& m, LineAct a, int) { Toggle(a, Settings(m).KiSndEnabled); }},
      {{255, 300},
       300,
       "Music On: ",
       [](M& m, int) { return YesNo(Settings(m).MusicEnabled); },
       "Enable Music?",
       SwitchMusic},
      {{255, 320},
       300,
       "Music Volume: ",
       [](M& m, int) { return NumberText(Settings(m).MusicVolume); },
       "Set the Music Volume (in %)",
       ChangeMusicVolume},
      {{300, 415},
       300,
       "Player Model: ",
       [](M& m, int) { return ModelText(m.state, m.state.Snakes(kPlayer).Model); },
       "Select your color!",
       ChangeModel},
  };
}

LineAct PendingAct(MenuAction action) {
  switch (action) {
    case MenuAction::kCycle:
      return LineAct::kEnter;
    case MenuAction::kMinus:
      return LineAct::kLeft;
    case MenuAction::kPlus:
      return LineAct::kRight;
    case MenuAction::kNone:
      break;
  }
  return LineAct::kNone;
}

void ApplyAction(MenuContext& menus, const Line& line) {
  MenuState& now = menus.state.menus;
  const bool isMutator = line.look == LookOfMutator;
  const bool barred = isMutator && IsMatch(menus.state);
  now.StatusText = barred ? "Not in DM mode" : line.help;
  if (!barred) line.act(menus, PendingAct(now.MenuAction), line.subject);
  now.MenuAction = MenuAction::kNone;
}

void DrawOptions(MenuContext& menus) {
  menus.renderer.Menus().DrawOptionsBackground();
  DrawLines(menus, OptionsLines());
  menus.renderer.Menus().DrawModelPreview();
}

}  // namespace

const Lines& OptionsLines() {
  static const Lines kLines = MakeLines();
  return kLines;
}

void OptionsPage(MenuContext& menus) {
  DrawOptions(menus);
  Int16& cursor = menus.state.menus.OptionsCursor;
  const Lines& lines = OptionsLines();
  cursor = Wrapped(cursor, static_cast<int>(lines.size()));
  const Line& line = lines.at(static_cast<std::size_t>(cursor - 1));
  ApplyAction(menus, line);
  DrawLit(menus, line);
  if (cursor == kModelLine) menus.renderer.Menus().DrawModelPreview();
  menus.renderer.Menus().DrawStatus(menus.state.menus.StatusText);
}

}  // namespace coilrun
