#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include <unistd.h>

#include "platform/folders.h"
#include "ports/bytes.h"

namespace coilrun {

inline void Put(const std::filesystem::path& file, std::string_view contents = "x") {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << contents;
}

/// The contents of a file; "(none)" when there is no such file.
inline std::string Contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return "(none)";
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline Bytes ToBytes(std::string_view text) {
  return {text.begin(), text.end()};
}

inline std::string Text(std::span<const std::uint8_t> bytes) {
  return {bytes.begin(), bytes.end()};
}

/// A wave file of silence: 22050 frames per second, stereo, 16 bits.
inline Bytes WaveOf(std::uint32_t frames) {
  using namespace std::string_view_literals;
  Bytes wave = ToBytes(
      "RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\2\0\x22\x56\0\0\x88\x58\1\0\4\0\x10\0data\0\0\0\0"sv);
  const std::uint32_t size = frames * 4;
  for (std::size_t i = 0; i < 4; ++i) {
    wave[4 + i] = static_cast<std::uint8_t>((36 + size) >> 8 * i);
    wave[40 + i] = static_cast<std::uint8_t>(size >> 8 * i);
  }
  wave.resize(wave.size() + size);
  return wave;
}

/// Makes a folder, and those in it, read-only for this process as long as the object lives. Since
/// no permission stops root, a root process becomes nobody meanwhile.
class ReadOnlyFolder {
 public:
  explicit ReadOnlyFolder(std::filesystem::path folder) : folder_(std::move(folder)) {
    SetPermissions(std::filesystem::perms(0555));
    becameNobody_ = geteuid() == 0 && seteuid(kNobody) == 0;
  }
  ~ReadOnlyFolder() {
    if (becameNobody_ && seteuid(0) != 0) _exit(1);
    SetPermissions(std::filesystem::perms(0755));
  }
  ReadOnlyFolder(const ReadOnlyFolder&) = delete;
  ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  void SetPermissions(std::filesystem::perms permissions) const {
    std::filesystem::permissions(folder_, permissions);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_))
      if (entry.is_directory()) std::filesystem::permissions(entry, permissions);
  }

  std::filesystem::path folder_;
  bool becameNobody_ = false;
};

/// A folder for one test, with room for both roots and a place outside them.
class TestFolders {
 public:
  TestFolders() {
    for (const char* const name : {"program", "user", "outside"})
      std::filesystem::create_directories(Path() / name);
    for (const auto& folder : {Path(), Path() / "user"})
      std::filesystem::permissions(folder, std::filesystem::perms(0777));
  }

  const std::filesystem::path& Path() const { return temporary_.Path(); }
  std::filesystem::path Program() const { return Path() / "program"; }
  std::filesystem::path User() const { return Path() / "user"; }
  std::filesystem::path Outside() const { return Path() / "outside"; }

 private:
  TemporaryFolder temporary_;
};

}  // namespace coilrun
