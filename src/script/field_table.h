#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

#include "model/animation.h"
#include "model/state.h"
#include "ports/scan_codes.h"
#include "script/trace.h"

namespace coilrun {

/// The whole numbers that a field may be set to.
struct Range {
  int lowest = 0;
  int highest = 0;
};

inline constexpr Range kAny16{Int16::kMin, Int16::kMax};
inline constexpr Range kOnOffPage{0, 1};
/// A timer's interval is an unsigned 16-bit number of milliseconds.
inline constexpr Range kTimerInterval{0, std::numeric_limits<std::uint16_t>::max()};

/// The one place that knows every field of a trace line: its name, its place in the line and where
/// it lives in the state. A visitor is shown the fields in order, and has
///
///   Field(name, value)               a field of any type, with its type's own range
///   Field(name, value, range)        a number with a narrower range
///   TimerFields(timer)               the two fields of a timer
///   ReadOnly(name, value)            a field that cannot be set
///   Object(name, visitInside)
///   Texts(name, table)               an array of texts
///   List(name, values)               an array inside a read-only one
///   Array(name, first, last, visitSlot)         an array of objects, slots `first` to `last`
///   ReadOnlyArray(name, first, last, visitSlot)
///
/// `StateType` is `State` or `const State`.
template <typename Visitor, typename StateType>
class FieldTable {
 public:
  FieldTable(Visitor& visit, StateType& state, const TraceMoment& moment)
      : visit_(visit), state_(state), moment_(moment) {}

  void VisitAll() const {
    VisitFlags();
    VisitMode();
    VisitMenus();
    VisitKeysAndCounters();
    VisitTexts();
    VisitLevel();
    VisitSettings();
    VisitHiScore();
    VisitSnakes();
    VisitItems();
    VisitCounts();
    VisitPlaces();
    VisitTimers();
    VisitSounds();
    VisitMusic();
    VisitDrawn();
    VisitModelPacks();
    VisitMore();
    VisitKeys();
    VisitHumans();
  }

 private:
  void VisitFlags() const {
    auto& shell = state_.shell;
    constexpr double kMicrosInAMilli = 1000;
    visit_.ReadOnly("ms", static_cast<double>(moment_.now) / kMicrosInAMilli);
    visit_.Field("flips", shell.flips);
    visit_.Field("Running", shell.Running);
    visit_.Field("InMenu", shell.InMenu);
    visit_.Field("NoGameRunning", shell.NoGameRunning);
    visit_.Field("LevelIntroPending", shell.LevelIntroPending);
    visit_.Field("ShowLevelScreen", shell.ShowLevelScreen);
    visit_.Field("DisplayReady", shell.DisplayReady);
    visit_.Field("DebugMode", shell.DebugMode);
    visit_.Field("IsPause", shell.IsPause);
    visit_.Field("ShowFPS", shell.ShowFPS);
    visit_.Field("lvlTime", shell.lvlTime);
    visit_.Field("WaitingForStart", shell.WaitingForStart);
    visit_.Field("WaitingForKey", shell.WaitingForKey);
    visit_.Field("WaitingAfterDeath", shell.WaitingAfterDeath);
    visit_.Field("WaitingAfterTimeout", shell.WaitingAfterTimeout);
    visit_.Field("ShowNames", shell.ShowNames);
    visit_.Field("ShowMatchStats", shell.ShowMatchStats);
    visit_.Field("MatchStatsDetail", shell.MatchStatsDetail);
  }

  void VisitMode() const {
    auto& mode = state_.mode;
    visit_.Field("GameMode", mode.GameMode);
    visit_.Field("HuntingMode", mode.HuntingMode);
    visit_.Field("MatchLimit", mode.MatchLimit);
    visit_.Field("NumSnakes", mode.NumSnakes, Range{1, kMaxSnakes});
    visit_.Field("AiEnabled", mode.AiEnabled);
    visit_.Field("AiCount", mode.AiCount);
    visit_.Field("KeyboardLayout", mode.KeyboardLayout);
    visit_.Field("GodMode", mode.GodMode);
    visit_.Field("NoClip", mode.NoClip);
    visit_.Field("TimePass", mode.TimePass);
    visit_.Field("Cheated", mode.Cheated);
    visit_.Field("CheatLine", mode.CheatLine);
  }

  void VisitMenus() const {
    auto& menus = state_.menus;
    visit_.Field("MainCursor", menus.MainCursor);
    visit_.Field("OptionsCursor", menus.OptionsCursor);
    visit_.Field("OptionsPage", menus.OptionsPage, kOnOffPage);
    visit_.Field("ScorePage", menus.ScorePage, kOnOffPage);
    visit_.Field("MenuAction", menus.MenuAction);
    visit_.Field("StatusText", menus.StatusText);
    visit_.Field("CreditsPos", menus.CreditsPos);
    visit_.Field("CreditsTicker", menus.CreditsTicker);
    visit_.Field("InputTarget", menus.InputTarget);
    visit_.Field("TypingActive", menus.TypingActive);
  }

  void VisitKeysAndCounters() const {
    visit_.Field("LastKey", state_.keys.LastKey, Range{0, kLastScanCode});
    visit_.Field("KeyPressed", state_.keys.KeyPressed);
    visit_.Field("WaitAborted", state_.shell.WaitAborted);
    visit_.Field("ImmortalBlink", state_.shell.ImmortalBlink);
    visit_.Field("Fps", state_.shell.Fps);
    visit_.Field("FrameCount", state_.shell.FrameCount);
    visit_.Field("MsgAge", state_.feed.MsgAge);
    visit_.Field("DispMsg", state_.feed.DispMsg);
  }

  void VisitTexts() const {
    auto& lines = state_.CenterLines;
    visit_.Texts("MsgLines", state_.feed.MsgLines);
    visit_.Texts("Console", state_.feed.Console);
    visit_.Array("CenterLines", lines.kFirst, lines.kLast, [&](int number) {
      auto& line = lines(number);
      visit_.Field("Text", line.Text);
      visit_.Field("Y", line.Y);
      visit_.Field("Font", line.Font, Range{0, kBitmapFonts});
    });
  }

  void VisitLevel() const {
    auto& level = state_.level;
    visit_.Field("lvlName", level.lvlName);
    visit_.Field("nextLvl", level.nextLvl);
    visit_.Field("Timeout", level.Timeout);
    visit_.Field("ElapsedSecs", level.ElapsedSecs);
    visit_.Field("reqYellow", level.reqYellow);
    visit_.Field("reqRed", level.reqRed);
    visit_.Field("reqBlue", level.reqBlue);
    visit_.Field("reqBlack", level.reqBlack);
    visit_.Field("reqScore", level.reqScore);
    visit_.Field("hasOpenWalls", level.hasOpenWalls);
    visit_.Field("HideCollected", level.HideCollected);
    visit_.Field("blueRate", level.blueRate);
    visit_.Field("powerRate", level.powerRate);
    visit_.Field("MusicFile", level.MusicFile);
    visit_.Field("BkgPic", level.BkgPic);
    visit_.Field("MapSnakeCount", level.MapSnakeCount);
    visit_.Field("UserItemsUsed", level.UserItemsUsed);
  }

  void VisitSettings() const {
    auto& settings = state_.settings;
    VisitSetting("MinSpeed", settings.MinSpeed);
    VisitSetting("MaxSpeed", settings.MaxSpeed);
    VisitSetting("SpeedRate", settings.SpeedRate);
    visit_.Field("NoSpeedReset", settings.NoSpeedReset);
    VisitSetting("IncSpeed", settings.IncSpeed);
    visit_.Field("GlobalSpeed", settings.GlobalSpeed);
    visit_.Field("SpeedGain", settings.SpeedGain);
    visit_.Field("PrevInterval", settings.PrevInterval);
    visit_.Field("AnimatedItems", settings.AnimatedItems);
    visit_.Field("SndEnabled", settings.SndEnabled);
    visit_.Field("KiSndEnabled", settings.KiSndEnabled);
    visit_.Field("MusicEnabled", settings.MusicEnabled);
    visit_.Field("MusicVolume", settings.MusicVolume, Range{0, kFullVolume});
    visit_.Field("NoCleanUp", settings.NoCleanUp);
    visit_.Field("NewInstall", settings.NewInstall);
  }

  /// Shows the value in force. Setting it sets the player's own value and drops the level's.
  template <typename T>
  void VisitSetting(const char* name, const LevelSetting<T>& setting) const {
    const T inForce = setting;
    visit_.Field(name, inForce);
  }
  template <typename T>
  void VisitSetting(const char* name, LevelSetting<T>& setting) const {
    const T before = setting;
    T value = before;
    visit_.Field(name, value);
    if (value != before) setting = value;
  }

  void VisitHiScore() const {
    auto& entries = state_.HiScore;
    visit_.Array("HiScore", entries.kFirst, entries.kLast, [&](int number) {
      visit_.Field("Name", entries(number).Name);
      visit_.Field("Score", entries(number).Score);
    });
  }

  void VisitSnakes() const {
    auto& snakes = state_.Snakes;
    visit_.Array("Snakes", snakes.kFirst, snakes.kLast, [&](int s) { VisitSnake(snakes(s)); });
  }

  template <typename Snake>
  void VisitSnake(Snake& snake) const {
    visit_.Field("X", snake.X);
    visit_.Field("Y", snake.Y);
    visit_.Field("Dir", snake.Dir);
    visit_.Field("NextDir", snake.NextDir);
    visit_.Field("Length", snake.Length);
    visit_.Field("Grow", snake.Grow);
    visit_.Field("StartX", snake.StartX);
    visit_.Field("StartY", snake.StartY);
    visit_.Array("Seg", 0, std::clamp<int>(snake.Length, 0, kLastSeg),
                 [&](int i) { VisitCell(snake.Seg(i)); });
    visit_.Object("Tail", [&] { VisitCell(snake.Tail); });
    visit_.Field("Score", snake.Score);
    visit_.Field("TotalScore", snake.TotalScore);
    visit_.Field("Lives", snake.Lives);
    visit_.Field("Frags", snake.Frags);
    visit_.Field("Name", snake.Name);
    visit_.Field("BaseInterval", snake.BaseInterval);
    visit_.Field("Interval", snake.Interval);
    visit_.Field("Model", snake.Model, Range{0, kMaxModelPacks - 1});
    visit_.Field("Deaths", snake.Deaths);
    visit_.Field("RedEaten", snake.RedEaten);
    visit_.Field("BlueEaten", snake.BlueEaten);
    visit_.Field("BlackEaten", snake.BlackEaten);
    visit_.Field("YellowEaten", snake.YellowEaten);
    visit_.Field("PowerEaten", snake.PowerEaten);
    visit_.Field("TNT", snake.TNT);
    visit_.Field("Immortal", snake.Immortal);
    visit_.Field("ImmortalSecs", snake.ImmortalSecs);
  }

  template <typename Cell>
  void VisitCell(Cell& cell) const {
    visit_.Field("X", cell.X);
    visit_.Field("Y", cell.Y);
    visit_.Field("Dir", cell.Dir);
  }

  void VisitItems() const {
    VisitItemList("Yellow", ItemKind::kYellow);
    VisitItemList("Red", ItemKind::kRed);
    VisitItemList("Blue", ItemKind::kBlue);
    VisitItemList("Black", ItemKind::kBlack);
    VisitItemList("TNT", ItemKind::kTnt);
    VisitItemList("Power", ItemKind::kPower);
  }

  void VisitItemList(std::string_view name, ItemKind kind) const {
    auto& list = state_.Items(kind);
    visit_.Array(name, 1, list.Live(), [&](int slot) {
      auto& item = list(slot);
      VisitPlace(item);
      visit_.Field("SpawnPoint", item.SpawnPoint, Range{-1, kMaxSpawnPoints});
      visit_.Field("Collected", item.Collected);
    });
  }

  template <typename Thing>
  void VisitPlace(Thing& thing) const {
    visit_.Field("X", thing.X);
    visit_.Field("Y", thing.Y);
    visit_.Field("Present", thing.Present);
  }

  void VisitCounts() const {
    constexpr Range kItemCount{0, kMaxItems};
    visit_.Field("numYellow", state_.Items(ItemKind::kYellow).count, kItemCount);
    visit_.Field("numRed", state_.Items(ItemKind::kRed).count, kItemCount);
    visit_.Field("numBlue", state_.Items(ItemKind::kBlue).count, kItemCount);
    visit_.Field("numBlack", state_.Items(ItemKind::kBlack).count, kItemCount);
    visit_.Field("numTNT", state_.Items(ItemKind::kTnt).count, kItemCount);
    visit_.Field("numPower", state_.Items(ItemKind::kPower).count, kItemCount);
    visit_.Field("numWalls", state_.numWalls, Range{0, kMaxWalls});
    visit_.Field("numSpawnPoints", state_.numSpawnPoints, Range{0, kMaxSpawnPoints});
    visit_.Field("numUserItems", state_.numUserItems, Range{0, kMaxUserItems});
  }

  void VisitPlaces() const {
    visit_.Array("Walls", 1, std::clamp<int>(state_.numWalls, 0, kMaxWalls), [&](int w) {
      auto& wall = state_.Walls(w);
      VisitPlace(wall);
      visit_.Field("Kind", wall.Kind);
    });
    const int points = std::clamp<int>(state_.numSpawnPoints, 0, kMaxSpawnPoints);
    visit_.Array("SpawnPoints", 1, points, [&](int p) {
      auto& point = state_.SpawnPoints(p);
      VisitPlace(point);
      visit_.Field("State", point.State);
    });
    const int userItems = std::clamp<int>(state_.numUserItems, 0, kMaxUserItems);
    visit_.Array("UserItems", 1, userItems, [&](int u) {
      auto& item = state_.UserItems(u);
      VisitPlace(item);
      visit_.Field("Name", item.Name);
      visit_.Field("Type", item.Type);
    });
  }

  void VisitTimers() const {
    auto& timers = state_.timers;
    auto& steps = timers.iWait;
    visit_.Object("Timers", [&] {
      visit_.Array("iWait", steps.kFirst, steps.kLast,
                   [&](int number) { visit_.TimerFields(steps(number)); });
      visit_.Object("ResetSpeed", [&] { visit_.TimerFields(timers.ResetSpeed); });
      visit_.Object("ScrollNext", [&] { visit_.TimerFields(timers.ScrollNext); });
      visit_.Field("AnimFrame", timers.AnimFrame, Range{1, kAnimationFrames});
      visit_.Field("AnimPhase", timers.AnimPhase, Range{0, kAnimationPhases - 1});
    });
  }

  void VisitSounds() const {
    const auto& sounds = state_.output.sounds;
    visit_.ReadOnlyArray("Sounds", 1, static_cast<int>(sounds.size()), [&](int number) {
      const SoundStart& sound = sounds[static_cast<std::size_t>(number - 1)];
      visit_.ReadOnly("Path", sound.Path);
      visit_.ReadOnly("Snake", sound.Snake);
    });
  }

  void VisitMusic() const {
    auto& music = state_.music;
    visit_.Object("Music", [&] {
      visit_.Field("File", music.CurrentMusic);
      visit_.Field("Playing", music.MusicPlaying);
      visit_.Field("Volume", music.Volume, Range{kSilence, 0});
      visit_.ReadOnly("Position", moment_.musicPosition);
    });
  }

  void VisitDrawn() const {
    const auto& drawn = state_.output.shown;
    visit_.ReadOnlyArray("Drawn", 1, static_cast<int>(drawn.size()), [&](int number) {
      const DrawnText& text = drawn[static_cast<std::size_t>(number - 1)];
      visit_.ReadOnly("Text", text.Text);
      visit_.ReadOnly("X", text.X);
      visit_.ReadOnly("Y", text.Y);
      VisitFont(text.Font);
    });
  }

  /// A bitmap font is named by its number, a system font by its face.
  void VisitFont(const std::string& font) const {
    if (font.size() == 1 && font[0] >= '1' && font[0] <= '0' + kBitmapFonts) {
      visit_.ReadOnly("Font", font[0] - '0');
    } else {
      visit_.ReadOnly("Font", font);
    }
  }

  void VisitModelPacks() const {
    auto& packs = state_.ModelPacks;
    visit_.Field("LastModel", state_.LastModel, Range{-1, packs.kLast});
    visit_.Array("ModelPacks", 1, 1 + std::min<int>(state_.LastModel, packs.kLast),
                 [&](int number) {
                   auto& pack = packs(number - 1);
                   visit_.Field("File", pack.File);
                   visit_.Field("Dir", pack.Dir);
                   visit_.Field("Name", pack.Name);
                   visit_.Field("Author", pack.Author);
                   visit_.Field("Edges", pack.Edges);
                   visit_.Field("EdgesInverse", pack.EdgesInverse);
                   visit_.Field("TailEdges", pack.TailEdges);
                 });
  }

  void VisitMore() const {
    auto& more = state_.more;
    visit_.Object("More", [&] {
      visit_.ReadOnly("Page", more.Page);
      visit_.ReadOnly("Cursor", more.Cursor);
      visit_.Field("Turns", more.Turns);
      visit_.Field("Motion", more.Motion);
      visit_.Field("Effects", more.Effects);
      visit_.Field("Confirm", more.Confirm);
      visit_.Field("AnyKey", more.AnyKey);
      visit_.Field("Rivals", more.Rivals);
      visit_.Field("Players", more.Players, Range{1, kMaxPeople});
      visit_.Field("Record", more.Record);
      visit_.Object("Match", [&] { VisitMatch(more.Match); });
    });
  }

  template <typename Choice>
  void VisitMatch(Choice& match) const {
    visit_.Field("Mode", match.Mode);
    visit_.Field("Level", match.Level);
    visit_.Field("Computers", match.Computers, Range{-1, kMaxSnakes - 1});
    visit_.Field("Limit", match.Limit);
  }

  void VisitKeys() const {
    visit_.ReadOnlyArray("Keys", 1, kMaxPeople, [&](int person) {
      const SteeringKeys& keys = state_.Keys(person);
      visit_.List("Up", keys.Up);
      visit_.List("Down", keys.Down);
      visit_.List("Left", keys.Left);
      visit_.List("Right", keys.Right);
    });
  }

  void VisitHumans() const {
    visit_.ReadOnlyArray("Humans", 1, PeopleInPlay(state_), [&](int person) {
      const Person& human = state_.People(person);
      visit_.ReadOnly("Snake", person);
      visit_.List("Queue", std::span(human.queue.turns).first(human.queue.count));
      visit_.ReadOnly("Out", human.Out);
    });
  }

  static constexpr int kBitmapFonts = 6;
  static constexpr int kFullVolume = 100;
  static constexpr int kSilence = -2500;  ///< hundredths of a decibel

  Visitor& visit_;
  StateType& state_;
  const TraceMoment& moment_;
};

}  // namespace coilrun
