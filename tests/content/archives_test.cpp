#include "content/archives.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "support/content_stage.h"

namespace coilrun {
namespace {

constexpr const char* kArchive = ".\\gfx.snr";
constexpr const char* kList = ".\\cleanup-gfx.snr.snc";

class ArchivesTest : public testing::Test {
 protected:
  ArchivesTest() {
    stage.archive.archives[kArchive] = {{"gfx"}, {"gfx\\a.bmp", "A"}, {"gfx\\b.bmp", "B"}};
    state.feed.LoadTotal = 4;
  }
  std::string Unpack(const std::string& folder = ".\\") {
    const auto result = SnUnextractFile(stage.context, kArchive, folder, kArchivePassword);
    return result.opened ? std::to_string(result.processed) + " unpacked, " +
                               std::to_string(result.refused) + " refused"
                         : "not opened";
  }

  ContentStage stage;
  State& state = stage.state;
};

TEST_F(ArchivesTest, UnpacksAllAndListsTheFiles) {
  EXPECT_EQ(Unpack(), "3 unpacked, 0 refused");
  EXPECT_EQ(stage.files.Text(".\\gfx\\b.bmp"), "B");
  EXPECT_EQ(stage.files.Text(kList), "/game\\gfx\\a.bmp\r\n/game\\gfx\\b.bmp\r\n");
  EXPECT_EQ(state.feed.UnpackedCount, 3);
  EXPECT_EQ(stage.host.percents, (std::vector<double>{25, 50, 75}));
  EXPECT_TRUE(state.feed.introVisible);
  EXPECT_EQ(stage.pump.yields, 3);
  EXPECT_EQ(stage.archive.open, 0);
  EXPECT_EQ(stage.archive.passwords.back(), "sn80463");
}

TEST_F(ArchivesTest, PassesOverFilesThatExistButListsThem) {
  stage.files.Put(".\\gfx\\a.bmp", "mine");
  for (const bool newInstall : {false, true}) {
    state.settings.NewInstall = newInstall;
    Unpack();
    EXPECT_EQ(stage.files.Text(".\\gfx\\a.bmp"), newInstall ? "A" : "mine");
    EXPECT_EQ(stage.files.Text(kList), "/game\\gfx\\a.bmp\r\n/game\\gfx\\b.bmp\r\n");
  }
}

TEST_F(ArchivesTest, DoesNothingWithoutAnArchive) {
  stage.archive.archives.clear();
  EXPECT_EQ(Unpack(), "not opened");
  EXPECT_FALSE(stage.files.Exists(kList));
  EXPECT_FALSE(state.feed.introVisible);
}

TEST_F(ArchivesTest, NeitherListsNorCountsWhatItCannotUnpack) {
  stage.archive.archives[kArchive] = {
      {"good.bmp", "1"}, {"bad.bmp", "", true}, {std::string("cut.bmp\0tail", 12), "2"}};
  EXPECT_EQ(Unpack(), "2 unpacked, 1 refused");
  EXPECT_EQ(stage.files.Text(kList), "/game\\good.bmp\r\n/game\\cut.bmp\r\n");
}

TEST_F(ArchivesTest, RefusesNamesThatLeaveTheFolderOrTheLine) {
  stage.files.Put(".\\lvl\\lvl1.dat", "level");
  stage.archive.archives[kArchive] = {{"..\\lvl\\lvl1.dat", "x"},
                                      {"a/../../lvl\\lvl1.dat", "x"},
                                      {"C:\\x.bmp", "x"},
                                      {"\\x.bmp", "x"},
                                      {"/x.bmp", "x"},
                                      {"a.bmp\r\n.\\lvl\\lvl1.dat", "x"},
                                      {"", "x"},
                                      {"..", "x"}};
  EXPECT_EQ(Unpack(".\\gfx\\"), "0 unpacked, 8 refused");
  EXPECT_EQ(stage.files.Text(kList), "");
  CleanUpFiles(stage.context);
  EXPECT_EQ(stage.files.contents.size(), 1U) << "only the level is left";
}

TEST_F(ArchivesTest, HasTheWholeListOnDiskBeforeARunIsKilled) {
  stage.pump.onYield = [] { throw std::runtime_error("killed"); };
  EXPECT_THROW(Unpack(), std::runtime_error);
  EXPECT_EQ(stage.archive.open, 0);
  stage.pump.onYield = nullptr;
  stage.files.Put(".\\gfx\\b.bmp", "unpacked by the run that was killed");
  CleanUpFiles(stage.context);
  EXPECT_TRUE(stage.files.contents.empty());
}

TEST_F(ArchivesTest, CleansUpWhatAnyRunListed) {
  Unpack();
  stage.files.Put(".\\cleanup-old.smp.snc", "/game\\gfx\\old.bmp\r\n.\\gone.bmp\r\n\r\n");
  stage.files.Put(".\\gfx\\old.bmp", "O");
  stage.files.Put(".\\gfx\\kept.bmp", "K");
  state.shell.Running = true;
  CleanUpFiles(stage.context);
  EXPECT_FALSE(state.shell.Running);
  EXPECT_EQ(stage.files.contents.size(), 1U);
  EXPECT_TRUE(stage.files.Exists(".\\gfx\\kept.bmp"));
  EXPECT_EQ(stage.host.stored, (std::map<std::string, std::string>{{"NewInstall", "False"}}));
}

TEST_F(ArchivesTest, NoListDeletesWhatNoArchiveBrought) {
  const std::vector<std::string> kept = {
      ".\\coilrun",       ".\\CoilRun.ini",  ".\\Defaults.ini", ".\\gfx.snr",
      ".\\gfx\\own.SNR",  ".\\intro.bmp",    ".\\AI_Names.lst", ".\\models\\bee.smp",
      ".\\lvl\\lvl1.dat", ".\\MUSIC\\a.ogg", ".\\fonts\\a.ttf", ".\\coilrun-run-a\\gfx\\a.bmp"};
  std::string list = ".\\gfx\\intro.bmp\r\n";
  for (const std::string& path : kept) {
    stage.files.Put(path, "kept");
    list += path + "\r\n/game" + path.substr(1) + "\r\n";
  }
  stage.files.Put(".\\gfx\\intro.bmp", "unpacked");
  stage.files.Put(".\\cleanup-evil.snc", list);
  CleanUpFiles(stage.context);
  EXPECT_EQ(stage.files.contents.size(), kept.size());
  for (const std::string& path : kept) EXPECT_TRUE(stage.files.Exists(path)) << path;
}

TEST_F(ArchivesTest, AnArchiveInAFolderHasItsListBesideTheOthers) {
  stage.archive.archives[".\\sub/x.snr"] = {{"a.bmp", "A"}};
  SnUnextractFile(stage.context, ".\\sub/x.snr", ".\\gfx\\", kArchivePassword);
  EXPECT_TRUE(stage.files.Exists(".\\cleanup-x.snr.snc"));
}

TEST_F(ArchivesTest, CleansNothingUpWhenAskedNotTo) {
  Unpack();
  state.settings.NoCleanUp = true;
  state.settings.NewInstall = false;
  CleanUpFiles(stage.context);
  EXPECT_EQ(stage.files.contents.size(), 3U);
  EXPECT_TRUE(stage.host.stored.empty());
}

}  // namespace
}  // namespace coilrun
