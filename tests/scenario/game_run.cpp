#include "scenario/game_run.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace coilrun {
namespace {

namespace fs = std::filesystem;

/// What a program folder holds before anybody has played in it, except for the list of names for
/// computer snakes.
constexpr std::array kShipped = {"gfx.snr", "snd.snr",      "models",   "music",
                                 "fonts",   "defaults.ini", "intro.bmp"};

constexpr fs::perms kWriting =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

std::string InQuotes(const std::string& argument) {
  std::string quoted = "'";
  for (const char character : argument) {
    quoted += character == '\'' ? "'\\''" : std::string(1, character);
  }
  return quoted + '\'';
}

fs::path FreshFolder() {
  std::string name = (fs::temp_directory_path() / "coilrun-scenario-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return name;
}

std::vector<nlohmann::json> Parsed(const std::string& trace) {
  std::vector<nlohmann::json> states;
  std::istringstream lines(trace);
  for (std::string line; std::getline(lines, line);) states.push_back(nlohmann::json::parse(line));
  return states;
}

}  // namespace

std::string ReadFile(const fs::path& file) {
  std::ifstream input(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

ScriptText& ScriptText::At(int millis, std::string command) {
  lines_.emplace_back(millis, std::move(command));
  return *this;
}

ScriptText& ScriptText::LookEvery(int millis, int first, int last) {
  for (int at = first; at <= last; at += millis) At(at, "state");
  return *this;
}

std::string ScriptText::Text() const {
  auto sorted = lines_;
  std::ranges::stable_sort(sorted, {}, &std::pair<int, std::string>::first);
  std::string text;
  for (const auto& [at, command] : sorted) text += std::to_string(at) + ' ' + command + '\n';
  return text;
}

std::optional<nlohmann::json> FirstWhere(const GameRun& run,
                                         const std::function<bool(const nlohmann::json&)>& holds) {
  const auto found = std::ranges::find_if(run.states, holds);
  if (found == run.states.end()) return std::nullopt;
  return *found;
}

ProgramFolder::ProgramFolder()
    : home_(FreshFolder()), program_(InQuotes(COILRUN_BUILD_DIR "/game/coilrun")) {
  fs::create_directory(Data());
  const fs::path built = COILRUN_BUILD_DIR "/game";
  for (const char* const name : kShipped) {
    if (fs::exists(built / name))
      fs::copy(built / name, Data() / name, fs::copy_options::recursive);
  }
  fs::copy(COILRUN_SOURCE_DIR "/tests/scenario/levels", Data() / "lvl");
}

ProgramFolder::~ProgramFolder() {
  std::error_code ignored;
  for (const auto& entry : fs::recursive_directory_iterator(home_, ignored)) {
    if (entry.is_directory(ignored)) fs::permissions(entry, fs::perms::owner_all, ignored);
  }
  fs::remove_all(home_, ignored);
}

GameRun ProgramFolder::Play(const std::string& script, std::vector<std::string> arguments) const {
  arguments.emplace_back("--classic");
  return PlayAsShipped(script, arguments);
}

GameRun ProgramFolder::PlayAsShipped(const std::string& script,
                                     const std::vector<std::string>& arguments) const {
  std::ofstream(home_ / "script.txt") << script;
  fs::remove(home_ / "trace.jsonl");
  std::vector<std::string> all = {"--headless", "--data",  Data().string(), "--script",
                                  "script.txt", "--trace", "trace.jsonl"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  GameRun run = Run(all);
  run.trace = ReadFile(home_ / "trace.jsonl");
  run.states = Parsed(run.trace);
  return run;
}

GameRun ProgramFolder::Run(const std::vector<std::string>& arguments) const {
  std::string command = "cd " + InQuotes(home_.string()) + " && timeout 120 " + program_;
  for (const std::string& argument : arguments) command += ' ' + InQuotes(argument);
  const int status = std::system((command + " >output 2>errors </dev/null").c_str());
  GameRun run;
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  run.output = ReadFile(home_ / "output");
  run.errors = ReadFile(home_ / "errors");
  return run;
}

void ProgramFolder::MakeReadOnly() {
  const fs::path program = home_ / "coilrun";
  fs::copy_file(COILRUN_BUILD_DIR "/game/coilrun", program);
  fs::permissions(home_, fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(Data())) {
    fs::permissions(entry, kWriting, fs::perm_options::remove);
  }
  fs::permissions(Data(), kWriting, fs::perm_options::remove);
  // Nothing is read-only for root, so the program then runs as nobody.
  const bool isRoot = geteuid() == 0;
  const std::string asNobody = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
  program_ = (isRoot ? asNobody : "") + InQuotes(program.string());
}

}  // namespace coilrun
