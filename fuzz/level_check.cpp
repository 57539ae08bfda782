#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "level_checker.h"
#include "quiet_level.h"

/// Any bytes as a level to be checked: it is called refused exactly when the game refuses it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  static const coilrun::Pictures pictures("/dev/null/lvl/level.dat");  // no folder: any may exist
  const auto findings = coilrun::LevelChecker(pictures).Check(text);
  const bool refused = std::any_of(findings.begin(), findings.end(),
                                   [](const coilrun::Finding& finding) { return finding.refused; });
  if (refused == (coilrun::LoadQuietly(text, pictures) != nullptr)) std::abort();
  return 0;
}
