#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "level_checker.h"
#include "level_drawing.h"
#include "level_dump.h"

namespace coilrun {
namespace {

constexpr int kGood = 0;
constexpr int kFaulty = 1;
constexpr int kWrongUse = 2;

std::optional<std::string> ReadFile(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  if (!file || std::filesystem::is_directory(name)) {
    std::cerr << "coillevel: cannot read " << name << '\n';
    return std::nullopt;
  }
  return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int CheckFile(const std::string& name) {
  const auto text = ReadFile(name);
  if (!text) return kFaulty;
  const Pictures pictures(name);
  int result = kGood;
  for (const Finding& finding : LevelChecker(pictures).Check(*text)) {
    std::cout << name << ':' << finding.line << ": " << finding.text << '\n';
    if (finding.refused) result = kFaulty;
  }
  return result;
}

int Check(const std::vector<std::string>& files) {
  int result = kGood;
  for (const std::string& file : files) result = std::max(result, CheckFile(file));
  return result;
}

int Dump(const std::string& file) {
  const auto text = ReadFile(file);
  if (!text) return kFaulty;
  const auto dump = DumpLevel(*text, Pictures(file));
  if (!dump) {
    std::cerr << "coillevel: the game would not load " << file << "; \"check\" says why\n";
    return kFaulty;
  }
  std::cout << *dump << '\n';
  return kGood;
}

int Draw(const std::string& file, const std::string& picture) {
  const auto text = ReadFile(file);
  if (!text) return kFaulty;
  const std::string fault = DrawLevel(*text, ProgramFolderOf(file), picture);
  if (fault.empty()) return kGood;
  std::cerr << "coillevel: " << file << ": " << fault << '\n';
  return kFaulty;
}

int Run(const std::vector<std::string>& arguments) {
  if (arguments.size() >= 2 && arguments[0] == "check") {
    return Check({arguments.begin() + 1, arguments.end()});
  }
  if (arguments.size() == 2 && arguments[0] == "dump") return Dump(arguments[1]);
  if (arguments.size() == 3 && arguments[0] == "draw") return Draw(arguments[1], arguments[2]);
  std::cerr << "usage: coillevel check FILE...\n"
               "       coillevel draw FILE PNG\n"
               "       coillevel dump FILE\n";
  return kWrongUse;
}

}  // namespace
}  // namespace coilrun

int main(int argc, char** argv) {
  try {
    return coilrun::Run({argv + 1, argv + argc});
  } catch (const std::exception& fault) {
    std::cerr << "coillevel: " << fault.what() << '\n';
    return coilrun::kFaulty;
  }
}
