#include "content/level_list.h"

#include <algorithm>

#include "content/lines.h"
#include "content/load_level.h"
#include "content/quiet_host.h"
#include "model/numbers.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::string_view kFolder = "\\lvl\\";
constexpr int kSmallestMatchLimit = 5;
constexpr int kLargestMatchLimit = 200;

std::string PathOf(const std::string& file) {
  return InProgramFolder(kFolder, file);
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

/// Takes a run of digits off a text and returns it without leading zeros.
std::string_view TakeNumber(std::string_view& text) {
  std::size_t size = 0;
  while (size < text.size() && IsDigit(text[size])) ++size;
  std::string_view digits = text.substr(0, size);
  text.remove_prefix(size);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

}  // namespace

bool ComesBefore(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (IsDigit(a.front()) && IsDigit(b.front())) {
      const std::string_view first = TakeNumber(a);
      const std::string_view second = TakeNumber(b);
      if (first.size() != second.size()) return first.size() < second.size();
      if (first != second) return first < second;
    } else {
      const char first = LowerCase(a.front());
      const char second = LowerCase(b.front());
      if (first != second) return first < second;
      a.remove_prefix(1);
      b.remove_prefix(1);
    }
  }
  return a.size() < b.size();
}

std::vector<std::string> LevelFiles(const Files& files) {
  auto names = files.List(InProgramFolder("\\lvl"), ".dat").value_or(std::vector<std::string>{});
  std::stable_sort(names.begin(), names.end(), ComesBefore);
  return names;
}

std::unique_ptr<State> PeekAtLevel(Files& files, const std::string& file) {
  auto state = std::make_unique<State>();
  ClosedArchive archive;
  NoPump pump;
  QuietHost host(*state);
  LoadLevel({*state, files, archive, pump, host}, PathOf(file));
  if (state->shell.NoGameRunning) return nullptr;
  return state;
}

std::optional<LevelOutline> OutlineOf(Files& files, const std::string& file) {
  const auto level = PeekAtLevel(files, file);
  const auto bytes = files.Read(PathOf(file));
  if (!level || !bytes) return std::nullopt;
  const int starts = std::clamp<int>(level->level.MapSnakeCount, 1, kMaxSnakes);
  return LevelOutline{file, level->level.lvlName, starts, MatchLimitOf(TextOf(*bytes))};
}

std::optional<int> MatchLimitOf(std::string_view level) {
  std::optional<int> limit;
  LineReader lines(level);
  while (const auto line = lines.Next()) {
    if (!line->starts_with(kMatchLimitKey)) continue;
    const auto number = WholeNumber(line->substr(kMatchLimitKey.size()));
    const bool fits = number && *number == RoundHalfEven(*number) &&
                      *number >= kSmallestMatchLimit && *number <= kLargestMatchLimit;
    limit = fits ? std::optional{RoundToInt(*number)} : std::nullopt;
  }
  return limit;
}

}  // namespace coilrun
