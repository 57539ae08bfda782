#include "platform/folders.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace coilrun {
namespace {

namespace fs = std::filesystem;

/// The folder that an environment variable names; relative ones do not count.
fs::path FromEnvironment(const char* variable) {
  const char* const value = std::getenv(variable);
  const fs::path folder = value == nullptr ? "" : value;
  return folder.is_absolute() ? folder : fs::path();
}

fs::path HomeFolder() {
  fs::path home = FromEnvironment("HOME");
  if (!home.empty()) return home;
  const passwd* const entry = getpwuid(getuid());
  return entry == nullptr ? "/" : entry->pw_dir;
}

fs::path OrElse(const fs::path& folder, const fs::path& other) {
  return folder.empty() ? other : folder;
}

}  // namespace

Surroundings FindSurroundings() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  return {executable.parent_path(), HomeFolder(), FromEnvironment("XDG_CONFIG_HOME"),
          FromEnvironment("XDG_DATA_HOME")};
}

fs::path DefaultProgramFolder(const Surroundings& surroundings) {
  std::error_code error;
  const fs::path& beside = surroundings.executableFolder;
  if (fs::is_directory(beside / "lvl", error)) return beside;
  return beside.parent_path() / "share" / "coilrun";
}

Folders FoldersIn(const fs::path& program, const fs::path& user) {
  return {program, user / "coilrun.ini", user / "data"};
}

Folders DefaultFolders(const fs::path& program, const Surroundings& surroundings) {
  const fs::path config = OrElse(surroundings.configHome, surroundings.home / ".config");
  const fs::path data = OrElse(surroundings.dataHome, surroundings.home / ".local" / "share");
  return {program, config / "coilrun" / "coilrun.ini", data / "coilrun"};
}

TemporaryFolder::TemporaryFolder() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / "coilrun-XXXXXX").string();
  if (!error && mkdtemp(name.data()) != nullptr) path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

}  // namespace coilrun
