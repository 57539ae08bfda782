#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "ports/settings_store.h"

namespace coilrun {

/// The settings in one INI file (UTF-8), over the shipped defaults. Several running games may share
/// the file: each writes only what it has changed. What is wrong with the file is told to `report`,
/// each thing once.
class IniSettings : public SettingsStore {
 public:
  using Report = std::function<void(const std::string& line)>;

  /// Reads both files. A damaged `file` is renamed to "NAME.damaged" (numbered when that exists),
  /// and the store starts empty; one that cannot be read is never written.
  IniSettings(std::filesystem::path file, const std::filesystem::path& defaults, Report report);
  ~IniSettings() override;

  std::optional<std::string> Get(std::string_view section, std::string_view key) const override;
  std::optional<std::string> Shipped(std::string_view section, std::string_view key) const override;
  void Set(std::string_view section, std::string_view key, std::string_view value) override;
  bool Refresh() override;
  bool Save() override;

 private:
  struct Store;
  std::unique_ptr<Store> ReadStore();
  void SetAside(const std::string& reason);
  std::optional<std::string> TextToSave();
  void CarryChangesInto(Store& store) const;
  bool Fails(const std::string& reason);

  std::filesystem::path file_;
  Report report_;
  /// The file as this instance has last read or written it.
  std::string onDisk_;
  bool overwritingAllowed_ = true;
  bool failureReported_ = false;
  /// As this instance has last read it, with its own changes.
  std::unique_ptr<Store> store_;
  std::unique_ptr<Store> defaults_;
  /// Section and key of what this instance has changed since the last save.
  std::set<std::pair<std::string, std::string>> changed_;
};

}  // namespace coilrun
