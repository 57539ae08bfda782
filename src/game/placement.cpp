#include "game/placement.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <span>
#include <vector>

namespace coilrun {
namespace {

constexpr int kSpawnPointRolls = 20000;
constexpr int kSpotRolls = 100;

/// Candidates for a free spot, in pixels.
constexpr int kSpotColumns = 61;
constexpr int kSpotRows = 44;
constexpr int kSpotStep = 10;
constexpr Point kFirstSpot{20, 20};

constexpr Point Spot(int column, int row) {
  return {kFirstSpot.x + column * kSpotStep, kFirstSpot.y + row * kSpotStep};
}

constexpr bool InField(Point spot) {
  return 0 < spot.x && spot.x < 615 && 0 < spot.y && spot.y < 448;
}

/// How far around a thing nothing else may be placed, in pixels.
constexpr std::array<int, kItemKinds> kItemKeepOut = {16, 14, 16, 14, 14, 14};
constexpr int kWallKeepOut = 14;
constexpr int kUserItemKeepOut = 16;
constexpr int kBodyKeepOut = 10;
/// Head, neck and first cell of the player do not keep items away.
constexpr int kFirstBlockingSeg = 2;

/// Passes everything that keeps items away to `visit`, with its keep-out distance, until `visit`
/// returns true; returns whether it did.
template <typename Visit>
bool AnyKeepOut(const State& state, const Visit& visit) {
  for (std::size_t kind = 0; kind < kItemKeepOut.size(); ++kind) {
    const ItemList& items = state.itemLists.at(kind);
    const int keepOut = kItemKeepOut.at(kind);
    for (const ItemRec& item : std::span(items.slots.begin(), items.slots.begin() + items.Live())) {
      if (item.Present && visit(item.At(), keepOut)) return true;
    }
  }
  for (const WallRec& wall : state.Walls) {
    if (wall.Present && visit(wall.At(), kWallKeepOut)) return true;
  }
  for (int slot = 1; slot <= state.numUserItems; ++slot) {
    const UserItemRec& item = state.UserItems(slot);
    if (item.Present && visit(item.At(), kUserItemKeepOut)) return true;
  }
  const SnakeRec& player = state.Snakes(kPlayer);
  for (int cell = kFirstBlockingSeg; cell <= player.Length && cell <= kLastSeg; ++cell) {
    if (visit(Point{player.Seg(cell).X, player.Seg(cell).Y}, kBodyKeepOut)) return true;
  }
  return false;
}

constexpr std::size_t Index(int column, int row) {
  return static_cast<std::size_t>(row * kSpotColumns + column);
}

/// A mark for each candidate.
using SpotMarks = std::array<bool, std::size_t{kSpotColumns} * kSpotRows>;

constexpr SpotMarks OutsideTheField() {
  SpotMarks marks{};
  for (int row = 0; row < kSpotRows; ++row) {
    for (int column = 0; column < kSpotColumns; ++column) {
      marks.at(Index(column, row)) = !InField(Spot(column, row));
    }
  }
  return marks;
}

/// Which of the field's candidates are taken.
class SpotMap {
 public:
  explicit SpotMap(const State& state) : taken_(kOutside) {
    AnyKeepOut(state, [this](Point thing, int keepOut) {
      TakeAround(thing, keepOut);
      return false;
    });
  }

  bool IsTaken(int column, int row) const { return taken_.at(Index(column, row)); }
  std::vector<Point> Free() const {
    std::vector<Point> spots;
    for (int row = 0; row < kSpotRows; ++row) {
      for (int column = 0; column < kSpotColumns; ++column) {
        if (!IsTaken(column, row)) spots.push_back(Spot(column, row));
      }
    }
    return spots;
  }

 private:
  /// The first and the last candidate on one axis between two positions.
  static int FirstFrom(int position, int origin) {
    return position <= origin ? 0 : (position - origin + kSpotStep - 1) / kSpotStep;
  }
  static int LastUpTo(int position, int origin, int count) {
    return position < origin ? -1 : std::min((position - origin) / kSpotStep, count - 1);
  }
  void Take(int column, int row) { taken_.at(Index(column, row)) = true; }
  void TakeAround(Point thing, int keepOut) {
    const int lastColumn = LastUpTo(thing.x + keepOut, kFirstSpot.x, kSpotColumns);
    const int lastRow = LastUpTo(thing.y + keepOut, kFirstSpot.y, kSpotRows);
    for (int row = FirstFrom(thing.y - keepOut, kFirstSpot.y); row <= lastRow; ++row) {
      for (int column = FirstFrom(thing.x - keepOut, kFirstSpot.x); column <= lastColumn;
           ++column) {
        Take(column, row);
      }
    }
  }

  static constexpr SpotMarks kOutside = OutsideTheField();

  SpotMarks taken_;
};

bool IsFree(const SpawnRec& point) {
  return point.State->kind == SpawnUse::Kind::kFree;
}

/// How the loader chooses: a random free point.
std::optional<int> RollSpawnPoint(State& state) {
  const auto firstPoint = state.SpawnPoints.begin();
  if (std::none_of(firstPoint, firstPoint + state.numSpawnPoints, IsFree)) {
    state.Rnd.Skip(kSpawnPointRolls);
    return std::nullopt;
  }
  for (int roll = 0; roll < kSpawnPointRolls; ++roll) {
    const int point = state.Rnd.Below(state.numSpawnPoints) + 1;
    if (IsFree(state.SpawnPoints(point))) return point;
  }
  return std::nullopt;
}

/// How play chooses: the first free point in order. A point whose item was just eaten is skipped
/// once.
std::optional<int> NextSpawnPoint(State& state) {
  for (int number = 1; number <= state.numSpawnPoints; ++number) {
    SpawnRec& point = state.SpawnPoints(number);
    if (point.State->kind == SpawnUse::Kind::kJustEaten) {
      point.State = {};
    } else if (point.Present && IsFree(point)) {
      return number;
    }
  }
  return std::nullopt;
}

/// Rolls spots until one is free; if all rolls fail, rolls among the free spots. A crowded field is
/// mapped as a whole once, which costs as much as looking at a few spots.
std::optional<Point> FindFreeSpot(State& state) {
  constexpr int kSingleLooks = 2;
  std::optional<SpotMap> map;
  for (int roll = 0; roll < kSpotRolls; ++roll) {
    const int column = state.Rnd.Below(kSpotColumns);
    const int row = state.Rnd.Below(kSpotRows);
    if (roll == kSingleLooks) map.emplace(state);
    const bool taken = map ? map->IsTaken(column, row) : IsSpotTaken(state, Spot(column, row));
    if (!taken) return Spot(column, row);
  }
  const std::vector<Point> free = map->Free();
  if (free.empty()) return std::nullopt;
  return free.at(static_cast<std::size_t>(state.Rnd.Below(static_cast<double>(free.size()))));
}

void PutAt(ItemRec& item, Point place, int spawnPoint) {
  item.X = place.x;
  item.Y = place.y;
  item.SpawnPoint = spawnPoint;
}

}  // namespace

std::vector<Point> FreeSpots(const State& state) {
  return SpotMap(state).Free();
}

bool IsSpotTaken(const State& state, Point spot) {
  if (!InField(spot)) return true;
  return AnyKeepOut(state, [spot](Point thing, int keepOut) {
    return std::abs(spot.x - thing.x) <= keepOut && std::abs(spot.y - thing.y) <= keepOut;
  });
}

bool PlaceItem(State& state, ItemKind kind, int slot, bool initial) {
  ReseedFromClock(state);
  ItemRec& item = state.Items(kind)(slot);
  if (state.numSpawnPoints >= 1) {
    const auto number = initial ? RollSpawnPoint(state) : NextSpawnPoint(state);
    if (number) {
      SpawnRec& point = state.SpawnPoints(*number);
      PutAt(item, {point.X, point.Y}, *number);
      point.State = SpawnUse::TakenBy(slot);
      return true;
    }
  }
  constexpr int kNoSpawnPoint = -1;
  const auto spot = FindFreeSpot(state);
  PutAt(item, spot.value_or(kParked), kNoSpawnPoint);
  return spot.has_value();
}

}  // namespace coilrun
