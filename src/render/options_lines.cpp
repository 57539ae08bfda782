#include "render/options_lines.h"

#include <array>

#include "model/numbers.h"
#include "model/shown_model.h"

namespace coilrun {
namespace {

struct OptionsLine {
  Point at;
  std::string_view label;
  std::string (*value)(const State& state);
};

std::string YesNo(bool value) {
  return std::string{YesNoText(value)};
}

constexpr std::array<OptionsLine, kOptionsLines> kLines = {{
    {{55, 220},
     "Maximum Speed: ",
     [](const State& s) { return NumberText(s.settings.MaxSpeed.Own()); }},
    {{55, 240},
     "Minimum Speed: ",
     [](const State& s) { return NumberText(s.settings.MinSpeed.Own()); }},
    {{55, 260}, "Global Speed: ", [](const State& s) { return NumberText(ShownGlobalSpeed(s)); }},
    {{55, 305}, "No Speed Reset: ", [](const State& s) { return YesNo(s.settings.NoSpeedReset); }},
    {{55, 325}, "Speed!: ", [](const State& s) { return YesNo(s.settings.IncSpeed.Own()); }},
    {{60, 345},
     "Speed rate: ",
     [](const State& s) { return NumberText(s.settings.SpeedRate.Own()); }},
    {{55, 390}, "Show FPS Counter: ", [](const State& s) { return YesNo(s.shell.ShowFPS); }},
    {{50, 415}, "Player Name: ", [](const State& s) { return s.Snakes(kPlayer).Name; }},
    {{255, 220}, "3D Items: ", [](const State& s) { return YesNo(s.settings.AnimatedItems); }},
    {{255, 260}, "Effects enabled: ", [](const State& s) { return YesNo(s.settings.SndEnabled); }},
    {{255, 280},
     "AI Effects enabled: ",
     [](const State& s) { return YesNo(s.settings.KiSndEnabled); }},
    {{255, 300}, "Music On: ", [](const State& s) { return YesNo(s.settings.MusicEnabled); }},
    {{255, 320},
     "Music Volume: ",
     [](const State& s) { return NumberText(s.settings.MusicVolume); }},
    {{300, 415},
     "Player Model: ",
     [](const State& s) { return ModelText(s, s.Snakes(kPlayer).Model); }},
}};

const OptionsLine& Line(int number) {
  return kLines.at(static_cast<std::size_t>(number - 1));
}

}  // namespace

Point OptionsLineAt(int line) {
  return Line(line).at;
}

std::string OptionsLineText(const State& state, int line) {
  return std::string{Line(line).label} + Line(line).value(state);
}

double ShownGlobalSpeed(const State& state) {
  return state.level.SetsPeriod ? state.settings.GlobalSpeed
                                : int{state.Snakes(kPlayer).BaseInterval};
}

std::string ModelText(const State& state, int model) {
  const int shown = ShownModel(state, model);
  if (!state.ModelPacks.Holds(shown)) return {};
  const ModelPack& pack = state.ModelPacks(shown);
  return pack.Name + " by " + pack.Author;
}

std::string_view YesNoText(bool value) {
  return value ? "yes" : "no";
}

}  // namespace coilrun
