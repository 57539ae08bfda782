#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/state.h"
#include "ports/files.h"
#include "ports/message_box.h"
#include "ports/settings_store.h"

namespace coilrun {

/// Cuts a command line into switches: each runs from its "/" to the blank before the next one. Text
/// before the first "/" is a switch of its own, which nothing matches.
std::vector<std::string> SplitSwitches(std::string_view commandLine);

/// Carries out the switches of the command line.
class CommandLine {
 public:
  CommandLine(State& state, const Files& files, MessageBox& box, SettingsStore& settings);

  /// Carries out one switch; an unknown one does nothing. Throws `Terminate` when it names a level
  /// that does not exist.
  void SetCommand(std::string_view arg);

 private:
  void SetLimit(std::string_view value);
  void SetAiSnakes(std::string_view value);
  void SetKeyboardLayout(std::string_view value);
  void SetStartLevel(std::string_view value);
  void SetNoClean(std::string_view value);

  State& state_;
  const Files& files_;
  MessageBox& box_;
  SettingsStore& settings_;
};

}  // namespace coilrun
