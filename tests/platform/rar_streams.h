#pragma once

#include <string_view>

#include "ports/bytes.h"

namespace coilrun {

/// A repetition of earlier contents: 3 to 5 bytes from 1 to 16 bytes back; none when `length` is 0.
struct Repeat {
  int length = 0;
  int distance = 0;
};

/// Compressed contents as the two generations lay them down: the bytes of `text`, each with a
/// Huffman code, and then a repetition.
Bytes CompressRar4(std::string_view text, Repeat repeat = {});
Bytes CompressRar5(std::string_view text, Repeat repeat = {});

}  // namespace coilrun
