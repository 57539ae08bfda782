#include "shell/settings.h"

#include <algorithm>
#include <string>

#include "model/numbers.h"
#include "model/shown_model.h"

namespace coilrun {
namespace {

constexpr std::string_view kTweak = "Tweak";
constexpr std::string_view kOptions = "Options";
constexpr std::string_view kHiScore = "HiScore";

double DefaultScore(int place) {
  return 10000 - (place - 1) * 1000.0;
}

class Reader {
 public:
  Reader(const SettingsStore& store, std::string_view section) : store_(store), section_(section) {}

  void Number(std::string_view key, double& value, double fallback) const {
    value = NumberOr(key, fallback);
  }
  /// A step period or a range of periods; one that no snake can have counts as missing.
  double Speed(std::string_view key, double fallback) const {
    const double speed = NumberOr(key, fallback);
    return speed >= 1 ? speed : fallback;
  }
  void Integer(std::string_view key, Int16& value, int fallback) const {
    const auto text = store_.Get(section_, key);
    if (!text) {
      value = fallback;
      return;
    }
    const auto number = WholeNumber(*text, true);
    const auto integer = number ? ToInt16(*number) : std::nullopt;
    if (integer) value = *integer;
  }
  void Boolean(std::string_view key, bool& value, bool fallback) const {
    const auto text = store_.Get(section_, key);
    value = text ? ToBoolean(*text).value_or(value) : fallback;
  }
  void IntegerWithin(std::string_view key, Int16& value, int fallback, int lowest,
                     int highest) const {
    Integer(key, value, fallback);
    if (value < lowest || value > highest) value = fallback;
  }
  void Name(std::string_view key, std::string& value) const {
    value = store_.Get(section_, key).value_or(std::string{kUnknownName}).substr(0, kLongestName);
  }

  double NumberOr(std::string_view key, double fallback) const {
    const auto text = store_.Get(section_, key);
    return text ? LeadingNumber(*text, true) : fallback;
  }

 private:
  const SettingsStore& store_;
  std::string_view section_;
};

void LoadTweaks(State& state, const SettingsStore& store) {
  SettingsState& settings = state.settings;
  const Reader tweak(store, kTweak);
  settings.MinSpeed = tweak.Speed("MinSpeed", 20);
  settings.MaxSpeed = tweak.Speed("MaxSpeed", 250);
  if (IsMultiplayer(state.mode.GameMode)) {
    settings.SpeedRate = 0.5;
    settings.NoSpeedReset = true;
    settings.IncSpeed = false;
  } else {
    settings.SpeedRate = tweak.NumberOr("Speed", 0.5);
    tweak.Boolean("RsetSpeed", settings.NoSpeedReset, false);
    bool increase = settings.IncSpeed.Own();
    tweak.Boolean("IncSpeed", increase, false);
    settings.IncSpeed = increase;
  }
}

void LoadOptions(State& state, const SettingsStore& store) {
  SettingsState& settings = state.settings;
  const Reader options(store, kOptions);
  settings.GlobalSpeed = options.Speed("gSpeed", 100);
  state.level.SetsPeriod = false;
  if (const auto interval = ToInt16(settings.GlobalSpeed)) {
    for (SnakeRec& snake : state.Snakes) snake.BaseInterval = *interval;
  }
  options.Boolean("Show FPS", state.shell.ShowFPS, true);
  options.Boolean("AnimatedItems", settings.AnimatedItems, true);
  options.Boolean("SndEnabled", settings.SndEnabled, true);
  options.Boolean("KiSndEnabled", settings.KiSndEnabled, true);
  options.Boolean("MusicEnabled", settings.MusicEnabled, true);
  options.IntegerWithin("MusicVolume", settings.MusicVolume, 30, 0, 100);
  options.Boolean("NoCleanUp", settings.NoCleanUp, false);
  options.Boolean("NewInstall", settings.NewInstall, true);
  options.Name("Player Name", state.Snakes(kPlayer).Name);
  options.IntegerWithin("Player Color", state.Snakes(kPlayer).Model, kDefaultModel, 0, Int16::kMax);
}

/// Calls `take` with section, key and text of every saved value, in order.
template <typename Take>
void EachHiScore(const State& state, Take take) {
  for (int place = 1; place <= kHiScores; ++place) {
    take(kHiScore, std::to_string(place) + "Name", state.HiScore(place).Name);
    take(kHiScore, std::to_string(place) + "Score", NumberText(state.HiScore(place).Score));
  }
}

template <typename Take>
void EachOption(const State& state, Take take) {
  const SettingsState& settings = state.settings;
  take(kTweak, "MinSpeed", NumberText(settings.MinSpeed.Own()));
  take(kTweak, "MaxSpeed", NumberText(settings.MaxSpeed.Own()));
  if (!IsMultiplayer(state.mode.GameMode)) {
    take(kTweak, "Speed", NumberText(settings.SpeedRate.Own()));
    take(kTweak, "RsetSpeed", BooleanText(settings.NoSpeedReset));
    take(kTweak, "IncSpeed", BooleanText(settings.IncSpeed.Own()));
  }
  take(kOptions, "gSpeed", NumberText(settings.GlobalSpeed));
  take(kOptions, "Show FPS", BooleanText(state.shell.ShowFPS));
  take(kOptions, "AnimatedItems", BooleanText(settings.AnimatedItems));
  take(kOptions, "Player Name", state.Snakes(kPlayer).Name);
  take(kOptions, "SndEnabled", BooleanText(settings.SndEnabled));
  take(kOptions, "Player Color", NumberText(state.Snakes(kPlayer).Model));
  take(kOptions, "KiSndEnabled", BooleanText(settings.KiSndEnabled));
  take(kOptions, "MusicEnabled", BooleanText(settings.MusicEnabled));
  take(kOptions, "MusicVolume", NumberText(settings.MusicVolume));
  take(kOptions, "NoCleanUp", BooleanText(settings.NoCleanUp));
}

auto TakingAsRead(SettingsStore& store) {
  return [&store](std::string_view section, std::string_view key, std::string_view value) {
    store.TakeAsRead(section, key, value);
  };
}

}  // namespace

void LoadHiScores(State& state, SettingsStore& store) {
  const Reader scores(store, kHiScore);
  for (int place = 1; place <= kHiScores; ++place) {
    HiScoreEntry& entry = state.HiScore(place);
    scores.Name(std::to_string(place) + "Name", entry.Name);
    scores.Number(std::to_string(place) + "Score", entry.Score, DefaultScore(place));
  }
  EachHiScore(state, TakingAsRead(store));
}

void LoadSettings(State& state, SettingsStore& store) {
  LoadTweaks(state, store);
  LoadOptions(state, store);
  EachOption(state, TakingAsRead(store));
  LoadHiScores(state, store);
}

bool SaveSettings(const State& state, SettingsStore& store) {
  const auto set = [&store](std::string_view section, std::string_view key,
                            std::string_view value) { store.Set(section, key, value); };
  EachOption(state, set);
  EachHiScore(state, set);
  return store.Save();
}

}  // namespace coilrun
