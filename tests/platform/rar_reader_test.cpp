#include "platform/rar/rar_reader.h"

#include <cstdlib>

#include <gmock/gmock.h>

#include "rar_builder.h"
#include "rar_streams.h"
#include "support.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::string TextOf(const RarContents& contents) {
  if (!contents.Ok()) return "(" + contents.problem + ")";
  return {contents.bytes.begin(), contents.bytes.end()};
}

MadeEntry Compressed(int generation, const std::string& name, std::string text,
                     Repeat repeat = {}) {
  MadeEntry entry{.name = name};
  entry.packed = generation == 5 ? CompressRar5(text, repeat) : CompressRar4(text, repeat);
  for (int i = 0; i < repeat.length; ++i)
    text.push_back(text[text.size() - static_cast<std::size_t>(repeat.distance)]);
  entry.contents = text;
  return entry;
}

/// Stored, compressed and folder entries under one lock.
MadeArchive Sample(int generation, Locked locked) {
  const std::string separator = generation == 5 ? "/" : "\\";
  MadeArchive archive{.generation = generation, .locked = locked};
  archive.entries = {{.name = "gfx", .folder = true},
                     {.name = "gfx" + separator + "stored.bmp", .contents = "seventeen letters"},
                     Compressed(generation, "gfx" + separator + "packed.bmp",
                                "around and around it goes", {5, 16}),
                     {.name = "empty.txt"}};
  return archive;
}

struct Kind {
  int generation;
  Locked locked;
  const char* name;
};

void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.name;
}

class RarKinds : public ::testing::TestWithParam<Kind> {};

class KindsForUnar : public RarKinds {};

constexpr Kind kOpen5{5, Locked::kNothing, "Open5"};
constexpr Kind kContents5{5, Locked::kContents, "Contents5"};
constexpr Kind kHeaders5{5, Locked::kHeadersToo, "Headers5"};
constexpr Kind kOpen4{4, Locked::kNothing, "Open4"};
constexpr Kind kContents4{4, Locked::kContents, "Contents4"};
constexpr Kind kHeaders4{4, Locked::kHeadersToo, "Headers4"};

INSTANTIATE_TEST_SUITE_P(All, RarKinds,
                         ::testing::Values(kOpen5, kContents5, kHeaders5, kOpen4, kContents4,
                                           kHeaders4),
                         [](const auto& kind) { return kind.param.name; });

// unar of Debian 12 decrypts no archive of generation 4 at all; the keys of those are held against
// values known from elsewhere.
INSTANTIATE_TEST_SUITE_P(All, KindsForUnar,
                         ::testing::Values(kOpen5, kContents5, kHeaders5, kOpen4),
                         [](const auto& kind) { return kind.param.name; });

TEST_P(RarKinds, GiveNamesAndContents) {
  const MadeArchive archive = Sample(GetParam().generation, GetParam().locked);
  RarReader reader(archive.Write(), archive.password);

  EXPECT_EQ(reader.Fault(), "");
  ASSERT_THAT(reader.Entries(), SizeIs(archive.entries.size()));
  const std::vector<std::string> names = {"gfx", "gfx/stored.bmp", "gfx/packed.bmp", "empty.txt"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(reader.Entries()[i].name, names[i]);
    EXPECT_EQ(reader.Entries()[i].folder, i == 0);
    EXPECT_EQ(reader.Entries()[i].size, archive.entries[i].contents.size());
    EXPECT_EQ(TextOf(reader.Read(i)), archive.entries[i].contents);
  }
}

/// The archives that these tests are made of mean the same to a program that knows nothing of us.
TEST_P(KindsForUnar, AreReadAlike) {
  const MadeArchive archive = Sample(GetParam().generation, GetParam().locked);
  const Bytes bytes = archive.Write();
  const TestFolders folders;
  const auto file = folders.Path() / "sample.rar";
  Put(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});

  const std::string command = "unar -q -p " + archive.password + " -o '" +
                              folders.Outside().string() + "' '" + file.string() + "'";
  EXPECT_EQ(std::system(command.c_str()), 0) << command;

  const auto unpacked = folders.Outside() / "sample";
  EXPECT_EQ(Contents(unpacked / "gfx/stored.bmp"), archive.entries[1].contents);
  EXPECT_EQ(Contents(unpacked / "gfx/packed.bmp"), archive.entries[2].contents);
}

TEST_P(RarKinds, ToldWhyAPasswordDoesNotFit) {
  const MadeArchive archive = Sample(GetParam().generation, GetParam().locked);
  const Bytes bytes = archive.Write();
  RarReader none(bytes, "");
  RarReader wrong(bytes, "sn80464");
  switch (GetParam().locked) {
    case Locked::kNothing:
      EXPECT_EQ(TextOf(wrong.Read(1)), archive.entries[1].contents);
      break;
    case Locked::kContents:
      EXPECT_EQ(TextOf(none.Read(1)), "(encrypted, and no password was given)");
      EXPECT_EQ(TextOf(none.Read(2)), "(encrypted, and no password was given)");
      EXPECT_THAT(TextOf(wrong.Read(1)), HasSubstr("wrong password"));
      EXPECT_THAT(TextOf(wrong.Read(2)), HasSubstr("wrong password"));
      break;
    case Locked::kHeadersToo:
      EXPECT_THAT(none.Entries(), IsEmpty());
      EXPECT_EQ(none.Fault(), "the archive is encrypted and needs a password");
      EXPECT_THAT(wrong.Entries(), IsEmpty());
      EXPECT_THAT(wrong.Fault(), HasSubstr("wrong password"));
      break;
  }
}

/// What a damaged archive still gives is what was put in, under the name it was put in with.
void ExpectNothingWrong(const MadeArchive& archive, const Bytes& damaged, const std::string& how) {
  RarReader reader(damaged, archive.password);
  for (std::size_t i = 0; i < reader.Entries().size(); ++i) {
    const RarContents contents = reader.Read(i);
    if (!contents.Ok()) continue;
    ASSERT_LT(i, archive.entries.size()) << how;
    std::string name = archive.entries[i].name;
    std::replace(name.begin(), name.end(), '\\', '/');
    ASSERT_EQ(reader.Entries()[i].name, name) << how;
    ASSERT_EQ(TextOf(contents), archive.entries[i].contents) << how;
  }
}

/// Keys of generation 4 cost tens of milliseconds each, so its locked archives are only sampled.
std::size_t Stride(const Kind& kind) {
  return kind.generation == 4 && kind.locked != Locked::kNothing ? 23 : 1;
}

TEST_P(RarKinds, NeverGiveWrongContentsWhenAByteIsWrong) {
  const MadeArchive archive = Sample(GetParam().generation, GetParam().locked);
  const Bytes whole = archive.Write();
  for (std::size_t at = 0; at < whole.size(); at += Stride(GetParam())) {
    for (const int change : {0x01, 0x80, 0xFF}) {
      Bytes damaged = whole;
      damaged[at] ^= static_cast<std::uint8_t>(change);
      ExpectNothingWrong(archive, damaged, "byte " + std::to_string(at));
    }
  }
}

TEST_P(RarKinds, NoticeACutAnywhere) {
  const MadeArchive archive = Sample(GetParam().generation, GetParam().locked);
  const Bytes whole = archive.Write();
  const std::size_t endBlock = GetParam().generation == 4 ? 32 : 1;
  for (std::size_t size = 0; size + endBlock < whole.size(); size += Stride(GetParam())) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    ExpectNothingWrong(archive, cut, "cut at " + std::to_string(size));
    RarReader reader(cut, archive.password);
    const bool complete =
        reader.Fault().empty() && reader.Entries().size() == archive.entries.size();
    EXPECT_FALSE(complete && GetParam().generation == 5) << "cut at " << size;
  }
}

TEST(RarReader, ReadsSolidEntriesInAnyOrder) {
  MadeArchive archive;
  archive.entries = {Compressed(5, "1.bmp", "0123456789abcdef"),
                     {.name = "between.bmp", .contents = "stored", .solid = true},
                     Compressed(5, "2.bmp", ""),
                     Compressed(5, "3.bmp", "xyz", {4, 5})};
  archive.entries[2].packed = CompressRar5("", {8, 16});
  archive.entries[2].contents = "01234567";
  archive.entries[2].solid = true;
  archive.entries[3].packed = CompressRar5("xyz", {4, 5});
  archive.entries[3].contents = "xyz67xy";
  archive.entries[3].solid = true;
  for (const Locked locked : {Locked::kNothing, Locked::kContents}) {
    archive.locked = locked;
    RarReader reader(archive.Write(), archive.password);
    for (const std::size_t i : {0U, 1U, 2U, 3U, 2U, 0U, 3U, 1U})
      EXPECT_EQ(TextOf(reader.Read(i)), archive.entries[i].contents) << i;
  }
}

TEST(RarReader, TellsWhichSolidEntriesAreLost) {
  MadeArchive archive;
  archive.entries = {Compressed(5, "1.bmp", "0123456789abcdef"), Compressed(5, "2.bmp", "x"),
                     Compressed(5, "3.bmp", "y")};
  archive.entries[1].solid = archive.entries[2].solid = true;
  archive.entries[1].claimedSize = kMaxEntrySize + 1;
  RarReader reader(archive.Write(), "");
  EXPECT_EQ(TextOf(reader.Read(0)), "0123456789abcdef");
  EXPECT_EQ(TextOf(reader.Read(1)), "(larger than 256 MiB)");
  EXPECT_EQ(TextOf(reader.Read(2)), "(depends on an earlier entry that cannot be read)");

  MadeArchive old{.generation = 4};
  old.entries = {Compressed(4, "1.bmp", "first"),
                 Compressed(4, "2.bmp", "second"),
                 {.name = "3.bmp", .contents = "stored", .solid = true}};
  old.entries[1].solid = true;
  RarReader oldReader(old.Write(), "");
  EXPECT_EQ(TextOf(oldReader.Read(0)), "first");
  EXPECT_THAT(TextOf(oldReader.Read(1)), HasSubstr("compressed together with earlier entries"));
  EXPECT_EQ(TextOf(oldReader.Read(2)), "stored");
}

TEST(RarReader, ChecksTheOtherSumOfGenerationFive) {
  MadeArchive archive;
  archive.entries = {{.name = "a", .contents = std::string(1500, 'a'), .blake = true}};
  for (const Locked locked : {Locked::kNothing, Locked::kContents}) {
    archive.locked = locked;
    Bytes bytes = archive.Write();
    EXPECT_TRUE(RarReader(bytes, archive.password).Read(0).Ok());
    bytes[bytes.size() - 600] ^= 1;
    EXPECT_EQ(RarReader(bytes, archive.password).Read(0).problem, "its contents are damaged");
  }
}

TEST(RarReader, NeedsNoCheckValueToTellAWrongPassword) {
  MadeArchive archive = Sample(5, Locked::kContents);
  archive.checkValue = false;
  const Bytes bytes = archive.Write();
  EXPECT_EQ(TextOf(RarReader(bytes, archive.password).Read(1)), archive.entries[1].contents);
  EXPECT_EQ(TextOf(RarReader(bytes, "other").Read(1)), "(wrong password or damaged contents)");
  EXPECT_EQ(TextOf(RarReader(bytes, "other").Read(2)), "(wrong password or damaged contents)");
}

struct Refusal {
  int generation;
  MadeEntry entry;
  std::string problem;
};

TEST(RarReader, RefusesWithAReason) {
  const std::uint64_t tooLarge = kMaxEntrySize + 1;
  const std::vector<Refusal> refusals = {
      {5, {.name = "../up.bmp", .contents = "x"}, "its name leads out of the folder"},
      {5, {.name = "gfx/../../up.bmp", .contents = "x"}, "its name leads out of the folder"},
      {5, {.name = "gfx\\..\\..\\up", .contents = "x"}, "its name leads out of the folder"},
      {5, {.name = "gfx/.. ./up", .contents = "x"}, "its name leads out of the folder"},
      {5, {.name = "..", .folder = true}, "its name leads out of the folder"},
      {5, {.name = "/etc/x", .contents = "x"}, "its name is absolute"},
      {5, {.name = "\\\\host\\share", .contents = "x"}, "its name is absolute"},
      {5, {.name = "C:\\x", .contents = "x"}, "its name is absolute"},
      {5, {.name = "gfx/c:x", .contents = "x"}, "its name is absolute"},
      {5, {.name = "line\nbreak", .contents = "x"}, "its name holds control characters"},
      {5,
       {.name = std::string("zero\0.bmp", 9), .contents = "x"},
       "its name holds control characters"},
      {5, {.name = "", .contents = "x"}, "it has no name"},
      {5, {.name = "l", .linkTo = "/etc/passwd"}, "a link, which is never unpacked"},
      {4, {.name = "l", .contents = "/etc", .linkTo = ""}, "a link, which is never unpacked"},
      {4, {.name = "..\\up.bmp", .contents = "x"}, "its name leads out of the folder"},
      {5, {.name = "a", .contents = "x", .claimedSize = tooLarge}, "larger than 256 MiB"},
      {4, {.name = "a", .contents = "x", .claimedSize = tooLarge}, "larger than 256 MiB"},
      {5, {.name = "a", .contents = "x", .claimedSize = 2}, "its sizes do not fit"},
      {4, {.name = "a", .contents = "x", .claimedSize = 0}, "its sizes do not fit"},
  };
  for (const Refusal& refusal : refusals) {
    MadeArchive archive{.generation = refusal.generation};
    archive.entries = {refusal.entry, {.name = "good.bmp", .contents = "good"}};
    RarReader reader(archive.Write(), "");
    ASSERT_THAT(reader.Entries(), SizeIs(2)) << refusal.entry.name;
    EXPECT_EQ(TextOf(reader.Read(0)), "(" + refusal.problem + ")") << refusal.entry.name;
    EXPECT_EQ(TextOf(reader.Read(1)), "good") << refusal.entry.name;
  }
}

TEST(RarReader, RefusesMoreThanAnArchiveMayHold) {
  MadeArchive archive;
  for (int i = 0; i < 5; ++i)
    archive.entries.push_back({.name = "a", .packed = Bytes(1), .claimedSize = kMaxEntrySize});
  const RarReader reader(archive.Write(), "");
  EXPECT_EQ(reader.Entries()[3].problem, "");
  EXPECT_EQ(reader.Entries()[4].problem, "the archive holds more than 1 GiB");
}

TEST(RarReader, RefusesContentsThatUnpackToAnotherSize) {
  for (const int generation : {4, 5}) {
    for (const std::uint64_t claimed : {9U, 11U, 3000U}) {
      MadeArchive archive{.generation = generation};
      archive.entries = {Compressed(generation, "a", "ten bytes.")};
      archive.entries[0].claimedSize = claimed;
      EXPECT_FALSE(RarReader(archive.Write(), "").Read(0).Ok()) << generation << ' ' << claimed;
    }
  }
}

TEST(RarReader, DecodesTwoPartNames) {
  struct Case {
    std::string stored;
    std::string name;
  };
  using namespace std::string_literals;
  const std::vector<Case> cases = {
      // All bytes copied from the narrow name, and one shifted under the high byte 3.
      {"snake\0\x00\xC0\x03"s, "snake"},
      {"ab\0\x03\x10\x61\xB1"s, "a\xCE\xB1"},
      {"ab\0\x04\x80\x2D\x4E"s, "\xE4\xB8\xAD"},
      {"d\\ab\0\x00\xC0\x02"s, "d/ab"},
      // A pair of surrogates, and half of one.
      {"x\0\x00\xA0\x3D\xD8\x0D\xDC"s, "\xF0\x9F\x90\x8D"},
      {"x\0\x00\x80\x3D\xD8"s, "\xEF\xBF\xBD"},
      // Cut off in the middle of a step.
      {"x\0\x00\x80\x41"s, "\0"s},
      {"caf\xE9"s, "caf\xC3\xA9"},
      {"caf\xC3\xA9"s, "caf\xC3\xA9"},
  };
  for (const Case& each : cases) {
    MadeArchive archive{.generation = 4};
    archive.entries = {{.name = each.stored, .contents = "x"}};
    const RarReader reader(archive.Write(), "");
    ASSERT_THAT(reader.Entries(), SizeIs(1));
    EXPECT_EQ(reader.Entries()[0].name, each.name);
  }
}

TEST(RarReader, KnowsWhatIsNoArchive) {
  for (const std::string text : {"", "Rar!", "Rar!\x1A\x07\x02", "PK\x03\x04"}) {
    EXPECT_FALSE(RarReader::Knows(ToBytes(text)));
    EXPECT_EQ(RarReader(ToBytes(text), "").Fault(), "not a RAR archive");
  }
}

}  // namespace
}  // namespace coilrun
