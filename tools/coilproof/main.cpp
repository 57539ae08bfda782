#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "content/level_list.h"
#include "platform/platform.h"
#include "ports/terminate.h"
#include "proof_player.h"
#include "shell/program.h"

namespace coilrun {
namespace {

constexpr int kUnproven = 1;
constexpr int kWrongUse = 2;
constexpr int kPatience = 900;  ///< in seconds of play
constexpr int kMostGames = 20;  ///< that a level is tried at most

struct Wish {
  std::string data;
  int seeds = 3;
  std::vector<std::string> levels;
};

PlatformOptions OptionsFor(const Wish& wish) {
  PlatformOptions options;
  if (!wish.data.empty()) options.data = wish.data;
  return options;
}

LevelProof PlayOnce(const Wish& wish, const std::string& level, std::uint64_t seed) {
  const auto made = MakeHeadlessPlatform(OptionsFor(wish));
  if (!made.platform) throw std::runtime_error(made.problem);
  const CommonPorts& common = made.platform->Common();
  const auto state = std::make_unique<State>();
  state->clockSeed = seed;
  ProofPlayer player(*state, common.clock, kPatience);
  const Ports ports{common, player, player};
  try {
    Program program(*state, ports, "proof");
    program.Run("/L=" + level);
  } catch (const Terminate&) {
    // The game ended the run, and the player knows how it went.
  }
  return player.Result();
}

struct Row {
  std::vector<double> seconds;  ///< of the games that completed the level
  int games = 0;
  int deaths = 0;
  int score = 0;  ///< of the last game that completed it
};

/// Plays until the level has been completed as often as there are seeds.
Row Prove(const Wish& wish, const std::string& level) {
  Row row;
  const auto wanted = static_cast<std::size_t>(wish.seeds);
  while (row.seconds.size() < wanted && row.games < kMostGames) {
    const LevelProof proof = PlayOnce(wish, level, static_cast<std::uint64_t>(++row.games));
    row.deaths += proof.deaths;
    if (!proof.completed) continue;
    row.seconds.push_back(proof.seconds);
    row.score = proof.score;
  }
  std::sort(row.seconds.begin(), row.seconds.end());
  return row;
}

/// Prints one row of a Markdown table.
void Print(const std::string& level, const Row& row) {
  const bool completed = !row.seconds.empty();
  const double median = completed ? row.seconds[row.seconds.size() / 2] : 0;
  const double longest = completed ? row.seconds.back() : 0;
  std::printf("| %s | %zu of %d | %.0f | %.0f | %d | %d |\n", level.c_str(), row.seconds.size(),
              row.games, median, longest, row.deaths, row.score);
  std::fflush(stdout);
}

void PrintHeader() {
  std::printf(
      "| Level | Completed | Median s | Longest s | Deaths | Score |\n"
      "| --- | --- | --- | --- | --- | --- |\n");
}

/// The levels of the campaign, which begins at lvl1.dat.
std::vector<std::string> CampaignLevels(const Wish& wish) {
  const auto made = MakeHeadlessPlatform(OptionsFor(wish));
  if (!made.platform) throw std::runtime_error(made.problem);
  auto levels = LevelFiles(made.platform->Common().files);
  std::erase_if(levels, [](const std::string& level) { return !level.starts_with("lvl"); });
  return levels;
}

bool Parse(const std::vector<std::string>& arguments, Wish& wish) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    const bool takesValue = word == "--data" || word == "--seeds";
    if (takesValue && i + 1 == arguments.size()) return false;
    if (word == "--data") {
      wish.data = arguments[++i];
    } else if (word == "--seeds") {
      const std::string& text = arguments[++i];
      const char* const end = text.data() + text.size();
      const auto [rest, error] = std::from_chars(text.data(), end, wish.seeds);
      if (error != std::errc{} || rest != end || wish.seeds < 1) return false;
    } else {
      wish.levels.push_back(word);
    }
  }
  return true;
}

int Main(const std::vector<std::string>& arguments) {
  Wish wish;
  if (!Parse(arguments, wish)) {
    std::cerr << "usage: coilproof [--data FOLDER] [--seeds N] [LEVEL]...\n"
                 "Plays levels of the program folder (such as lvl1.dat; the whole campaign when "
                 "none is named) by keys alone until each is completed N times.\n";
    return kWrongUse;
  }
  if (wish.levels.empty()) wish.levels = CampaignLevels(wish);
  PrintHeader();
  int result = 0;
  for (const std::string& level : wish.levels) {
    const Row row = Prove(wish, level);
    Print(level, row);
    if (row.seconds.empty()) result = kUnproven;
  }
  return result;
}

}  // namespace
}  // namespace coilrun

int main(int argc, char** argv) {
  try {
    return coilrun::Main({argv + 1, argv + argc});
  } catch (const std::exception& broken) {
    std::cerr << "coilproof: " << broken.what() << '\n';
    return 1;
  }
}
