#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ports/bytes.h"

namespace coilrun {

/// The text of a file; valid as long as the bytes are.
std::string_view TextOf(const Bytes& bytes);

/// Hands out the lines of a text one by one, without their line ends (CR LF or LF; the last line
/// may lack one). The text must outlive the reader.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  /// The next line; nothing at the end of the text.
  std::optional<std::string_view> Next();

 private:
  std::string_view rest_;
};

}  // namespace coilrun
