#pragma once

#include "options.h"

namespace coilrun {

/// The commands print what they are asked for on standard output and what is wrong on standard
/// error. All return the exit code: 0 when all is well, otherwise 1.
int CreateArchive(const PackOptions& options);
int ListArchive(const PackOptions& options);
int ExtractArchive(const PackOptions& options);
int TestArchive(const PackOptions& options);

}  // namespace coilrun
