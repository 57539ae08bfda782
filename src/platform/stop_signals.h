#pragma once

#include "platform/file_handle.h"
#include "ports/key_source.h"

namespace coilrun {

/// The system's requests to leave: SIGTERM, SIGINT and SIGHUP, which are read instead of being
/// delivered. Must be made before the process has a second thread.
class StopSignals {
 public:
  StopSignals();

  /// Whether one has arrived, now or earlier.
  bool Arrived();

 private:
  FileHandle signals_;
  bool arrived_ = false;
};

/// A key source that closes the window when the system asks the program to leave.
class StoppableKeys : public KeySource {
 public:
  StoppableKeys(StopSignals& signals, KeySource& keys) : signals_(signals), keys_(keys) {}

  void Gather(WindowListener& listener) override;
  void ReadKeys(KeySnapshot& keys) override { keys_.ReadKeys(keys); }
  std::optional<PointerEvent> NextPointerEvent() override { return keys_.NextPointerEvent(); }
  void Serve() override { keys_.Serve(); }

 private:
  StopSignals& signals_;
  KeySource& keys_;
};

}  // namespace coilrun
