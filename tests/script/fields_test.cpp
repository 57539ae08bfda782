#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "script/set_field.h"
#include "script/trace.h"

namespace coilrun {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

json Traced(const State& state) {
  return json::parse(TraceLine(state, {1'016'667, 2.5}));
}

/// A state with live slots in every table.
State FullState() {
  State state;
  for (ItemList& items : state.itemLists) items.count = 2;
  state.numWalls = 2;
  state.numSpawnPoints = 2;
  state.numUserItems = 2;
  state.LastModel = 1;
  state.Snakes(1).Length = 3;
  state.witness.shown = {{"1", 2, 3, "4"}, {"Name", -5, 6, "Balloon"}};
  state.witness.sounds = {{".\\snd\\eat.wav", 1}};
  return state;
}

bool CountsFromZero(std::string_view array) {
  return array == "Seg" || array == "CenterLines" || array == "iWait" || array == "ModelPacks";
}

/// "/Snakes/0/Seg/3/X" as scripts write it: "Snakes.1.Seg.3.X".
std::string FieldName(const std::string& pointer) {
  std::string name;
  std::string array;
  std::istringstream parts(pointer.substr(1));
  for (std::string part; std::getline(parts, part, '/'); array = part) {
    const bool isNumber = part.find_first_not_of("0123456789") == part.npos;
    if (isNumber && !CountsFromZero(array)) part = std::to_string(std::stoi(part) + 1);
    name += (name.empty() ? "" : ".") + part;
  }
  return name;
}

bool IsReadOnly(std::string_view name) {
  return name == "ms" || name == "Music.Position" || name.starts_with("Sounds.") ||
         name.starts_with("Drawn.");
}

/// Setting one of these changes how many slots are live.
bool IsCount(std::string_view name) {
  return name.starts_with("num") || name.ends_with(".Length") || name == "LastModel";
}

/// Another value of the same field.
json Changed(std::string_view name, const json& value) {
  if (value.is_boolean()) return !value.get<bool>();
  if (name == "Music.Volume") return -300;
  if (value.is_number_integer()) return value.get<int>() + 1;
  if (value.is_number()) return value.get<double>() + 1;
  const std::string_view field = name.substr(name.rfind('.') + 1);
  if (field == "Dir" || field == "NextDir") return "RB";
  if (field == "Kind") return "v_l";
  if (field == "GameMode") return "NDM";
  if (field == "MenuAction") return "+";
  if (field == "InputTarget") return "Cheat";
  return " \"Gr\xC3\xB6\xC3\x9F"
         "e\" \xE2\x82\xAC 5\\ ";
}

std::string ValueText(const json& value) {
  return value.is_string() ? value.get<std::string>() : value.dump();
}

TEST(Fields, WhatIsSetIsTracedAndNothingElseChanges) {
  State state = FullState();
  const json first = Traced(state);
  const json leaves = first.flatten();
  int fields = 0;
  for (const auto& [pointer, value] : leaves.items()) {
    const std::string name = FieldName(pointer);
    if (value.is_structured()) continue;
    if (IsReadOnly(name)) {
      EXPECT_TRUE(SetField(state, name, ValueText(value))) << name;
      continue;
    }
    ++fields;
    const bool laterSnake = name.starts_with("Snakes.") && !name.starts_with("Snakes.1.") &&
                            !name.starts_with("Snakes.16.");
    if (laterSnake) continue;
    State changedState = state;
    const json changed = Changed(name, value);
    const auto problem = SetField(changedState, name, ValueText(changed));
    ASSERT_EQ(problem, std::nullopt) << name;
    json after = Traced(changedState);
    EXPECT_EQ(after[json::json_pointer(pointer)], changed) << name;
    if (IsCount(name)) continue;
    after[json::json_pointer(pointer)] = value;
    EXPECT_EQ(after, first) << name;
  }
  EXPECT_GT(fields, 16 * 30);
}

TEST(Fields, RefusesWhatDoesNotFitAndLeavesTheStateAlone) {
  struct Refused {
    std::string_view name;
    std::string_view value;
  };
  const std::vector<Refused> cases = {
      {"", ""},
      {".", ""},
      {"Nonsense", "1"},
      {"godmode", "true"},
      {"GodMode.", "true"},
      {"GodMode.1", "true"},
      {"GodMode", "yes"},
      {"GodMode", "1"},
      {"GodMode", ""},
      {"Snakes", "1"},
      {"Snakes.0.X", "1"},
      {"Snakes.17.X", "1"},
      {"Snakes.-1.X", "1"},
      {"Snakes.99999999999.X", "1"},
      {"Snakes.1", "1"},
      {"Snakes.1.", "1"},
      {"Snakes.1.Nonsense", "1"},
      {"Snakes.1.MusicVolume", "1"},
      {"Snakes.1.X", "1.5"},
      {"Snakes.1.X", "0x10"},
      {"Snakes.1.X", "12 apples"},
      {"Snakes.1.X", ""},
      {"Snakes.1.X", "32768"},
      {"Snakes.1.X", "-32769"},
      {"Snakes.1.Score", "2147483648"},
      {"Snakes.1.Score", "99999999999999999999"},
      {"Snakes.1.Dir", "left"},
      {"Snakes.1.Dir", "Up"},
      {"Snakes.1.Length", "101"},
      {"Snakes.1.Model", "100"},
      {"Snakes.1.Seg.4.X", "1"},
      {"Snakes.1.Seg.-1.X", "1"},
      {"Snakes.2.Seg.2.X", "1"},
      {"Yellow.0.X", "1"},
      {"Yellow.3.X", "1"},
      {"Walls.3.Present", "true"},
      {"Walls.1.Kind", "brick"},
      {"SpawnPoints.3.X", "1"},
      {"UserItems.3.Type", "wall"},
      {"ModelPacks.2.Name", "x"},
      {"MsgLines.0", "x"},
      {"MsgLines.6", "x"},
      {"MsgLines.1.Text", "x"},
      {"CenterLines.16.Text", "x"},
      {"NumSnakes", "0"},
      {"NumSnakes", "17"},
      {"numYellow", "301"},
      {"numWalls", "-1"},
      {"numUserItems", "682"},
      {"LastModel", "100"},
      {"Timeout", "soon"},
      {"Timeout", "inf"},
      {"Timeout", "nan"},
      {"Timeout", "1e999"},
      {"Timers.iWait.16.Interval", "100"},
      {"Timers.tmr1.Interval", "100"},
      {"Timers.ResetSpeed.Interval", "-1"},
      {"Timers.ResetSpeed.Enabled", "on"},
      {"Timers.AnimFrame", "46"},
      {"ms", "5"},
      {"Music.Position", "5"},
      {"Drawn.1.Text", "x"},
      {"Sounds.1.Path", "x"},
  };
  State state = FullState();
  const std::string before = TraceLine(state, {});
  for (const Refused& refused : cases) {
    const auto problem = SetField(state, refused.name, refused.value);
    ASSERT_TRUE(problem) << refused.name << ' ' << refused.value;
    EXPECT_FALSE(problem->empty());
  }
  EXPECT_EQ(TraceLine(state, {}), before);
}

TEST(Fields, TakesNumbersAndFlagsAsPeopleWriteThem) {
  State state;
  EXPECT_FALSE(SetField(state, "GodMode", " TRUE "));
  EXPECT_FALSE(SetField(state, "Snakes.1.Score", " -70000"));
  EXPECT_FALSE(SetField(state, "SpeedRate", "1.5"));
  EXPECT_FALSE(SetField(state, "Snakes.1.Name", ""));
  EXPECT_FALSE(SetField(state, "Snakes.1.Dir", ""));
  EXPECT_TRUE(state.mode.GodMode);
  EXPECT_EQ(state.Snakes(1).Score, -70000);
  EXPECT_EQ(state.settings.SpeedRate, 1.5);
}

TEST(Fields, AnIntervalCountsFromNowAndSwitchesNothingOn) {
  State state;
  state.timers.now = 5'000'000;
  EXPECT_FALSE(SetField(state, "Timers.ResetSpeed.Interval", "4000"));
  EXPECT_FALSE(state.timers.ResetSpeed.Enabled);
  EXPECT_FALSE(SetField(state, "Timers.iWait.0.Enabled", "true"));
  EXPECT_FALSE(SetField(state, "Timers.iWait.0.Interval", "250"));
  EXPECT_TRUE(state.timers.iWait(0).Enabled);
  EXPECT_EQ(state.timers.iWait(0).Due(), 5'250'000);
}

TEST(Trace, KeysStandInTheirFixedOrder) {
  const ordered_json line = ordered_json::parse(TraceLine(State{}, {}));
  std::string keys;
  for (const auto& [key, value] : line.items()) keys += key + ' ';
  EXPECT_EQ(
      keys,
      "ms flips Running InMenu NoGameRunning LevelIntroPending ShowLevelScreen DisplayReady "
      "DebugMode IsPause ShowFPS lvlTime WaitingForStart WaitingForKey WaitingAfterDeath "
      "WaitingAfterTimeout ShowNames ShowMatchStats MatchStatsDetail GameMode HuntingMode "
      "MatchLimit NumSnakes AiEnabled AiCount KeyboardLayout GodMode NoClip TimePass Cheated "
      "CheatLine MainCursor OptionsCursor OptionsPage ScorePage MenuAction StatusText CreditsPos "
      "CreditsTicker InputTarget TypingActive LastKey KeyPressed WaitAborted ImmortalBlink Fps "
      "FrameCount MsgAge DispMsg MsgLines Console CenterLines lvlName nextLvl Timeout ElapsedSecs "
      "reqYellow reqRed reqBlue reqBlack reqScore hasOpenWalls HideCollected blueRate powerRate "
      "MusicFile BkgPic MapSnakeCount UserItemsUsed MinSpeed MaxSpeed SpeedRate NoSpeedReset "
      "IncSpeed GlobalSpeed SpeedGain PrevInterval AnimatedItems SndEnabled KiSndEnabled "
      "MusicEnabled MusicVolume NoCleanUp NewInstall HiScore Snakes Yellow Red Blue Black TNT "
      "Power "
      "numYellow numRed numBlue numBlack numTNT numPower numWalls numSpawnPoints numUserItems "
      "Walls "
      "SpawnPoints UserItems Timers Sounds Music Drawn LastModel ModelPacks ");
}

TEST(Trace, TablesHaveTheirFullOrLiveLength) {
  const json line = Traced(FullState());
  EXPECT_EQ(line["MsgLines"].size(), 5U);
  EXPECT_EQ(line["Console"].size(), 5U);
  EXPECT_EQ(line["CenterLines"].size(), 16U);
  EXPECT_EQ(line["HiScore"].size(), 10U);
  EXPECT_EQ(line["Snakes"].size(), 16U);
  EXPECT_EQ(line["Snakes"][0]["Seg"].size(), 4U);
  EXPECT_EQ(line["Snakes"][1]["Seg"].size(), 2U);
  EXPECT_EQ(line["Timers"]["iWait"].size(), 16U);
  const std::vector<std::string> lists = {"Yellow", "Power", "Walls", "SpawnPoints", "ModelPacks"};
  for (const std::string& list : lists) {
    EXPECT_EQ(line[list].size(), 2U) << list;
  }
}

TEST(Trace, CountsBeyondTheirTablesShowTheWholeTable) {
  State state;
  state.Items(ItemKind::kRed).count = 32000;
  state.numWalls = 5000;
  state.numUserItems = -3;
  state.LastModel = 500;
  state.Snakes(1).Length = 400;
  state.Snakes(2).Length = -4;
  const json line = Traced(state);
  EXPECT_EQ(line["Red"].size(), 300U);
  EXPECT_EQ(line["numRed"], 32000);
  EXPECT_EQ(line["Walls"].size(), 681U);
  EXPECT_EQ(line["UserItems"].size(), 0U);
  EXPECT_EQ(line["ModelPacks"].size(), 100U);
  EXPECT_EQ(line["Snakes"][0]["Seg"].size(), 101U);
  EXPECT_EQ(line["Snakes"][1]["Seg"].size(), 1U);
}

TEST(Trace, WritesNumbersWithoutNeedlessFractionsAndTextsInUtf8) {
  State state = FullState();
  state.menus.StatusText = "\x80 \"a\\b\"\r\n\t\x01\xFC";
  state.settings.SpeedRate = 0.5;
  state.level.Timeout = 120;
  state.keys.LastKey = 28;
  const std::string text = TraceLine(state, {1'016'667, 2.5});
  EXPECT_TRUE(text.starts_with("{\"ms\":1016.667,\"flips\":0,\"Running\":false,")) << text;
  const std::vector<std::string> pieces = {
      R"("SpeedRate":0.5,)",
      R"("Timeout":120,)",
      R"("LastKey":28,)",
      R"("Position":2.5})",
      R"("StatusText":"€ \"a\\b\"\r\n\u0009\u0001ü")",
      R"({"Text":"1","X":2,"Y":3,"Font":4})",
      R"({"Text":"Name","X":-5,"Y":6,"Font":"Balloon"})",
      R"("Sounds":[{"Path":".\\snd\\eat.wav","Snake":1}])",
  };
  for (const std::string& piece : pieces) {
    EXPECT_NE(text.find(piece), text.npos) << piece;
  }
  EXPECT_EQ(TraceLine(state, {2'000'000, 0}).substr(0, 11), "{\"ms\":2000,");
}

}  // namespace
}  // namespace coilrun
