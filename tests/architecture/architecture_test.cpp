#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace coilrun {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::StartsWith;
namespace fs = std::filesystem;

using Edges = std::map<std::string, std::set<std::string>>;

/// Who may include whom, besides itself. "main" is src/main.cpp.
const Edges kMayInclude = {
    {"ports", {}},
    {"model", {"ports"}},
    {"game", {"model", "ports"}},
    {"rivals", {"game", "model"}},
    {"content", {"game", "model", "ports"}},
    {"media", {"model", "ports"}},
    {"render", {"model", "ports"}},
    {"script", {"model", "ports"}},
    {"menus", {"render", "media", "content", "game", "model", "ports"}},
    {"shell", {"menus", "render", "rivals", "game", "media", "content", "model", "ports"}},
    {"platform", {"ports"}},
    {"main", {"shell", "script", "platform", "ports", "model"}},
    {"tools",
     {"kit", "shell", "rivals", "content", "game", "render", "model", "ports", "platform"}},
};

/// Pieces of code that are allowed only in some places, given as the beginnings of paths in the
/// repository.
struct Reserved {
  std::vector<std::string> places;
  std::vector<std::string> pieces;
};
const std::vector<Reserved> kReserved = {
    {{"src/platform/sdl/"}, {"<SDL", "\"SDL", "SDL_"}},
    {{"src/platform/"}, {"<archive", "<SimpleIni", "<openssl/", "<blake2.h>", "<zlib.h>"}},
    {{"src/platform/", "tools/"}, {"<png.h>"}},
    {{"src/script/", "tools/"}, {"<nlohmann/"}},
    {{"src/platform/"}, {"sleep_for", "sleep_until", "usleep", "nanosleep", "<thread>"}},
    {{"src/platform/", "tools/"},
     {"<chrono>", "<ctime>", "<time.h>", "<sys/time.h>", "std::chrono", "clock_gettime",
      "gettimeofday"}},
};

std::string FolderOf(const std::string& path) {
  if (path == "src/main.cpp") return "main";
  if (path.starts_with("tools/")) return "tools";
  return path.substr(4, path.find('/', 4) - 4);
}

/// The folder named by an include of our own files: "" if it names none, nothing on other lines.
std::optional<std::string> IncludedFolder(const std::string& line) {
  static const std::regex kInclude(R"re(\s*#\s*include\s*"(([^"/]*)/)?.*)re");
  std::smatch match;
  if (!std::regex_match(line, match, kInclude)) return std::nullopt;
  return match[2];
}

std::optional<std::string> WrongInclude(const std::string& path, const std::string& line) {
  const std::string folder = FolderOf(path);
  const auto rule = kMayInclude.find(folder);
  if (rule == kMayInclude.end()) return "the folder " + folder + " has no include rule";
  const auto named = IncludedFolder(line);
  if (!named) return std::nullopt;
  const std::string& included = *named;
  if (included == folder || rule->second.contains(included)) return std::nullopt;
  if (!included.empty()) return folder + " may not include " + included;
  if (folder == "tools") return std::nullopt;
  return "an include names its folder";
}

/// "PATH:LINE: what is wrong" of every violation in a file.
std::vector<std::string> Violations(const std::string& path, std::istream&& text) {
  std::vector<std::string> found;
  int number = 0;
  for (std::string line; std::getline(text, line);) {
    const std::string where = path + ':' + std::to_string(++number) + ": ";
    line = line.substr(0, line.find("//"));
    if (const auto wrong = WrongInclude(path, line)) found.push_back(where + *wrong);
    const auto holds = [&path](const std::string& place) { return path.starts_with(place); };
    for (const auto& [places, pieces] : kReserved) {
      if (std::ranges::any_of(places, holds)) continue;
      for (const std::string& piece : pieces) {
        if (line.find(piece) != line.npos) found.push_back(where + piece + " is not for here");
      }
    }
  }
  return found;
}

/// Removes what a file includes from the edges that are still to be found.
void StrikeOut(const std::string& path, std::istream&& text, Edges& unused) {
  for (std::string line; std::getline(text, line);) {
    if (const auto included = IncludedFolder(line)) unused[FolderOf(path)].erase(*included);
  }
}

TEST(Architecture, FoldersIncludeOnlyWhomTheyMayAndEveryLeaveIsNeeded) {
  const fs::path root = COILRUN_SOURCE_DIR;
  int files = 0;
  Edges unused = kMayInclude;
  for (const char* const top : {"src", "tools"}) {
    for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
      const fs::path extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      ++files;
      const std::string path = fs::relative(entry.path(), root).generic_string();
      EXPECT_THAT(Violations(path, std::ifstream(entry.path())), IsEmpty());
      StrikeOut(path, std::ifstream(entry.path()), unused);
    }
  }
  for (const auto& [folder, left] : unused) EXPECT_THAT(left, IsEmpty()) << folder;
  EXPECT_GT(files, 50);
}

TEST(Architecture, TheWalkSeesEveryKindOfViolation) {
  const std::pair<const char*, const char*> wrong[] = {
      {"src/model/state.h", "#include \"game/movement.h\""},
      {"src/ports/clock.h", " # include  \"model/state.h\""},
      {"src/game/progress.cpp", "#include \"content/load_level.h\""},
      {"src/shell/pump.cpp", "#include \"platform/platform.h\""},
      {"src/platform/sdl/window.cpp", "#include \"model/state.h\""},
      {"src/main.cpp", "#include \"game/movement.h\""},
      {"src/script/script.cpp", "#include \"script.h\""},
      {"src/extra/thing.cpp", "int x;"},
      {"tools/coilpack/main.cpp", "#include \"menus/page.h\""},
      {"src/platform/headless/clock.cpp", "#include <SDL.h>"},
      {"src/shell/pump.cpp", "  SDL_Delay(10);"},
      {"src/content/archives.cpp", "#include <archive_entry.h>"},
      {"src/render/bitmap.cpp", "#include <png.h>"},
      {"src/game/ai.cpp", "#include <nlohmann/json.hpp>"},
      {"src/shell/main_loop.cpp", "  std::this_thread::sleep_for(pause);"},
      {"src/game/death.cpp", "const auto now = std::chrono::steady_clock::now();"},
  };
  for (const auto& [path, line] : wrong) {
    EXPECT_THAT(Violations(path, std::istringstream(std::string("\n") + line)),
                Contains(StartsWith(std::string(path) + ":2: ")))
        << line;
  }
  const std::pair<const char*, const char*> fine[] = {
      {"src/game/movement.cpp", "#include \"model/state.h\""},
      {"src/game/movement.cpp", "#include \"game/movement.h\""},
      {"src/game/movement.cpp", "// never std::chrono, never SDL_Delay"},
      {"src/platform/sdl/window.cpp", "#include <SDL.h>"},
      {"tools/coilpack/main.cpp", "#include \"options.h\""},
      {"src/main.cpp", "#include \"platform/platform.h\""},
  };
  for (const auto& [path, line] : fine) {
    EXPECT_THAT(Violations(path, std::istringstream(line)), IsEmpty()) << line;
  }
}

}  // namespace
}  // namespace coilrun
