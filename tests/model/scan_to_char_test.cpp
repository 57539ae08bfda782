#include "model/scan_to_char.h"

#include <tuple>

#include <gtest/gtest.h>

namespace coilrun {
namespace {

TEST(ScanToChar, FollowsBothLayouts) {
  using Row = std::tuple<int, bool, const char*, const char*>;
  const Row rows[] = {
      {57, false, "US", " "},   {57, true, "DE", " "},     {2, true, "DE", "!"},
      {2, true, "US", "!"},     {3, true, "US", "@"},      {3, true, "DE", "\""},
      {21, false, "US", "y"},   {21, false, "DE", "z"},    {44, false, "DE", "y"},
      {16, true, "US", "Q"},    {16, true, "DE", "Q"},     {26, false, "DE", "\xFC"},
      {26, true, "DE", "\xDC"}, {26, true, "US", "{"},     {12, false, "DE", "\xDF"},
      {12, true, "DE", "?"},    {13, false, "DE", "\xB4"}, {4, true, "DE", "\xA7"},
      {43, false, "US", "\\"},  {43, true, "US", "|"},     {53, true, "DE", "_"},
      {39, false, "FR", ";"},   {28, false, "US", ""},     {1, false, "US", ""},
      {42, true, "US", ""},     {58, false, "US", ""},     {-1, false, "US", ""},
      {41, false, "US", ""}};
  for (const auto& [code, shift, layout, character] : rows) {
    EXPECT_EQ(ScanToChar(code, shift, Meaning<KeyboardLayout>(layout)), character)
        << layout << ' ' << code << (shift ? " shifted" : "");
  }
}

}  // namespace
}  // namespace coilrun
