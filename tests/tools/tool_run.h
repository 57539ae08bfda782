#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/wait.h>

namespace coilrun {

/// A folder for one test.
class Workshop {
 public:
  Workshop() {
    std::string pattern = (std::filesystem::temp_directory_path() / "coilrun-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~Workshop() { std::filesystem::remove_all(folder_); }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;

  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

  void Put(const std::string& name, const std::string& contents) const {
    std::filesystem::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << contents;
  }
  /// The contents of a file; "(none)" when there is no such file.
  std::string Contents(const std::string& name) const {
    std::ifstream stream(folder_ / name, std::ios::binary);
    if (!stream) return "(none)";
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  struct Outcome {
    int code;
    std::string output;
    std::string errors;
  };
  /// Runs a shell command in this folder.
  Outcome Run(const std::string& command) const {
    const std::string line =
        "cd '" + folder_.string() + "' && { " + command + "; } >.output 2>.errors </dev/null";
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Contents(".output"), Contents(".errors")};
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace coilrun
