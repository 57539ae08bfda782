#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "content/load_level.h"
#include "support/content_stage.h"

namespace coilrun {
namespace {

/// The levels that ship start the way they were drawn, and lead from the first to the end.
TEST(ShippedLevels, LoadAndLeadToTheEnd) {
  ContentStage stage;
  State& state = stage.state;
  for (const auto& entry : std::filesystem::directory_iterator(COILRUN_SOURCE_DIR "/assets/gfx")) {
    const std::string name = entry.path().stem().string() + (entry.is_directory() ? "" : ".bmp");
    stage.files.Put(".\\gfx\\" + name, "");
    stage.host.pictures.insert(name);
    for (int i = 1; i <= 45; ++i) {
      stage.host.pictures.insert(name + "\\" + std::to_string(i) + ".bmp");
    }
  }
  for (const auto& entry : std::filesystem::directory_iterator(COILRUN_SOURCE_DIR "/assets/lvl")) {
    std::ifstream file(entry.path(), std::ios::binary);
    stage.files.contents[".\\lvl\\" + entry.path().filename().string()] =
        Bytes(std::istreambuf_iterator<char>(file), {});
  }
  int levels = 0;
  for (std::string path = ".\\lvl\\lvl1.dat"; !path.ends_with("END"); path = state.level.nextLvl) {
    ASSERT_LT(++levels, 100) << path;
    LoadLevel(stage.context, path);
    ASSERT_FALSE(state.shell.NoGameRunning) << path;
    EXPECT_FALSE(state.level.lvlName.empty());
    EXPECT_GT(state.Items(ItemKind::kYellow).count, 0);
    EXPECT_LE(state.Items(ItemKind::kYellow).count, kMaxItems);
    EXPECT_GE(state.level.MapSnakeCount, state.mode.NumSnakes);
  }
  EXPECT_GE(levels, 4);
}

}  // namespace
}  // namespace coilrun
