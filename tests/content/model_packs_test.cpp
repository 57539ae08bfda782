#include "content/model_packs.h"

#include <sstream>

#include <gtest/gtest.h>

#include "content/model_ini.h"
#include "support/content_stage.h"

namespace coilrun {
namespace {

std::string Told(const ModelPack& pack) {
  std::ostringstream text;
  text << pack.File << ' ' << pack.Dir << ' ' << pack.Name << " by " << pack.Author << ' '
       << pack.Edges << pack.EdgesInverse << pack.TailEdges;
  return text.str();
}

TEST(ModelIni, ChangesOnlyWhatItsLinesSay) {
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"", "Old by Me 100"},
                      {"NAME=Boa\r\nAUTHOR You\r\n", "Boa by You 100"},
                      {"NAME", " by Me 100"},
                      {"name=Boa\n NAME=Boa\n# x", "Old by Me 100"},
                      {"EDGES=0\nEDGES_INVERS=1\nTAIL_EDGES=1", "Old by Me 011"},
                      {"EDGES=x\nEDGES_INVERS:-1\nTAIL_EDGES", "Old by Me 010"},
                      {"TAIL_EDGES= 2\nTAIL_EDGES=0", "Old by Me 100"}};
  for (const auto& [text, expected] : rows) {
    ModelPack pack = {"f", "d", "Old", "Me", true, false, false};
    ReadModelIni(text, pack);
    EXPECT_EQ(Told(pack), std::string("f d ") + expected) << text;
  }
}

class ModelPacksTest : public testing::Test {
 protected:
  void AddPack(const std::string& name, const FakeArchive::Entries& entries) {
    const std::string path = ".\\models\\" + name + ".smp";
    stage.files.Put(path, "");
    stage.archive.archives[path] = entries;
  }
  bool ConsoleShows(const std::string& line) const {
    return std::find(state.feed.Console.begin(), state.feed.Console.end(), line + "\r\n") !=
           state.feed.Console.end();
  }

  ContentStage stage;
  State& state = stage.state;
};

TEST_F(ModelPacksTest, NumbersThePacksByName) {
  AddPack("coral", {{"coral\\model.ini", "NAME=Coral Snake\nAUTHOR=Ann\nEDGES=1\n"}});
  AddPack("boa", {{"boa\\start.bmp", "x"}});
  SnGetModelPacks(stage.context);
  EXPECT_EQ(state.LastModel, 1);
  EXPECT_EQ(Told(state.ModelPacks(0)), "boa.smp boa boa by Unknown 101");
  EXPECT_EQ(Told(state.ModelPacks(1)), "coral.smp coral Coral Snake by Ann 100");
  EXPECT_EQ(stage.host.models, (std::vector<int>{0, 1}));
  EXPECT_EQ(state.feed.introCaption, "Decompressing/Loading model: coral");
  EXPECT_TRUE(stage.archive.passwords.empty());
}

TEST_F(ModelPacksTest, UnpacksOnlyBeforeTheDisplayIsReady) {
  state.shell.DisplayReady = true;
  SnGetModelPacks(stage.context);
  EXPECT_EQ(state.LastModel, -1) << "without packs";
  AddPack("boa", {{"boa\\start.bmp", "x"}});
  SnGetModelPacks(stage.context);
  EXPECT_FALSE(stage.files.Exists(".\\gfx\\boa\\start.bmp"));
  EXPECT_EQ(stage.host.models, std::vector<int>{0});
}

TEST_F(ModelPacksTest, NameTheFaultOfABadPackAndLoadTheOthers) {
  AddPack("alien", {{"boa\\model.ini", "NAME=Taken over"}, {"alien\\start.bmp", "x"}});
  AddPack("boa", {{"boa\\model.ini", "NAME=Boa"}});
  AddPack("empty", {{"readme.txt", "x"}});
  stage.files.Put(".\\models\\junk.smp", "no archive");
  SnGetModelPacks(stage.context);
  EXPECT_EQ(state.LastModel, 3);
  EXPECT_EQ(state.ModelPacks(1).Name, "Boa");
  EXPECT_TRUE(ConsoleShows("Model pack alien.smp: 1 files are damaged, locked or not allowed"));
  EXPECT_TRUE(ConsoleShows("Model pack empty.smp holds no folder empty"));
  EXPECT_TRUE(ConsoleShows("Model pack junk.smp is no archive that can be read"));
}

TEST_F(ModelPacksTest, UseTheFirstHundred) {
  for (int i = 100; i <= 200; ++i) AddPack("p" + std::to_string(i), {{"p\\x.bmp", ""}});
  SnGetModelPacks(stage.context);
  EXPECT_EQ(state.LastModel, 99);
  EXPECT_EQ(stage.host.models.size(), 100U);
  EXPECT_TRUE(ConsoleShows("Model pack p200.smp and all after it: only 100 packs can be used"));
}

}  // namespace
}  // namespace coilrun
