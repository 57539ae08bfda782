#include "platform/ini_settings.h"

#include <cerrno>
#include <system_error>

#include <SimpleIni.h>
#include <fcntl.h>

#include "platform/atomic_file.h"
#include "platform/file_handle.h"
#include "platform/ini_text.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSizeLimit = std::size_t{1} << 20U;

/// The contents of an INI file, or what is wrong with it. A missing file is an empty one.
struct IniFile {
  std::string text;
  std::optional<std::string> damage;
};

IniFile ReadIni(const fs::path& file) {
  const FileHandle handle(file, O_RDONLY | O_NONBLOCK);
  if (!handle.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) return {};
  std::error_code error;
  Bytes bytes;
  if (!handle.IsOpen() || !fs::is_regular_file(file, error) || !handle.ReadAll(bytes, kSizeLimit))
    return {"", "it cannot be read, or is larger than 1 MiB"};
  IniFile ini{std::string(bytes.begin(), bytes.end()), std::nullopt};
  ini.damage = FindIniDamage(ini.text);
  return ini;
}

/// A name beside `file` that is not taken yet.
fs::path NameForDamaged(const fs::path& file) {
  std::error_code error;
  const fs::path name = file.native() + ".damaged";
  fs::path free = name;
  for (int number = 2; fs::exists(fs::symlink_status(free, error)); ++number)
    free = name.native() + "." + std::to_string(number);
  return free;
}

}  // namespace

struct IniSettings::Store {
  Store() { ini.SetUnicode(true); }

  std::optional<std::string> Get(std::string_view section, std::string_view key) const {
    const char* const value = ini.GetValue(ToUtf8(section).c_str(), ToUtf8(key).c_str());
    if (value == nullptr) return std::nullopt;
    return FromUtf8(UnquoteIniValue(value));
  }

  CSimpleIniA ini;
};

IniSettings::IniSettings(fs::path file, const fs::path& defaults, Report report)
    : file_(std::move(file)),
      report_(std::move(report)),
      store_(std::make_unique<Store>()),
      defaults_(std::make_unique<Store>()) {
  LoadStore();
  const IniFile shipped = ReadIni(defaults);
  if (shipped.damage) {
    report_("The default settings " + defaults.string() + " are left out: " + *shipped.damage);
  } else {
    defaults_->ini.LoadData(shipped.text);
  }
}

IniSettings::~IniSettings() = default;

void IniSettings::LoadStore() {
  const IniFile stored = ReadIni(file_);
  if (stored.damage) {
    SetAside(*stored.damage);
  } else if (store_->ini.LoadData(stored.text) < 0) {
    SetAside("it cannot be taken apart");
  }
}

void IniSettings::SetAside(const std::string& reason) {
  const fs::path aside = NameForDamaged(file_);
  std::error_code error;
  fs::rename(file_, aside, error);
  overwritingAllowed_ = !error;
  const std::string outcome = error ? "; it cannot be renamed, so no settings will be saved"
                                    : "; it is kept as " + aside.string();
  report_("The settings file " + file_.string() + " is damaged: " + reason + outcome);
}

std::optional<std::string> IniSettings::Get(std::string_view section, std::string_view key) const {
  auto value = store_->Get(section, key);
  return value ? value : defaults_->Get(section, key);
}

void IniSettings::Set(std::string_view section, std::string_view key, std::string_view value) {
  if (store_->Get(section, key) == std::string(value)) return;
  store_->ini.SetValue(ToUtf8(section).c_str(), ToUtf8(key).c_str(),
                       ToUtf8(QuoteIniValue(value)).c_str());
}

bool IniSettings::Save() {
  if (!overwritingAllowed_) return false;
  std::string text;
  if (store_->ini.Save(text) >= 0 && ReplaceFile(file_, text)) return true;
  if (!failureReported_) report_("The settings cannot be written to " + file_.string());
  failureReported_ = true;
  return false;
}

}  // namespace coilrun
