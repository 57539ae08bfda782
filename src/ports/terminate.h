#pragma once

namespace coilrun {

/// Leaves the program from inside any loop or wait. Only `main` catches it; destructors clean up on
/// the way.
struct Terminate {
  int exitCode = 0;
};

}  // namespace coilrun
