#include "shell/main_pump.h"

namespace coilrun {
namespace {

/// Keeps a flag set for as long as this object lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace

MainPump::MainPump(State& state, Ports& ports, TimerHandlers& timers, WindowListener& window)
    : state_(state), ports_(ports), timers_(timers), window_(window) {}

void MainPump::Yield() {
  if (handling_) return ports_.keys.Serve();
  const Raised raised(handling_);
  ReadClock();
  ports_.keys.Gather(window_);
  FireDueTimers(state_, timers_);
}

void MainPump::Flip() {
  renderer_->FlipBuffers();
  const std::int64_t before = state_.timers.now;
  ports_.screen.Flip(renderer_->Primary());
  ReadClock();
  state_.timers.frameLength = state_.timers.now - before;
  ++state_.shell.flips;
}

void MainPump::Present() {
  if (renderer_ != nullptr) ports_.screen.Present(renderer_->Primary());
}

void MainPump::Sleep(int milliseconds) {
  ports_.clock.Sleep(milliseconds);
  ReadClock();
}

}  // namespace coilrun
