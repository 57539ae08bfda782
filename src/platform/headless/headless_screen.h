#pragma once

#include <string>
#include <vector>

#include "platform/headless/virtual_clock.h"
#include "ports/picture_sink.h"
#include "ports/screen.h"

namespace coilrun {

/// A screen that nobody sees: it remembers what was shown last, and a flip takes virtual time.
class HeadlessScreen : public Screen, public PictureSink {
 public:
  explicit HeadlessScreen(VirtualClock& clock) : clock_(clock), shown_(kScreenPixels) {}

  void Flip(ScreenPixels primary) override;
  void Present(ScreenPixels primary) override;
  void SetFullScreen(bool /*on*/) override {}
  void ToggleFullScreen() override {}
  void ShowPointer(bool /*visible*/) override {}
  bool WriteShot(const std::string& file) override;

 private:
  VirtualClock& clock_;
  std::vector<std::uint32_t> shown_;
};

}  // namespace coilrun
