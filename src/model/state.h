#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/level_setting.h"
#include "model/more.h"
#include "model/records.h"
#include "model/rnd.h"
#include "model/table.h"
#include "model/timers.h"
#include "model/words.h"
#include "model/written.h"

namespace coilrun {

/// The number of the player's own snake.
inline constexpr int kPlayer = 1;
inline constexpr int kMaxSnakes = 16;
inline constexpr int kMaxItems = 300;
inline constexpr int kMaxWalls = 681;
inline constexpr int kMaxSpawnPoints = 300;
inline constexpr int kMaxUserItems = 681;
inline constexpr int kMaxModelPacks = 100;
inline constexpr int kHiScores = 10;
/// The most characters that a name has when it is typed or stored.
inline constexpr std::size_t kLongestName = 14;
inline constexpr int kMsgLines = 5;

/// What the shell is doing.
struct ShellState {
  bool Running = false;
  bool InMenu = false;
  bool NoGameRunning = false;
  bool LevelIntroPending = false;
  bool ShowLevelScreen = false;
  bool DisplayReady = false;
  bool DebugMode = false;
  bool IsPause = false;
  bool ShowFPS = false;
  bool lvlTime = false;  ///< the level clock runs
  bool WaitingForStart = false;
  bool WaitingForKey = false;
  bool WaitAborted = false;
  bool WaitingAfterDeath = false;
  bool WaitingAfterTimeout = false;
  bool ShowNames = false;
  bool ShowMatchStats = false;
  bool MatchStatsDetail = false;
  bool ImmortalBlink = false;
  Int16 Fps;
  Int32 FrameCount;
  Int32 flips;
};

/// What the command line and the cheats say about the game.
struct ModeState {
  coilrun::GameMode GameMode = coilrun::GameMode::kSingle;
  bool HuntingMode = false;
  Int16 MatchLimit;
  Int16 NumSnakes = 1;
  bool AiEnabled = false;
  double AiCount = 0;
  bool AiSwitchGiven = false;
  bool LevelSwitchGiven = false;
  std::string StartLevelName;
  std::string StartLevelPath;
  Written<coilrun::KeyboardLayout> KeyboardLayout;
  bool GodMode = false;
  bool NoClip = false;
  bool TimePass = false;
  bool Cheated = false;
  std::string CheatLine;
};

struct MenuState {
  Int16 MainCursor;
  Int16 OptionsCursor;
  Int16 OptionsPage;
  Int16 ScorePage;
  coilrun::MenuAction MenuAction = coilrun::MenuAction::kNone;
  Table<bool, 4> EntryLit;
  std::string StatusText;
  bool statusHeld = false;          ///< a failure's or a question's text stays until the next key
  bool asked = false;               ///< the player was asked whether to give up the running game
  int EnteredPlace = 0;             ///< the place of the high score just made; 0 if there is none
  bool EditsName = false;           ///< that entry's name is being typed
  bool awaitsKey = false;           ///< the next key is bound to the direction under the cursor
  bool isOnMore = false;            ///< the pointer is on the words "Tab  More"
  std::int64_t pointerHidesAt = 0;  ///< microseconds; 0 while the pointer is hidden
  std::string CreditsText;
  Int32 CreditsPos;
  std::string CreditsTicker;
  coilrun::InputTarget InputTarget = coilrun::InputTarget::kNone;
  bool TypingActive = false;
};

struct KeyState {
  int LastKey = 0;  ///< scan code of the last key that fired; 0 for none
  Int16 KeyPressed;
  std::array<std::uint8_t, 256> Down{};
  std::array<bool, 256> Armed{};  ///< was seen released, so may fire again
  bool ShiftDown = false;
};

/// The five-line message feed, the start-up console and the intro panel.
struct FeedState {
  Table<std::string, kMsgLines> MsgLines;
  Int16 MsgAge;  ///< one-second ticks since the feed last changed
  bool DispMsg = false;
  Table<std::string, 5> Console;
  bool introVisible = false;
  std::string introCaption;
  double introProgress = 0;  ///< percent
  int LoadTotal = 0;
  int LoadedCount = 0;
  int UnpackedCount = 0;
};

/// A picture or texts laid over the frame while a wait goes on.
enum class WaitOverlay : std::uint8_t { kNone, kTimeLimit, kGameOver, kMatchResult };

/// Level properties, named after the level file's keys.
struct LevelState {
  std::string lvlName;
  std::string nextLvl;
  double Timeout = 0;
  Int16 ElapsedSecs;
  double reqYellow = 0;
  double reqRed = 0;
  double reqBlue = 0;
  double reqBlack = 0;
  Int16 reqScore;
  bool hasOpenWalls = false;
  bool HideCollected = false;
  double blueRate = 40;
  double powerRate = 200;
  std::string MusicFile;
  std::string BkgPic;
  Int16 MapSnakeCount;
  bool UserItemsUsed = false;
  bool SetsPeriod = false;  ///< the level sets the player's normal step period
  bool UsesRed = false;
  bool UsesBlue = false;
  bool UsesBlack = false;
  bool UsesTNT = false;
  bool UsesPower = false;
  Table<std::string, 32> RequiredArchives;
};

struct SettingsState {
  LevelSetting<double> MinSpeed = 20;   ///< range of a slow-down, ms
  LevelSetting<double> MaxSpeed = 250;  ///< shortest step period, ms
  LevelSetting<double> SpeedRate = 0.5;
  bool NoSpeedReset = false;
  LevelSetting<bool> IncSpeed = false;
  double GlobalSpeed = 100;
  bool AnimatedItems = true;
  bool SndEnabled = true;
  bool KiSndEnabled = true;
  bool MusicEnabled = true;
  Int16 MusicVolume = 30;
  bool NoCleanUp = false;
  bool NewInstall = true;
  double SpeedGain = 0;
  Int16 PrevInterval;
  Int32 SpeedTicks;  ///< ticks of the level clock since the level started
};

/// The items of one kind. A level that failed to load can leave a count larger than the table.
struct ItemList {
  Table<ItemRec, kMaxItems> slots;
  Int16 count;

  /// How many slots are live: the count, as far as there are slots.
  int Live() const { return std::clamp<int>(count, 0, kMaxItems); }

  ItemRec& operator()(int slot) { return slots(slot); }
  const ItemRec& operator()(int slot) const { return slots(slot); }
};

struct SoundStart {
  std::string Path;
  int Snake = 0;
};

struct MusicState {
  std::string CurrentMusic;
  std::string refused;  ///< a file that could not be played; not tried again in this level
  bool MusicPlaying = false;
  bool MusicLoop = false;
  int Volume = 0;  ///< hundredths of a decibel
};

/// A text as it was drawn: `Font` is "1" to "6" or the face of a system font.
struct DrawnText {
  std::string Text;
  int X = 0;
  int Y = 0;
  std::string Font;
};

/// What went to the screen and the speakers, for the trace. Kept only while `enabled`.
struct OutputLog {
  bool enabled = false;
  std::vector<DrawnText> drawing;  ///< since the last full-screen fill or background
  std::vector<DrawnText> shown;    ///< on the picture last flipped
  std::vector<SoundStart> sounds;  ///< since they were last read
};

/// The whole state of the program. Made in one place and passed down by reference.
struct State {
  State();

  ShellState shell;
  ModeState mode;
  MenuState menus;
  KeyState keys;
  FeedState feed;
  LevelState level;
  SettingsState settings;
  Timers timers;
  MusicState music;
  OutputLog output;
  MoreState more;
  Table<SteeringKeys, kMaxPeople> Keys{};
  Table<Person, kMaxPeople> People;

  Table<CenterLine, 16, 0> CenterLines;
  WaitOverlay overlay = WaitOverlay::kNone;
  Table<HiScoreEntry, kHiScores> HiScore;
  Table<SnakeRec, kMaxSnakes> Snakes;
  std::array<ItemList, kItemKinds> itemLists;
  Table<WallRec, kMaxWalls> Walls;
  Int16 numWalls;
  Table<SpawnRec, kMaxSpawnPoints> SpawnPoints;
  Int16 numSpawnPoints;
  Table<UserItemRec, kMaxUserItems> UserItems;
  Int16 numUserItems;
  Table<ModelPack, kMaxModelPacks, 0> ModelPacks;
  Int16 LastModel = -1;
  bool TargetReached = false;  ///< belongs to one choice of an AI snake

  coilrun::Rnd Rnd;
  std::uint64_t clockSeed = 0;  ///< added to the clock when `Rnd` is seeded from it

  ItemList& Items(ItemKind kind) { return itemLists[static_cast<std::size_t>(kind)]; }
  const ItemList& Items(ItemKind kind) const { return itemLists[static_cast<std::size_t>(kind)]; }
};

/// How many people play on this machine: theirs are snakes 1 to this number.
inline int PeopleInPlay(const State& state) {
  return std::clamp<int>(state.more.Players, 1, kMaxPeople);
}

/// Seeds `Rnd` from the clock.
void ReseedFromClock(State& state);

/// Parks all body cells of a snake, even those beyond its length, and leaves it with one cell and
/// no growth pending.
void ResetSnakeBody(State& state, int snake);
/// Shows every hidden item of the four coloured kinds again.
void RestoreCollectedItems(State& state);
/// Frees every spawn point of the level.
void ResetSpawnPoints(State& state);
/// Empties all centred texts.
void ClearCenterLines(State& state);

}  // namespace coilrun
