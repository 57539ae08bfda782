#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace coilrun {

/// A fresh folder for a target that works with real files, in memory where the system has such a
/// place; gone with the object.
class FuzzFolder {
 public:
  FuzzFolder() {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code none;
    const bool inMemory = std::filesystem::is_directory(memory, none);
    std::string name = (inMemory ? memory : std::filesystem::temp_directory_path()) / "fuzz-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
  }
  FuzzFolder(const FuzzFolder&) = delete;
  FuzzFolder& operator=(const FuzzFolder&) = delete;
  ~FuzzFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  void Put(std::string_view name, std::string_view contents) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << contents;
  }
  bool Holds(std::string_view name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace coilrun
