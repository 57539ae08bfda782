#include "shell/settings.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "folder.h"
#include "platform/ini_settings.h"

namespace coilrun {
namespace {

constexpr const char* kFile = "coilrun.ini";
constexpr const char* kKept[] = {"PlayerName", "MaxSpeed", "A", ""};

void Clear(const FuzzFolder& folder) {
  for (const std::string name : {"", ".damaged", ".new"})
    std::filesystem::remove(folder / (kFile + name));
}

/// Texts keep their letters in the file, but for control characters, which become blanks.
std::string ValueFrom(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  std::string value(text.substr(0, kLongest));
  const auto vanishes = [](char letter) {
    const auto code = static_cast<unsigned char>(letter);
    return code < ' ' || code == 0x7F;
  };
  std::replace_if(value.begin(), value.end(), vanishes, ' ');
  return value;
}

/// Reads a file of settings, changes one, saves, reads again: what was changed is changed, what was
/// not is not, and a damaged file is set aside.
bool KeepsItsPromises(const FuzzFolder& folder, std::string_view text) {
  std::string report;
  const auto note = [&report](const std::string& line) { report += line; };
  Clear(folder);
  folder.Put(kFile, text);
  IniSettings first(folder / kFile, folder / "none.ini", note);
  if (report.empty() == folder.Holds("coilrun.ini.damaged")) return false;

  const std::string value = ValueFrom(text);
  first.Set("Fuzz", "Changed", value);
  if (!first.Save()) return false;
  report.clear();
  const IniSettings second(folder / kFile, folder / "none.ini", note);
  if (!report.empty() || second.Get("Fuzz", "Changed") != value) return false;
  return std::all_of(std::begin(kKept), std::end(kKept), [&](const char* key) {
    return second.Get("Options", key) == first.Get("Options", key);
  });
}

/// Whatever the file says, the game takes from it what it can use: saved and read again, that is
/// the same.
bool MakesSense(const FuzzFolder& folder) {
  std::string before;
  for (int time = 1; time <= 2; ++time) {
    IniSettings store(folder / kFile, folder / "none.ini", [](const std::string& /*line*/) {});
    State state;
    LoadSettings(state, store);
    LoadHiScores(state, store);
    if (!SaveSettings(state, store)) return false;
    std::ifstream file(folder / kFile, std::ios::binary);
    std::string saved(std::istreambuf_iterator<char>(file), {});
    if (time == 2 && saved != before) return false;
    before = std::move(saved);
  }
  return true;
}

}  // namespace
}  // namespace coilrun

/// Any bytes as the file of settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const coilrun::FuzzFolder folder;
  const std::string text(data, data + size);
  if (!coilrun::KeepsItsPromises(folder, text) || !coilrun::MakesSense(folder)) std::abort();
  return 0;
}
