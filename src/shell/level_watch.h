#pragma once

#include <optional>

#include "ports/bytes.h"
#include "shell/shell.h"

namespace coilrun {

/// Loads the level of the command line anew whenever its file has changed, for those who make it.
class LevelWatch {
 public:
  /// Looks at the file; to be called now and then.
  void Look(Shell& shell);

 private:
  std::optional<Bytes> seen_;
};

}  // namespace coilrun
