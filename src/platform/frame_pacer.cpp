#include "platform/frame_pacer.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr std::int64_t kFrame = 16'667;
/// No display that we know shows frames this close together (500 per second)...
constexpr std::int64_t kTooFast = 2'000;
/// ...so many times in a row.
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
