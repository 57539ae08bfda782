#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ports/pointer.h"

namespace coilrun {

/// What a step of a script does.
enum class Verb : std::uint8_t {
  kKeyDown,
  kKeyUp,
  kPointer,
  kFocusLost,
  kFocusGained,
  kState,
  kShot,
  kSet,
  kClose,
  kEnd
};

/// One thing that a script does at one time.
struct ScriptStep {
  std::int64_t at = 0;  ///< microseconds since the process started
  Verb verb = Verb::kEnd;
  std::uint8_t code = 0;  ///< scan code of a key step
  int line = 0;           ///< in the script's text, for messages
  PointerEvent pointer = {};
  std::string name;   ///< the file of a shot, the field of a set
  std::string value;  ///< what a field is set to
};

/// How the next message box is answered, from this time on.
struct ScriptAnswer {
  std::int64_t at = 0;
  bool yes = false;
};

/// A script that is ready to play: `tap` and `type` are broken up into key steps.
struct Script {
  std::string file;               ///< its name in messages
  std::vector<ScriptStep> steps;  ///< in the order in which they are carried out
  std::vector<ScriptAnswer> answers;
  std::int64_t lastAt = 0;  ///< when the last step or answer is due
};

/// A script, or the one line ("FILE:LINE: what is wrong") that says why there is none.
struct ScriptOrError {
  std::optional<Script> script;
  std::string error;
};

/// Reads a script from any bytes: at most 4 MiB and 500,000 steps. `file` is for messages.
ScriptOrError ParseScript(std::string_view text, std::string_view file);
/// Reads a script file, or standard input when `file` is "-".
ScriptOrError LoadScript(const std::string& file);

}  // namespace coilrun
