#pragma once

#include "model/state.h"
#include "ports/ports.h"
#include "ports/pump.h"
#include "render/renderer.h"
#include "shell/timer_firing.h"

namespace coilrun {

/// The pump of the program: time, input and the screen pass through here and nowhere else. A yield
/// from inside a handler only serves the window, so handlers never interrupt each other.
class MainPump final : public Pump {
 public:
  MainPump(State& state, Ports& ports, TimerHandlers& timers, WindowListener& window);

  /// The renderer is made after the pump that it presents with; without one nothing is shown.
  void ShowWith(Renderer& renderer) { renderer_ = &renderer; }

  void Yield() override;
  void Flip() override;
  void Present() override;
  void Sleep(int milliseconds) override;

 private:
  void ReadClock() { state_.timers.now = ports_.clock.NowMicros(); }

  State& state_;
  Ports& ports_;
  TimerHandlers& timers_;
  WindowListener& window_;
  Renderer* renderer_ = nullptr;
  bool handling_ = false;
};

}  // namespace coilrun
