#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/rar/rar_reader.h"
#include "ports/archive.h"
#include "ports/files.h"

namespace coilrun {

/// The game's archives: RAR files of either generation, read from `files` and unpacked into it.
class RarArchive : public Archive {
 public:
  explicit RarArchive(Files& files) : files_(files) {}

  bool Open(const std::string& path) override;
  void SetPassword(const std::string& password) override;
  std::optional<std::string> ReadHeader() override;
  bool ProcessFile(const std::optional<std::string>& target) override;
  void Close() override;

 private:
  Files& files_;
  Bytes file_;
  std::string password_;
  std::unique_ptr<RarReader> reader_;
  std::optional<std::size_t> current_;
};

}  // namespace coilrun
