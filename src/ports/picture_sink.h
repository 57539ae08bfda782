#pragma once

#include <string>

namespace coilrun {

/// Keeps pictures of the screen when a script asks for them.
class PictureSink {
 public:
  virtual ~PictureSink() = default;

  /// Writes the primary buffer, as it was last shown, to a PNG file (a path on this machine). False
  /// when it cannot be written.
  virtual bool WriteShot(const std::string& file) = 0;
};

}  // namespace coilrun
