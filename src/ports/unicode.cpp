#include "ports/unicode.h"

namespace coilrun {
namespace {

struct Lead {
  std::size_t length = 0;
  unsigned char leastSecond = 0x80;
  unsigned char mostSecond = 0xBF;
};

/// What well-formed sequences that begin with this byte look like; length 0 when there are none.
Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) return {1};
  if (byte >= 0xC2 && byte <= 0xDF) return {2};
  if (byte == 0xE0) return {3, 0xA0};
  if (byte == 0xED) return {3, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {3};
  if (byte == 0xF0) return {4, 0x90};
  if (byte == 0xF4) return {4, 0x80, 0x8F};
  if (byte >= 0xF1 && byte <= 0xF3) return {4};
  return {};
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

constexpr char32_t kFirstOfPairs = 0x10000;

}  // namespace

Utf8Character FirstUtf8Character(std::string_view text) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const Lead lead = LeadOf(byteAt(0));
  if (lead.length == 0 || lead.length > text.size()) return {};
  if (lead.length == 1) return {byteAt(0), 1};
  if (byteAt(1) < lead.leastSecond || byteAt(1) > lead.mostSecond) return {};
  char32_t codePoint = byteAt(0) & (0x7FU >> lead.length);
  for (std::size_t i = 1; i < lead.length; ++i) {
    if ((byteAt(i) & 0xC0U) != 0x80U) return {};
    codePoint = codePoint << 6U | (byteAt(i) & 0x3FU);
  }
  return {codePoint, lead.length};
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character first = FirstUtf8Character(text);
    if (first.codePoint == kReplacementCharacter && first.length == 1) return false;
    text.remove_prefix(first.length);
  }
  return true;
}

void AppendUtf8(std::string& text, char32_t codePoint) {
  const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (codePoint < 0x80) return add(codePoint);
  if (codePoint < 0x800) {
    add(0xC0U | codePoint >> 6U);
  } else {
    if (codePoint < kFirstOfPairs) {
      add(0xE0U | codePoint >> 12U);
    } else {
      add(0xF0U | codePoint >> 18U);
      add(0x80U | (codePoint >> 12U & 0x3FU));
    }
    add(0x80U | (codePoint >> 6U & 0x3FU));
  }
  add(0x80U | (codePoint & 0x3FU));
}

std::string Utf8FromUtf16(std::u16string_view units) {
  std::string text;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = units[i];
    if (IsHighSurrogate(unit) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
      AppendUtf8(text, kFirstOfPairs + ((unit - 0xD800U) << 10U) + (units[++i] - 0xDC00U));
    } else {
      const bool lone = IsHighSurrogate(unit) || IsLowSurrogate(unit);
      AppendUtf8(text, lone ? kReplacementCharacter : unit);
    }
  }
  return text;
}

std::u16string Utf16FromUtf8(std::string_view text) {
  std::u16string units;
  while (!text.empty()) {
    const auto [codePoint, length] = FirstUtf8Character(text);
    if (codePoint >= kFirstOfPairs) {
      units += static_cast<char16_t>(0xD800U + ((codePoint - kFirstOfPairs) >> 10U));
      units += static_cast<char16_t>(0xDC00U + (codePoint & 0x3FFU));
    } else {
      units += static_cast<char16_t>(codePoint);
    }
    text.remove_prefix(length);
  }
  return units;
}

}  // namespace coilrun
