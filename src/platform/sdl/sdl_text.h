#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "ports/text_face.h"

namespace coilrun {

/// Texts in system fonts, from the font files that come with the game; needs no window.
class SdlText : public TextFace {
 public:
  using Report = std::function<void(const std::string& line)>;

  /// A font file that cannot be opened is reported once.
  SdlText(std::filesystem::path fontFolder, Report report);
  ~SdlText() override;

  int Measure(const FontStyle& style, std::string_view text) override;
  const TextMask& Render(const FontStyle& style, std::string_view text) override;

 private:
  class Fonts;
  std::unique_ptr<Fonts> fonts_;
};

}  // namespace coilrun
