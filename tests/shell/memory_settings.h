#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "ports/settings_store.h"

namespace coilrun {

/// A settings store that lives in memory.
class MemorySettings final : public SettingsStore {
 public:
  using Key = std::pair<std::string, std::string>;

  std::optional<std::string> Get(std::string_view section, std::string_view key) const override {
    const auto found = values.find(Key{section, key});
    if (found == values.end()) return std::nullopt;
    return found->second;
  }
  std::optional<std::string> Shipped(std::string_view /*section*/,
                                     std::string_view /*key*/) const override {
    return std::nullopt;
  }
  void Set(std::string_view section, std::string_view key, std::string_view value) override {
    values[Key{section, key}] = value;
  }
  void TakeAsRead(std::string_view section, std::string_view key, std::string_view value) override {
    asRead[Key{section, key}] = value;
  }
  bool Refresh() override { return false; }
  bool Save() override {
    ++saves;
    return true;
  }

  std::map<Key, std::string> values;
  std::map<Key, std::string> asRead;
  int saves = 0;
};

}  // namespace coilrun
