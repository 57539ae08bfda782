#include "platform/frame_pacer.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr std::int64_t kFrame = 16'667;
/// Flips closer than this come from no display that we know (500 a second)...
constexpr std::int64_t kTooFast = 2'000;
/// ...when so many follow each other.
constexpr int kEnoughFastFlips = 30;

}  // namespace

std::int64_t FramePacer::Wait(std::int64_t now) {
  due_ = std::clamp(due_ + kFrame, now, now + kFrame);
  return due_ - now;
}

bool VsyncWatch::HoldsBack(std::int64_t now) {
  if (fastFlips_ >= kEnoughFastFlips) return false;
  fastFlips_ = now - lastFlip_ < kTooFast ? fastFlips_ + 1 : 0;
  lastFlip_ = now;
  return true;
}

}  // namespace coilrun
