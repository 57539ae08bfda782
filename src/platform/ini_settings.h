#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "ports/settings_store.h"

namespace coilrun {

/// The settings in one INI file (UTF-8), over the shipped defaults. What is wrong with the file is
/// told to `report`, each thing once.
class IniSettings : public SettingsStore {
 public:
  using Report = std::function<void(const std::string& line)>;

  /// Reads both files. A damaged `file` is renamed to "NAME.damaged" (numbered when that exists),
  /// and the store starts empty.
  IniSettings(std::filesystem::path file, const std::filesystem::path& defaults, Report report);
  ~IniSettings() override;

  std::optional<std::string> Get(std::string_view section, std::string_view key) const override;
  void Set(std::string_view section, std::string_view key, std::string_view value) override;
  bool Save() override;

 private:
  struct Store;
  void LoadStore();
  void SetAside(const std::string& reason);

  std::filesystem::path file_;
  Report report_;
  std::unique_ptr<Store> store_;
  std::unique_ptr<Store> defaults_;
  bool overwritingAllowed_ = true;
  bool failureReported_ = false;
};

}  // namespace coilrun
