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
  std::string text{};
  std::optional<std::string> damage{};
  std::optional<std::string> unreadable{};
};

IniFile Unreadable(int errorNumber) {
  return {.unreadable = std::generic_category().message(errorNumber)};
}

IniFile ReadIni(const fs::path& file) {
  const FileHandle handle(file, O_RDONLY | O_NONBLOCK);
  if (!handle.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) return {};
  if (!handle.IsOpen()) return Unreadable(errno);
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return {.unreadable = "it is no file"};
  if (fs::file_size(file, error) > kSizeLimit) return {.damage = "it is larger than 1 MiB"};
  Bytes bytes;
  if (!handle.ReadAll(bytes, kSizeLimit)) return Unreadable(errno);
  IniFile ini{.text = std::string(bytes.begin(), bytes.end())};
  ini.damage = FindIniDamage(ini.text);
  return ini;
}

/// An unused name beside `file`.
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
  void Set(std::string_view section, std::string_view key, std::string_view value) {
    ini.SetValue(ToUtf8(section).c_str(), ToUtf8(key).c_str(),
                 ToUtf8(QuoteIniValue(value)).c_str());
  }
  std::string Text() const {
    std::string whole;
    ini.Save(whole);
    return whole;
  }

  /// The file that this was read from.
  std::string text;
  CSimpleIniA ini;
};

IniSettings::IniSettings(fs::path file, const fs::path& defaults, Report report)
    : file_(std::move(file)),
      report_(std::move(report)),
      store_(ReadStore()),
      defaults_(std::make_unique<Store>()) {
  if (!store_) store_ = std::make_unique<Store>();
  taken_ = store_->text;
  const IniFile shipped = ReadIni(defaults);
  const auto problem = shipped.damage ? shipped.damage : shipped.unreadable;
  if (problem) report_("The default settings " + defaults.string() + " are ignored: " + *problem);
  if (!problem) defaults_->ini.LoadData(shipped.text);
}

IniSettings::~IniSettings() = default;

/// The store as it is on disk; nothing when there is none that can be read.
std::unique_ptr<IniSettings::Store> IniSettings::ReadStore() {
  const IniFile stored = ReadIni(file_);
  if (stored.unreadable) {
    Fails("The settings file " + file_.string() + " cannot be read: " + *stored.unreadable +
          "; no settings will be saved");
    overwritingAllowed_ = false;
    return nullptr;
  }
  auto store = std::make_unique<Store>();
  if (!stored.damage && store->ini.LoadData(stored.text) >= 0) {
    store->text = stored.text;
    return store;
  }
  SetAside(stored.damage.value_or("it cannot be parsed"));
  return nullptr;
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
  return value ? value : Shipped(section, key);
}

std::optional<std::string> IniSettings::Shipped(std::string_view section,
                                                std::string_view key) const {
  return defaults_->Get(section, key);
}

void IniSettings::TakeAsRead(std::string_view section, std::string_view key,
                             std::string_view value) {
  const Key id{section, key};
  // What could not be saved yet still counts as a change of this instance.
  if (!set_.contains(id)) known_[id] = {std::string(value), store_->Get(section, key)};
}

void IniSettings::Set(std::string_view section, std::string_view key, std::string_view value) {
  const Key id{section, key};
  const auto stored = store_->Get(section, key);
  known_.try_emplace(id, Known{stored, stored});
  set_.insert(id);
  if (stored != std::string(value)) store_->Set(section, key, value);
}

/// Whether another instance has stored a value that this one has not changed.
bool IniSettings::GivesWay(const Key& key, const std::optional<std::string>& theirs) const {
  const Known& known = known_.at(key);
  return theirs && theirs != known.stored && store_->Get(key.first, key.second) == known.value;
}

void IniSettings::CarryInto(Store& store) const {
  for (const Key& key : set_) {
    const auto& [section, name] = key;
    const auto theirs = store.Get(section, name);
    const auto own = store_->Get(section, name);
    if (own && own != theirs && !GivesWay(key, theirs)) store.Set(section, name, *own);
  }
}

bool IniSettings::Refresh() {
  if (!overwritingAllowed_) return false;
  auto stored = ReadStore();
  if (!stored || stored->text == taken_) return false;
  CarryInto(*stored);
  store_ = std::move(stored);
  taken_ = store_->text;
  return true;
}

bool IniSettings::Save() {
  if (!overwritingAllowed_) return false;
  std::unique_ptr<Store> merged;
  const std::error_code error = ReplaceFile(file_, [&] {
    merged = MergedStore();
    return merged ? std::optional(merged->Text()) : std::nullopt;
  });
  if (!error) {
    RememberAsWritten(*merged);
    return true;
  }
  if (!overwritingAllowed_) return false;
  return Fails("The settings cannot be written to " + file_.string() + ": " + error.message());
}

/// The store on disk with this instance's changes; nothing when it must not be overwritten.
std::unique_ptr<IniSettings::Store> IniSettings::MergedStore() {
  auto stored = ReadStore();
  if (!overwritingAllowed_) return nullptr;
  if (!stored) {
    stored = std::make_unique<Store>();
    stored->ini.LoadData(store_->Text());
  }
  CarryInto(*stored);
  return stored;
}

void IniSettings::RememberAsWritten(const Store& written) {
  for (const Key& key : set_) {
    const auto own = store_->Get(key.first, key.second);
    if (own == written.Get(key.first, key.second)) known_[key] = {own, own};
  }
  set_.clear();
  // What others have stored counts as new until it is taken in.
  if (written.text == taken_) taken_ = written.Text();
}

bool IniSettings::Fails(const std::string& reason) {
  if (!failureReported_) report_(reason);
  failureReported_ = true;
  return false;
}

}  // namespace coilrun
