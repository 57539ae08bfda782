#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "model/saturating.h"
#include "model/table.h"
#include "model/words.h"

namespace coilrun {

inline constexpr int kMaxPeople = 4;

/// Which presses between two steps count: the last one, or all, one after the other.
enum class TurnsMode : std::uint8_t { kLast, kQueue };
template <>
inline constexpr WordList<2> kWords<TurnsMode>{"last", "queue"};

/// How heads and tails are drawn between two steps.
enum class MotionMode : std::uint8_t { kSteps, kSmooth };
template <>
inline constexpr WordList<2> kWords<MotionMode>{"steps", "smooth"};

enum class EffectsMode : std::uint8_t { kOff, kCalm, kFull };
template <>
inline constexpr WordList<3> kWords<EffectsMode>{"off", "calm", "full"};

/// Who steers a computer snake.
enum class RivalKind : std::uint8_t { kClassic, kClever, kMaster };
template <>
inline constexpr WordList<3> kWords<RivalKind>{"classic", "clever", "master"};

/// The menu pages other than main page, options and high scores.
enum class MorePage : std::uint8_t { kNone, kMore, kMatch, kControls, kReplays };
template <>
inline constexpr WordList<5> kWords<MorePage>{"", "more", "match", "controls", "replays"};

enum class MatchMode : std::uint8_t { kCampaign, kDeathmatch, kHunting };
template <>
inline constexpr WordList<3> kWords<MatchMode>{"campaign", "deathmatch", "hunting"};

/// The kinds that are dealt to the computer snakes in turn; never empty.
struct RivalList {
  std::vector<RivalKind> kinds{RivalKind::kClassic};

  bool operator==(const RivalList&) const = default;
};

/// What is played next from the match page.
struct MatchChoice {
  MatchMode Mode = MatchMode::kCampaign;
  std::string Level;     ///< the file's name in the lvl folder
  Int16 Computers = -1;  ///< -1: as many as the level asks for
  Int16 Limit = 0;       ///< frags or length
};

/// The entry of the match page that starts the game.
inline constexpr int kMatchPageStart = 5;

/// What the command line asks for in every game.
struct GameAsked {
  coilrun::GameMode GameMode = coilrun::GameMode::kSingle;
  bool HuntingMode = false;
  int MatchLimit = 0;                    ///< 0: as the mode has it
  std::optional<double> Computers = {};  ///< computer snakes; nothing: as the level has it
};

/// The scan codes that steer one person's snake, up to four a direction.
struct SteeringKeys {
  static constexpr int kMostCodes = 4;

  std::vector<int> Up;
  std::vector<int> Down;
  std::vector<int> Left;
  std::vector<int> Right;

  bool operator==(const SteeringKeys&) const = default;
};

/// What the host options ask for in this run; nothing leaves it to the settings.
struct RunOptions {
  bool isClassic = false;  ///< the sections [More] and [Keys] are neither read nor written
  std::optional<RivalList> rivals = {};
  bool watchesLevel = false;  ///< the command line's level is reloaded when its file changes
};

/// The settings of the sections [More] and [Keys], which start at their built-in values, and the
/// pages that show them.
struct MoreState {
  MorePage Page = MorePage::kNone;
  Int16 Cursor;  ///< from 1; 0 where there is no entry
  TurnsMode Turns = TurnsMode::kLast;
  MotionMode Motion = MotionMode::kSteps;
  EffectsMode Effects = EffectsMode::kOff;
  bool Confirm = false;
  bool AnyKey = false;
  bool AskName = false;
  bool Attract = false;
  RivalList Rivals;
  Int16 Players = 1;
  bool Record = false;
  Int16 KeepReplays = 50;
  MatchChoice Match;
  GameAsked Asked;
  bool isFromMatchPage = false;  ///< the running game was started there

  RunOptions forRun;
};

/// Presses that wait behind `NextDir`, oldest first.
struct TurnQueue {
  static constexpr std::size_t kMost = 2;

  std::array<Dir, kMost> turns{};
  std::size_t count = 0;
};

/// One of the people at this machine.
struct Person {
  TurnQueue queue;
  bool Out = false;  ///< has no lives left until the next level
};

/// "classic,master"; nothing for a list with an unknown or an empty word.
std::string RivalText(const RivalList& rivals);
std::optional<RivalList> RivalsFromText(std::string_view text);

/// Scan codes separated by blanks; nothing when there are more than four or one of them cannot
/// steer. An empty text is an empty list.
std::optional<std::vector<int>> KeyCodesFromText(std::string_view text);
std::string KeyCodesText(const std::vector<int>& codes);
/// Whether a key may be bound to a direction: its code is 1 to 239 and it has no other use.
bool CanSteer(int code);

/// The keys of person 1 to 4 when nothing is set.
SteeringKeys BuiltInKeys(int person);

/// The list of a person's keys that steer in this direction.
template <typename Keys>
requires std::is_same_v<std::remove_const_t<Keys>, SteeringKeys>
auto& KeysOf(Keys& keys, Dir dir) {
  if (dir == Dir::kForw) return keys.Up;
  if (dir == Dir::kBack) return keys.Down;
  return dir == Dir::kLeft ? keys.Left : keys.Right;
}

}  // namespace coilrun
