#pragma once

#include <cstdint>
#include <span>

namespace coilrun {

/// Plays one piece of music at a time.
class MusicOut {
 public:
  virtual ~MusicOut() = default;

  /// Takes a whole music file in place of the previous one. False when it cannot be decoded.
  virtual bool Load(std::span<const std::uint8_t> file) = 0;
  /// Plays from `position` in seconds.
  virtual void Play(double position) = 0;
  virtual void Stop() = 0;
  /// Length of the loaded file in seconds; 0 if there is none.
  virtual double Duration() const = 0;
  /// Seconds into the file.
  virtual double Position() const = 0;
  /// In hundredths of a decibel, 0 (full) to -2500.
  virtual void SetVolume(int hundredths) = 0;
};

}  // namespace coilrun
