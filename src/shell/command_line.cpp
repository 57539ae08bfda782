#include "shell/command_line.h"

#include <algorithm>

#include "game/match_limit.h"
#include "model/numbers.h"
#include "ports/terminate.h"

namespace coilrun {
namespace {

constexpr int kSmallestLimit = 2;

}  // namespace

std::vector<std::string> SplitSwitches(std::string_view commandLine) {
  std::vector<std::string> switches;
  std::string current;
  bool appended = false;
  for (const char character : commandLine) {
    const bool cut = character == '/' && appended;
    if (cut) {
      current.pop_back();
      switches.push_back(current);
      current.clear();
    }
    appended = !cut;
    current += character;
  }
  if (!current.empty()) switches.push_back(current);
  return switches;
}

CommandLine::CommandLine(State& state, const Files& files, MessageBox& box, SettingsStore& settings)
    : state_(state), files_(files), box_(box), settings_(settings) {}

void CommandLine::SetCommand(std::string_view arg) {
  const auto given = [arg](std::string_view prefix) { return arg.starts_with(prefix); };
  if (given("/DM")) state_.mode.GameMode = GameMode::kDeathmatch;
  if (arg == "/H") state_.mode.HuntingMode = true;
  if (given("/Limit=")) SetLimit(arg.substr(7));
  if (given("/AIS=")) SetAiSnakes(arg.substr(5));
  if (given("/KM=")) SetKeyboardLayout(arg.substr(4));
  if (given("/L=")) SetStartLevel(arg.substr(3));
  if (given("/Debug")) state_.shell.DebugMode = true;
  if (given("/NoClean=")) SetNoClean(arg.substr(9));
}

void CommandLine::SetLimit(std::string_view value) {
  const auto limit = ToInt16(LeadingNumber(value));
  if (!limit) return;
  state_.mode.MatchLimit =
      *limit < kSmallestLimit ? UsualMatchLimit(state_.mode.HuntingMode) : *limit;
}

void CommandLine::SetAiSnakes(std::string_view value) {
  const double asked = std::max(LeadingNumber(value), 0.0);
  state_.mode.AiSwitchGiven = true;
  state_.mode.AiCount = asked;
  state_.mode.NumSnakes = RoundToInt(std::min(asked + 1, double{kMaxSnakes}));
  state_.mode.AiEnabled = asked > 0;
}

void CommandLine::SetKeyboardLayout(std::string_view value) {
  state_.mode.KeyboardLayout = Meaning<coilrun::KeyboardLayout>(value);
}

void CommandLine::SetStartLevel(std::string_view value) {
  if (value.empty()) return;
  ModeState& mode = state_.mode;
  mode.StartLevelName = value;
  mode.LevelSwitchGiven = true;
  mode.StartLevelPath = InProgramFolder("\\lvl\\", mode.StartLevelName);
  if (files_.Exists(mode.StartLevelPath)) return;
  box_.Show("SetCommand_LoadLevel: Level does not exist!",
            "Level " + mode.StartLevelName + " does not exist!", BoxButtons::kOk);
  throw Terminate{1};
}

void CommandLine::SetNoClean(std::string_view value) {
  const auto keep = ToBoolean(value);
  if (!keep) return;
  state_.settings.NoCleanUp = *keep;
  settings_.Set("Options", "NoCleanUp", BooleanText(*keep));
  settings_.Save();
}

}  // namespace coilrun
