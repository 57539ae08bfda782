#include "platform/folders.h"

#include <gtest/gtest.h>

#include "platform/support.h"

namespace coilrun {
namespace {

TEST(Folders, TheProgramFolderIsBesideTheExecutableOrInTheShareFolder) {
  const TestFolders folders;
  const Surroundings here{folders.Program() / "bin", "/home/kim", "", ""};
  EXPECT_EQ(DefaultProgramFolder(here), folders.Program() / "share" / "coilrun");
  std::filesystem::create_directories(here.executableFolder / "lvl");
  EXPECT_EQ(DefaultProgramFolder(here), here.executableFolder);
}

TEST(Folders, APlayersFilesFollowTheDesktopsRulesOrTheOption) {
  const Surroundings plain{"/opt", "/home/kim", "", ""};
  const Surroundings moved{"/opt", "/home/kim", "/c", "/d"};
  const Folders usual = DefaultFolders("/game", plain);
  EXPECT_EQ(usual.settingsFile, "/home/kim/.config/coilrun/coilrun.ini");
  EXPECT_EQ(usual.unpacked, "/home/kim/.local/share/coilrun");
  const Folders elsewhere = DefaultFolders("/game", moved);
  EXPECT_EQ(elsewhere.settingsFile, "/c/coilrun/coilrun.ini");
  EXPECT_EQ(elsewhere.unpacked, "/d/coilrun");
  const Folders given = FoldersIn("/game", "/mine");
  EXPECT_EQ(given.settingsFile, "/mine/coilrun.ini");
  EXPECT_EQ(given.unpacked, "/mine/data");
}

TEST(Folders, ATemporaryFolderGoesWithAllThatIsInIt) {
  std::filesystem::path place;
  {
    const TemporaryFolder folder;
    place = folder.Path();
    Put(place / "deep" / "file.txt");
  }
  EXPECT_FALSE(place.empty());
  EXPECT_FALSE(std::filesystem::exists(place));
}

}  // namespace
}  // namespace coilrun
