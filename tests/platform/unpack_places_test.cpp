#include "platform/unpack_places.h"

#include <atomic>
#include <filesystem>
#include <iterator>
#include <optional>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "platform/support.h"

namespace coilrun {
namespace {

/// A running game, and where its pictures go.
struct Running {
  explicit Running(const Folders& folders) : places(folders), files(places.MakeFiles()) {
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
  Put(folders.unpacked / "coilrun-run-killed" / "gfx" / "left.bmp");
  std::optional<Running> second(folders);
  std::optional<Running> third(folders);
  EXPECT_FALSE(std::filesystem::exists(folders.unpacked / "coilrun-run-killed"));
  EXPECT_THAT(second->Unpacked(), testing::StartsWith(folders.unpacked.string() + "/coilrun-run-"));
  EXPECT_NE(second->Unpacked(), third->Unpacked());

  EXPECT_TRUE(second->files.Delete(".\\gfx\\a.bmp"));
  EXPECT_FALSE(second->files.IsLasting(".\\gfx\\a.bmp"));
  EXPECT_TRUE(first->files.IsLasting(".\\gfx\\a.bmp"));
  EXPECT_TRUE(third->files.IsLasting(".\\gfx\\a.bmp"));
  second.reset();
  third.reset();
  EXPECT_TRUE(std::filesystem::is_empty(folders.unpacked));
  first.reset();
  EXPECT_EQ(Running(folders).Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
}

TEST(UnpackPlaces, ALoneStartRemovesWhatKilledGamesHaveLeftAndNothingElse) {
  const TestFolders home;
  const Folders folders{home.Program(), home.User() / "coilrun.ini", home.User() / "data"};
  const std::filesystem::path left = folders.unpacked / "coilrun-run-killed";
  const std::filesystem::path inUse = folders.unpacked / "coilrun-run-in-use";
  for (const auto& folder : {left, inUse, folders.unpacked / "own"}) Put(folder / "a.bmp");
  const FolderClaim another(inUse);
  const Running lone(folders);
  EXPECT_EQ(lone.Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_TRUE(std::filesystem::exists(inUse / "a.bmp"));
  EXPECT_TRUE(std::filesystem::exists(folders.unpacked / "own" / "a.bmp"));
}

TEST(UnpackPlaces, WithoutAPlaceOfThePlayersTheSecondGameUnpacksAmongTemporaryFiles) {
  const TestFolders home;
  const Folders folders{home.Program(), home.User() / "coilrun.ini", home.User() / "file" / "data"};
  Put(home.User() / "file");
  const Running first(folders);
  EXPECT_EQ(first.Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
  std::filesystem::path unpacked;
  {
    const Running second(folders);
    unpacked = second.Unpacked().substr(0, second.Unpacked().find('\\'));
    EXPECT_EQ(unpacked.parent_path(), std::filesystem::temp_directory_path());
    EXPECT_TRUE(std::filesystem::exists(unpacked / "gfx" / "a.bmp"));
  }
  EXPECT_FALSE(std::filesystem::exists(unpacked));
}

TEST(OwnFolder, StartsAtTheSameTimeNeverTakeEachOthersForLeftOnes) {
  const TestFolders home;
  std::atomic<int> lost = 0;
  const auto startOften = [&] {
    for (int start = 0; start < 300; ++start) {
      RemoveLeftFolders(home.User());
      const OwnFolder own(home.User());
      Put(own.Path() / "a.bmp");
      RemoveLeftFolders(home.User());
      const bool kept = std::filesystem::exists(own.Path() / "a.bmp");
      if (!kept || FolderClaim(own.Path()).IsHeld()) ++lost;
    }
  };
  std::vector<std::thread> starts;
  for (int thread = 0; thread < 8; ++thread) starts.emplace_back(startOften);
  for (std::thread& start : starts) start.join();
  EXPECT_EQ(lost, 0);
  EXPECT_TRUE(std::filesystem::is_empty(home.User()));
}

TEST(UnpackPlaces, OneFolderForProgramAndPlayerStillKeepsTwoGamesApart) {
  const TestFolders home;
  const Folders folders{home.Program(), home.User() / "coilrun.ini", home.Program()};
  const Running first(folders);
  const Running second(folders);
  EXPECT_EQ(first.Unpacked(), home.Program().string() + "\\gfx\\a.bmp");
  EXPECT_THAT(second.Unpacked(), testing::StartsWith(home.Program().string() + "/coilrun-run-"));
  const std::filesystem::directory_iterator made(home.Program());
  EXPECT_EQ(std::distance(begin(made), end(made)), 2)
      << "the pictures and one folder of a game's own";
}

}  // namespace
}  // namespace coilrun
