#pragma once

#include <array>
#include <string>

#include "content/load_level.h"
#include "game/collision.h"
#include "game/geometry.h"
#include "game/movement.h"
#include "game/shown_snakes.h"
#include "game/slots.h"
#include "game/speed.h"
#include "game/steps.h"
#include "shell/timer_firing.h"
#include "support/content_stage.h"

namespace coilrun {

/// How a snake has fared.
struct Career {
  int byWall = 0;
  int byEdge = 0;
  int byItself = 0;
  int byOthers = 0;
  int eaten = 0;

  int Deaths() const { return byWall + byEdge + byItself + byOthers; }
};

/// How a match is played.
struct MatchPlan {
  std::string level;
  bool hunting = false;
  bool single = false;
  int limit = 30000;  ///< frags or length that end it
  std::uint64_t seed = 1;
  int framesPerSecond = 100;
};

/// A game without a screen: the rules in the order of the main loop, frame by frame, snake 1
/// standing at its start. Ends with its level.
class Match final : private GameHost, private TimerHandlers {
 public:
  explicit Match(const MatchPlan& plan, Drivers drivers = {})
      : frameLength_(1'000'000 / plan.framesPerSecond) {
    State& now = state();
    now.clockSeed = plan.seed;
    now.mode.GameMode = plan.single ? GameMode::kSingle : GameMode::kDeathmatch;
    now.mode.HuntingMode = plan.hunting;
    now.mode.MatchLimit = plan.limit;
    now.LastModel = 0;
    const std::string unreachable = plan.single ? "reqYellow=30000\r\n" : "";
    stage_.files.Put(".\\lvl\\arena.dat", plan.level + unreachable);
    coilrun::LoadLevel(stage_.context, ".\\lvl\\arena.dat");
    now.shell.ShowLevelScreen = false;
    now.shell.WaitingForStart = false;
    now.shell.lvlTime = true;
    now.timers.frameLength = frameLength_;
    ReseedFromClock(now);
    game_.drivers = std::move(drivers);
  }

  /// Plays on for so many seconds, or to the end of the match.
  void Play(int seconds) {
    const std::int64_t end = state().timers.now + std::int64_t{seconds} * 1'000'000;
    while (!ended && state().timers.now < end) Frame();
  }

  void Frame() {
    State& now = state();
    PlaceWaitingSnakes(now);
    ApplyGrowth(now);
    StepAiSnakes(game_);
    if (PlayerStepDue(now)) {
      wallsAreChecked_ = true;
      BeginPlayerStep(game_);
      wallsAreChecked_ = false;
      EndPlayerStep(now);
      EndSpentImmortality(now);
    } else {
      SnakesShownInLoop(now);
    }
    CapLengths(now);
    ColChk(game_);
    now.timers.now += frameLength_;
    FireDueTimers(now, *this);
  }

  State& state() { return stage_.state; }
  Game& game() { return game_; }
  const Career& Of(int snake) const { return careers_(snake); }

  bool ended = false;

 private:
  void PlayEffect(std::string_view path, int snake) override {
    if (path.ends_with("collect.wav")) ++careers_(snake).eaten;
    if (path.ends_with("wall.wav")) CountDeath(snake);
  }
  void DrawFrame() override {}
  void Yield() override { state().keys.LastKey = 28; }
  void LoadLevel(const std::string& /*path*/) override { ended = true; }
  void RunMenus() override { ended = true; }
  void LoadSettings() override {}
  void RefreshHighScores() override {}
  void SaveSettings() override {}
  void OnSecond() override { TickSecond(state()); }
  void OnKeyboard() override {}
  void OnSpeedReset() override { SpeedReset(state()); }

  void CountDeath(int snake) {
    const SnakeRec& victim = state().Snakes(snake);
    Career& career = careers_(snake);
    if (wallsAreChecked_) {
      ++career.byWall;
    } else if (const int owner = OwnerAt(victim.Head()); owner == 0) {
      ++career.byEdge;
    } else {
      ++(owner == snake ? career.byItself : career.byOthers);
    }
  }
  /// Whose body lies at `head`; 0 if nobody's does.
  int OwnerAt(Point head) {
    for (int s = 1; s <= SnakesInPlay(state()); ++s) {
      for (const SegRec& cell : Slots(state().Snakes(s).Seg, 2, state().Snakes(s).Length)) {
        if (Overlap(head, {cell.X, cell.Y})) return s;
      }
    }
    return 0;
  }

  ContentStage stage_;
  Game game_{stage_.state, *this};
  Table<Career, kMaxSnakes> careers_;
  std::int64_t frameLength_;
  bool wallsAreChecked_ = false;
};

}  // namespace coilrun
