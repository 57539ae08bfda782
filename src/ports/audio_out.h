#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace coilrun {

/// Plays sound effects. A number stands for a loaded effect until it is released.
class AudioOut {
 public:
  virtual ~AudioOut() = default;

  /// Opens the device. False when there is none; later calls then do nothing.
  virtual bool Open() = 0;
  /// Takes a whole wave file; nothing when it cannot be decoded.
  virtual std::optional<int> Load(std::span<const std::uint8_t> wave) = 0;
  virtual void Release(int effect) = 0;
  /// Starts the effect from its beginning; if it is still playing, it is stopped first.
  virtual void Play(int effect) = 0;
};

}  // namespace coilrun
