#include <cstdint>
#include <string_view>

#include "content/load_level.h"
#include "support/content_stage.h"

/// Any bytes as a level file: it is the level in play afterwards, or the menus are.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kPath = ".\\lvl\\lvl1.dat";
  coilrun::ContentStage stage;
  stage.files.contents[kPath] = coilrun::Bytes(data, data + size);
  coilrun::LoadLevel(stage.context, kPath);
  const coilrun::State& state = stage.state;
  const bool inMenus = state.shell.InMenu && state.shell.NoGameRunning;
  if (inMenus == state.shell.ShowLevelScreen || state.mode.NumSnakes < 1) __builtin_trap();
  return 0;
}
