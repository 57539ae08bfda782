#include <cstdint>
#include <span>

#include "render/picture.h"

/// Any bytes as a bitmap file, and what is decoded as a picture.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (auto bitmap = coilrun::DecodeBmp({data, size})) {
    const coilrun::Picture picture(std::move(*bitmap), coilrun::KeyMode::kBlack);
    if (picture.OpaquePixels() > picture.Width() * picture.Height()) __builtin_trap();
  }
  return 0;
}
