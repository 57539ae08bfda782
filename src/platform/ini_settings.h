#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "ports/settings_store.h"

namespace coilrun {

/// The settings in one INI file (UTF-8), on top of the shipped defaults. Several running games may
/// share the file: each writes only what it has changed. `report` is told what is wrong with the
/// file, each thing once.
class IniSettings : public SettingsStore {
 public:
  using Report = std::function<void(const std::string& line)>;

  /// Reads both files. A damaged `file` is renamed to "NAME.damaged" (numbered if that exists), and
  /// the store starts empty; a file that cannot be read is never written.
  IniSettings(std::filesystem::path file, const std::filesystem::path& defaults, Report report);
  ~IniSettings() override;

  std::optional<std::string> Get(std::string_view section, std::string_view key) const override;
  std::optional<std::string> Shipped(std::string_view section, std::string_view key) const override;
  void Set(std::string_view section, std::string_view key, std::string_view value) override;
  void TakeAsRead(std::string_view section, std::string_view key, std::string_view value) override;
  bool Refresh() override;
  bool Save() override;

 private:
  struct Store;
  using Key = std::pair<std::string, std::string>;
  /// A value as this game last read or wrote it, and as it stood in the file at that time.
  struct Known {
    std::optional<std::string> value;
    std::optional<std::string> stored;
  };

  std::unique_ptr<Store> ReadStore();
  void SetAside(const std::string& reason);
  std::unique_ptr<Store> MergedStore();
  void CarryInto(Store& store) const;
  bool GivesWay(const Key& key, const std::optional<std::string>& theirs) const;
  void RememberAsWritten(const Store& written);
  bool Fails(const std::string& reason);

  std::filesystem::path file_;
  Report report_;
  /// The file as this instance last read it, or wrote it with nothing unread in it.
  std::string taken_;
  bool overwritingAllowed_ = true;
  bool failureReported_ = false;
  /// The store as this instance last read it, with its own changes.
  std::unique_ptr<Store> store_;
  std::unique_ptr<Store> defaults_;
  /// Every value that was noted as read or has been set.
  std::map<Key, Known> known_;
  /// What has been set since the last save.
  std::set<Key> set_;
};

}  // namespace coilrun
