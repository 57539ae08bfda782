#include "platform/storage.h"

#include <optional>

#include <gmock/gmock.h>

#include "platform/support.h"

namespace coilrun {
namespace {

/// Where a running game's pictures go.
struct Running {
  explicit Running(const Folders& folders)
      : places(folders), files(places.FilesIn(folders.program)) {
    EXPECT_TRUE(files.Write(".\\gfx\\a.bmp", {}));
  }
  std::string Unpacked() const { return files.FullName(".\\gfx\\a.bmp"); }

  UnpackPlaces places;
  DiskFiles files;
};

TEST(UnpackPlaces, EachRunningGameHasItsOwnAndDeletesNoOthers) {
  const TestFolders home;
  const Folders folders{home.Program(), home.User() / "coilrun.ini", home.User() / "data"};
  std::optional<Running> first(folders);
  EXPECT_EQ(first->Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
  Put(folders.unpacked / "run-killed" / "gfx" / "left.bmp");
  std::optional<Running> second(folders);
  std::optional<Running> third(folders);
  EXPECT_FALSE(std::filesystem::exists(folders.unpacked / "run-killed"));
  EXPECT_THAT(second->Unpacked(), testing::StartsWith(folders.unpacked.string() + "/run-"));
  EXPECT_NE(second->Unpacked(), third->Unpacked());

  EXPECT_TRUE(second->files.Delete(".\\gfx\\a.bmp"));
  EXPECT_FALSE(second->files.IsWritten(".\\gfx\\a.bmp"));
  EXPECT_TRUE(first->files.IsWritten(".\\gfx\\a.bmp"));
  EXPECT_TRUE(third->files.IsWritten(".\\gfx\\a.bmp"));
  second.reset();
  third.reset();
  EXPECT_TRUE(std::filesystem::is_empty(folders.unpacked));
  first.reset();
  EXPECT_EQ(Running(folders).Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
}

TEST(UnpackPlaces, OneFolderForProgramAndPlayerStillKeepsTwoGamesApart) {
  const TestFolders home;
  const Folders folders{home.Program(), home.User() / "coilrun.ini", home.Program()};
  const Running first(folders);
  const Running second(folders);
  EXPECT_EQ(first.Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
  EXPECT_THAT(second.Unpacked(), testing::StartsWith(home.Program().string() + "/run-"));
}

}  // namespace
}  // namespace coilrun
