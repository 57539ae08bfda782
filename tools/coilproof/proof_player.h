#pragma once

#include "model/state.h"
#include "ports/clock.h"
#include "ports/key_source.h"
#include "ports/message_box.h"
#include "rivals/clever.h"

namespace coilrun {

/// How a game of a level went.
struct LevelProof {
  bool completed = false;
  double seconds = 0;  ///< of play, without waits and level screens
  int deaths = 0;
  int score = 0;
};

/// Plays the level that a run begins with by keys alone, and finds its way like a computer snake.
/// Leaves the program with `Terminate` when the level is completed, when the game is over or when
/// its patience runs out.
class ProofPlayer final : public KeySource, public MessageBox {
 public:
  /// `patience` is in seconds of play.
  ProofPlayer(State& state, const Clock& clock, int patience)
      : state_(state), clock_(clock), patience_(patience) {}

  const LevelProof& Result() const { return result_; }

  void Gather(WindowListener& listener) override;
  void Serve() override {}
  void ReadKeys(KeySnapshot& keys) override;
  std::optional<PointerEvent> NextPointerEvent() override { return std::nullopt; }
  /// Goes on, whatever the box says.
  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons buttons) override;

 private:
  bool IsPlaying() const;
  void Count();
  void AnswerWait();
  void Steer();
  [[noreturn]] void Finish(bool completed);

  State& state_;
  const Clock& clock_;
  int patience_;
  CleverDriver driver_;
  LevelProof result_;
  std::int64_t lastNow_ = 0;
  Point lastPlace_{-1, -1};
  int key_ = 0;  ///< the one to press when keys are read next
  bool pressed_ = false;
};

}  // namespace coilrun
