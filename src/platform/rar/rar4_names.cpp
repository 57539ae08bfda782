#include "platform/rar/rar4_names.h"

#include <algorithm>
#include <bit>
#include <string_view>

#include "ports/byte_reader.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& text, char32_t code) {
  const auto add = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (code < 0x80) return add(code);
  if (code < 0x800) {
    add(0xC0 | code >> 6);
  } else {
    if (code < 0x10000) {
      add(0xE0 | code >> 12);
    } else {
      add(0xF0 | code >> 18);
      add(0x80 | (code >> 12 & 0x3F));
    }
    add(0x80 | (code >> 6 & 0x3F));
  }
  add(0x80 | (code & 0x3F));
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

std::string Utf8Of(std::u16string_view units) {
  std::string text;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = units[i];
    if (IsHighSurrogate(unit) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
      AppendUtf8(text, 0x10000U + ((unit - 0xD800U) << 10) + (units[++i] - 0xDC00U));
    } else {
      AppendUtf8(text, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit);
    }
  }
  return text;
}

/// Unix programs stored UTF-8 without saying so; texts of other encodings hardly ever look like it.
bool LooksLikeUtf8(std::string_view text) {
  int following = 0;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool follows = (byte & 0xC0) == 0x80;
    if (follows != (following > 0)) return false;
    if (follows) {
      --following;
    } else if (byte >= 0x80) {
      following = std::countl_one(byte) - 1;
      if (following > 3) return false;
    }
  }
  return following == 0;
}

/// Rebuilds the UTF-16 name: two bits a step say whether the next unit stands as a byte, as a byte
/// under the common high byte, as two bytes, or is to be copied from the single-byte name.
class TwoPartName {
 public:
  TwoPartName(std::span<const std::uint8_t> narrow, std::span<const std::uint8_t> wide)
      : narrow_(narrow), wide_(wide), high_(wide_.U8()) {}

  std::u16string Decode() {
    std::uint8_t steps = 0;
    for (int left = 0; wide_.Left() > 0; --left) {
      if (left == 0) {
        steps = wide_.U8();
        left = 4;
      }
      if (wide_.Left() == 0) break;
      Step(steps >> 6);
      steps = static_cast<std::uint8_t>(steps << 2);
    }
    return name_;
  }

 private:
  void Step(int kind) {
    if (kind == 0) return Add(wide_.U8());
    if (kind == 1) return Add(WithHigh(wide_.U8()));
    if (kind == 2) return Add(wide_.U16());
    const std::uint8_t run = wide_.U8();
    const bool shifted = (run & 0x80) != 0;
    const std::uint8_t shift = shifted ? wide_.U8() : std::uint8_t{0};
    for (int i = 0; i < (run & 0x7F) + 2 && name_.size() < narrow_.size(); ++i) {
      const auto byte = static_cast<std::uint8_t>(narrow_[name_.size()] + shift);
      Add(shifted ? WithHigh(byte) : byte);
    }
  }

  void Add(unsigned unit) { name_.push_back(static_cast<char16_t>(unit)); }
  unsigned WithHigh(std::uint8_t byte) const { return unsigned{high_} << 8 | byte; }

  std::span<const std::uint8_t> narrow_;
  ByteReader wide_;
  std::uint8_t high_;
  std::u16string name_;
};

}  // namespace

std::string DecodeRar4Name(std::span<const std::uint8_t> stored, bool unicode) {
  const auto zero = std::find(stored.begin(), stored.end(), std::uint8_t{0});
  const auto narrowSize = static_cast<std::size_t>(zero - stored.begin());
  std::string name(stored.begin(), zero);
  if (unicode && zero != stored.end()) {
    name = Utf8Of(TwoPartName(stored.first(narrowSize), stored.subspan(narrowSize + 1)).Decode());
  } else if (!unicode && !LooksLikeUtf8(name)) {
    name = ToUtf8(name);
  }
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

}  // namespace coilrun
