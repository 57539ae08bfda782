#include "platform/disk_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/support.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::Optional;

namespace fs = std::filesystem;

std::vector<std::string> AllBelow(const fs::path& folder) {
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    found.push_back(fs::relative(entry.path(), folder).string());
  std::sort(found.begin(), found.end());
  return found;
}

std::string ReadText(const Files& files, const std::string& path) {
  const auto bytes = files.Read(path);
  return bytes ? std::string(bytes->begin(), bytes->end()) : "(none)";
}

class DiskFilesTest : public testing::Test {
 protected:
  DiskFiles Both(DiskFiles::Probe probe = CanWriteInto) const {
    return {folders_.Program(), folders_.User(), probe};
  }
  DiskFiles ProgramOnly() const { return {folders_.Program(), std::nullopt}; }

  TestFolders folders_;
};

bool NeverWritable(const fs::path& /*folder*/) {
  return false;
}

TEST_F(DiskFilesTest, PathsThatLeadOutsideExistNowhereAndTouchNothing) {
  Put(folders_.Outside() / "secret.txt", "secret");
  Put(folders_.Path() / "program2" / "secret.txt", "secret");
  Put(folders_.Program() / "gfx" / "a.bmp");
  fs::create_symlink(folders_.Outside(), folders_.Program() / "link");
  fs::create_symlink(folders_.Outside() / "secret.txt", folders_.Program() / "link.txt");
  fs::create_symlink(folders_.Outside() / "new.txt", folders_.Program() / "dangling.txt");
  mkfifo((folders_.Program() / "pipe.txt").c_str(), 0666);
  const std::string outside = folders_.Outside().string();
  const std::string program = folders_.Program().string();
  const std::string hostile[] = {
      "",
      "..",
      "secret.txt",
      "gfx\\new.txt",
      "\\gfx\\a.bmp",
      ".gfx\\a.bmp",
      "..\\outside\\secret.txt",
      ".\\..\\outside\\secret.txt",
      "./../outside/secret.txt",
      ".\\gfx\\..\\..\\outside/secret.txt",
      ".\\gfx\\..\\..\\outside\\new\\new.txt",
      ".\\.. \\outside\\secret.txt",
      ".\\gfx\\.\\new.txt",
      ".\\\\outside\\secret.txt",
      ".\\gfx\\\\new.txt",
      ".\\link\\secret.txt",
      ".\\link\\new.txt",
      ".\\LINK\\new\\new.txt",
      ".\\link.txt",
      ".\\dangling.txt",
      ".\\pipe.txt",
      ".\\C:\\new.txt",
      "C:\\new.txt",
      ".\\gfx\\a.bmp:stream",
      ".\\gfx\\ne\nw.txt",
      std::string(".\\gfx\\new\0.txt", 14),
      ".\\gfx\\ne\x81w.txt",
      outside + "\\secret.txt",
      outside + "/secret.txt",
      program + "\\..\\outside\\secret.txt",
      program + "2\\secret.txt",
  };
  const auto before = AllBelow(folders_.Path());
  DiskFiles files = ProgramOnly();

  for (const std::string& path : hostile) {
    SCOPED_TRACE(path);
    EXPECT_FALSE(files.Exists(path));
    EXPECT_FALSE(files.Read(path));
    EXPECT_FALSE(files.List(path, ""));
    EXPECT_FALSE(files.Write(path, ToBytes("changed")));
    EXPECT_FALSE(files.MakeFolder(path));
    EXPECT_FALSE(files.Delete(path));
  }
  EXPECT_EQ(AllBelow(folders_.Path()), before);
  EXPECT_EQ(Contents(folders_.Outside() / "secret.txt"), "secret");
}

TEST_F(DiskFilesTest, AHardLinkedFileIsReplacedAndTheOtherNameKeepsItsContents) {
  Put(folders_.Outside() / "shared.bmp", "old");
  fs::create_hard_link(folders_.Outside() / "shared.bmp", folders_.Program() / "shared.bmp");
  EXPECT_TRUE(ProgramOnly().Write(".\\shared.bmp", ToBytes("new")));
  EXPECT_EQ(Contents(folders_.Program() / "shared.bmp"), "new");
  EXPECT_EQ(Contents(folders_.Outside() / "shared.bmp"), "old");
}

TEST_F(DiskFilesTest, NamesAreFoundInAnyLetterCaseAndWithBothSeparators) {
  Put(folders_.Program() / "Gfx" / "Menu" / "Start.BMP", "menu");
  Put(folders_.Program() / "models" / "K\xC3\xA4se\xE2\x82\xAC.smp", "cheese");
  Put(folders_.Program() / "same" / "A.txt", "upper");
  Put(folders_.Program() / "same" / "a.txt", "lower");
  fs::create_symlink("Gfx", folders_.Program() / "pictures");
  const DiskFiles files = Both();
  const std::pair<std::string, std::string> cases[] = {
      {".\\gfx\\menu\\start.bmp", "menu"},
      {"./GFX/menu\\Start.bmp", "menu"},
      {".\\pictures\\menu\\start.bmp", "menu"},
      {".\\Models\\K\xC4SE\x80.SMP", "cheese"},
      {".\\same\\a.txt", "lower"},
      {".\\same\\A.TXT", "upper"},
      {folders_.Program().string() + "\\gfx\\MENU\\start.bmp", "menu"},
      {".\\gfx\\menu", "(none)"},
      {".\\gfx\\start.bmp", "(none)"},
  };
  for (const auto& [path, contents] : cases) EXPECT_EQ(ReadText(files, path), contents) << path;
  EXPECT_TRUE(files.Exists("."));
  EXPECT_TRUE(files.Exists(".\\"));
  EXPECT_TRUE(files.Exists(".\\gfx\\MENU\\"));
}

TEST_F(DiskFilesTest, WritingKeepsExistingNamesAndMakesMissingFolders) {
  Put(folders_.Program() / "GFX" / "Pause.bmp", "old");
  DiskFiles files = ProgramOnly();
  EXPECT_TRUE(files.Write(".\\gfx\\pause.BMP", ToBytes("new")));
  EXPECT_TRUE(files.Write(".\\gfx\\Men\xFC\\x.bmp", {}));
  EXPECT_TRUE(files.MakeFolder(".\\Snd\\deep\\"));
  EXPECT_FALSE(files.MakeFolder(".\\gfx\\pause.bmp"));
  EXPECT_FALSE(files.Write(".\\snd", {}));
  EXPECT_FALSE(files.Delete(".\\snd"));
  EXPECT_THAT(AllBelow(folders_.Program()),
              ElementsAre("GFX", "GFX/Men\xC3\xBC", "GFX/Men\xC3\xBC/x.bmp", "GFX/Pause.bmp", "Snd",
                          "Snd/deep"));
  EXPECT_EQ(Contents(folders_.Program() / "GFX" / "Pause.bmp"), "new");
  EXPECT_TRUE(files.Delete(".\\GFX\\PAUSE.BMP"));
  EXPECT_FALSE(files.Delete(".\\GFX\\PAUSE.BMP"));
}

TEST_F(DiskFilesTest, ThePlayersFilesCoverTheProgramFolder) {
  Put(folders_.Program() / "gfx" / "a.bmp", "program");
  Put(folders_.Program() / "gfx" / "c.bmp", "program");
  Put(folders_.User() / "GFX" / "A.BMP", "user");
  Put(folders_.User() / "GFX" / "b.bmp", "user");
  Put(folders_.User() / "GFX" / "b.wav", "user");
  fs::create_directories(folders_.User() / "GFX" / "folder.bmp");
  const DiskFiles files = Both();
  EXPECT_EQ(ReadText(files, ".\\gfx\\a.bmp"), "user");
  EXPECT_EQ(ReadText(files, ".\\gfx\\c.bmp"), "program");
  EXPECT_THAT(files.List(".\\gfx", ".Bmp"), Optional(ElementsAre("A.BMP", "b.bmp", "c.bmp")));
  EXPECT_THAT(files.List(".\\gfx", ".ogg"), Optional(ElementsAre()));
  EXPECT_FALSE(files.List(".\\none", ""));
}

TEST_F(DiskFilesTest, AProgramFolderThatCannotBeWrittenSendsEverythingToThePlayersFolder) {
  Put(folders_.Program() / "gfx" / "shipped.bmp", "shipped");
  const ReadOnlyFolder program(folders_.Program());
  DiskFiles files = Both();
  EXPECT_TRUE(files.Write(".\\gfx\\shipped.bmp", ToBytes("unpacked")));
  EXPECT_TRUE(files.MakeFolder(".\\snd"));
  EXPECT_EQ(ReadText(files, ".\\gfx\\shipped.bmp"), "unpacked");
  EXPECT_EQ(files.FullName(".\\gfx\\x.bmp"), folders_.User().string() + "\\gfx\\x.bmp");
  EXPECT_EQ(ReadText(files, files.FullName(".\\gfx\\shipped.bmp")), "unpacked");
  EXPECT_TRUE(files.Delete(".\\gfx\\shipped.bmp"));
  EXPECT_EQ(ReadText(files, ".\\gfx\\shipped.bmp"), "shipped");
  EXPECT_THAT(AllBelow(folders_.User()), ElementsAre("gfx", "snd"));
}

TEST_F(DiskFilesTest, TheProbeDecidesWhereWritesGoAndAFailedWriteFallsBack) {
  EXPECT_TRUE(Both(NeverWritable).Write(".\\a.txt", {}));
  EXPECT_THAT(AllBelow(folders_.User()), ElementsAre("a.txt"));
  EXPECT_THAT(AllBelow(folders_.Program()), ElementsAre());

  Put(folders_.Program() / "snd", "a file where a folder is wanted");
  EXPECT_TRUE(Both().Write(".\\snd\\b.wav", {}));
  EXPECT_THAT(AllBelow(folders_.User()), ElementsAre("a.txt", "snd", "snd/b.wav"));
}

TEST_F(DiskFilesTest, AFreshFileIsNotHiddenByAnOldOneOfThePlayer) {
  Put(folders_.User() / "gfx" / "a.bmp", "left from a run that could not write");
  DiskFiles files = Both();
  EXPECT_TRUE(files.Write(".\\gfx\\a.bmp", ToBytes("fresh")));
  EXPECT_EQ(ReadText(files, ".\\gfx\\a.bmp"), "fresh");
}

TEST_F(DiskFilesTest, FullNamesOfARootInsideTheOtherMeanTheInnerOne) {
  Put(folders_.Program() / "user" / "a.txt", "inner");
  const DiskFiles files(folders_.Program(), folders_.Program() / "user", NeverWritable);
  EXPECT_EQ(ReadText(files, files.FullName(".\\a.txt")), "inner");
  EXPECT_EQ(ReadText(files, (folders_.Program() / "user").string() + "\\A.TXT"), "inner");
}

TEST_F(DiskFilesTest, FilesBeyondTheReadLimitAreNotRead) {
  Put(folders_.Program() / "huge.dat");
  fs::resize_file(folders_.Program() / "huge.dat", (std::uintmax_t{256} << 20U) + 1);
  const DiskFiles files = Both();
  EXPECT_TRUE(files.Exists(".\\huge.dat"));
  EXPECT_FALSE(files.Read(".\\huge.dat"));
}

TEST_F(DiskFilesTest, AMissingProgramFolderIsEmptyAndTheStartLeavesNoTrace) {
  const DiskFiles missing(folders_.Path() / "none", folders_.User());
  EXPECT_FALSE(missing.Exists(".\\lvl"));
  EXPECT_FALSE(missing.Read(".\\lvl\\lvl1.dat"));
  Both();
  EXPECT_THAT(AllBelow(folders_.Program()), ElementsAre());
}

}  // namespace
}  // namespace coilrun
