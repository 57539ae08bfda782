#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace coilrun {

/// A script under construction; its lines may be added in any order.
class ScriptText {
 public:
  ScriptText& At(int millis, std::string command);
  /// Looks at the state every `millis`, from `first` to `last`.
  ScriptText& LookEvery(int millis, int first, int last);
  std::string Text() const;

 private:
  std::vector<std::pair<int, std::string>> lines_;
};

/// What the program did, as seen from outside.
struct GameRun {
  int exitCode = -1;
  std::string output;
  std::string errors;
  std::string trace;
  std::vector<nlohmann::json> states;
};

/// The first of the states that were looked at in which this holds.
std::optional<nlohmann::json> FirstWhere(const GameRun& run,
                                         const std::function<bool(const nlohmann::json&)>& holds);

/// A copy of the built program folder with the levels of these tests, in a temporary folder that is
/// removed with it.
class ProgramFolder {
 public:
  ProgramFolder();
  ~ProgramFolder();
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;

  /// The program folder.
  std::filesystem::path Data() const { return home_ / "data"; }
  /// Where the program runs, and where a script's pictures land.
  const std::filesystem::path& Home() const { return home_; }

  /// Runs the built program headless with a script, as a classic game. It is killed after two
  /// minutes.
  GameRun Play(const std::string& script, std::vector<std::string> arguments = {}) const;
  /// The same with the further settings that ship.
  GameRun PlayAsShipped(const std::string& script,
                        const std::vector<std::string>& arguments = {}) const;
  /// Runs the built program with these arguments only.
  GameRun Run(const std::vector<std::string>& arguments) const;

  /// From now on, the program may write beside the program folder, but not in it.
  void MakeReadOnly();

 private:
  std::filesystem::path home_;
  /// The command that starts the program.
  std::string program_;
};

std::string ReadFile(const std::filesystem::path& file);

}  // namespace coilrun
