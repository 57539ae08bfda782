#include "platform/rar/rar_archive.h"

#include <algorithm>
#include <utility>

#include "ports/windows_1252.h"

namespace coilrun {

bool RarArchive::Open(const std::string& path) {
  Close();
  auto file = files_.Read(path);
  if (!file || !RarReader::Knows(*file)) return false;
  file_ = std::move(*file);
  return true;
}

void RarArchive::SetPassword(const std::string& password) {
  password_ = ToUtf8(password);
}

std::optional<std::string> RarArchive::ReadHeader() {
  // The password comes after `Open`, and encrypted headers cannot be read without it.
  if (!reader_) reader_ = std::make_unique<RarReader>(std::move(file_), password_);
  current_ = current_ ? *current_ + 1 : 0;
  if (*current_ >= reader_->Entries().size()) {
    current_ = reader_->Entries().size();
    return std::nullopt;
  }
  std::string name = FromUtf8(reader_->Entries()[*current_].name);
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

bool RarArchive::ProcessFile(const std::optional<std::string>& target) {
  if (!current_ || *current_ >= reader_->Entries().size()) return false;
  const RarEntry& entry = reader_->Entries()[*current_];
  if (!entry.problem.empty()) return false;
  if (!target) return true;
  if (entry.folder) return files_.MakeFolder(*target);
  const RarContents contents = reader_->Read(*current_);
  return contents.Ok() && files_.Write(*target, contents.bytes);
}

void RarArchive::Close() {
  file_.clear();
  password_.clear();
  reader_.reset();
  current_.reset();
}

}  // namespace coilrun
