#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "ports/files.h"
#include "ports/windows_1252.h"

namespace coilrun {

/// Files in memory, by game path in any letter case. A folder exists while a file lies in it.
class FakeFiles : public Files {
 public:
  void Put(const std::string& path, std::string_view text) {
    contents[Key(path)] = Bytes(text.begin(), text.end());
  }
  std::string Text(const std::string& path) const {
    const auto bytes = Read(path).value_or(Bytes{});
    return {bytes.begin(), bytes.end()};
  }

  bool Exists(const std::string& path) const override {
    const std::string key = Key(path);
    return std::any_of(contents.begin(), contents.end(), [&](const auto& file) {
      return file.first == key || file.first.starts_with(key + "\\");
    });
  }
  std::optional<Bytes> Read(const std::string& path) const override {
    const auto found = contents.find(Key(path));
    if (found == contents.end()) return std::nullopt;
    return found->second;
  }
  std::optional<std::vector<std::string>> List(const std::string& folder,
                                               std::string_view suffix) const override {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : contents) {
      const std::size_t cut = path.rfind('\\');
      if (path.substr(0, cut) == Key(folder) && path.ends_with(suffix)) {
        names.push_back(path.substr(cut + 1));
      }
    }
    return names;
  }
  bool Write(const std::string& path, std::span<const std::uint8_t> bytes) override {
    contents[Key(path)] = Bytes(bytes.begin(), bytes.end());
    return true;
  }
  bool MakeFolder(const std::string& /*path*/) override { return true; }
  std::size_t DeleteAll(std::span<const std::string> paths) override {
    std::size_t deleted = 0;
    for (const std::string& path : paths) deleted += contents.erase(Key(path));
    return deleted;
  }
  std::string FullName(const std::string& path) const override { return kRoot + path.substr(1); }
  std::string ShortName(const std::string& path) const override { return Key(path); }
  bool IsLasting(const std::string& path) const override { return Exists(path); }
  std::string WriteProblem(const std::string& /*path*/) const override { return {}; }

  std::map<std::string, Bytes> contents;

 private:
  static constexpr const char* kRoot = "/game";

  static std::string Key(const std::string& path) {
    return FoldCase(path.starts_with(kRoot) ? "." + path.substr(5) : path);
  }
};

}  // namespace coilrun
