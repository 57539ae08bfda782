#include "level_dump.h"

#include <array>

#include <nlohmann/json.hpp>

#include "ports/windows_1252.h"
#include "quiet_level.h"

namespace coilrun {
namespace {

using Json = nlohmann::ordered_json;

/// Whole numbers are written without a fraction.
Json Number(double value) {
  constexpr double kExact = 9e15;
  const bool whole = value > -kExact && value < kExact &&
                     value == static_cast<double>(static_cast<std::int64_t>(value));
  return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

void AddProperties(Json& json, const LevelState& level) {
  json["lvlName"] = ToUtf8(level.lvlName);
  json["nextLvl"] = ToUtf8(level.nextLvl);
  json["Timeout"] = Number(level.Timeout);
  json["ElapsedSecs"] = int{level.ElapsedSecs};
  json["reqYellow"] = Number(level.reqYellow);
  json["reqRed"] = Number(level.reqRed);
  json["reqBlue"] = Number(level.reqBlue);
  json["reqBlack"] = Number(level.reqBlack);
  json["reqScore"] = int{level.reqScore};
  json["hasOpenWalls"] = level.hasOpenWalls;
  json["HideCollected"] = level.HideCollected;
  json["blueRate"] = Number(level.blueRate);
  json["powerRate"] = Number(level.powerRate);
  json["MusicFile"] = ToUtf8(level.MusicFile);
  json["BkgPic"] = ToUtf8(level.BkgPic);
  json["MapSnakeCount"] = int{level.MapSnakeCount};
  json["UserItemsUsed"] = level.UserItemsUsed;
}

constexpr std::array<const char*, kItemKinds> kKinds = {"Yellow", "Red", "Blue",
                                                        "Black",  "TNT", "Power"};

void AddItems(Json& json, const State& state) {
  for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
    Json slots = Json::array();
    const ItemList& items = state.itemLists.at(kind);
    for (int slot = 1; slot <= items.Live(); ++slot) {
      const ItemRec& item = items(slot);
      slots.push_back({{"X", int{item.X}},
                       {"Y", int{item.Y}},
                       {"Present", item.Present},
                       {"SpawnPoint", int{item.SpawnPoint}},
                       {"Collected", item.Collected}});
    }
    json[kKinds.at(kind)] = slots;
  }
}

void AddCounts(Json& json, const State& state) {
  for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
    json[std::string{"num"} + kKinds.at(kind)] = int{state.itemLists.at(kind).count};
  }
  json["numWalls"] = int{state.numWalls};
  json["numSpawnPoints"] = int{state.numSpawnPoints};
  json["numUserItems"] = int{state.numUserItems};
}

void AddMap(Json& json, const State& state) {
  json["Walls"] = Json::array();
  for (int slot = 1; slot <= state.numWalls; ++slot) {
    const WallRec& wall = state.Walls(slot);
    json["Walls"].push_back({{"X", int{wall.X}},
                             {"Y", int{wall.Y}},
                             {"Present", wall.Present},
                             {"Kind", Word(wall.Kind)}});
  }
  json["SpawnPoints"] = Json::array();
  for (int slot = 1; slot <= state.numSpawnPoints; ++slot) {
    const SpawnRec& point = state.SpawnPoints(slot);
    json["SpawnPoints"].push_back({{"X", int{point.X}},
                                   {"Y", int{point.Y}},
                                   {"Present", point.Present},
                                   {"State", point.State.Text()}});
  }
  json["UserItems"] = Json::array();
  for (int slot = 1; slot <= state.numUserItems; ++slot) {
    const UserItemRec& item = state.UserItems(slot);
    json["UserItems"].push_back({{"X", int{item.X}},
                                 {"Y", int{item.Y}},
                                 {"Present", item.Present},
                                 {"Name", ToUtf8(item.Name)},
                                 {"Type", ToUtf8(item.Type.Text())}});
  }
}

}  // namespace

std::optional<std::string> DumpLevel(std::string_view text, const Pictures& pictures) {
  const auto state = LoadQuietly(text, pictures);
  if (!state) return std::nullopt;
  Json json;
  AddProperties(json, state->level);
  AddItems(json, *state);
  AddCounts(json, *state);
  AddMap(json, *state);
  return json.dump();
}

}  // namespace coilrun
