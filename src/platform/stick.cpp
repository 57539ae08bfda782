#include "platform/stick.h"

#include <algorithm>
#include <cstdlib>

namespace coilrun {
namespace {

constexpr int kTakeAt = 16'000;
constexpr int kLetGoAt = 11'000;
/// How much further the stick must lean to the other axis before a held direction changes.
constexpr int kAxisGrip = 4'000;

bool IsSideways(PadDirection direction) {
  return direction == PadDirection::kLeft || direction == PadDirection::kRight;
}

PadDirection DirectionFor(int x, int y, bool sideways) {
  if (sideways) return x < 0 ? PadDirection::kLeft : PadDirection::kRight;
  return y < 0 ? PadDirection::kUp : PadDirection::kDown;
}

}  // namespace

std::optional<PadDirection> Stick::Lean(int x, int y) {
  const int across = std::abs(x);
  const int along = std::abs(y);
  if (std::max(across, along) < (held_ ? kLetGoAt : kTakeAt)) {
    held_.reset();
  } else if (!held_) {
    held_ = DirectionFor(x, y, across >= along);
  } else {
    const int grip = IsSideways(*held_) ? kAxisGrip : -kAxisGrip;
    held_ = DirectionFor(x, y, across + grip >= along);
  }
  return held_;
}

}  // namespace coilrun
