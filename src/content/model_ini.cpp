#include "content/model_ini.h"

#include <array>
#include <optional>

#include "content/lines.h"
#include "model/numbers.h"

namespace coilrun {
namespace {

struct TextKey {
  std::string_view key;
  std::string ModelPack::*field;
};
struct FlagKey {
  std::string_view key;
  std::size_t skipped;  ///< characters between key and number
  bool ModelPack::*field;
};

constexpr std::array<TextKey, 2> kTextKeys = {
    {{"NAME", &ModelPack::Name}, {"AUTHOR", &ModelPack::Author}}};
constexpr std::array<FlagKey, 3> kFlagKeys = {{{"EDGES=", 0, &ModelPack::Edges},
                                               {"EDGES_INVERS", 1, &ModelPack::EdgesInverse},
                                               {"TAIL_EDGES", 1, &ModelPack::TailEdges}}};

/// What follows the key and the characters skipped after it; nothing when the key is absent.
std::optional<std::string_view> ValueAfter(std::string_view line, std::string_view key,
                                           std::size_t skipped) {
  if (!line.starts_with(key)) return std::nullopt;
  line.remove_prefix(key.size());
  return line.substr(std::min(skipped, line.size()));
}

}  // namespace

void ReadModelIni(std::string_view text, ModelPack& pack) {
  LineReader lines(text);
  while (const auto line = lines.Next()) {
    for (const TextKey& entry : kTextKeys) {
      if (const auto value = ValueAfter(*line, entry.key, 1)) pack.*entry.field = *value;
    }
    for (const FlagKey& entry : kFlagKeys) {
      const auto value = ValueAfter(*line, entry.key, entry.skipped);
      if (value) pack.*entry.field = LeadingNumber(*value) != 0;
    }
  }
}

ModelPack UndescribedPack(const std::string& file, const std::string& dir) {
  return {file, dir, dir, "Unknown", true, false, true};
}

}  // namespace coilrun
