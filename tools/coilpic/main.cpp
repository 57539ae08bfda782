#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "kit/game_picture.h"

namespace {

namespace fs = std::filesystem;

bool Write(const fs::path& file, const coilrun::Bytes& contents) {
  std::ofstream stream(file, std::ios::binary);
  stream << std::string(contents.begin(), contents.end());
  return static_cast<bool>(stream.flush());
}

bool Complain(const fs::path& file, const std::string& problem) {
  std::cerr << file.string() << ": " << problem << '\n';
  return false;
}

bool Convert(const fs::path& from, fs::path to) {
  std::ifstream stream(from, std::ios::binary);
  const coilrun::Bytes file{std::istreambuf_iterator<char>(stream), {}};
  const coilrun::PngPicture picture = coilrun::DecodePng(file);
  if (!picture.problem.empty()) return Complain(from, picture.problem);
  to.replace_extension(".bmp");
  const coilrun::KeyMode key = coilrun::KeyOf(to.generic_string());
  if (!Write(to, coilrun::GameBmp(picture, key))) return Complain(to, "cannot be written");
  fs::last_write_time(to, fs::last_write_time(from));
  return true;
}

bool Take(const fs::directory_entry& entry, const fs::path& to) {
  if (entry.is_directory()) {
    fs::create_directories(to);
    return true;
  }
  if (coilrun::IsPngName(entry.path().string())) return Convert(entry.path(), to);
  fs::copy_file(entry.path(), to, fs::copy_options::overwrite_existing);
  fs::last_write_time(to, entry.last_write_time());
  return true;
}

bool ConvertAll(const fs::path& from, const fs::path& to) {
  if (fs::is_regular_file(from)) return Take(fs::directory_entry(from), to);
  fs::create_directories(to);
  for (const auto& entry : fs::recursive_directory_iterator(from)) {
    if (!Take(entry, to / entry.path().lexically_relative(from))) return false;
  }
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: coilpic IN OUT (two folders, or two files)\n";
    return 2;
  }
  try {
    return ConvertAll(arguments[1], arguments[2]) ? 0 : 1;
  } catch (const fs::filesystem_error& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
