#pragma once

#include <string>

namespace coilrun {

/// SDL's video, event and controller parts, from start to end.
class SdlSession {
 public:
  SdlSession();
  ~SdlSession();
  SdlSession(const SdlSession&) = delete;
  SdlSession& operator=(const SdlSession&) = delete;

  /// Why there is no display; empty when there is one.
  const std::string& Problem() const { return problem_; }

 private:
  std::string problem_;
};

}  // namespace coilrun
