#pragma once

#include <optional>

namespace coilrun {

/// A setting that a level may replace while it is played. Reads as the value in force; the options
/// page shows and the settings file stores only the player's own.
template <typename T>
class LevelSetting {
 public:
  constexpr LevelSetting(T own)  // NOLINT(google-explicit-constructor): a value is the player's
      : own_(own) {}

  constexpr operator T() const {  // NOLINT(google-explicit-constructor): reads as its value
    return forLevel_.value_or(own_);
  }
  constexpr const T& Own() const { return own_; }
  /// The player's value, even while a level's value is in force.
  constexpr T& Own() { return own_; }
  constexpr void ReplaceForLevel(T value) { forLevel_ = value; }

 private:
  T own_;
  std::optional<T> forLevel_;
};

}  // namespace coilrun
