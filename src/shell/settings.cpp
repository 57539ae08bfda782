#include "shell/settings.h"

#include <algorithm>
#include <string>

#include "model/numbers.h"

namespace coilrun {
namespace {

constexpr std::string_view kTweak = "Tweak";
constexpr std::string_view kOptions = "Options";
constexpr std::string_view kHiScore = "HiScore";
constexpr std::size_t kLongestName = 14;

double DefaultScore(int place) {
  return 10000 - (place - 1) * 1000.0;
}

class Reader {
 public:
  Reader(const SettingsStore& store, std::string_view section) : store_(store), section_(section) {}

  void Number(std::string_view key, double& value, double fallback) const {
    const auto text = store_.Get(section_, key);
    value = text ? LeadingNumber(*text, true) : fallback;
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
  void Text(std::string_view key, std::string& value, std::string_view fallback) const {
    value = store_.Get(section_, key).value_or(std::string{fallback});
  }

 private:
  const SettingsStore& store_;
  std::string_view section_;
};

void LoadTweaks(State& state, const SettingsStore& store) {
  SettingsState& settings = state.settings;
  const Reader tweak(store, kTweak);
  tweak.Number("MinSpeed", settings.MinSpeed, 20);
  tweak.Number("MaxSpeed", settings.MaxSpeed, 250);
  if (IsMultiplayer(state.mode.GameMode)) {
    settings.SpeedRate = 0.5;
    settings.NoSpeedReset = true;
    settings.IncSpeed = false;
  } else {
    tweak.Number("Speed", settings.SpeedRate, 0.5);
    tweak.Boolean("RsetSpeed", settings.NoSpeedReset, false);
    tweak.Boolean("IncSpeed", settings.IncSpeed, false);
  }
}

void LoadOptions(State& state, const SettingsStore& store) {
  SettingsState& settings = state.settings;
  const Reader options(store, kOptions);
  options.Number("gSpeed", settings.GlobalSpeed, 100);
  if (const auto interval = ToInt16(settings.GlobalSpeed)) {
    for (SnakeRec& snake : state.Snakes) snake.BaseInterval = *interval;
  }
  options.Boolean("Show FPS", state.shell.ShowFPS, true);
  options.Boolean("AnimatedItems", settings.AnimatedItems, true);
  options.Boolean("SndEnabled", settings.SndEnabled, true);
  options.Boolean("KiSndEnabled", settings.KiSndEnabled, true);
  options.Boolean("MusicEnabled", settings.MusicEnabled, true);
  options.Integer("MusicVolume", settings.MusicVolume, 30);
  settings.MusicVolume = std::clamp<int>(settings.MusicVolume, 0, 100);
  options.Boolean("NoCleanUp", settings.NoCleanUp, false);
  options.Boolean("NewInstall", settings.NewInstall, true);
  options.Text("Player Name", state.Snakes(1).Name, "Unknown");
  options.Integer("Player Color", state.Snakes(1).Model, 1);
}

void LoadHiScores(State& state, const SettingsStore& store) {
  const Reader scores(store, kHiScore);
  for (int place = 1; place <= kHiScores; ++place) {
    HiScoreEntry& entry = state.HiScore(place);
    scores.Text(std::to_string(place) + "Name", entry.Name, "Unknown");
    entry.Name.resize(std::min(entry.Name.size(), kLongestName));
    scores.Number(std::to_string(place) + "Score", entry.Score, DefaultScore(place));
  }
}

}  // namespace

void LoadSettings(State& state, const SettingsStore& store) {
  LoadTweaks(state, store);
  LoadOptions(state, store);
  LoadHiScores(state, store);
}

bool SaveSettings(const State& state, SettingsStore& store) {
  const SettingsState& settings = state.settings;
  store.Set(kTweak, "MinSpeed", NumberText(settings.MinSpeed));
  store.Set(kTweak, "MaxSpeed", NumberText(settings.MaxSpeed));
  if (!IsMultiplayer(state.mode.GameMode)) {
    store.Set(kTweak, "Speed", NumberText(settings.SpeedRate));
    store.Set(kTweak, "RsetSpeed", BooleanText(settings.NoSpeedReset));
    store.Set(kTweak, "IncSpeed", BooleanText(settings.IncSpeed));
  }
  store.Set(kOptions, "gSpeed", NumberText(settings.GlobalSpeed));
  store.Set(kOptions, "Show FPS", BooleanText(state.shell.ShowFPS));
  store.Set(kOptions, "AnimatedItems", BooleanText(settings.AnimatedItems));
  store.Set(kOptions, "Player Name", state.Snakes(1).Name);
  store.Set(kOptions, "SndEnabled", BooleanText(settings.SndEnabled));
  store.Set(kOptions, "Player Color", NumberText(state.Snakes(1).Model));
  store.Set(kOptions, "KiSndEnabled", BooleanText(settings.KiSndEnabled));
  store.Set(kOptions, "MusicEnabled", BooleanText(settings.MusicEnabled));
  store.Set(kOptions, "MusicVolume", NumberText(settings.MusicVolume));
  store.Set(kOptions, "NoCleanUp", BooleanText(settings.NoCleanUp));
  for (int place = 1; place <= kHiScores; ++place) {
    store.Set(kHiScore, std::to_string(place) + "Name", state.HiScore(place).Name);
    store.Set(kHiScore, std::to_string(place) + "Score", NumberText(state.HiScore(place).Score));
  }
  return store.Save();
}

}  // namespace coilrun
