#pragma once

#include <string>

#include "ports/message_box.h"
#include "ports/text_face.h"

namespace coilrun {

/// Answers yes: go on without what is missing.
class NoBox final : public MessageBox {
 public:
  BoxAnswer Show(const std::string& /*title*/, const std::string& /*text*/,
                 BoxButtons buttons) override {
    return buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kYes;
  }
};

/// No system fonts.
class NoText final : public TextFace {
 public:
  int Measure(const FontStyle& /*style*/, std::string_view /*text*/) override { return 0; }
  const TextMask& Render(const FontStyle& /*style*/, std::string_view /*text*/) override {
    return empty_;
  }

 private:
  TextMask empty_;
};

}  // namespace coilrun
