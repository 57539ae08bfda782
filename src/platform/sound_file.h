#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace coilrun {

/// Length in seconds of a PCM wave file; nothing when it is not one, is broken or has no samples.
std::optional<double> WaveSeconds(std::span<const std::uint8_t> file);
/// Length in seconds of an Ogg Vorbis file; nothing when it is not one or is broken.
std::optional<double> VorbisSeconds(std::span<const std::uint8_t> file);

}  // namespace coilrun
