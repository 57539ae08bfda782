#pragma once

#include <string>

namespace coilrun {

/// Keeps pictures of the screen, as a script asks for them.
class PictureSink {
 public:
  virtual ~PictureSink() = default;

  /// Writes the primary as it was last shown as a PNG file (a path of this machine). False when it
  /// cannot be written.
  virtual bool WriteShot(const std::string& file) = 0;
};

}  // namespace coilrun
