#pragma once

#include <cstdint>
#include <string_view>

#include "ports/bytes.h"

namespace coilrun {

/// Little-endian numbers and texts, one after the other.
class ByteLine {
 public:
  ByteLine& Text(std::string_view text) {
    bytes.insert(bytes.end(), text.begin(), text.end());
    return *this;
  }
  ByteLine& Number(std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    return *this;
  }

  Bytes bytes;
};

/// A wave file of silence: 22050 frames a second, stereo, 16 bits.
inline Bytes WaveOf(std::uint32_t frames) {
  ByteLine wave;
  const std::uint32_t size = frames * 4;
  wave.Text("RIFF").Number(36 + size, 4).Text("WAVE");
  wave.Text("fmt ").Number(16, 4).Number(1, 2).Number(2, 2);
  wave.Number(22'050, 4).Number(88'200, 4).Number(4, 2).Number(16, 2);
  wave.Text("data").Number(size, 4);
  wave.bytes.resize(wave.bytes.size() + size);
  return wave.bytes;
}

}  // namespace coilrun
