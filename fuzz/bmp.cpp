#include <cstdint>

#include "render/surface.h"

/// Any bytes as a bitmap file, and what is decoded as a picture on the screen.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (auto bitmap = coilrun::DecodeBmp({data, size})) {
    static coilrun::Surface screen;
    screen.Blit(coilrun::Picture(std::move(*bitmap), coilrun::KeyMode::kBlack), 0, 0);
  }
  return 0;
}
