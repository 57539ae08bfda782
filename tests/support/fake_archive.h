#pragma once

#include <map>
#include <string>
#include <vector>

#include "ports/archive.h"
#include "ports/files.h"

namespace coilrun {

/// Archives in memory: names and contents by path, unpacked into the files given.
class FakeArchive final : public Archive {
 public:
  struct Entry {
    std::string name;
    std::string text = {};
    bool damaged = false;
  };
  using Entries = std::vector<Entry>;

  explicit FakeArchive(Files& files) : files_(files) {}

  bool Open(const std::string& path) override {
    const auto found = archives.find(path);
    if (found == archives.end()) return false;
    entries_ = &found->second;
    next_ = 0;
    ++open;
    return true;
  }
  void SetPassword(const std::string& password) override { passwords.push_back(password); }
  std::optional<std::string> ReadHeader() override {
    if (next_ == entries_->size()) return std::nullopt;
    return entries_->at(next_).name;
  }
  bool ProcessFile(const std::optional<std::string>& target) override {
    const Entry& entry = entries_->at(next_++);
    if (entry.damaged) return false;
    if (target && entry.name.find('.') != entry.name.npos) {
      files_.Write(*target, Bytes(entry.text.begin(), entry.text.end()));
    }
    return true;
  }
  void Close() override { --open; }

  std::map<std::string, Entries> archives;
  std::vector<std::string> passwords;
  int open = 0;

 private:
  Files& files_;
  const Entries* entries_ = nullptr;
  std::size_t next_ = 0;
};

}  // namespace coilrun
