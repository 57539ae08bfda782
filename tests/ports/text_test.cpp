#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "ports/unicode.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

TEST(Unicode, KnowsWellFormedTextAndTurnsItIntoUtf16AndBack) {
  using Row = std::pair<const char*, const char16_t*>;
  const Row rows[] = {{"", u""},
                      {"\x7F\xC2\x80\xDF\xBF", u"\u007F\u0080\u07FF"},
                      {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80", u"\u0800\uD7FF\uE000"},
                      {"\xEF\xBF\xBD", u"\uFFFD"},
                      {"a\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"a\U00010000\U0010FFFF"}};
  for (const auto& [utf8, utf16] : rows) {
    EXPECT_TRUE(IsUtf8(utf8)) << utf8;
    EXPECT_EQ(Utf16FromUtf8(utf8), utf16) << utf8;
    EXPECT_EQ(Utf8FromUtf16(utf16), utf8);
  }
}

TEST(Unicode, ReadsEachBrokenByteAsOneReplacement) {
  using Row = std::tuple<std::string, std::u16string, std::string>;
  const Row rows[] = {{"\x80x", u"\uFFFDx", "a byte that follows nothing"},
                      {"\xC0\xAF", u"\uFFFD\uFFFD", "too long for its number"},
                      {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD", "too long for its number"},
                      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", "half of a pair"},
                      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD", "beyond the last"},
                      {"\xE2\x82", u"\uFFFD\uFFFD", "cut"},
                      {"\xC3(", u"\uFFFD(", "not continued"}};
  for (const auto& [utf8, utf16, what] : rows) {
    EXPECT_FALSE(IsUtf8(utf8)) << what;
    EXPECT_EQ(Utf16FromUtf8(utf8), utf16) << what;
  }
  const std::u16string halves = {u'a', 0xD800, u'b', 0xDC00, 0xD801};
  EXPECT_EQ(Utf8FromUtf16(halves),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Windows1252, ComesBackFromUtf8WithEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_TRUE(IsUtf8(ToUtf8(text))) << byte;
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << byte;
  }
  EXPECT_EQ(FromUtf8("\xE2\x82\xAC\xC4\x80\xFFz"), "\x80??z");
}

TEST(Windows1252, KnowsTheTwoCasesOfLetters) {
  const std::pair<char, char> pairs[] = {{'A', 'a'},       {'Z', 'z'},       {'\xC4', '\xE4'},
                                         {'\xDE', '\xFE'}, {'\x8A', '\x9A'}, {'\x9F', '\xFF'}};
  for (const auto& [upper, lower] : pairs) {
    EXPECT_EQ(LowerCase(upper), lower);
    EXPECT_EQ(UpperCase(lower), upper);
    EXPECT_EQ(LowerCase(lower), lower);
    EXPECT_EQ(UpperCase(upper), upper);
  }
  for (const char neither : {'@', '[', '`', '{', '1', '\xD7', '\xF7', '\xDF', '\x80'}) {
    EXPECT_EQ(LowerCase(neither), neither);
    EXPECT_EQ(UpperCase(neither), neither);
  }
}

}  // namespace
}  // namespace coilrun
