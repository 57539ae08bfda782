#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace coilrun {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;
namespace fs = std::filesystem;

using Folders = std::set<std::string>;

/// Who may include whom, beside itself. "main" is src/main.cpp.
const std::map<std::string, Folders>& MayInclude() {
  static const std::map<std::string, Folders> kRule = {
      {"ports", {}},
      {"model", {"ports"}},
      {"content", {"model", "ports"}},
      {"media", {"content", "model", "ports"}},
      {"game", {"content", "model", "ports"}},
      {"render", {"content", "model", "ports"}},
      {"script", {"model", "ports"}},
      {"shell", {"script", "render", "game", "media", "content", "model", "ports"}},
      {"platform", {"ports"}},
      {"main", {"shell", "script", "platform", "ports", "model"}},
      {"tools", {"content", "render", "model", "ports", "platform"}},
  };
  return kRule;
}

/// Pieces of code that stand only in some places.
struct Reserved {
  std::vector<std::string> pieces;
  std::vector<std::string> places;  ///< paths of the repository, as they begin
  std::string what;
};

const std::vector<Reserved>& ReservedPieces() {
  static const std::vector<Reserved> kReserved = {
      {{"<SDL", "\"SDL", "SDL_"}, {"src/platform/sdl/"}, "SDL is for src/platform/sdl only"},
      {{"<archive", "<SimpleIni", "<openssl/"},
       {"src/platform/"},
       "archives, ciphers and INI files are read in src/platform only"},
      {{"<png.h>"}, {"src/platform/", "tools/"}, "libpng is for src/platform and the tools only"},
      {{"<nlohmann/"}, {"src/script/", "tools/"}, "JSON is for src/script and the tools only"},
      {{"sleep_for", "sleep_until", "usleep", "nanosleep", "<thread>"},
       {"src/platform/"},
       "only the platform sleeps"},
      {{"<chrono>", "<ctime>", "<time.h>", "<sys/time.h>", "std::chrono", "clock_gettime",
        "gettimeofday"},
       {"src/platform/", "tools/"},
       "only the platform reads a clock"},
  };
  return kReserved;
}

std::string FolderOf(const std::string& path) {
  if (path == "src/main.cpp") return "main";
  if (path.starts_with("tools/")) return "tools";
  const std::size_t begin = std::string("src/").size();
  return path.substr(begin, path.find('/', begin) - begin);
}

bool IsIn(const std::string& path, const std::vector<std::string>& places) {
  return std::ranges::any_of(places,
                             [&](const std::string& place) { return path.starts_with(place); });
}

/// The folder that an include line names: "" for a file beside this one, nothing for other lines.
std::optional<std::string> IncludedFolder(const std::string& line) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == line.npos || line[hash] != '#') return std::nullopt;
  const std::size_t word = line.find_first_not_of(" \t", hash + 1);
  const std::size_t quote = line.find('"');
  if (word == line.npos || !line.substr(word).starts_with("include") || quote == line.npos)
    return std::nullopt;
  const std::size_t slash = line.find('/', quote);
  return slash == line.npos ? "" : line.substr(quote + 1, slash - quote - 1);
}

std::optional<std::string> WrongInclude(const std::string& path, const std::string& line) {
  const std::string folder = FolderOf(path);
  const auto rule = MayInclude().find(folder);
  if (rule == MayInclude().end()) return "the folder " + folder + " has no include rule";
  const auto included = IncludedFolder(line);
  if (!included || *included == folder || rule->second.contains(*included)) return std::nullopt;
  if (folder == "tools" && included->empty()) return std::nullopt;
  if (included->empty()) return "an include names its folder";
  return folder + " may not include " + *included;
}

/// "PATH:LINE: what is wrong" of every violation in a file.
std::vector<std::string> Violations(const std::string& path, const std::string& text) {
  std::vector<std::string> found;
  std::istringstream lines(text);
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    const std::string where = path + ':' + std::to_string(++number) + ": ";
    line = line.substr(0, line.find("//"));
    if (const auto wrong = WrongInclude(path, line)) found.push_back(where + *wrong);
    for (const Reserved& reserved : ReservedPieces()) {
      const bool stands = std::ranges::any_of(
          reserved.pieces, [&](const std::string& piece) { return line.find(piece) != line.npos; });
      if (stands && !IsIn(path, reserved.places)) found.push_back(where + reserved.what);
    }
  }
  return found;
}

std::vector<std::string> ViolationsBelow(const std::string& top, int& files) {
  const fs::path root = COILRUN_SOURCE_DIR;
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    ++files;
    std::ifstream file(entry.path());
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto inFile = Violations(fs::relative(entry.path(), root).generic_string(), text);
    found.insert(found.end(), inFile.begin(), inFile.end());
  }
  return found;
}

TEST(Architecture, FoldersIncludeOnlyWhomTheyMay) {
  int files = 0;
  for (const char* const top : {"src", "tools"}) {
    for (const std::string& violation : ViolationsBelow(top, files)) ADD_FAILURE() << violation;
  }
  EXPECT_GT(files, 50);
}

TEST(Architecture, TheWalkSeesEveryKindOfViolation) {
  struct Case {
    std::string path;
    std::string line;
  };
  const std::vector<Case> wrong = {
      {"src/model/state.h", "#include \"game/movement.h\""},
      {"src/ports/clock.h", " # include  \"model/state.h\""},
      {"src/game/movement.cpp", "#include \"render/bitmap.h\""},
      {"src/shell/pump.cpp", "#include \"platform/platform.h\""},
      {"src/platform/sdl/window.cpp", "#include \"model/state.h\""},
      {"src/main.cpp", "#include \"game/movement.h\""},
      {"src/script/script.cpp", "#include \"script.h\""},
      {"src/extra/thing.cpp", "int x;"},
      {"tools/coilpack/main.cpp", "#include \"shell/shell.h\""},
      {"src/platform/headless/clock.cpp", "#include <SDL.h>"},
      {"src/render/text.cpp", "#include <SDL2/SDL_ttf.h>"},
      {"src/content/archives.cpp", "#include <archive_entry.h>"},
      {"src/game/ai.cpp", "#include <nlohmann/json.hpp>"},
      {"src/shell/main_loop.cpp", "  std::this_thread::sleep_for(pause);"},
      {"src/shell/pump.cpp", "  SDL_Delay(10);"},
      {"src/game/death.cpp", "const auto now = std::chrono::steady_clock::now();"},
  };
  for (const Case& each : wrong) {
    EXPECT_THAT(Violations(each.path, "\n" + each.line), SizeIs(testing::Ge(1U))) << each.line;
  }
  const std::vector<Case> fine = {
      {"src/game/movement.cpp", "#include \"model/state.h\""},
      {"src/game/movement.cpp", "#include \"game/movement.h\""},
      {"src/game/movement.cpp", "// never std::chrono, never SDL_Delay"},
      {"src/platform/sdl/window.cpp", "#include <SDL.h>"},
      {"src/shell/pump.cpp", "#include \"script/script.h\""},
      {"tools/coilpack/main.cpp", "#include \"options.h\""},
      {"src/main.cpp", "#include \"platform/platform.h\""},
  };
  for (const Case& each : fine) {
    EXPECT_THAT(Violations(each.path, each.line), IsEmpty()) << each.line;
  }
}

}  // namespace
}  // namespace coilrun
