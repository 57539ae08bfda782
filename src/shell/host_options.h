#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/more.h"

namespace coilrun {

/// What the options that begin with "--" say about the machine the game runs on.
struct HostOptions {
  std::optional<std::filesystem::path> data;
  std::optional<std::filesystem::path> user;
  bool windowed = false;
  bool classic = false;
  std::optional<RivalList> rivals;
  bool watch = false;
  bool headless = false;
  std::optional<std::string> script;  ///< "-" reads standard input
  std::optional<std::string> trace;
  int fps = 100;
  std::uint64_t seed = 0;
  bool help = false;
  bool version = false;
  std::string commandLine;  ///< all other arguments, joined by blanks
};

/// The options, or one line that says what is wrong with them.
std::variant<HostOptions, std::string> ParseHostOptions(const std::vector<std::string>& arguments);

/// The text of "--help".
std::string HelpText();

}  // namespace coilrun
