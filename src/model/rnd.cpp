#include "model/rnd.h"

#include <algorithm>
#include <bit>

namespace coilrun {
namespace {

constexpr std::uint64_t kMultiplier = 6364136223846793005ULL;
constexpr std::uint64_t kIncrement = 1442695040888963407ULL;

}  // namespace

std::uint32_t Rnd::NextBits() {
  const std::uint64_t old = state_;
  state_ = old * kMultiplier + kIncrement;
  const auto mixed = static_cast<std::uint32_t>(((old >> 18U) ^ old) >> 27U);
  return std::rotr(mixed, static_cast<int>(old >> 59U));
}

double Rnd::Next() {
  return NextBits() * 0x1p-32;
}

int Rnd::Below(double range) {
  constexpr double kLargest = 2147483647.0;
  return static_cast<int>(std::clamp(Next() * range, 0.0, kLargest));
}

void Rnd::Reseed(std::uint64_t mix) {
  state_ = (state_ ^ mix) * kMultiplier + kIncrement;
  NextBits();
}

void Rnd::Skip(std::uint64_t count) {
  // A step is state * times + plus; two steps have that form too, and so have four, eight, ...
  std::uint64_t times = kMultiplier;
  std::uint64_t plus = kIncrement;
  for (; count > 0; count /= 2) {
    if (count % 2 == 1) state_ = state_ * times + plus;
    plus *= times + 1;
    times *= times;
  }
}

}  // namespace coilrun
