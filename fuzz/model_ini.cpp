#include "content/model_ini.h"

#include <cstdint>
#include <string>

/// Any bytes as the description of a model pack.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  coilrun::ModelPack pack;
  coilrun::ReadModelIni(std::string(data, data + size), pack);
  if ((pack.Name + pack.Author).find('\n') != std::string::npos) __builtin_trap();
  return 0;
}
