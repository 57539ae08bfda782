#pragma once

#include <string>

namespace coilrun {

enum class BoxButtons { kOk, kYesNo };
enum class BoxAnswer { kOk, kYes, kNo };

/// A message that the player has to answer. Texts are Windows-1252 with "\n" as line break.
class MessageBox {
 public:
  virtual ~MessageBox() = default;

  virtual BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons buttons) = 0;
};

}  // namespace coilrun
