#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/words.h"

namespace coilrun {

/// A value that files and scripts may write as any text. Rules see and set the value; a text that
/// is not the value's own word is kept beside it, for the trace, until the value is set again.
template <typename T>
class Written {
 public:
  Written() = default;
  Written(T value) : value_(value) {}  // NOLINT(google-explicit-constructor): it is that value
  explicit Written(std::string_view text) : value_(Meaning<T>(text)) {
    if (text != Word(value_)) text_ = text;
  }

  operator T() const { return value_; }  // NOLINT(google-explicit-constructor): reads as its value
  const T* operator->() const { return &value_; }
  std::string Text() const { return text_ ? *text_ : std::string{Word(value_)}; }

 private:
  T value_{};
  std::optional<std::string> text_;
};

}  // namespace coilrun
