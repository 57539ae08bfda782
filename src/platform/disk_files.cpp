#include "platform/disk_files.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <system_error>

#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::uintmax_t kReadLimit = std::uintmax_t{256} << 20U;

bool IsSeparator(char character) {
  return character == '\\' || character == '/';
}

std::string TurnSeparators(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

/// What of `path` lies below `root`: nothing when it is another place.
std::optional<std::string_view> Below(std::string_view path, std::string_view root) {
  if (TurnSeparators(std::string(path.substr(0, root.size()))) != TurnSeparators(std::string(root)))
    return std::nullopt;
  const std::string_view rest = path.substr(root.size());
  if (!rest.empty() && !IsSeparator(rest.front())) return std::nullopt;
  return rest;
}

bool EndsIn(const std::string& folded, const std::string& foldedSuffix) {
  return folded.size() >= foldedSuffix.size() && folded.ends_with(foldedSuffix);
}

}  // namespace

DiskFiles::DiskFiles(const std::filesystem::path& program,
                     const std::optional<std::filesystem::path>& user, Probe probe)
    : program_(program), programWritable_(probe(program)) {
  if (!user) return;
  user_.emplace(*user);
  if (user_->Text() == program_.Text()) user_.reset();
}

std::optional<GamePath> DiskFiles::Parse(const std::string& path) const {
  if (const auto below = Below(path, kProgramFolder)) return ParseGamePath(*below);
  // One root may lie inside the other: the longer name is the one that is meant.
  std::optional<std::string_view> rest = Below(path, program_.Text());
  const auto userRest = user_ ? Below(path, user_->Text()) : std::nullopt;
  if (userRest && (!rest || userRest->size() < rest->size())) rest = userRest;
  return rest ? ParseGamePath(*rest) : std::nullopt;
}

std::vector<const RealRoot*> DiskFiles::ReadOrder() const {
  if (user_) return {&*user_, &program_};
  return {&program_};
}

std::vector<const RealRoot*> DiskFiles::WriteOrder() const {
  if (!user_) return {&program_};
  if (!programWritable_) return {&*user_};
  return {&program_, &*user_};
}

bool DiskFiles::Exists(const std::string& path) const {
  const auto parsed = Parse(path);
  if (!parsed) return false;
  const auto roots = ReadOrder();
  return std::any_of(roots.begin(), roots.end(),
                     [&](const RealRoot* root) { return root->Find(*parsed).has_value(); });
}

std::optional<Bytes> DiskFiles::Read(const std::string& path) const {
  const auto parsed = Parse(path);
  if (!parsed) return std::nullopt;
  for (const RealRoot* root : ReadOrder())
    if (auto contents = root->Read(*parsed, kReadLimit)) return contents;
  return std::nullopt;
}

std::optional<std::vector<std::string>> DiskFiles::List(const std::string& folder,
                                                        std::string_view suffix) const {
  const auto parsed = Parse(folder);
  if (!parsed) return std::nullopt;
  const std::string foldedSuffix = FoldCase(suffix);
  bool found = false;
  std::map<std::string, std::string> byFoldedName;
  for (const RealRoot* root : ReadOrder()) {
    const auto names = root->List(*parsed);
    found = found || names.has_value();
    for (const std::string& name : names.value_or(std::vector<std::string>{}))
      if (EndsIn(FoldCase(name), foldedSuffix)) byFoldedName.emplace(FoldCase(name), name);
  }
  if (!found) return std::nullopt;
  std::vector<std::string> sorted;
  sorted.reserve(byFoldedName.size());
  for (const auto& [folded, name] : byFoldedName) sorted.push_back(name);
  return sorted;
}

bool DiskFiles::Write(const std::string& path, std::span<const std::uint8_t> contents) {
  const auto parsed = Parse(path);
  if (!parsed) return false;
  errno = EPERM;
  for (const RealRoot* root : WriteOrder()) {
    if (!root->Write(*parsed, contents)) continue;
    // An older copy among the player's own files would hide what was just written.
    if (user_ && root == &program_) user_->Delete(*parsed);
    return true;
  }
  const std::string reason = std::generic_category().message(errno);
  writeProblem_ = std::to_string(errno) + ": " + FromUtf8(reason) + " (writing '" + path + "')";
  return false;
}

bool DiskFiles::MakeFolder(const std::string& path) {
  const auto parsed = Parse(path);
  if (!parsed) return false;
  const auto roots = WriteOrder();
  return std::any_of(roots.begin(), roots.end(),
                     [&](const RealRoot* root) { return root->MakeFolder(*parsed); });
}

bool DiskFiles::Delete(const std::string& path) {
  const auto parsed = Parse(path);
  if (!parsed) return false;
  bool deleted = false;
  for (const RealRoot* root : WriteOrder()) deleted = root->Delete(*parsed) || deleted;
  return deleted;
}

bool DiskFiles::IsWritten(const std::string& path) const {
  const auto parsed = Parse(path);
  return parsed && WriteOrder().front()->Find(*parsed);
}

std::string DiskFiles::ShortName(const std::string& path) const {
  const auto parsed = Parse(path);
  if (!parsed) return {};
  std::string name{kProgramFolder};
  for (const std::string& part : *parsed) name += "\\" + FoldCase(part);
  return name;
}

std::string DiskFiles::FullName(const std::string& path) const {
  const auto parsed = Parse(path);
  if (!parsed) return path;
  std::string full = WriteOrder().front()->Text();
  for (const std::string& name : *parsed) full += "\\" + name;
  return full;
}

}  // namespace coilrun
