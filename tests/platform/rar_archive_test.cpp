#include "platform/rar/rar_archive.h"

#include <gmock/gmock.h>

#include "platform/disk_files.h"
#include "rar_builder.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;

/// An archive in its own program folder.
class RarArchiveTest : public ::testing::Test {
 protected:
  /// Unpacks everything into the program folder, as the game does; notes "NAME" or "NAME failed".
  std::vector<std::string> UnpackAll(const Bytes& archive, const std::string& password = "") {
    Put(folders_.Program() / "gfx.snr", Text(archive));
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
  std::string Unpacked(const char* name) const { return Contents(folders_.Program() / name); }

  TestFolders folders_;
  DiskFiles files_{folders_.Program(), folders_.User()};
  RarArchive archive_{files_};
};

TEST_F(RarArchiveTest, UnpacksBothGenerationsUnderEveryLock) {
  for (const std::string& kind : kArchiveKinds) {
    EXPECT_THAT(UnpackAll(CommittedArchive(kind), kPassword),
                ElementsAre("gfx", "gfx\\stored", "packed"));
    EXPECT_EQ(Unpacked("gfx/stored"), "seventeen letters") << kind;
    EXPECT_EQ(Unpacked("packed"), "abcdefghijklmnopqmnopq") << kind;
    std::filesystem::remove_all(folders_.Program() / "gfx");
    std::filesystem::remove(folders_.Program() / "packed");
  }
}

TEST_F(RarArchiveTest, WalksOnAfterWhatItRefusesAndNamesAllInTheGamesOwnLetters) {
  const MadeArchive made{
      .entries = {{.name = "../outside/up.bmp"},
                  {.name = "../outside/made", .folder = true},
                  {.name = "/outside.bmp"},
                  {.name = "link.bmp", .link = true},
                  {.name = "bad.bmp", .contents = "x", .packed = Bytes(20)},
                  {.name = "Sch\xC3\xB6n/\xE2\x82\xAC.bmp", .contents = "good"}}};
  EXPECT_THAT(
      UnpackAll(made.Write()),
      ElementsAre("..\\outside\\up.bmp failed", "..\\outside\\made failed", "\\outside.bmp failed",
                  "link.bmp failed", "bad.bmp failed", "Sch\xF6n\\\x80.bmp"));
  EXPECT_EQ(Unpacked("Sch\xC3\xB6n/\xE2\x82\xAC.bmp"), "good");
  EXPECT_EQ(Unpacked("link.bmp"), "(none)");
  EXPECT_TRUE(std::filesystem::is_empty(folders_.Outside()));
}

TEST_F(RarArchiveTest, PassesOverWithoutATargetButNeverARefusedName) {
  const MadeArchive made{.entries = {{.name = "a.bmp"}, {.name = "../b.bmp"}}};
  Put(folders_.Program() / "gfx.snr", Text(made.Write()));
  ASSERT_TRUE(archive_.Open(".\\gfx.snr"));
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt)) << "before the first header";
  ASSERT_TRUE(archive_.ReadHeader());
  EXPECT_TRUE(archive_.ProcessFile(std::nullopt));
  ASSERT_TRUE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt));
  EXPECT_FALSE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ReadHeader());
  EXPECT_FALSE(archive_.ProcessFile(std::nullopt)) << "after the last header";
  EXPECT_EQ(Unpacked("a.bmp"), "(none)");
}

TEST_F(RarArchiveTest, ForgetsThePasswordWithTheArchive) {
  const Bytes locked =
      MadeArchive{.entries = {{.name = "a.bmp", .contents = "x"}}, .locked = true}.Write();
  EXPECT_THAT(UnpackAll(locked, kPassword), ElementsAre("a.bmp"));
  EXPECT_THAT(UnpackAll(locked), ElementsAre("a.bmp failed"));
}

TEST_F(RarArchiveTest, OpensOnlyRarFiles) {
  EXPECT_FALSE(archive_.Open(".\\gfx.snr"));
  for (const char* const text : {"no archive at all", ""})
    EXPECT_THAT(UnpackAll(ToBytes(text)), ElementsAre("not opened"));
}

}  // namespace
}  // namespace coilrun
