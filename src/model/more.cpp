#include "model/more.h"

#include <algorithm>
#include <charconv>

#include "ports/scan_codes.h"

namespace coilrun {
namespace {

using std::string_view;

constexpr std::array<string_view, 2> kTurnsWords = {"last", "queue"};
constexpr std::array<string_view, 2> kMotionWords = {"steps", "smooth"};
constexpr std::array<string_view, 3> kEffectsWords = {"off", "calm", "full"};
constexpr std::array<string_view, 3> kRivalWords = {"classic", "clever", "master"};
constexpr std::array<string_view, 5> kPageWords = {"", "more", "match", "controls", "replays"};
constexpr std::array<string_view, 3> kMatchWords = {"campaign", "deathmatch", "hunting"};

template <typename Enum, std::size_t N>
std::optional<Enum> Find(const std::array<string_view, N>& words, string_view word) {
  const auto* const found = std::find(words.begin(), words.end(), word);
  if (found == words.end()) return std::nullopt;
  return static_cast<Enum>(found - words.begin());
}

}  // namespace

std::string_view Word(TurnsMode mode) {
  return kTurnsWords.at(static_cast<std::size_t>(mode));
}
std::string_view Word(MotionMode mode) {
  return kMotionWords.at(static_cast<std::size_t>(mode));
}
std::string_view Word(EffectsMode mode) {
  return kEffectsWords.at(static_cast<std::size_t>(mode));
}
std::string_view Word(RivalKind kind) {
  return kRivalWords.at(static_cast<std::size_t>(kind));
}
std::string_view Word(MorePage page) {
  return kPageWords.at(static_cast<std::size_t>(page));
}
std::string_view Word(MatchMode mode) {
  return kMatchWords.at(static_cast<std::size_t>(mode));
}

template <>
std::optional<TurnsMode> FromWord<TurnsMode>(std::string_view word) {
  return Find<TurnsMode>(kTurnsWords, word);
}
template <>
std::optional<MotionMode> FromWord<MotionMode>(std::string_view word) {
  return Find<MotionMode>(kMotionWords, word);
}
template <>
std::optional<EffectsMode> FromWord<EffectsMode>(std::string_view word) {
  return Find<EffectsMode>(kEffectsWords, word);
}
template <>
std::optional<RivalKind> FromWord<RivalKind>(std::string_view word) {
  return Find<RivalKind>(kRivalWords, word);
}
template <>
std::optional<MorePage> FromWord<MorePage>(std::string_view word) {
  return Find<MorePage>(kPageWords, word);
}
template <>
std::optional<MatchMode> FromWord<MatchMode>(std::string_view word) {
  return Find<MatchMode>(kMatchWords, word);
}

std::string RivalText(const RivalList& rivals) {
  std::string text;
  for (const RivalKind kind : rivals.kinds) {
    if (!text.empty()) text += ',';
    text += Word(kind);
  }
  return text;
}

std::optional<RivalList> RivalsFromText(std::string_view text) {
  RivalList rivals{{}};
  while (true) {
    const std::size_t end = std::min(text.find(','), text.size());
    const auto kind = FromWord<RivalKind>(text.substr(0, end));
    if (!kind) return std::nullopt;
    rivals.kinds.push_back(*kind);
    if (end == text.size()) return rivals;
    text.remove_prefix(end + 1);
  }
}

std::optional<std::vector<int>> KeyCodesFromText(std::string_view text) {
  std::vector<int> codes;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return codes;
    const std::string_view word = text.substr(0, text.find(' '));
    int code = 0;
    const auto [end, error] = std::from_chars(word.begin(), word.end(), code);
    const bool isCode = error == std::errc{} && end == word.end() && CanSteer(code);
    if (!isCode || codes.size() == SteeringKeys::kMostCodes) return std::nullopt;
    codes.push_back(code);
    text.remove_prefix(word.size());
  }
}

std::string KeyCodesText(const std::vector<int>& codes) {
  std::string text;
  for (const int code : codes) text += (text.empty() ? "" : " ") + std::to_string(code);
  return text;
}

bool CanSteer(int code) {
  constexpr std::array<int, 8> kOthers = {kKeyEscape, kKeyTab, kKeyEnter, kKeyF1,
                                          kKeyF2,     kKeyF3,  kKeyF4,    kKeyPause};
  return code >= 1 && code <= kLastSteeringKey &&
         std::find(kOthers.begin(), kOthers.end(), code) == kOthers.end();
}

SteeringKeys BuiltInKeys(int person) {
  if (person != 1) return {};
  return {{kKeyUp}, {kKeyDown}, {kKeyLeft}, {kKeyRight}};
}

}  // namespace coilrun
