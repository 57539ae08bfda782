#pragma once

#include <memory>

#include "model/state.h"

namespace coilrun {

/// Steers snakes: is asked before each step of a snake where it should go.
class Driver {
 public:
  virtual ~Driver() = default;

  /// Where `snake`, 2 to 16, wants to go; `kNone` leaves its direction as it is. The same state
  /// gives the same answer, and only `TargetReached` in it changes.
  virtual Dir Choose(State& state, int snake) = 0;
};

/// The rule that computer snakes follow unless another driver steers them: `AIChoose`.
class ClassicDriver final : public Driver {
 public:
  Dir Choose(State& state, int snake) override;
};

/// Who drives each slot: the classic rule, unless it was given to another driver.
class Drivers {
 public:
  Drivers();

  /// Hands a slot to a driver, which several slots may share.
  void Give(int snake, std::shared_ptr<Driver> driver);
  Dir Choose(State& state, int snake) const { return slots_(snake)->Choose(state, snake); }

 private:
  Table<std::shared_ptr<Driver>, kMaxSnakes> slots_;
};

}  // namespace coilrun
