#pragma once

#include <array>
#include <cstdint>

/// The constants of the format of generations 1.5 to 4.x.
namespace coilrun::rar4 {

inline constexpr std::array<std::uint8_t, 7> kSignature = {'R', 'a', 'r', '!', 0x1A, 0x07, 0x00};

inline constexpr std::uint8_t kMain = 0x73;
inline constexpr std::uint8_t kFile = 0x74;
inline constexpr std::uint8_t kSubBlock = 0x7A;
inline constexpr std::uint8_t kEnd = 0x7B;

inline constexpr std::uint16_t kHasData = 0x8000;

inline constexpr std::uint16_t kMainComment = 0x0002;
inline constexpr std::uint16_t kMainEncrypted = 0x0080;

inline constexpr std::uint16_t kSplitBefore = 0x0001;
inline constexpr std::uint16_t kSplitAfter = 0x0002;
inline constexpr std::uint16_t kPassword = 0x0004;
inline constexpr std::uint16_t kFileComment = 0x0008;
inline constexpr std::uint16_t kSolid = 0x0010;
inline constexpr std::uint16_t kWindowMask = 0x00E0;
inline constexpr std::uint16_t kLarge = 0x0100;
inline constexpr std::uint16_t kUnicode = 0x0200;
inline constexpr std::uint16_t kSalt = 0x0400;
inline constexpr std::uint16_t kExactTimes = 0x1000;

inline constexpr std::uint16_t kMoreVolumes = 0x0001;

inline constexpr std::uint8_t kHostUnix = 3;
inline constexpr std::uint8_t kStored = 0x30;

/// The oldest version whose compression and encryption are read here.
inline constexpr int kOldestVersion = 29;

}  // namespace coilrun::rar4
