#include "game/death_messages.h"

namespace coilrun {
namespace {

/// From this many deaths on, the message about a wall tells their number.
constexpr int kManyWallDeaths = 11;
/// From this many deaths on, the message about another snake does.
constexpr int kManySnakeDeaths = 4;

std::string WallMessage(const std::string& name, int deaths, int roll) {
  if (roll == 2) return name + " was in the wrong place";
  if (roll == 3) return name + " looses another frag!";
  if (deaths >= kManyWallDeaths) return name + " dies the " + std::to_string(deaths) + "th time!";
  return name + " hit a wall. bang!";
}

std::string OwnBodyMessage(const std::string& name, int deaths, int roll) {
  if (roll == 1) return name + " bite him/herself! - What a LOOSER!";
  return name + " lost his " + std::to_string(deaths) + " live";
}

std::string OtherBodyMessage(const std::string& name, const std::string& other, int deaths,
                             int roll) {
  if (roll == 1) return name + " didn't see " + other + "!";
  if (deaths < kManySnakeDeaths) return other + " stopped " + name + " and gets another frag!";
  return name + " hit " + other + " and dies the " + std::to_string(deaths) + "th time!";
}

std::string EdgeMessage(const std::string& name, int roll) {
  if (roll == 1) return name + " didn't see the wall.";
  if (roll == 2) return "A wall stopped " + name;
  return name + ", tried to walk through a wall";
}

}  // namespace

std::string DeathMessage(const SnakeRec& victim, DeathCause cause, const SnakeRec& other,
                         int roll) {
  switch (cause) {
    case DeathCause::kWall:
      return WallMessage(victim.Name, victim.Deaths, roll);
    case DeathCause::kSnake:
      if (&victim == &other) return OwnBodyMessage(victim.Name, victim.Deaths, roll);
      return OtherBodyMessage(victim.Name, other.Name, victim.Deaths, roll);
    case DeathCause::kEdge:
      break;
  }
  return EdgeMessage(victim.Name, roll);
}

}  // namespace coilrun
