#pragma once

#include <cstdint>

namespace coilrun {

/// The random generator of the rules (PCG32): the same numbers on every platform.
class Rnd {
 public:
  /// Uniform in [0, 1), in steps of 2^-32.
  double Next();
  /// Int(Rnd * range): a whole number from 0 to range - 1; 0 when `range` is 1 or less.
  int Below(double range);
  /// Mixes a number into the state, so that two reseeds with the same number in a row still differ.
  void Reseed(std::uint64_t mix);
  /// The same as `count` calls of `Next`, but at once.
  void Skip(std::uint64_t count);

 private:
  std::uint32_t NextBits();

  std::uint64_t state_ = 0x853C49E6748FEA9BULL;
};

}  // namespace coilrun
