#pragma once

#include <string>

namespace coilrun {

/// Why the game does not load a level, and where in the file. Lines and columns count from 1; 0
/// when the fault has no place.
struct LevelFault {
  int line = 0;
  int column = 0;
  std::string what;
};

/// "FILE:LINE:COLUMN: what is wrong".
inline std::string FaultText(const std::string& file, const LevelFault& fault) {
  std::string text = file;
  if (fault.line > 0) {
    text += ':' + std::to_string(fault.line) + ':' + std::to_string(fault.column);
  }
  return text + ": " + fault.what;
}

}  // namespace coilrun
