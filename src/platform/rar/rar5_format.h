#pragma once

#include <array>
#include <cstdint>

#include "platform/rar/byte_writer.h"

/// The constants of the generation 5 format that its reader and its writer share.
namespace coilrun::rar5 {

inline constexpr std::array<std::uint8_t, 8> kSignature = {'R',  'a',  'r',  '!',
                                                           0x1A, 0x07, 0x01, 0x00};

enum BlockType : std::uint64_t { kMain = 1, kFile = 2, kService = 3, kEncryption = 4, kEnd = 5 };

inline constexpr std::uint64_t kHasExtra = 0x01;
inline constexpr std::uint64_t kHasData = 0x02;
inline constexpr std::uint64_t kSplitBefore = 0x08;
inline constexpr std::uint64_t kSplitAfter = 0x10;

inline constexpr std::uint64_t kFolder = 0x01;
inline constexpr std::uint64_t kHasTime = 0x02;
inline constexpr std::uint64_t kHasCrc = 0x04;
inline constexpr std::uint64_t kSizeUnknown = 0x08;

inline constexpr std::uint64_t kMoreVolumes = 0x01;

enum ExtraType : std::uint64_t { kCipher = 1, kHash = 2, kTimes = 3, kLink = 5 };

inline constexpr std::uint64_t kHasCheck = 0x01;
inline constexpr std::uint64_t kTweakedSums = 0x02;

inline constexpr std::uint64_t kHostUnix = 1;

/// Adds a header: its checksum, its size, its fields.
void AddHeader(ByteWriter& archive, const Bytes& fields);

}  // namespace coilrun::rar5
