#include "content/lines.h"

namespace coilrun {

std::string_view TextOf(const Bytes& bytes) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are single-byte text
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::optional<std::string_view> LineReader::Next() {
  if (rest_.empty()) return std::nullopt;
  const std::size_t end = rest_.find('\n');
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end == rest_.npos ? rest_.size() : end + 1);
  if (end != rest_.npos && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace coilrun
