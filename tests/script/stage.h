#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "ports/terminate.h"
#include "script/script_player.h"
#include "support/silent_music.h"

namespace coilrun {

struct HandMovedClock final : Clock {
  std::int64_t now = 0;

  std::int64_t NowMicros() const override { return now; }
  void Sleep(int milliseconds) override { now += milliseconds * std::int64_t{1000}; }
};

struct ShotList final : PictureSink {
  std::vector<std::string> files;
  bool writable = true;

  bool WriteShot(const std::string& file) override {
    files.push_back(file);
    return writable;
  }
};

struct EventList final : WindowListener {
  std::vector<WindowEvent> events;

  void OnWindowEvent(WindowEvent event) override { events.push_back(event); }
};

/// A script on a stage of fakes.
struct Stage {
  explicit Stage(std::string_view text)
      : player(ParseScript(text, "test.txt").script.value(),
               {state, clock, music, shots, trace, messages}) {}

  /// One yield at this time. Returns the exit code when the script leaves the program.
  std::optional<int> YieldAt(std::int64_t millis) {
    clock.now = millis * 1000;
    try {
      player.Gather(window);
    } catch (const Terminate& leave) {
      return leave.exitCode;
    }
    return std::nullopt;
  }

  State state;
  HandMovedClock clock;
  SilentMusic music;
  ShotList shots;
  EventList window;
  KeySnapshot keys{};
  std::ostringstream trace;
  std::ostringstream messages;
  ScriptPlayer player;
};

}  // namespace coilrun
