#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include <gtest/gtest.h>

#include "content/lines.h"
#include "content/load_level.h"
#include "content/model_ini.h"
#include "support/content_stage.h"

namespace coilrun {
namespace {

/// The files of a folder by their names.
std::map<std::string, Bytes> FilesIn(const std::string& folder) {
  std::map<std::string, Bytes> files;
  for (const auto& entry : std::filesystem::directory_iterator(COILRUN_SOURCE_DIR + folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().filename().string()] =
        Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return files;
}

TEST(Corpus, OfLevelsEndsInALevelOrInTheMenus) {
  const auto files = FilesIn("/fuzz/corpus/level");
  EXPECT_GE(files.size(), 5U);
  for (const auto& [name, bytes] : files) {
    ContentStage stage;
    stage.files.contents[".\\lvl\\x.dat"] = bytes;
    LoadLevel(stage.context, ".\\lvl\\x.dat");
    EXPECT_NE(stage.state.shell.ShowLevelScreen, stage.state.shell.NoGameRunning) << name;
    EXPECT_GE(stage.state.mode.NumSnakes, 1) << name;
  }
}

TEST(Corpus, OfDescriptionsIsReadWithoutLineEnds) {
  const auto files = FilesIn("/fuzz/corpus/model_ini");
  EXPECT_GE(files.size(), 2U);
  for (const auto& [name, bytes] : files) {
    ModelPack pack;
    ReadModelIni(TextOf(bytes), pack);
    EXPECT_EQ((pack.Name + pack.Author).find('\n'), std::string::npos) << name;
  }
}

/// The levels that ship start as they were drawn, and lead from the first to the end.
TEST(ShippedLevels, LoadAndLeadToTheEnd) {
  ContentStage stage;
  State& state = stage.state;
  for (const std::string name : {"ui_crate.bmp", "ui_steel.bmp", "ui_flame", "ui_wheel"}) {
    stage.files.Put(".\\gfx\\" + name, "");
    stage.host.pictures.insert(name);
    for (int i = 1; i <= 45; ++i) {
      stage.host.pictures.insert(name + "\\" + std::to_string(i) + ".bmp");
    }
  }
  for (const auto& [name, bytes] : FilesIn("/assets/lvl")) {
    stage.files.contents[".\\lvl\\" + name] = bytes;
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
