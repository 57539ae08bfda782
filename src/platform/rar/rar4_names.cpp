#include "platform/rar/rar4_names.h"

#include <algorithm>
#include <string_view>

#include "ports/byte_reader.h"
#include "ports/unicode.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

/// Rebuilds the UTF-16 name: two bits per step say whether the next unit is stored as one byte, as
/// one byte below the common high byte, as two bytes, or is to be copied from the single-byte name.
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
    name = Utf8FromUtf16(
        TwoPartName(stored.first(narrowSize), stored.subspan(narrowSize + 1)).Decode());
  } else if (!unicode && !IsUtf8(name)) {
    // Unix programs store UTF-8 without saying so; texts in other encodings hardly ever look like
    // it.
    name = ToUtf8(name);
  }
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

}  // namespace coilrun
