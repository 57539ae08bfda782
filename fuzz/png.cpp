#include <cstdint>
#include <cstdlib>
#include <span>

#include "kit/game_picture.h"
#include "render/bitmap.h"

namespace coilrun {
namespace {

/// Width and height stand at the same place in every file. Large pictures only cost time.
bool IsSmall(std::span<const std::uint8_t> file) {
  for (const std::size_t at : {16, 20}) {
    if (file.size() < at + 4) return true;
    if (file[at] > 0 || file[at + 1] > 0 || file[at + 2] > 0 || file[at + 3] > 64) return false;
  }
  return true;
}

/// What can be decoded becomes a bitmap that the game reads, of the same size.
bool KeepsItsPromises(std::span<const std::uint8_t> file) {
  const PngPicture picture = DecodePng(file);
  if (!picture.problem.empty()) return true;
  const auto bitmap = DecodeBmp(GameBmp(picture, KeyMode::kBlack));
  return bitmap && bitmap->width == picture.width && bitmap->height == picture.height;
}

}  // namespace
}  // namespace coilrun

/// Any bytes as a painted picture.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (coilrun::IsSmall({data, size}) && !coilrun::KeepsItsPromises({data, size})) std::abort();
  return 0;
}
