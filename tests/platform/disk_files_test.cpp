#include "platform/disk_files.h"

#include <csignal>
#include <ctime>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
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
  return bytes ? Text(*bytes) : "(none)";
}

class DiskFilesTest : public testing::Test {
 protected:
  DiskFiles Both(DiskFiles::Probe probe = CanWriteInto) const { return {program_, user_, probe}; }
  DiskFiles ProgramOnly() const { return {program_, std::nullopt}; }

  TestFolders folders_;
  const fs::path program_ = folders_.Program();
  const fs::path user_ = folders_.User();
  const fs::path outside_ = folders_.Outside();
};

bool NeverWritable(const fs::path& /*folder*/) {
  return false;
}
bool AlwaysWritable(const fs::path& /*folder*/) {
  return true;
}

TEST_F(DiskFilesTest, PathsThatLeadOutsideExistNowhereAndTouchNothing) {
  Put(outside_ / "secret.txt", "secret");
  Put(folders_.Path() / "program2" / "secret.txt", "secret");
  Put(program_ / "gfx" / "a.bmp");
  fs::create_symlink(outside_, program_ / "link");
  fs::create_symlink(outside_ / "secret.txt", program_ / "link.txt");
  fs::create_symlink(outside_ / "new.txt", program_ / "dangling.txt");
  mkfifo((program_ / "pipe.txt").c_str(), 0666);
  const std::string outside = outside_.string();
  const std::string program = program_.string();
  const std::vector<std::vector<std::string>> hostile = {
      {"", "secret.txt", "\\gfx\\a.bmp", ".gfx\\a.bmp", outside + "\\secret.txt"},
      {".\\..\\outside\\secret.txt", "./gfx/../../outside/new/new.txt", ".\\.. \\outside\\new.txt"},
      {program + "\\..\\outside\\secret.txt", program + "2\\secret.txt"},
      {".\\gfx\\.\\new.txt", ".\\\\gfx\\a.bmp", ".\\gfx\\\\new.txt"},
      {".\\link\\secret.txt", ".\\link\\new.txt", ".\\LINK\\new\\new.txt", ".\\link.txt"},
      {".\\dangling.txt", ".\\pipe.txt", ".\\gfx\\a.bmp:stream", ".\\gfx\\ne\nw.txt"},
      {std::string(".\\gfx\\new\0.txt", 14), ".\\gfx\\ne\x81w.txt"},
  };
  const auto before = AllBelow(folders_.Path());
  DiskFiles files = ProgramOnly();

  for (const auto& group : hostile)
    for (const std::string& path : group) {
      SCOPED_TRACE(path);
      EXPECT_FALSE(files.Exists(path));
      EXPECT_FALSE(files.Read(path));
      EXPECT_FALSE(files.List(path, ""));
      EXPECT_FALSE(files.Write(path, ToBytes("changed")));
      EXPECT_FALSE(files.MakeFolder(path));
      EXPECT_FALSE(files.Delete(path));
    }
  EXPECT_EQ(AllBelow(folders_.Path()), before);
  EXPECT_EQ(Contents(outside_ / "secret.txt"), "secret");
}

TEST_F(DiskFilesTest, AHardLinkedFileIsReplacedAndTheOtherNameKeepsItsContents) {
  Put(outside_ / "shared.bmp", "old");
  fs::create_hard_link(outside_ / "shared.bmp", program_ / "shared.bmp");
  EXPECT_TRUE(ProgramOnly().Write(".\\shared.bmp", ToBytes("new")));
  EXPECT_EQ(Contents(program_ / "shared.bmp"), "new");
  EXPECT_EQ(Contents(outside_ / "shared.bmp"), "old");
}

TEST_F(DiskFilesTest, NamesAreFoundInAnyLetterCaseAndWithBothSeparators) {
  Put(program_ / "Gfx" / "Menu" / "Start.BMP", "menu");
  Put(program_ / "models" / "K\xC3\xA4se\xE2\x82\xAC.smp", "cheese");
  Put(program_ / "same" / "A.txt", "upper");
  Put(program_ / "same" / "a.txt", "lower");
  fs::create_symlink("Gfx", program_ / "pictures");
  const DiskFiles files = Both();
  const std::pair<std::string, std::string> cases[] = {
      {".\\gfx\\menu\\start.bmp", "menu"},
      {"./GFX/menu\\Start.bmp", "menu"},
      {".\\pictures\\menu\\start.bmp", "menu"},
      {".\\Models\\K\xC4SE\x80.SMP", "cheese"},
      {".\\same\\a.txt", "lower"},
      {".\\same\\A.TXT", "upper"},
      {program_.string() + "\\gfx\\MENU\\start.bmp", "menu"},
      {".\\gfx\\menu", "(none)"},
      {".\\gfx\\start.bmp", "(none)"},
  };
  for (const auto& [path, contents] : cases) EXPECT_EQ(ReadText(files, path), contents) << path;
  for (const char* const folder : {".", ".\\", ".\\gfx\\MENU\\"}) EXPECT_TRUE(files.Exists(folder));
}

TEST_F(DiskFilesTest, WritingKeepsExistingNamesAndMakesMissingFolders) {
  Put(program_ / "GFX" / "Pause.bmp", "old");
  DiskFiles files = ProgramOnly();
  EXPECT_TRUE(files.Write(".\\gfx\\pause.BMP", ToBytes("new")));
  EXPECT_TRUE(files.Write(".\\gfx\\Men\xFC\\x.bmp", {}));
  EXPECT_TRUE(files.MakeFolder(".\\Snd\\deep\\"));
  EXPECT_FALSE(files.MakeFolder(".\\gfx\\pause.bmp"));
  EXPECT_FALSE(files.Write(".\\snd", {}));
  EXPECT_FALSE(files.Delete(".\\snd"));
  EXPECT_THAT(AllBelow(program_), ElementsAre("GFX", "GFX/Men\xC3\xBC", "GFX/Men\xC3\xBC/x.bmp",
                                              "GFX/Pause.bmp", "Snd", "Snd/deep"));
  EXPECT_EQ(Contents(program_ / "GFX" / "Pause.bmp"), "new");
  EXPECT_TRUE(files.Delete(".\\GFX\\PAUSE.BMP"));
  EXPECT_FALSE(files.Delete(".\\GFX\\PAUSE.BMP"));
}

TEST_F(DiskFilesTest, ThePlayersFilesCoverTheProgramFolder) {
  Put(program_ / "gfx" / "a.bmp", "program");
  Put(program_ / "gfx" / "c.bmp", "program");
  Put(user_ / "GFX" / "A.BMP", "user");
  Put(user_ / "GFX" / "b.bmp", "user");
  Put(user_ / "GFX" / "b.wav", "user");
  fs::create_directories(user_ / "GFX" / "folder.bmp");
  const DiskFiles files = Both();
  EXPECT_EQ(ReadText(files, ".\\gfx\\a.bmp"), "user");
  EXPECT_EQ(ReadText(files, ".\\gfx\\c.bmp"), "program");
  EXPECT_THAT(files.List(".\\gfx", ".Bmp"), Optional(ElementsAre("A.BMP", "b.bmp", "c.bmp")));
  EXPECT_THAT(files.List(".\\gfx", ".ogg"), Optional(ElementsAre()));
  EXPECT_FALSE(files.List(".\\none", ""));
}

TEST_F(DiskFilesTest, AProgramFolderThatCannotBeWrittenSendsEverythingToThePlayersFolder) {
  Put(program_ / "gfx" / "shipped.bmp", "shipped");
  const ReadOnlyFolder program(program_);
  DiskFiles files = Both();
  EXPECT_TRUE(files.Write(".\\gfx\\shipped.bmp", ToBytes("unpacked")));
  EXPECT_TRUE(files.MakeFolder(".\\snd"));
  EXPECT_EQ(ReadText(files, ".\\gfx\\shipped.bmp"), "unpacked");
  EXPECT_EQ(files.FullName(".\\gfx\\x.bmp"), user_.string() + "\\gfx\\x.bmp");
  EXPECT_EQ(ReadText(files, files.FullName(".\\gfx\\shipped.bmp")), "unpacked");
  EXPECT_TRUE(files.Delete(".\\gfx\\shipped.bmp"));
  EXPECT_EQ(ReadText(files, ".\\gfx\\shipped.bmp"), "shipped");
  EXPECT_THAT(AllBelow(user_), ElementsAre("gfx", "snd"));
}

TEST_F(DiskFilesTest, TheProbeDecidesWhereWritesGoAndAFailedWriteFallsBack) {
  EXPECT_TRUE(Both(NeverWritable).Write(".\\a.txt", ToBytes("left from an earlier run")));
  EXPECT_THAT(AllBelow(user_), ElementsAre("a.txt"));
  EXPECT_THAT(AllBelow(program_), ElementsAre());

  DiskFiles files = Both();
  EXPECT_TRUE(files.Write(".\\a.txt", ToBytes("fresh")));
  EXPECT_EQ(ReadText(files, ".\\a.txt"), "fresh") << "the player's old one does not hide it";

  Put(program_ / "snd", "a file where a folder is wanted");
  EXPECT_TRUE(files.Write(".\\snd\\b.wav", {}));
  EXPECT_THAT(AllBelow(user_), ElementsAre("snd", "snd/b.wav"));
}

TEST_F(DiskFilesTest, AnUnfinishedFileIsNoFileAndGoesWithItsName) {
  const std::string longest(255, 'n');
  DiskFiles files = ProgramOnly();
  for (const std::string& name : {std::string("a.bmp"), longest}) {
    const fs::path unfinished = program_ / (name.substr(0, 240) + ".unfinished");
    const std::string path = ".\\" + name;
    Put(unfinished, "half");
    EXPECT_FALSE(files.Exists(path));
    EXPECT_TRUE(files.Write(path, ToBytes("whole")));
    EXPECT_EQ(ReadText(files, path), "whole");
    EXPECT_FALSE(fs::exists(unfinished)) << name;
    for (const bool withWholeOne : {true, false}) {
      Put(unfinished, "half");
      EXPECT_EQ(files.Exists(path), withWholeOne);
      EXPECT_TRUE(files.Delete(path));
      EXPECT_THAT(AllBelow(program_), ElementsAre());
    }
  }
}

/// As long as it lives, no file of this process can grow beyond a few bytes, as on a full disk.
class NearlyFullDisk {
 public:
  explicit NearlyFullDisk(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~NearlyFullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  NearlyFullDisk(const NearlyFullDisk&) = delete;
  NearlyFullDisk& operator=(const NearlyFullDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

TEST_F(DiskFilesTest, AWriteThatBreaksOffLeavesEverythingAsItWas) {
  Put(program_ / "a.bmp", "old picture");
  DiskFiles files = ProgramOnly();
  {
    const NearlyFullDisk disk(4);
    EXPECT_FALSE(files.Write(".\\a.bmp", ToBytes("new picture")));
    EXPECT_FALSE(files.Write(".\\b.bmp", ToBytes("new picture")));
  }
  EXPECT_EQ(files.WriteProblem(".\\b.bmp"), "27: File too large (writing '.\\b.bmp')");
  EXPECT_THAT(AllBelow(program_), ElementsAre("a.bmp"));
  EXPECT_EQ(Contents(program_ / "a.bmp"), "old picture");
}

TEST_F(DiskFilesTest, TellsOfEachFileWhyItCouldNotBeWritten) {
  Put(program_ / "folder" / "a.bmp");
  Put(program_ / "file");
  std::optional<ReadOnlyFolder> readOnly(program_);
  DiskFiles files = ProgramOnly();
  const std::pair<std::string, std::string> cases[] = {
      {".\\a.bmp", "13: Permission denied (writing '.\\a.bmp')"},
      {".\\new\\a.bmp", "13: Permission denied (writing '.\\new\\a.bmp')"},
      {".\\file\\a.bmp", "20: Not a directory (writing '.\\file\\a.bmp')"},
      {".\\folder", "1: Operation not permitted (writing '.\\folder')"},
  };
  for (const auto& [path, problem] : cases) {
    EXPECT_EQ(files.WriteProblem(path), "");
    EXPECT_FALSE(files.Write(path, {}));
    EXPECT_EQ(files.WriteProblem(path), problem);
  }
  DiskFiles missing(program_ / "none", std::nullopt);
  EXPECT_FALSE(missing.Write(".\\gfx\\a.bmp", {}));
  EXPECT_THAT(missing.WriteProblem(".\\gfx\\a.bmp"), testing::StartsWith("13: "));
  DiskFiles neither(program_, program_ / "none", AlwaysWritable);
  EXPECT_FALSE(neither.Write(".\\file\\a.bmp", {}));
  EXPECT_THAT(neither.WriteProblem(".\\file\\a.bmp"), testing::StartsWith("20: "));
  readOnly.reset();
  EXPECT_TRUE(files.Write(".\\A.bmp", {}));
  EXPECT_EQ(files.WriteProblem(".\\a.bmp"), "");
  EXPECT_NE(files.WriteProblem(".\\new\\a.bmp"), "");
}

TEST_F(DiskFilesTest, WhatAnotherGameHasIsReadButNeitherWrittenNorDeletedNorCountedOn) {
  Put(program_ / "gfx" / "a.bmp", "another game's");
  DiskFiles files(program_, user_, CanWriteInto, ProgramFolder::kTaken);
  EXPECT_EQ(ReadText(files, ".\\gfx\\a.bmp"), "another game's");
  EXPECT_FALSE(files.IsLasting(".\\gfx\\a.bmp"));
  EXPECT_FALSE(files.Delete(".\\gfx\\a.bmp"));
  EXPECT_TRUE(files.Write(".\\gfx\\a.bmp", ToBytes("mine")));
  EXPECT_TRUE(files.IsLasting(".\\gfx\\a.bmp"));
  EXPECT_EQ(Contents(program_ / "gfx" / "a.bmp"), "another game's");
  EXPECT_EQ(ReadText(files, ".\\gfx\\a.bmp"), "mine");

  DiskFiles nowhere(program_, std::nullopt, CanWriteInto, ProgramFolder::kTaken);
  EXPECT_FALSE(nowhere.Write(".\\gfx\\a.bmp", {}));
  EXPECT_NE(nowhere.WriteProblem(".\\gfx\\a.bmp"), "");
  EXPECT_EQ(nowhere.FullName(".\\x.bmp"), program_.string() + "\\x.bmp");
}

TEST_F(DiskFilesTest, PicturesThatLieInAReadOnlyProgramFolderNeedNoUnpacking) {
  Put(program_ / "gfx" / "a.bmp");
  EXPECT_TRUE(Both(NeverWritable).IsLasting(".\\GFX\\a.bmp"));
  EXPECT_FALSE(Both(NeverWritable).IsLasting(".\\gfx\\b.bmp"));
}

TEST_F(DiskFilesTest, DeletingManyFilesAtOnceLooksIntoEachFolderOnce) {
  constexpr int kFiles = 3000;
  std::vector<std::string> paths = {".\\..\\outside\\a.bmp", ".\\gfx", ".\\none\\a.bmp", "."};
  for (int n = 0; n < kFiles; ++n) {
    const std::string name = std::to_string(n) + ".bmp";
    Put(program_ / "Gfx" / name);
    paths.push_back(".\\gfx\\" + std::to_string(n) + ".BMP");
    paths.push_back(".\\gfx\\missing" + name);
  }
  Put(outside_ / "a.bmp");
  const std::clock_t start = std::clock();
  EXPECT_EQ(ProgramOnly().DeleteAll(paths), kFiles);
  // Reading the folder for each missing name would take ten seconds and more.
  EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 3);
  EXPECT_THAT(AllBelow(program_), ElementsAre("Gfx"));
  EXPECT_TRUE(fs::exists(outside_ / "a.bmp"));
}

TEST_F(DiskFilesTest, OneFolderMayBeBothRoots) {
  DiskFiles files(program_, program_);
  EXPECT_TRUE(files.Write(".\\a.txt", ToBytes("kept")));
  EXPECT_EQ(ReadText(files, ".\\a.txt"), "kept");
}

TEST_F(DiskFilesTest, FullNamesOfARootInsideTheOtherMeanTheInnerOne) {
  Put(program_ / "user" / "a.txt", "inner");
  DiskFiles files(program_, program_ / "user", NeverWritable);
  EXPECT_EQ(ReadText(files, files.FullName(".\\a.txt")), "inner");
  EXPECT_TRUE(files.Write((program_ / "user").string() + "\\A.TXT", ToBytes("new")));
  EXPECT_EQ(Contents(program_ / "user" / "a.txt"), "new");
}

TEST_F(DiskFilesTest, FilesBeyondTheReadLimitAreNotRead) {
  Put(program_ / "huge.dat");
  fs::resize_file(program_ / "huge.dat", (std::uintmax_t{256} << 20U) + 1);
  const DiskFiles files = Both();
  EXPECT_TRUE(files.Exists(".\\huge.dat"));
  EXPECT_FALSE(files.Read(".\\huge.dat"));
}

TEST_F(DiskFilesTest, AMissingProgramFolderIsEmptyAndTheStartLeavesNoTrace) {
  const DiskFiles missing(folders_.Path() / "none", user_);
  EXPECT_FALSE(missing.Exists(".\\lvl"));
  EXPECT_FALSE(missing.Read(".\\lvl\\lvl1.dat"));
  Both();
  EXPECT_THAT(AllBelow(program_), ElementsAre());
}

}  // namespace
}  // namespace coilrun
