#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <png.h>

#include "platform/folder_claim.h"
#include "platform/rar/rar_writer.h"
#include "scenario/game_run.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::SizeIs;

Bytes BytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

void WriteFile(const fs::path& file, const Bytes& contents) {
  std::ofstream output(file, std::ios::binary);
  std::ranges::copy(contents, std::ostreambuf_iterator<char>(output));
}

/// All files below a folder, by their names relative to it.
std::set<std::string> FilesIn(const fs::path& folder) {
  std::set<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) files.insert(entry.path().lexically_relative(folder).string());
  }
  return files;
}

/// The files that the clean-up lists of a program folder name, relative to it.
std::set<std::string> ListedFiles(const fs::path& folder) {
  std::set<std::string> listed;
  for (const std::string& name : FilesIn(folder)) {
    if (!name.ends_with(".snc")) continue;
    std::istringstream lines(ReadFile(folder / name));
    for (std::string line; std::getline(lines, line);) {
      if (line.ends_with('\r')) line.pop_back();
      std::ranges::replace(line, '\\', '/');
      listed.insert(fs::path(line).lexically_relative(folder).string());
    }
  }
  return listed;
}

std::set<std::string> Without(std::set<std::string> files, const std::set<std::string>& others) {
  std::erase_if(files, [&](const std::string& file) {
    return others.contains(file) || file.ends_with(".snc");
  });
  return files;
}

/// A program folder with only two model packs, and one settings store for all runs.
class ContentTest : public ::testing::Test {
 protected:
  ContentTest() {
    for (const std::string& pack : FilesIn(Data() / "models")) {
      if (pack != "boa.smp" && pack != "coral.smp") fs::remove(Data() / "models" / pack);
    }
    shipped_ = FilesIn(Data());
  }

  fs::path Data() const { return folder_.Data(); }
  fs::path Brick() const { return Data() / "gfx" / "brik.bmp"; }
  std::set<std::string> Unpacked() const { return Without(FilesIn(Data()), shipped_); }

  GameRun Play(ScriptText& script, std::vector<std::string> arguments = {}) const {
    arguments.insert(arguments.end(), {"--user", (folder_.Home() / "user").string()});
    return folder_.Play(script.Text(), arguments);
  }
  /// A run that ends without any clean-up, as if it had been killed.
  GameRun PlayAndKill() const { return Play(ScriptText().At(500, "state").At(500, "end")); }
  /// A run that ends by the last entry of the main menu.
  GameRun PlayAndExit(const std::vector<std::string>& arguments = {}) const {
    auto script = ScriptText().At(500, "state");
    for (const int at : {600, 700, 800}) script.At(at, "tap 208");
    return Play(script.At(900, "tap 28"), arguments);
  }

  ProgramFolder folder_;
  std::set<std::string> shipped_;
};

TEST_F(ContentTest, WhatIsUnpackedIsListedAndLeavesWithTheGame) {
  EXPECT_EQ(PlayAndKill().exitCode, 0);
  EXPECT_THAT(Unpacked(), IsSupersetOf({"gfx/brik.bmp", "Snd/collect.wav", "gfx/boa/start.bmp"}));
  EXPECT_EQ(ListedFiles(Data()), Unpacked());
  const std::string brick = ReadFile(Brick());

  WriteFile(Brick(), BytesOf("mine"));
  PlayAndKill();
  EXPECT_EQ(ReadFile(Brick()), brick) << "a new installation unpacks everything anew";

  WriteFile(Data() / "cleanup-older.snc",
            BytesOf("/etc/hostname\r\n.\\..\\script.txt\r\n.\\gfx\\older.bmp\r\n"));
  WriteFile(Data() / "gfx" / "older.bmp", BytesOf("left by a killed run"));
  EXPECT_EQ(PlayAndExit().states.at(0)["NewInstall"], true);
  EXPECT_EQ(FilesIn(Data()), shipped_);
  EXPECT_TRUE(fs::exists(folder_.Home() / "script.txt"));
}

TEST_F(ContentTest, LaterRunsUseWhatIsThereAndKeepItWhenAsked) {
  PlayAndExit();
  const GameRun kept = PlayAndExit({"/NoClean=True"});
  EXPECT_EQ(kept.states.at(0)["NewInstall"], false);
  EXPECT_EQ(kept.states.at(0)["NoCleanUp"], true);
  EXPECT_EQ(ListedFiles(Data()), Unpacked());
  EXPECT_THAT(Unpacked(), Contains("gfx/brik.bmp"));

  WriteFile(Brick(), BytesOf("mine"));
  PlayAndKill();
  EXPECT_EQ(ReadFile(Brick()), "mine") << "files that exist are passed over";
  PlayAndExit({"/NoClean=False"});
  EXPECT_EQ(FilesIn(Data()), shipped_);
}

TEST_F(ContentTest, AReadOnlyProgramFolderIsPlayedFromThePlayersOwn) {
  folder_.MakeReadOnly();
  const fs::path own = folder_.Home() / "user";
  const GameRun killed = PlayAndKill();
  EXPECT_EQ(killed.exitCode, 0) << killed.errors;
  EXPECT_THAT(killed.states, SizeIs(1));
  EXPECT_THAT(FilesIn(own), IsSupersetOf({"data/gfx/brik.bmp", "data/Snd/collect.wav"}));
  EXPECT_EQ(FilesIn(Data()), shipped_);

  EXPECT_EQ(PlayAndExit().exitCode, 0);
  EXPECT_EQ(FilesIn(own), std::set<std::string>{"coilrun.ini"});
}

TEST_F(ContentTest, AGameBesideAnotherPlaysTheSameFromAFolderOfItsOwn) {
  const GameRun alone = PlayAndKill();
  const std::set<std::string> others = FilesIn(Data());
  const fs::path own = folder_.Home() / "user";
  std::optional<FolderClaim> program(Data());
  std::optional<FolderClaim> user(own / "data");
  EXPECT_TRUE(program->IsHeld() && user->IsHeld());
  const GameRun beside = PlayAndKill();
  EXPECT_EQ(beside.exitCode, 0) << beside.errors;
  EXPECT_EQ(beside.states, alone.states);
  EXPECT_EQ(PlayAndExit().exitCode, 0);
  EXPECT_EQ(FilesIn(Data()), others) << "the other game's are all there";
  EXPECT_EQ(FilesIn(own), std::set<std::string>{"coilrun.ini"});

  program.reset();
  user.reset();
  PlayAndExit();
  EXPECT_EQ(FilesIn(Data()), shipped_);
}

TEST_F(ContentTest, AHostilePackHarmsNothingAndIsNamed) {
  const std::vector<RarSource> entries = {
      {"../lvl/evil.dat", false, 0, BytesOf("x")},
      {"/evil.bmp", false, 0, BytesOf("x")},
      {"C:\\evil.bmp", false, 0, BytesOf("x")},
      {"bad\\..\\..\\evil.bmp", false, 0, BytesOf("x")},
      {"bad/../../cleanup-evil.snc", false, 0, BytesOf("/etc/hostname\r\n")},
      {"bad/evil\n.bmp", false, 0, BytesOf("x")},
      {"boa/head_left.bmp", false, 0, BytesOf("evil")},
      {"bad/head_left.bmp", false, 0, BytesOf("BM and no more")},
      {"bad/model.ini", false, 0, BytesOf("NAME=Bad\r\nEDGES=0\r\n")}};
  WriteFile(Data() / "models" / "bad.smp", WriteRar(entries, "").value());
  WriteFile(Data() / "models" / "broken.smp", BytesOf("no archive"));
  shipped_ = FilesIn(Data());
  const std::set<std::string> before = FilesIn(folder_.Home());

  const GameRun run = PlayAndKill();
  ASSERT_THAT(run.states, SizeIs(1)) << run.errors;
  const json& packs = run.states[0]["ModelPacks"];
  ASSERT_THAT(packs, SizeIs(4));
  EXPECT_EQ(packs[0]["Name"], "Bad");
  EXPECT_EQ(packs[0]["Edges"], false);
  EXPECT_EQ(packs[1]["Name"], "Emerald Boa");
  EXPECT_EQ(packs[2]["Name"], "broken");
  EXPECT_THAT(run.states[0]["Console"], AllOf(Contains(HasSubstr("bad.smp: 7 files")),
                                              Contains(HasSubstr("broken.smp is no archive"))));
  EXPECT_THAT(Without(FilesIn(folder_.Home()), before), Each(Not(HasSubstr("evil"))));
  EXPECT_THAT(ReadFile(Data() / "gfx" / "boa" / "head_left.bmp"), Not(HasSubstr("evil")));
  EXPECT_THAT(Unpacked(), Contains("gfx/bad/model.ini"));

  PlayAndExit();
  EXPECT_THAT(Unpacked(), IsEmpty());
}

using Colour = std::array<std::uint8_t, 3>;
constexpr Colour kRed{200, 10, 10};
constexpr Colour kGrey{131, 131, 131};
constexpr Colour kNearBlack{5, 5, 5};

void PutNumber(Bytes& file, std::uint32_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) file.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

/// A bitmap of 20 x 20 pixels: five columns red, five grey, ten near black.
Bytes StripedBitmap() {
  Bytes file = BytesOf("BM");
  for (const std::uint32_t number : {54U + 1200U, 0U, 54U, 40U, 20U, 20U})
    PutNumber(file, number, 4);
  for (const std::uint32_t number : {1U, 24U}) PutNumber(file, number, 2);
  for (const std::uint32_t number : {0U, 1200U, 0U, 0U, 0U, 0U}) PutNumber(file, number, 4);
  for (int pixel = 0; pixel < 400; ++pixel) {
    const int column = pixel % 20;
    const Colour& colour = column < 5 ? kRed : column < 10 ? kGrey : kNearBlack;
    file.insert(file.end(), colour.rbegin(), colour.rend());
  }
  return file;
}

/// Pixels in a row of a picture file, from `x` on and five apart.
std::array<Colour, 3> PixelsOf(const fs::path& file, int x, int y) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&image, file.c_str()) == 0) return {};
  image.format = PNG_FORMAT_RGB;
  Bytes pixels(PNG_IMAGE_SIZE(image));
  png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
  std::array<Colour, 3> colours{};
  std::size_t at = (static_cast<std::size_t>(y) * image.width + static_cast<std::size_t>(x)) * 3;
  for (Colour& colour : colours) {
    std::copy_n(pixels.begin() + static_cast<std::ptrdiff_t>(at), colour.size(), colour.begin());
    at += std::size_t{5} * 3;
  }
  return colours;
}

TEST_F(ContentTest, ALevelBringsUserItemsThatReloadWithTheirOwnKey) {
  std::vector<RarSource> entries = {{"still.bmp", false, 0, StripedBitmap()},
                                    {"../evil.bmp", false, 0, BytesOf("x")}};
  for (int n = 1; n <= 45; ++n) {
    entries.push_back({"moving/" + std::to_string(n) + ".bmp", false, 0, StripedBitmap()});
  }
  fs::create_directory(Data() / "sub");
  WriteFile(Data() / "sub" / "own.snr", WriteRar(entries, "sn80463").value());
  WriteFile(Data() / "lvl" / "lvl9.dat",
            BytesOf("\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n   a   b .\r\nRequires= sub/own.snr\r\n"
                    "let:a wall\r\nset:a still.bmp\r\nlet:b ani_wall_no_tnt\r\nset:b moving\r\n"
                    "numYellow=1\r\nreqYellow=9\r\n"));
  shipped_ = FilesIn(Data());
  auto script = ScriptText().At(500, "tap 59").At(700, "shot first.png").At(800, "focus lost");
  script.At(900, "focus gained").At(1000, "tap 197").At(1400, "state").At(1400, "shot again.png");
  const GameRun run = Play(script.At(1400, "end"), {"/L=lvl9.dat"});
  ASSERT_THAT(run.states, SizeIs(1)) << run.errors;
  EXPECT_EQ(run.states[0]["UserItems"][1]["Name"], "moving");
  EXPECT_THAT(ListedFiles(Data()), IsSupersetOf({"gfx/still.bmp", "gfx/moving/45.bmp"}));
  EXPECT_THAT(FilesIn(folder_.Home()), Not(Contains("data/evil.bmp")));

  for (const char* const shot : {"first.png", "again.png"}) {
    const auto still = PixelsOf(folder_.Home() / shot, 82, 185);
    EXPECT_EQ(still[0], kRed) << shot;
    EXPECT_EQ(still[1], kGrey) << shot;
    EXPECT_NE(still[2], kNearBlack) << shot;
  }
  // Preloading makes black its key, as for all pictures; drawing asks for the grey key of
  // animations.
  const auto preloaded = PixelsOf(folder_.Home() / "first.png", 142, 185);
  EXPECT_EQ(preloaded[1], kGrey);
  EXPECT_NE(preloaded[2], kNearBlack);
  const auto drawn = PixelsOf(folder_.Home() / "again.png", 142, 185);
  EXPECT_EQ(drawn[0], kRed);
  EXPECT_NE(drawn[1], kGrey);
  EXPECT_EQ(drawn[2], kNearBlack);

  PlayAndExit();
  EXPECT_EQ(FilesIn(Data()), shipped_);
}

}  // namespace
}  // namespace coilrun
