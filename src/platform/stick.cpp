#include "platform/stick.h"

#include <algorithm>
#include <cstdlib>

#include "platform/arrow_codes.h"

namespace coilrun {
namespace {

constexpr int kTakeAt = 16'000;
constexpr int kLetGoAt = 11'000;
/// How much more to the other axis a held direction has to lean before it changes.
constexpr int kAxisGrip = 4'000;

bool IsSideways(int arrow) {
  return arrow == kLeftCode || arrow == kRightCode;
}

int ArrowFor(int x, int y, bool sideways) {
  if (sideways) return x < 0 ? kLeftCode : kRightCode;
  return y < 0 ? kUpCode : kDownCode;
}

}  // namespace

int Stick::Lean(int x, int y) {
  const int across = std::abs(x);
  const int along = std::abs(y);
  if (std::max(across, along) < (arrow_ == 0 ? kTakeAt : kLetGoAt)) {
    arrow_ = 0;
  } else if (arrow_ == 0) {
    arrow_ = ArrowFor(x, y, across >= along);
  } else {
    const int grip = IsSideways(arrow_) ? kAxisGrip : -kAxisGrip;
    arrow_ = ArrowFor(x, y, across + grip >= along);
  }
  return arrow_;
}

}  // namespace coilrun
