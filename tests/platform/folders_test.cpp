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
  struct {
    Folders folders;
    const char *settingsFile, *unpacked;
  } const cases[] = {
      {DefaultFolders("/game", plain), "/home/kim/.config/coilrun/coilrun.ini",
       "/home/kim/.local/share/coilrun"},
      {DefaultFolders("/game", moved), "/c/coilrun/coilrun.ini", "/d/coilrun"},
      {FoldersIn("/game", "/mine"), "/mine/coilrun.ini", "/mine/data"},
  };
  for (const auto& [folders, settingsFile, unpacked] : cases) {
    EXPECT_EQ(folders.settingsFile, settingsFile);
    EXPECT_EQ(folders.unpacked, unpacked);
  }
}

}  // namespace
}  // namespace coilrun
