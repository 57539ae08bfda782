#include "content/level_reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "content/archives.h"
#include "content/lines.h"
#include "content/progress.h"
#include "model/feed.h"
#include "model/numbers.h"

namespace coilrun {
namespace {

template <typename Owner, typename Value>
struct Target {
  LevelKey key;
  Value Owner::*member;
};

constexpr std::array<Target<LevelState, double>, 7> kLevelNumbers = {
    {{LevelKey::kReqYellow, &LevelState::reqYellow},
     {LevelKey::kReqRed, &LevelState::reqRed},
     {LevelKey::kReqBlue, &LevelState::reqBlue},
     {LevelKey::kReqBlack, &LevelState::reqBlack},
     {LevelKey::kBlueRate, &LevelState::blueRate},
     {LevelKey::kPowerRate, &LevelState::powerRate},
     {LevelKey::kTimeout, &LevelState::Timeout}}};

constexpr std::array<Target<SettingsState, LevelSetting<double>>, 3> kSpeeds = {
    {{LevelKey::kIncrBy, &SettingsState::SpeedRate},
     {LevelKey::kMaxSpd, &SettingsState::MaxSpeed},
     {LevelKey::kMinSpd, &SettingsState::MinSpeed}}};

constexpr std::array<Target<LevelState, bool>, 2> kTrueFlags = {
    {{LevelKey::kHasOpenWalls, &LevelState::hasOpenWalls},
     {LevelKey::kHideCollected, &LevelState::HideCollected}}};

struct CountTarget {
  LevelKey key;
  ItemKind kind;
  bool LevelState::*uses;  ///< yellow items are always in use
};

constexpr std::array<CountTarget, kItemKinds> kCounts = {
    {{LevelKey::kNumYellow, ItemKind::kYellow, nullptr},
     {LevelKey::kNumRed, ItemKind::kRed, &LevelState::UsesRed},
     {LevelKey::kNumBlue, ItemKind::kBlue, &LevelState::UsesBlue},
     {LevelKey::kNumBlack, ItemKind::kBlack, &LevelState::UsesBlack},
     {LevelKey::kNumTNT, ItemKind::kTnt, &LevelState::UsesTNT},
     {LevelKey::kNumPower, ItemKind::kPower, &LevelState::UsesPower}}};

template <typename Targets>
const typename Targets::value_type* Find(const Targets& targets, LevelKey key) {
  const auto found =
      std::find_if(targets.begin(), targets.end(), [key](const auto& t) { return t.key == key; });
  return found == targets.end() ? nullptr : &*found;
}

}  // namespace

bool LevelReader::Read(std::string_view text) {
  LineReader lines(text);
  while (const auto line = lines.Next()) {
    if (!ReadLine(*line)) return false;
  }
  return true;
}

bool LevelReader::ReadLine(std::string_view line) {
  ++row_;
  const CellVisitor place = [this, line](int column, std::string_view word) {
    const auto code = CodeOf(word);
    return !code || Place(*code, AnchorOf(code->kind, column, row_)) ||
           FailAt(line, word, "more of these than a level can have");
  };
  if (row_ <= kMapRows && !ScanRow(line, place)) return false;
  for (const KeyDef& def : LevelKeys()) {
    if (!HasKey(def, line)) continue;
    const auto value = ReadValue(def, line);
    if (value && Apply(def.key, *value)) continue;
    return FailAt(line, line.substr(def.text.size()),
                  "\"" + std::string{def.text} + "\" cannot have this value");
  }
  return true;
}

/// Notes what is wrong with a part of the line that is being read; always false.
bool LevelReader::FailAt(std::string_view line, std::string_view part, std::string what) {
  fault_ = {row_, static_cast<int>(part.data() - line.data()) + 1, std::move(what)};
  return false;
}

bool LevelReader::Place(const CellCode& code, Point anchor) {
  switch (code.kind) {
    case CellKind::kWall:
      return PlaceWall(code.wall, anchor);
    case CellKind::kUserItem:
      return PlaceUserItem(code.letter, anchor);
    case CellKind::kSpawnPoint:
      return PlaceSpawnPoint(anchor);
    case CellKind::kStart:
      PlaceStart(code.snake, anchor);
      return true;
  }
  return false;
}

bool LevelReader::PlaceWall(WallKind kind, Point anchor) {
  if (walls_ == kMaxWalls) return false;
  state_.Walls(++walls_) = {anchor.x, anchor.y, true, kind};
  return true;
}

void LevelReader::PlaceStart(int snake, Point anchor) {
  state_.Snakes(snake).StartX = anchor.x;
  state_.Snakes(snake).StartY = anchor.y;
  state_.level.MapSnakeCount = snake;
}

bool LevelReader::PlaceUserItem(char letter, Point anchor) {
  if (state_.numUserItems == kMaxUserItems) return false;
  state_.UserItems(++state_.numUserItems) = {anchor.x, anchor.y, false, {letter}, {}};
  return true;
}

bool LevelReader::PlaceSpawnPoint(Point anchor) {
  if (state_.numSpawnPoints == kMaxSpawnPoints) return false;
  state_.SpawnPoints(++state_.numSpawnPoints) = {anchor.x, anchor.y, true, {}};
  return true;
}

bool LevelReader::Apply(LevelKey key, const LevelValue& value) {
  if (ApplyFromTables(key, value)) return true;
  switch (key) {
    case LevelKey::kReqScore:
      state_.level.reqScore = static_cast<int>(value.number);
      return true;
    case LevelKey::kIncrease:
      state_.settings.IncSpeed.ReplaceForLevel(value.flag);
      return true;
    case LevelKey::kSet:
      SetUserItemPicture(value.letter, value.text);
      return true;
    case LevelKey::kLet:
      SetUserItemType(value.letter, value.text);
      return true;
    case LevelKey::kRequires:
      return Require(value.text);
    default:
      return ApplyText(key, value.text) || ApplyToSnakes(key, value.number);
  }
}

bool LevelReader::ApplyFromTables(LevelKey key, const LevelValue& value) {
  if (const auto* count = Find(kCounts, key)) {
    state_.Items(count->kind).count = static_cast<int>(value.number);
    if (count->uses != nullptr) state_.level.*count->uses = true;
    return true;
  }
  if (const auto* number = Find(kLevelNumbers, key)) {
    state_.level.*number->member = value.number;
    return true;
  }
  if (const auto* speed = Find(kSpeeds, key)) {
    (state_.settings.*speed->member).ReplaceForLevel(value.number);
    return true;
  }
  if (const auto* flag = Find(kTrueFlags, key)) {
    if (value.flag) state_.level.*flag->member = true;
    return true;
  }
  return false;
}

bool LevelReader::ApplyText(LevelKey key, std::string_view text) {
  LevelState& level = state_.level;
  switch (key) {
    case LevelKey::kNextLvl:
      level.nextLvl = InProgramFolder("\\lvl\\", text);
      return true;
    case LevelKey::kLvlName:
      level.lvlName = text;
      return true;
    case LevelKey::kBkgPic:
      level.BkgPic = std::string{"\\gfx\\"}.append(text);
      return true;
    case LevelKey::kMusicFile:
      level.MusicFile = InProgramFolder("\\music\\", text);
      return true;
    default:
      return false;
  }
}

bool LevelReader::ApplyToSnakes(LevelKey key, double number) {
  SnakeRec& player = state_.Snakes(kPlayer);
  switch (key) {
    case LevelKey::kSnakeStrtX:
      player.StartX = static_cast<int>(number);
      return true;
    case LevelKey::kSnakeStrtY:
      player.StartY = static_cast<int>(number);
      return true;
    case LevelKey::kGSpeed:
      player.BaseInterval = static_cast<int>(number);
      state_.level.SetsPeriod = true;
      return true;
    case LevelKey::kAIS:
      return SetSnakeCount(number);
    default:
      return false;
  }
}

bool LevelReader::SetSnakeCount(double aiSnakes) {
  const auto snakes = ToInt16(aiSnakes + 1);
  if (!snakes) return false;
  state_.mode.NumSnakes = std::clamp(*snakes, 1, kMaxSnakes);
  if (*snakes > 1) state_.mode.AiEnabled = true;
  return true;
}

bool LevelReader::Require(std::string_view archive) {
  auto& archives = state_.level.RequiredArchives;
  if (archives_ == archives.kSize) return false;
  archives(++archives_) = archive;
  if (!archive.ends_with(".snr")) return true;
  FeedState& feed = state_.feed;
  feed.UnpackedCount = 0;
  feed.LoadTotal = 1;
  ShowCaption(context_, std::string{"Unextracting: "}.append(archive));
  SnUnextractFile(context_, InProgramFolder("\\", archive), InProgramFolder("\\gfx\\"),
                  kArchivePassword);
  return true;
}

void LevelReader::SetUserItemPicture(char letter, std::string_view name) {
  if (letter == 0) return;
  const std::string path = InProgramFolder("\\gfx\\", name);
  if (!FileExists(context_.files, path)) {
    if (state_.shell.DebugMode) MessagePrint(state_, "Could not load User Item: " + path);
    return;
  }
  for (int slot = 1; slot <= state_.numUserItems; ++slot) {
    UserItemRec& item = state_.UserItems(slot);
    if (item.Name != std::string_view{&letter, 1}) continue;
    item.Name = name;
    item.Present = true;
    state_.level.UserItemsUsed = true;
  }
}

void LevelReader::SetUserItemType(char letter, std::string_view type) {
  if (letter == 0) return;
  for (int slot = 1; slot <= state_.numUserItems; ++slot) {
    UserItemRec& item = state_.UserItems(slot);
    if (item.Name == std::string_view{&letter, 1}) item.Type = Written<UserItemType>{type};
  }
}

}  // namespace coilrun
