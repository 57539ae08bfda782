#include <cstdint>
#include <cstdlib>

#include "rar_input.h"

/// Any bytes as an archive.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (!coilrun::fuzz::SurvivesAsArchive({data, size})) std::abort();
  return 0;
}
