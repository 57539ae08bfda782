#include "proof_player.h"

#include "ports/scan_codes.h"
#include "ports/terminate.h"

namespace coilrun {
namespace {

constexpr double kMicrosInASecond = 1e6;

int ArrowOf(Dir dir) {
  switch (dir) {
    case Dir::kForw:
      return kKeyUp;
    case Dir::kBack:
      return kKeyDown;
    case Dir::kLeft:
      return kKeyLeft;
    case Dir::kRight:
      return kKeyRight;
    default:
      return 0;
  }
}

}  // namespace

void ProofPlayer::Gather(WindowListener& /*listener*/) {
  Count();
  const ShellState& now = state_.shell;
  if (!now.DisplayReady || key_ != 0 || pressed_) return;
  if (now.WaitingForKey) {
    AnswerWait();
  } else if (now.ShowLevelScreen) {
    key_ = kKeyF1;
  } else if (now.InMenu) {
    Finish(false);
  } else if (!now.LevelIntroPending) {
    Steer();
  }
}

void ProofPlayer::ReadKeys(KeySnapshot& keys) {
  keys.fill(0);
  pressed_ = key_ != 0;
  if (pressed_) keys.at(static_cast<std::size_t>(key_)) = 1;
  key_ = 0;
}

BoxAnswer ProofPlayer::Show(const std::string& /*title*/, const std::string& /*text*/,
                            BoxButtons buttons) {
  return buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kYes;
}

bool ProofPlayer::IsPlaying() const {
  const ShellState& now = state_.shell;
  return now.DisplayReady && !now.WaitingForKey && !now.WaitingForStart && !now.ShowLevelScreen &&
         !now.InMenu;
}

void ProofPlayer::Count() {
  const std::int64_t now = clock_.NowMicros();
  if (IsPlaying()) result_.seconds += static_cast<double>(now - lastNow_) / kMicrosInASecond;
  lastNow_ = now;
  if (result_.seconds > patience_) Finish(false);
}

void ProofPlayer::AnswerWait() {
  if (state_.CenterLines(0).Text == "Next Level!!!") Finish(true);
  if (state_.overlay == WaitOverlay::kGameOver) Finish(false);
  key_ = kKeyEnter;
}

/// Decides once per step, as soon as the snake has made the previous one.
void ProofPlayer::Steer() {
  const SnakeRec& self = state_.Snakes(kPlayer);
  const Point place{self.X, self.Y};
  if (place == lastPlace_ && !state_.shell.WaitingForStart) return;
  lastPlace_ = place;
  const Dir dir = driver_.Choose(state_, kPlayer);
  if (dir != self.Dir || state_.shell.WaitingForStart) key_ = ArrowOf(dir);
}

void ProofPlayer::Finish(bool completed) {
  const SnakeRec& self = state_.Snakes(kPlayer);
  result_.completed = completed;
  result_.deaths = self.Deaths;
  result_.score = self.Score;
  throw Terminate{0};
}

}  // namespace coilrun
