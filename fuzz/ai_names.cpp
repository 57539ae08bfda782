#include <cstdint>
#include <set>
#include <string>

#include "content/ai_snakes.h"
#include "support/fake_files.h"

/// Any bytes as the list of names for computer snakes: all get a name of their own, of one line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  coilrun::FakeFiles files;
  files.contents[".\\ai_names.lst"] = coilrun::Bytes(data, data + size);
  coilrun::State state;
  state.mode.NumSnakes = coilrun::kMaxSnakes;
  if (coilrun::SetupAiSnakes(state, files) != (size > 0)) __builtin_trap();
  if (size == 0) return 0;
  std::set<std::string> names;
  for (int snake = 2; snake <= coilrun::kMaxSnakes; ++snake) {
    const std::string& name = state.Snakes(snake).Name;
    if (name.find('\n') != name.npos || !names.insert(name).second) __builtin_trap();
  }
  return 0;
}
