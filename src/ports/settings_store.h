#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// The player's settings: texts addressed by section and key. Texts are Windows-1252.
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
  /// Tells how the game has read a value, in the words it would store. Setting just that later is
  /// no change of this instance: it gives way to what another one has stored meanwhile.
  virtual void TakeAsRead(std::string_view section, std::string_view key,
                          std::string_view value) = 0;
  /// Takes in what another running instance has stored meanwhile. True when that was anything.
  virtual bool Refresh() = 0;
  /// Writes what was changed into the store as it is by now; after a crash at any moment the old or
  /// the new one is there. False when it cannot be written.
  virtual bool Save() = 0;
};

}  // namespace coilrun
