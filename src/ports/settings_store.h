#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// The player's settings: texts found by section and key. Texts are Windows-1252.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, else the shipped default ("defaults.ini" of the program folder), else
  /// nothing.
  virtual std::optional<std::string> Get(std::string_view section, std::string_view key) const = 0;
  /// The shipped default alone.
  virtual std::optional<std::string> Shipped(std::string_view section,
                                             std::string_view key) const = 0;
  /// Changes a value in memory; `Save` makes it last.
  virtual void Set(std::string_view section, std::string_view key, std::string_view value) = 0;
  /// Notes how the game has read a value, in the words it would store. Setting exactly that later
  /// does not count as a change: it gives way to what another instance has stored meanwhile.
  virtual void TakeAsRead(std::string_view section, std::string_view key,
                          std::string_view value) = 0;
  /// Takes in what another running instance has stored meanwhile. True when there was anything.
  virtual bool Refresh() = 0;
  /// Writes the changes into the store as it is by now; after a crash at any moment either the old
  /// or the new store is there. False when it cannot be written.
  virtual bool Save() = 0;
};

}  // namespace coilrun
