#pragma once

#include <optional>

#include "ports/bytes.h"
#include "shell/shell.h"

namespace coilrun {

/// Reloads the command line's level whenever its file has changed, for people who make levels.
class LevelWatch {
 public:
  /// Checks the file; to be called now and then.
  void Look(Shell& shell);

 private:
  std::optional<Bytes> seen_;
};

}  // namespace coilrun
