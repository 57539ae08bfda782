#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "script/set_field.h"
#include "script/trace.h"

namespace coilrun {
namespace {

using nlohmann::json;

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
  state.output.shown = {{"1", 2, 3, "4"}, {"Name", -5, 6, "Balloon"}};
  state.output.sounds = {{".\\snd\\eat.wav", 1}};
  return state;
}

bool CountsFromZero(std::string_view array) {
  return array == "Seg" || array == "CenterLines" || array == "iWait";
}

/// Turns "/Snakes/0/Seg/3/X" into what scripts write: "Snakes.1.Seg.3.X".
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
         name.starts_with("Drawn.") || name.starts_with("Keys.") || name.starts_with("Humans.") ||
         name == "More.Page" || name == "More.Cursor";
}

/// Setting one of these changes how many slots are live.
bool IsCount(std::string_view name) {
  return name.starts_with("num") || name.ends_with(".Length") || name == "LastModel" ||
         name == "More.Players";
}

/// Another value for the same field.
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
  if (field == "Turns") return "queue";
  if (field == "Motion") return "smooth";
  if (field == "Effects") return "calm";
  if (field == "Rivals") return "classic,master";
  if (name == "More.Match.Mode") return "hunting";
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
  using Texts = std::vector<std::string>;
  const std::vector<std::pair<Texts, Texts>> cases = {
      // Names that lead nowhere, too far or not far enough.
      {{"", ".", "Nonsense", "Snakes", "Snakes.1", "Snakes.1.", "Snakes.1.Nonsense"}, {"1"}},
      {{"godmode", "GodMode.", "GodMode.1", "Walls.3.Present"}, {"true"}},
      {{"Snakes.0.X", "Snakes.17.X", "Snakes.-1.X", "Snakes.99999999999.X"}, {"1"}},
      {{"Snakes.1.Seg.4.X", "Snakes.1.Seg.-1.X", "Snakes.2.Seg.2.X", "MsgLines.1.Text"}, {"1"}},
      {{"Yellow.0.X", "Yellow.3.X", "SpawnPoints.3.X", "UserItems.3.Type"}, {"1"}},
      {{"ModelPacks.0.Name", "ModelPacks.3.Name", "MsgLines.0", "MsgLines.6",
        "CenterLines.16.Text"},
       {"x"}},
      {{"Timers.iWait.16.Interval", "Timers.tmr1.Interval"}, {"100"}},
      {{"ms", "Music.Position", "Drawn.1.Text", "Sounds.1.Path"}, {"5"}},
      {{"More.Page", "More.Cursor", "Keys.1.Up", "Humans.1.Queue", "Humans.1.Out"}, {"1", ""}},
      // Values of the wrong kind or out of range.
      {{"More.Turns", "More.Effects", "More.Rivals", "More.Match.Mode"}, {"Queue", "", "classic,"}},
      {{"More.Players"}, {"0", "5"}},
      {{"GodMode", "Timers.ResetSpeed.Enabled"}, {"yes", "1", "", "on"}},
      {{"Snakes.1.X"}, {"1.5", "0x10", "12 apples", "", "32768", "-32769"}},
      {{"Snakes.1.Score"}, {"2147483648", "99999999999999999999"}},
      {{"Snakes.1.Dir", "Walls.1.Kind"}, {"left", "Up", "brick"}},
      {{"Snakes.1.Model"}, {"-1"}},
      {{"NumSnakes"}, {"0", "17"}},
      {{"numYellow", "numWalls", "numUserItems", "Timers.AnimFrame"}, {"-1", "682"}},
      {{"numYellow"}, {"301"}},
      {{"LastModel", "Snakes.1.Model"}, {"100"}},
      {{"Timers.AnimFrame"}, {"46"}},
      {{"Timeout"}, {"soon", "inf", "nan", "1e999"}},
      {{"Timers.ResetSpeed.Interval"}, {"-1"}},
  };
  State state = FullState();
  const std::string before = TraceLine(state, {});
  for (const auto& [names, values] : cases)
    for (const std::string& name : names)
      for (const std::string& value : values) {
        const auto problem = SetField(state, name, value);
        ASSERT_TRUE(problem) << name << ' ' << value;
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

TEST(Trace, TablesHaveTheirFullOrLiveLengthAndNeverMore) {
  State overfull;
  overfull.Items(ItemKind::kRed).count = 32000;
  overfull.numWalls = 5000;
  overfull.numUserItems = -3;
  overfull.LastModel = 500;
  overfull.Snakes(1).Length = 400;
  overfull.Snakes(2).Length = -4;
  const json live = Traced(FullState());
  const json full = Traced(overfull);
  const std::tuple<const char*, std::size_t, std::size_t> cases[] = {
      {"/MsgLines", 5, 5},       {"/Console", 5, 5},      {"/CenterLines", 16, 16},
      {"/HiScore", 10, 10},      {"/Snakes", 16, 16},     {"/Timers/iWait", 16, 16},
      {"/Snakes/0/Seg", 4, 101}, {"/Snakes/1/Seg", 2, 1}, {"/Yellow", 2, 0},
      {"/Red", 2, 300},          {"/Power", 2, 0},        {"/Walls", 2, 681},
      {"/SpawnPoints", 2, 0},    {"/ModelPacks", 2, 100}, {"/UserItems", 2, 0},
  };
  for (const auto& [table, liveSize, fullSize] : cases) {
    EXPECT_EQ(live[json::json_pointer(table)].size(), liveSize) << table;
    EXPECT_EQ(full[json::json_pointer(table)].size(), fullSize) << table;
  }
  EXPECT_EQ(full["numRed"], 32000);
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
