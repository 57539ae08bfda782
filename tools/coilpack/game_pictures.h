#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/rar/rar_writer.h"

namespace coilrun {

/// The outcome of turning the pictures of an archive into the game's format.
struct ConvertedPictures {
  std::string problem;                ///< "" when the archive can be written
  std::vector<std::string> warnings;  ///< what may not look the way it was painted
};

/// True for the archives from which the game reads pictures: model packs (".smp") and others
/// (".snr").
bool IsGameArchive(std::string_view archive);

/// Turns the PNG pictures among the sources of a game archive into the BMP files that the game
/// reads, each with the colour key that its folder calls for. The sources stay sorted by name.
ConvertedPictures ConvertPictures(std::string_view archive, std::vector<RarSource>& sources);

}  // namespace coilrun
