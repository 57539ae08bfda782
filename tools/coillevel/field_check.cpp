#include "field_check.h"

#include <algorithm>
#include <array>
#include <memory>

#include "game/eating.h"
#include "game/placement.h"
#include "kit/reach.h"
#include "model/numbers.h"
#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

/// How many free cells in a row a start needs in some direction.
constexpr int kFreeCells = 3;
/// The same above the start of a computer snake.
constexpr int kFreeCellsAhead = 5;

constexpr std::array<std::string_view, kItemKinds> kNames = {"bananas",       "chilies", "crystals",
                                                             "black bananas", "TNT",     "atoms"};

constexpr std::string_view NamesOf(ItemKind kind) {
  return kNames.at(static_cast<std::size_t>(kind));
}

struct Way {
  Dir dir;
  std::string_view text;
};
constexpr std::array<Way, 4> kWays = {
    {{Dir::kForw, "above"}, {Dir::kBack, "below"}, {Dir::kLeft, "left"}, {Dir::kRight, "right"}}};

/// The level without its items, as placement first sees it.
std::unique_ptr<State> WithoutItems(const State& level) {
  auto bare = std::make_unique<State>(level);
  for (ItemList& items : bare->itemLists) items.count = 0;
  return bare;
}

/// True when items may end up away from the spawn points: during play, any placement can find them
/// all taken. (Eaten items that stay hidden are not placed again.)
bool UsesFreeSpots(const State& level) {
  int items = 0;
  for (const ItemList& list : level.itemLists) items += list.Live();
  const bool placedAgain = !level.level.HideCollected || level.Items(ItemKind::kTnt).Live() > 0 ||
                           level.Items(ItemKind::kPower).Live() > 0;
  return items > 0 && (placedAgain || items > level.numSpawnPoints);
}

std::vector<Point> SpotsForItems(const State& level) {
  if (!UsesFreeSpots(level)) return {};
  return FreeSpots(*WithoutItems(level));
}

class FieldCheck {
 public:
  FieldCheck(const State& level, const LevelLines& lines)
      : level_(level), lines_(lines), ground_(level), spots_(SpotsForItems(level)) {
    for (int number = 1; number <= level.numSpawnPoints; ++number) {
      const SpawnRec& point = level.SpawnPoints(number);
      spawnPoints_.push_back({point.X, point.Y});
    }
  }

  std::vector<Finding> Run() {
    for (const auto& [snake, start] : lines_.starts) CheckStart(snake, start);
    const PixelMarks player = PlacesOf(1);
    if (!player.Any()) return findings_;
    CheckRequirements(player);
    PixelMarks all = player;
    for (int snake = 2; snake <= SnakesInPlay(level_); ++snake) all.Add(PlacesOf(snake));
    CheckSpawnPoints(all);
    CheckSpots(all);
    return findings_;
  }

 private:
  void Warn(int line, std::string text) { findings_.push_back({line, std::move(text)}); }
  int LineOf(LevelKey key) const {
    const auto found = lines_.keys.find(key);
    return found == lines_.keys.end() ? 1 : found->second;
  }
  Point StartOf(int snake) const {
    return {level_.Snakes(snake).StartX, level_.Snakes(snake).StartY};
  }
  bool Holds(ItemKind kind) const { return level_.Items(kind).Live() > 0; }

  void CheckStart(int snake, const StartLine& start) {
    const Point place = StartOf(snake);
    if (!InField(place)) {
      Warn(start.line, start.name + " lies outside the field");
    } else if (ground_.IsDeadly(place)) {
      Warn(start.line, start.name + " lies in a wall: the snake dies where it stands");
    } else {
      CheckRoom(place, start);
      if (snake > 1) CheckWayUp(place, start);
    }
  }

  /// Computer snakes set off upwards, all at once.
  void CheckWayUp(Point place, const StartLine& start) {
    const int steps = ground_.FreeSteps(place, Dir::kForw, kFreeCellsAhead);
    if (steps == 0 || steps >= kFreeCellsAhead) return;
    Warn(start.line, start.name + " has only " + std::to_string(steps) +
                         " free cells above: computer snakes start upwards");
  }

  /// A start needs room on all sides, and one way out that is long enough to turn in.
  void CheckRoom(Point place, const StartLine& start) {
    std::string blocked;
    std::string ways;
    int longest = 0;
    int waysOut = 0;
    for (const Way& way : kWays) {
      const int steps = ground_.FreeSteps(place, way.dir, kFreeCells);
      if (steps == 0) blocked += (blocked.empty() ? "" : ", ") + std::string{way.text};
      ways += (ways.empty() ? "" : ", ") + std::string{way.text} + ' ' + std::to_string(steps);
      longest = std::max(longest, steps);
      if (steps == kFreeCells) ++waysOut;
    }
    if (!blocked.empty()) Warn(start.line, start.name + " has no free cell " + blocked);
    if (longest < kFreeCells) {
      Warn(start.line, start.name + " has fewer than " + std::to_string(kFreeCells) +
                           " free cells in every direction: " + ways);
    } else if (waysOut < 2) {
      Warn(start.line, start.name + " has only one way out: " + ways);
    }
  }

  /// True when an item of this kind can lie where a head at one of these places eats it.
  bool CanTake(ItemKind kind, const PixelMarks& places) const {
    if (!Holds(kind)) return false;
    const auto inReach = [&](Point item) { return places.AnyTouches(EatingReach(kind), item); };
    return std::any_of(spawnPoints_.begin(), spawnPoints_.end(), inReach) ||
           std::any_of(spots_.begin(), spots_.end(), inReach);
  }

  /// Where a snake can go with all that it can pick up on its way.
  PixelMarks PlacesOf(int snake) const {
    PixelMarks places = ground_.PlacesFrom(StartOf(snake));
    if (CanTake(ItemKind::kTnt, places)) places = ground_.PlacesFrom(StartOf(snake), Force::kTnt);
    if (CanTake(ItemKind::kPower, places)) {
      places = ground_.PlacesFrom(StartOf(snake), Force::kPower);
    }
    return places;
  }

  void CheckRequirements(const PixelMarks& player) {
    const LevelState& level = level_.level;
    CheckRequirement(ItemKind::kYellow, level.reqYellow, LevelKey::kReqYellow, player);
    CheckRequirement(ItemKind::kRed, level.reqRed, LevelKey::kReqRed, player);
    CheckRequirement(ItemKind::kBlue, level.reqBlue, LevelKey::kReqBlue, player);
    CheckRequirement(ItemKind::kBlack, level.reqBlack, LevelKey::kReqBlack, player);
    const bool givesPoints = CanTake(ItemKind::kYellow, player) ||
                             CanTake(ItemKind::kRed, player) || CanTake(ItemKind::kBlue, player);
    if (level.reqScore > 0 && !givesPoints) {
      Warn(LineOf(LevelKey::kReqScore), "nothing that gives points can be reached");
    }
    if (Holds(ItemKind::kBlue) && level.blueRate <= 1 && !level.HideCollected) {
      Warn(LineOf(LevelKey::kBlueRate), "at a rate of 1 or less no crystal ever comes back");
    }
  }

  void CheckRequirement(ItemKind kind, double needed, LevelKey key, const PixelMarks& player) {
    if (needed <= 0) return;
    const std::string many{NamesOf(kind)};
    const int shown = level_.Items(kind).Live();
    if (shown == 0) {
      Warn(LineOf(key), "the level has no " + many);
    } else if (!CanTake(kind, player)) {
      Warn(LineOf(key), "the player can reach no " + many);
    } else if (level_.level.HideCollected && needed > shown) {
      Warn(LineOf(key), "more " + many + " than there are (" + std::to_string(shown) +
                            "): eaten ones stay hidden until a life is lost");
    }
  }

  /// The first of the level's kinds that, lying at `item`, cannot be eaten from these places.
  std::optional<ItemKind> OutOfReach(Point item, const PixelMarks& places) const {
    for (int number = 0; number < kItemKinds; ++number) {
      const auto kind = static_cast<ItemKind>(number);
      if (Holds(kind) && !places.AnyTouches(EatingReach(kind), item)) return kind;
    }
    return std::nullopt;
  }

  void CheckSpawnPoints(const PixelMarks& places) {
    for (const Point point : spawnPoints_) {
      const auto kind = OutOfReach(point, places);
      if (!kind) continue;
      const Point cell = {(point.x + kCell / 2) / kCell, (point.y + kCell / 2) / kCell};
      Warn(cell.y, "no snake can take " + std::string{NamesOf(*kind)} +
                       " from the spawn point in column " + std::to_string(cell.x));
    }
  }

  void CheckSpots(const PixelMarks& places) {
    std::vector<Point> lost;
    for (const Point spot : spots_) {
      if (OutOfReach(spot, places)) lost.push_back(spot);
    }
    if (lost.empty()) return;
    const Point cell = {lost.front().x / kCell, lost.front().y / kCell};
    Warn(cell.y, "no snake can take what is put into column " + std::to_string(cell.x) + ": " +
                     std::to_string(lost.size()) + " of " + std::to_string(spots_.size()) +
                     " free spots are out of reach");
  }

  const State& level_;
  const LevelLines& lines_;
  Ground ground_;
  std::vector<Point> spots_;
  std::vector<Point> spawnPoints_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> CheckField(const State& level, const LevelLines& lines) {
  return FieldCheck(level, lines).Run();
}

}  // namespace coilrun
