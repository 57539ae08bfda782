#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/rar/rar_writer.h"

namespace coilrun {

/// The contents of a folder, ready to be packed; `problem` says what cannot be packed, if anything.
struct SourceFolder {
  std::vector<RarSource> sources;
  std::string problem;
};

/// Everything in `folder`, with names relative to it and sorted; `archive` itself is left out.
SourceFolder ReadSourceFolder(const std::string& folder, const std::string& archive);

/// A file of at most 256 MiB; nothing when it cannot be read.
std::optional<Bytes> ReadWholeFile(const std::string& file);

}  // namespace coilrun
