#include "platform/rar/rar_archive.h"

#include <gmock/gmock.h>

#include "platform/disk_files.h"
#include "rar_builder.h"
#include "rar_streams.h"
#include "support.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;

/// An archive in a program folder of its own.
class RarArchiveTest : public ::testing::Test {
 protected:
  void PutArchive(const MadeArchive& archive) {
    const Bytes bytes = archive.Write();
    Put(folders_.Program() / "gfx.snr",
        {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }

  /// Unpacks all into the program folder, as the game does; notes "NAME" or "NAME failed".
  std::vector<std::string> UnpackAll(const std::string& password) {
    std::vector<std::string> notes;
    if (!archive_.Open(".\\gfx.snr")) return {"not opened"};
    if (!password.empty()) archive_.SetPassword(password);
    while (const auto name = archive_.ReadHeader()) {
      const bool done = archive_.ProcessFile(".\\" + *name);
      notes.push_back(*name + (done ? "" : " failed"));
    }
    archive_.Close();
    return notes;
  }

  TestFolders folders_;
  DiskFiles files_{folders_.Program(), folders_.User()};
  RarArchive archive_{files_};
};

TEST_F(RarArchiveTest, UnpacksBothGenerationsUnderEveryLock) {
  for (const int generation : {4, 5}) {
    for (const Locked locked : {Locked::kNothing, Locked::kContents, Locked::kHeadersToo}) {
      MadeArchive made{.generation = generation, .locked = locked};
      const std::string name = generation == 4 ? "gfx\\menu\\a.bmp" : "gfx/menu/a.bmp";
      const std::string text = std::to_string(generation) + " packed contents";
      made.entries = {{.name = "gfx", .folder = true}, {.name = name, .contents = text}};
      made.entries[1].packed = generation == 5 ? CompressRar5(text) : CompressRar4(text);
      PutArchive(made);
      EXPECT_THAT(UnpackAll(made.password), ElementsAre("gfx", "gfx\\menu\\a.bmp"));
      EXPECT_EQ(Contents(folders_.Program() / "gfx/menu/a.bmp"), text);
    }
  }
}

TEST_F(RarArchiveTest, GivesNamesInTheGamesOwnLetters) {
  MadeArchive made;
  made.entries = {{.name = "Sch\xC3\xB6n/\xE2\x82\xAC.bmp", .contents = "x"}};
  PutArchive(made);
  EXPECT_THAT(UnpackAll(""), ElementsAre("Sch\xF6n\\\x80.bmp"));
  EXPECT_EQ(Contents(folders_.Program() / "Sch\xC3\xB6n/\xE2\x82\xAC.bmp"), "x");
}

TEST_F(RarArchiveTest, WalksOnAfterWhatItRefuses) {
  MadeArchive made;
  made.entries = {{.name = "../outside/up.bmp", .contents = "x"},
                  {.name = "../outside/made", .folder = true},
                  {.name = "/outside.bmp", .contents = "x"},
                  {.name = "link.bmp", .linkTo = "../outside"},
                  {.name = "bad.bmp", .contents = "x", .packed = Bytes(20)},
                  {.name = "good.bmp", .contents = "good"}};
  PutArchive(made);
  EXPECT_THAT(UnpackAll(""),
              ElementsAre("..\\outside\\up.bmp failed", "..\\outside\\made failed",
                          "\\outside.bmp failed", "link.bmp failed", "bad.bmp failed", "good.bmp"));
  EXPECT_EQ(Contents(folders_.Program() / "good.bmp"), "good");
  EXPECT_TRUE(std::filesystem::is_empty(folders_.Outside()));
  EXPECT_FALSE(std::filesystem::exists(folders_.Program() / "link.bmp"));
}

TEST_F(RarArchiveTest, PassesOverWithoutATargetButNeverARefusedName) {
  MadeArchive made;
  made.entries = {{.name = "a.bmp", .contents = "x"}, {.name = "../b.bmp", .contents = "x"}};
  PutArchive(made);
  ASSERT_TRUE(archive_.Open(".\\gfx.snr"));
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt)) << "before the first header";
  ASSERT_TRUE(archive_.ReadHeader());
  EXPECT_TRUE(archive_.ProcessFile(std::nullopt));
  ASSERT_TRUE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt));
  EXPECT_FALSE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt)) << "after the last header";
  EXPECT_EQ(Contents(folders_.Program() / "a.bmp"), "(none)");
}

TEST_F(RarArchiveTest, ForgetsThePasswordWithTheArchive) {
  MadeArchive made{.locked = Locked::kContents};
  made.entries = {{.name = "a.bmp", .contents = "x"}};
  PutArchive(made);
  EXPECT_THAT(UnpackAll(made.password), ElementsAre("a.bmp"));
  EXPECT_THAT(UnpackAll(""), ElementsAre("a.bmp failed"));
}

TEST_F(RarArchiveTest, OpensOnlyRarFiles) {
  EXPECT_THAT(UnpackAll(""), ElementsAre("not opened"));
  Put(folders_.Program() / "gfx.snr", "no archive at all");
  EXPECT_THAT(UnpackAll(""), ElementsAre("not opened"));
  Put(folders_.Program() / "gfx.snr", "");
  EXPECT_THAT(UnpackAll(""), ElementsAre("not opened"));
}

}  // namespace
}  // namespace coilrun
