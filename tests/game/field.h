#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "game/game.h"

namespace coilrun {

inline void PrintTo(Dir dir, std::ostream* out) {
  *out << '"' << Word(dir) << '"';
}

/// Writes down what the rules ask for, and presses Enter in every wait.
class RecordingHost : public GameHost {
 public:
  explicit RecordingHost(State& state) : state_(state) {}

  void PlayEffect(std::string_view path, int snake) override {
    calls.push_back(std::string{path} + " " + std::to_string(snake));
  }
  void DrawFrame() override {
    screen.clear();
    for (const CenterLine& line : state_.CenterLines) {
      if (!line.Text.empty()) screen.push_back(std::to_string(line.Y) + " " + line.Text);
    }
    overlays.push_back(state_.overlay);
  }
  void Yield() override {
    ++yields;
    if (pressesEnter && state_.shell.WaitingForKey) state_.keys.LastKey = 28;
    if (onYield) onYield();
  }
  void LoadLevel(const std::string& path) override {
    calls.push_back("level " + path);
    state_.shell.Running = true;
  }
  void RunMenus() override { calls.emplace_back("menus"); }
  void LoadSettings() override {
    calls.emplace_back("load");
    for (SnakeRec& snake : state_.Snakes) snake.BaseInterval = storedInterval;
  }
  void RefreshHighScores() override {}
  void SaveSettings() override { calls.emplace_back("save"); }

  std::vector<std::string> calls;
  std::vector<std::string> screen;  ///< the centred texts drawn last, each behind its Y
  std::vector<WaitOverlay> overlays;
  std::function<void()> onYield;
  bool pressesEnter = true;
  int yields = 0;
  int storedInterval = 100;

 private:
  State& state_;
};

/// A level made in code, with the player at (100, 100) and no way to complete it.
struct Field {
  Field() {
    state.level.reqYellow = 1000;
    state.settings.MaxSpeed = 30;
    state.settings.MinSpeed = 150;
    for (int s = 1; s <= kMaxSnakes; ++s) {
      SnakeRec& snake = state.Snakes(s);
      snake.Name = s == kPlayer ? "Ann" : "Bot" + std::to_string(s);
      snake.StartX = 100 + 30 * (s - 1);
      snake.StartY = 100;
      PutOnStart(snake);
      snake.BaseInterval = 100;
      snake.Interval = 100;
      snake.Lives = 3;
      state.timers.SetInterval(StepTimer(state, s), 100);
    }
  }

  SnakeRec& Snake(int number) { return state.Snakes(number); }
  SnakeRec& Player() { return Snake(kPlayer); }

  SnakeRec& Put(int number, Point head, Dir dir = Dir::kRight) {
    state.mode.NumSnakes = std::max<int>(state.mode.NumSnakes, number);
    SnakeRec& snake = Snake(number);
    snake.X = head.x;
    snake.Y = head.y;
    snake.Dir = dir;
    snake.NextDir = dir;
    return snake;
  }
  /// The cells of a body from `Seg(1)` on.
  void Body(int number, std::initializer_list<Point> cells) {
    SnakeRec& snake = Snake(number);
    snake.Length = static_cast<int>(cells.size());
    int i = 0;
    for (const Point cell : cells) snake.Seg(++i) = {cell.x, cell.y, Dir::kRight};
  }
  ItemRec& Item(ItemKind kind, Point at) {
    ItemList& items = state.Items(kind);
    ++items.count;
    return items(items.count) = {at.x, at.y, true, -1, false};
  }
  void Walls(std::initializer_list<Point> places) {
    for (const Point at : places) {
      ++state.numWalls;
      state.Walls(state.numWalls) = {at.x, at.y, true, WallKind::kS};
    }
  }
  UserItemRec& UserWall(Point at, std::string_view type, bool present = true) {
    state.level.UserItemsUsed = true;
    ++state.numUserItems;
    return state.UserItems(state.numUserItems) = {at.x, at.y, present, "bricks",
                                                  Written<UserItemType>{type}};
  }
  int StandingWalls() const {
    return static_cast<int>(std::count_if(state.Walls.begin(), state.Walls.end(),
                                          [](const WallRec& wall) { return wall.Present; }));
  }
  /// Finds a state of the generator that rolls what `wanted` asks for.
  void Rolls(const std::function<bool(Rnd)>& wanted) {
    for (std::uint64_t seed = 0; !wanted(state.Rnd); ++seed) state.Rnd.Reseed(seed);
  }
  /// Plays a rule and tells in one line what it changed: facts that now have another value, then
  /// what it asked of the host and what it wrote into the feed.
  std::string After(const std::function<void(Game&)>& rule) {
    const auto before = Facts();
    host.calls.clear();
    state.feed.MsgLines = {};
    rule(game);
    std::ostringstream told;
    for (const auto& [name, value] : Facts()) {
      if (before.at(name) != value) told << name << '=' << value << ' ';
    }
    for (const std::string& call : host.calls) told << '[' << call << "] ";
    for (const std::string& line : Feed()) told << '"' << line << "\" ";
    const std::string text = told.str();
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  /// What rules may change, by name; "1.TNT" is the player's.
  std::map<std::string, std::string> Facts() {
    std::stringstream text;
    for (int s = 1; s <= kMaxSnakes; ++s) {
      const SnakeRec& snake = Snake(s);
      const std::string of = ' ' + std::to_string(s) + '.';
      text << of << "At " << snake.X << ',' << snake.Y << of << "Dir " << Name(snake.Dir) << of
           << "NextDir " << Name(snake.NextDir) << of << "Tail " << Name(snake.Tail.Dir) << of
           << "Length " << snake.Length << of << "Grow " << snake.Grow << of << "Lives "
           << snake.Lives << of << "Deaths " << snake.Deaths << of << "Frags " << snake.Frags << of
           << "Score " << snake.Score << of << "TotalScore " << snake.TotalScore << of << "TNT "
           << snake.TNT << of << "RedEaten " << snake.RedEaten << of << "BlueEaten "
           << snake.BlueEaten << of << "BlackEaten " << snake.BlackEaten << of << "YellowEaten "
           << snake.YellowEaten << of << "PowerEaten " << snake.PowerEaten << of << "Immortal "
           << snake.Immortal << of << "ImmortalSecs " << snake.ImmortalSecs << of << "Interval "
           << snake.Interval << of << "Timer " << StepTimer(state, s).Interval;
    }
    const ShellState& shell = state.shell;
    const Timer& reset = state.timers.ResetSpeed;
    text << " ElapsedSecs " << state.level.ElapsedSecs << " SpeedGain " << state.settings.SpeedGain
         << " PrevInterval " << state.settings.PrevInterval << " ResetSpeed "
         << (reset.Enabled ? reset.Interval : 0) << " Walls " << StandingWalls() << " ScorePage "
         << state.menus.ScorePage << " Running " << shell.Running << " InMenu " << shell.InMenu
         << " NoGameRunning " << shell.NoGameRunning << " LevelIntroPending "
         << shell.LevelIntroPending << " ShowLevelScreen " << shell.ShowLevelScreen << " lvlTime "
         << shell.lvlTime << " WaitingForStart " << shell.WaitingForStart << " WaitingForKey "
         << shell.WaitingForKey << " WaitAborted " << shell.WaitAborted << " WaitingAfterDeath "
         << shell.WaitingAfterDeath << " WaitingAfterTimeout " << shell.WaitingAfterTimeout;
    std::map<std::string, std::string> facts;
    for (std::string name, value; text >> name >> value;) facts[name] = value;
    return facts;
  }
  static std::string_view Name(Dir dir) { return dir == Dir::kNone ? "none" : Word(dir); }
  std::vector<std::string> Feed() const {
    std::vector<std::string> lines;
    for (const std::string& line : state.feed.MsgLines) {
      if (!line.empty()) lines.push_back(line);
    }
    return lines;
  }

  State state;
  RecordingHost host{state};
  Game game{state, host};
};

}  // namespace coilrun
