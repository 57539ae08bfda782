#pragma once

#include <string>
#include <string_view>

#include "model/records.h"

namespace coilrun {

/// Reads the description of a model pack: "NAME=", "AUTHOR=", "EDGES=", "EDGES_INVERS=" and
/// "TAIL_EDGES=" lines. What it leaves out stays as it is.
void ReadModelIni(std::string_view text, ModelPack& pack);

/// A pack without a description: named after its folder, with corners for body and tail.
ModelPack UndescribedPack(const std::string& file, const std::string& dir);

}  // namespace coilrun
