#include "platform/rar/rar_keys.h"

#include <gtest/gtest.h>

#include "platform/rar/checksums.h"
#include "support.h"

namespace coilrun {
namespace {

std::string Hex(std::span<const std::uint8_t> bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : bytes) text += {kDigits[byte >> 4], kDigits[byte & 15]};
  return text;
}

// The values expected here were computed by another program, from descriptions of the methods. That
// plain passwords give the right keys is told by the committed archives, which are read with them.

TEST(RarKeys, OfGenerationFourTakeAnyLetterAndNoSalt) {
  const Rar4Keys keys = DeriveRar4Keys("k\xC3\xA4se\xF0\x9F\x90\x8D", std::nullopt);
  EXPECT_EQ(Hex(keys.cipher), "86de8dad362d26a47f11d70d723a8ae5");
  EXPECT_EQ(Hex(keys.iv), "020a8abc97a71ba85945b2daef108a45");
}

TEST(RarKeys, AreNotMadeWhenThatTakesForever) {
  constexpr RarSalt kSalt = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  RarKeyRing keys("password", 20'000);
  EXPECT_FALSE(keys.Keys5(kSalt, RarKeyRing::kMaxExponent + 1));
  EXPECT_TRUE(keys.Keys5(kSalt, 10));
  EXPECT_TRUE(keys.Keys4(Rar4Salt{1}));
  EXPECT_FALSE(keys.Keys5(kSalt, 14));
  EXPECT_FALSE(keys.Keys4(Rar4Salt{2}));
  EXPECT_TRUE(keys.Keys5(kSalt, 10)) << "known ones cost nothing";
  EXPECT_TRUE(keys.Keys4(Rar4Salt{1}));
}

TEST(Blake2sp, GivesKnownSums) {
  const std::pair<std::size_t, const char*> cases[] = {
      {0, "dd0e891776933f43c7d032b08a917e25741f8aa9a12c12e1cac8801500f2ca4f"},
      {512, "e5c78b5cd735530b80a1377388c29164a54192ed3b1a745bce45488d1188e9bc"},
      {513, "985dfa163dbd74d7a74a42f57144bb8dd99a0395c1953404a73c585c567b1037"},
      {1500, "98ada8fceb03083697321062537b6d71be6fbee4dcf85c95450e88a5c2bc8b64"},
  };
  for (const auto& [size, sum] : cases) EXPECT_EQ(Hex(Blake2sp(Bytes(size, 'a'))), sum) << size;
}

}  // namespace
}  // namespace coilrun
