#pragma once

namespace coilrun {

/// The sound device that effects and music share. It stays closed if there is none.
class SdlMixer {
 public:
  SdlMixer() = default;
  ~SdlMixer();
  SdlMixer(const SdlMixer&) = delete;
  SdlMixer& operator=(const SdlMixer&) = delete;

  bool Open();
  bool IsOpen() const { return open_; }

 private:
  bool open_ = false;
};

}  // namespace coilrun
