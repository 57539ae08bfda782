#include "level_dump.h"

#include <array>
#include <utility>

#include <nlohmann/json.hpp>

#include "content/load_level.h"
#include "ports/windows_1252.h"
#include "quiet_ports.h"

namespace coilrun {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kPath = ".\\lvl\\level.dat";

/// A program folder that holds one level and the pictures that it may name; nothing is written.
class OneLevel final : public Files {
 public:
  OneLevel(std::string_view level, const Pictures& pictures)
      : level_(level.begin(), level.end()), pictures_(pictures) {}

  bool Exists(const std::string& path) const override {
    constexpr std::string_view kPictures = ".\\gfx\\";
    return path.starts_with(kPictures) && pictures_.Has(path.substr(kPictures.size()));
  }
  std::optional<Bytes> Read(const std::string& path) const override {
    if (path != kPath) return std::nullopt;
    return level_;
  }
  std::optional<std::vector<std::string>> List(const std::string& /*folder*/,
                                               std::string_view /*suffix*/) const override {
    return std::nullopt;
  }
  bool Write(const std::string& /*path*/, std::span<const std::uint8_t> /*bytes*/) override {
    return false;
  }
  bool MakeFolder(const std::string& /*path*/) override { return false; }
  bool Delete(const std::string& /*path*/) override { return false; }
  std::string FullName(const std::string& path) const override { return path; }
  std::string ShortName(const std::string& path) const override { return path; }
  bool IsWritten(const std::string& /*path*/) const override { return false; }
  std::string WriteProblem() const override { return {}; }

 private:
  Bytes level_;
  const Pictures& pictures_;
};

class NoArchive final : public Archive {
 public:
  bool Open(const std::string& /*path*/) override { return false; }
  void SetPassword(const std::string& /*password*/) override {}
  std::optional<std::string> ReadHeader() override { return std::nullopt; }
  bool ProcessFile(const std::optional<std::string>& /*target*/) override { return false; }
  void Close() override {}
};

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
                                   {"State", point.State}});
  }
  json["UserItems"] = Json::array();
  for (int slot = 1; slot <= state.numUserItems; ++slot) {
    const UserItemRec& item = state.UserItems(slot);
    json["UserItems"].push_back({{"X", int{item.X}},
                                 {"Y", int{item.Y}},
                                 {"Present", item.Present},
                                 {"Name", ToUtf8(item.Name)},
                                 {"Type", ToUtf8(item.Type)}});
  }
}

}  // namespace

std::optional<std::string> DumpLevel(std::string_view text, const Pictures& pictures) {
  State state;
  OneLevel files(text, pictures);
  NoArchive archive;
  NoPump pump;
  QuietHost host(state);
  LoadLevel({state, files, archive, pump, host}, kPath);
  if (state.shell.NoGameRunning) return std::nullopt;
  Json json;
  AddProperties(json, state.level);
  AddItems(json, state);
  AddCounts(json, state);
  AddMap(json, state);
  return json.dump();
}

}  // namespace coilrun
