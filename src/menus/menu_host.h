#pragma once

#include "model/more.h"

namespace coilrun {

/// What the menus ask of the rest of the program.
class MenuHost {
 public:
  virtual ~MenuHost() = default;

  /// Leaves the program by throwing `Terminate`.
  virtual void LeaveProgram() = 0;
  /// Remembers the settings of [More] and [Keys] as they are, to know what a page changes.
  virtual void NotePageOpened() = 0;
  /// Stores what has changed in [More] and [Keys] since then.
  virtual void StorePage() = 0;
  /// The keys of person 1 to 4 when nobody has changed them.
  virtual SteeringKeys ShippedKeys(int person) const = 0;
};

}  // namespace coilrun
