#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ports/picture_sink.h"
#include "ports/ports.h"

namespace coilrun {

/// Where a run finds its files and how it shows itself. `windowed` only matters in a window, `fps`
/// (1 to 1000) only in headless runs.
struct PlatformOptions {
  /// The program folder; nothing for the folder of the executable or the installed share folder.
  std::optional<std::filesystem::path> data;
  /// Holds the settings and, in "data", unpacked files; nothing for the per-user folders (in
  /// headless runs, a fresh one that is removed at the end).
  std::optional<std::filesystem::path> user;
  bool windowed = false;
  int fps = 100;
  /// Whether the system has asked the program to leave; asked while a message box waits.
  std::function<bool()> stopped = [] { return false; };
  /// Is given one line for each thing that is wrong but does not end the game (a damaged settings
  /// file, missing fonts); each is reported once.
  std::function<void(const std::string& line)> report = [](const std::string&) {};
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual const CommonPorts& Common() const = 0;
};

/// A window, a keyboard and controllers, loudspeakers.
class WindowPlatform : public Platform {
 public:
  virtual KeySource& Keys() = 0;
  virtual MessageBox& Boxes() = 0;
  /// The program has saved and is gone: a display that is lost from now on is nobody's business.
  virtual void ProgramEnded() = 0;
};

/// No window, no sound, virtual time. Keys and answers come from the script.
class HeadlessPlatform : public Platform {
 public:
  virtual PictureSink& Pictures() = 0;
};

/// What a maker made: the platform, or the reason in words why there is none.
template <typename Made>
struct PlatformResult {
  std::unique_ptr<Made> platform;
  std::string problem;
};

PlatformResult<WindowPlatform> MakeSdlPlatform(const PlatformOptions& options);
PlatformResult<HeadlessPlatform> MakeHeadlessPlatform(const PlatformOptions& options);

}  // namespace coilrun
