#include "platform/rar/rar_keys.h"

#include <gtest/gtest.h>

#include "support.h"

namespace coilrun {
namespace {

std::string Hex(std::span<const std::uint8_t> bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : bytes) text += {kDigits[byte >> 4], kDigits[byte & 15]};
  return text;
}

// The values expected here were computed by another program, from descriptions of the methods. The
// committed archives, which are read with plain passwords, prove that those give the right keys.

TEST(RarKeys, OfGenerationFourTakeAnyLetterAndNoSalt) {
  const Rar4Keys keys = DeriveRar4Keys("k\xC3\xA4se\xF0\x9F\x90\x8D", std::nullopt).value();
  EXPECT_EQ(Hex(keys.cipher), "86de8dad362d26a47f11d70d723a8ae5");
  EXPECT_EQ(Hex(keys.iv), "020a8abc97a71ba85945b2daef108a45");
}

TEST(RarKeys, AreNotMadeWhenThatTakesForever) {
  constexpr RarSalt kSalt = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  RarKeyRing keys("password", 20'000);
  EXPECT_FALSE(keys.Keys5(kSalt, RarKeyRing::kMaxExponent + 1).keys);
  EXPECT_TRUE(keys.Keys5(kSalt, 10).keys);
  EXPECT_TRUE(keys.Keys4(Rar4Salt{1}).keys);
  EXPECT_FALSE(keys.Keys5(kSalt, 14).keys);
  EXPECT_FALSE(keys.Keys4(Rar4Salt{2}).keys);
  EXPECT_TRUE(keys.Keys5(kSalt, 10).keys) << "known ones cost nothing";
  EXPECT_TRUE(keys.Keys4(Rar4Salt{1}).keys);
}

}  // namespace
}  // namespace coilrun
