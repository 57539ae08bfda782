#pragma once

namespace coilrun {

/// The one place where time passes: every waiting loop is a plain loop around these four.
class Pump {
 public:
  virtual ~Pump() = default;

  /// Polls input, runs the script commands that are due, fires timers. May throw `Terminate`.
  virtual void Yield() = 0;
  /// Shows the back buffer and paces the loop.
  virtual void Flip() = 0;
  /// Shows the primary buffer at once, without pacing (progress panel, fades).
  virtual void Present() = 0;
  /// Waits without firing anything.
  virtual void Sleep(int milliseconds) = 0;
};

}  // namespace coilrun
