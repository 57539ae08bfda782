#include "platform/disk_files.h"

#include <algorithm>
#include <functional>
#include <utility>

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

/// The part of `path` below `root`; nothing when it lies elsewhere.
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
                     const std::optional<std::filesystem::path>& user, Probe probe,
                     ProgramFolder use)
    : program_(program),
      programTaken_(use == ProgramFolder::kTaken),
      programWritable_(!programTaken_ && probe(program)) {
  std::error_code error;
  if (user && !std::filesystem::equivalent(program, *user, error)) user_.emplace(*user);
}

std::optional<GamePath> DiskFiles::Parse(const std::string& path) const {
  if (const auto below = Below(path, kProgramFolder)) return ParseGamePath(*below);
  // One root may lie inside the other: the longer name is meant.
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
  std::vector<const RealRoot*> order;
  // Without a per-user folder, trying the program folder tells why it cannot be written.
  if (programWritable_ || (!user_ && !programTaken_)) order.push_back(&program_);
  if (user_) order.push_back(&*user_);
  return order;
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
  std::optional<std::error_code> problem;
  for (const RealRoot* root : WriteOrder()) {
    const std::error_code error = root->Write(*parsed, contents);
    if (!error) {
      // An older copy in the per-user folder would hide what was just written.
      if (user_ && root == &program_) user_->Delete({&*parsed, 1});
      writeProblems_.erase(ShortName(path));
      return true;
    }
    if (!problem) problem = error;
  }
  const auto noPlace = std::make_error_code(std::errc::device_or_resource_busy);
  writeProblems_[ShortName(path)] = problem.value_or(noPlace);
  return false;
}

std::string DiskFiles::WriteProblem(const std::string& path) const {
  const auto problem = writeProblems_.find(ShortName(path));
  if (problem == writeProblems_.end()) return {};
  const auto& [name, error] = *problem;
  return std::to_string(error.value()) + ": " + FromUtf8(error.message()) + " (writing '" + path +
         "')";
}

bool DiskFiles::MakeFolder(const std::string& path) {
  const auto parsed = Parse(path);
  if (!parsed) return false;
  const auto roots = WriteOrder();
  return std::any_of(roots.begin(), roots.end(),
                     [&](const RealRoot* root) { return root->MakeFolder(*parsed); });
}

std::size_t DiskFiles::DeleteAll(std::span<const std::string> paths) {
  std::vector<GamePath> parsed;
  for (const std::string& path : paths)
    if (auto inside = Parse(path)) parsed.push_back(*std::move(inside));
  std::vector<bool> deleted(parsed.size());
  for (const RealRoot* root : WriteOrder()) {
    const std::vector<bool> here = root->Delete(parsed);
    std::transform(deleted.begin(), deleted.end(), here.begin(), deleted.begin(),
                   std::logical_or<>());
  }
  return static_cast<std::size_t>(std::count(deleted.begin(), deleted.end(), true));
}

bool DiskFiles::IsLasting(const std::string& path) const {
  if (!programTaken_) return Exists(path);
  const auto parsed = Parse(path);
  return parsed && user_ && user_->Find(*parsed);
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
  const auto roots = WriteOrder();
  std::string full = roots.empty() ? program_.Text() : roots.front()->Text();
  for (const std::string& name : *parsed) full += "\\" + name;
  return full;
}

}  // namespace coilrun
