#include "platform/rar/rar_reader.h"

#include <charconv>

#include <gmock/gmock.h>

#include "platform/rar/entry_name.h"
#include "platform/rar/rar4_names.h"
#include "rar_builder.h"
#include "support/rar_headers.h"

namespace coilrun {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

std::string TextOf(const RarContents& contents) {
  return contents.Ok() ? Text(contents.bytes) : "(" + contents.problem + ")";
}

// What the committed archives of all kinds hold.
const std::vector<std::string> kNames = {"gfx", "gfx/stored", "packed"};
const std::vector<std::string> kContents = {"", "seventeen letters", "abcdefghijklmnopqmnopq"};

/// What can still be read from a damaged archive is what was put in, under the same name.
void ExpectNothingWrong(const Bytes& damaged, const std::string& how) {
  RarReader reader(damaged, kPassword);
  for (std::size_t i = 0; i < reader.Entries().size(); ++i) {
    const RarContents contents = reader.Read(i);
    if (!contents.Ok()) continue;
    ASSERT_LT(i, kNames.size()) << how;
    ASSERT_EQ(reader.Entries()[i].name, kNames[i]) << how;
    ASSERT_EQ(TextOf(contents), kContents[i]) << how;
  }
}

class RarKinds : public ::testing::TestWithParam<std::string> {
 protected:
  const bool new_ = GetParam().starts_with("new");
  const Bytes whole_ = CommittedArchive(GetParam());
  /// Keys of the old generation cost tens of milliseconds each, so its encrypted archives are only
  /// sampled.
  const std::size_t stride_ = new_ || GetParam() == "old_open" ? 1 : 23;
};

INSTANTIATE_TEST_SUITE_P(All, RarKinds, ::testing::ValuesIn(kArchiveKinds),
                         [](const auto& kind) { return kind.param; });

TEST_P(RarKinds, GiveNamesAndContents) {
  RarReader reader(whole_, kPassword);
  EXPECT_EQ(reader.Fault(), "");
  ASSERT_THAT(reader.Entries(), SizeIs(kNames.size()));
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    EXPECT_EQ(reader.Entries()[i].name, kNames[i]);
    EXPECT_EQ(reader.Entries()[i].folder, i == 0);
    EXPECT_EQ(reader.Entries()[i].size, kContents[i].size());
    EXPECT_EQ(TextOf(reader.Read(i)), kContents[i]);
  }
}

TEST_P(RarKinds, ToldWhyAPasswordDoesNotFit) {
  RarReader none(whole_, "");
  RarReader wrong(whole_, "sn80464");
  const std::string fault = new_ ? "wrong password" : "wrong password or a damaged header";
  const std::string problem = new_ ? "wrong password" : "wrong password or damaged contents";
  if (GetParam().ends_with("headers")) {
    EXPECT_THAT(none.Entries(), IsEmpty());
    EXPECT_EQ(none.Fault(), "the archive is encrypted and needs a password");
    EXPECT_THAT(wrong.Entries(), IsEmpty());
    EXPECT_EQ(wrong.Fault(), fault);
    return;
  }
  const bool open = GetParam().ends_with("open");
  for (const std::size_t i : {1U, 2U}) {
    const std::string refused = "(encrypted, and no password was given)";
    EXPECT_EQ(TextOf(none.Read(i)), open ? kContents[i] : refused);
    EXPECT_EQ(TextOf(wrong.Read(i)), open ? kContents[i] : "(" + problem + ")");
  }
}

TEST_P(RarKinds, NeverGiveWrongContentsWhenAByteIsWrong) {
  for (std::size_t at = 0; at < whole_.size(); at += stride_) {
    for (const int change : {0x01, 0x80, 0xFF}) {
      Bytes damaged = whole_;
      damaged[at] ^= static_cast<std::uint8_t>(change);
      ExpectNothingWrong(damaged, "byte " + std::to_string(at));
    }
  }
}

TEST_P(RarKinds, NoticeACutAnywhere) {
  for (std::size_t size = 0; size + 1 < whole_.size(); size += stride_) {
    const Bytes cut(whole_.begin(), whole_.begin() + static_cast<std::ptrdiff_t>(size));
    ExpectNothingWrong(cut, "cut at " + std::to_string(size));
    const RarReader reader(cut, kPassword);
    const bool complete = reader.Fault().empty() && reader.Entries().size() == kNames.size();
    EXPECT_FALSE(complete && new_) << "cut at " << size;
  }
}

/// A compressed entry: the first has 16 bytes, later ones repeat the next 8 from 16 bytes back.
MadeEntry Compressed(std::size_t place) {
  const Bytes archive = CommittedArchive("new_solid");
  const RarReader reader(archive, "");
  const RarPacked& packed = reader.Entries()[std::min<std::size_t>(place, 1)].packed;
  const auto begin = archive.begin() + static_cast<std::ptrdiff_t>(packed.offset);
  const char* const contents[] = {"0123456789abcdef", "01234567", "89abcdef"};
  return {.name = std::to_string(place),
          .contents = contents[place],
          .packed = Bytes(begin, begin + static_cast<std::ptrdiff_t>(packed.size)),
          .solid = place > 0};
}

TEST(RarReader, ReadsSolidEntriesInAnyOrder) {
  const MadeEntry between{.name = "between", .contents = "stored", .solid = true};
  MadeArchive archive{.entries = {Compressed(0), between, Compressed(1), Compressed(2)}};
  for (const bool locked : {false, true}) {
    archive.locked = locked;
    RarReader reader(archive.Write(), kPassword);
    for (const std::size_t i : {0U, 1U, 2U, 3U, 2U, 0U, 3U, 1U})
      EXPECT_EQ(TextOf(reader.Read(i)), archive.entries[i].contents) << i;
  }
}

TEST(RarReader, TellsWhichSolidEntriesAreLost) {
  MadeArchive archive{.entries = {Compressed(0), Compressed(1), Compressed(2)}};
  archive.entries[1].claimedSize = kMaxEntrySize + 1;
  RarReader reader(archive.Write(), "");
  EXPECT_EQ(TextOf(reader.Read(0)), "0123456789abcdef");
  EXPECT_EQ(TextOf(reader.Read(1)), "(larger than 256 MiB)");
  EXPECT_EQ(TextOf(reader.Read(2)), "(depends on an earlier entry that cannot be read)");
}

Digest256 DigestOf(std::string_view hex) {
  Digest256 digest{};
  for (std::size_t i = 0; i < digest.size(); ++i)
    std::from_chars(&hex[2 * i], &hex[2 * i] + 2, digest[i], 16);
  return digest;
}

TEST(RarReader, ChecksTheOtherSumOfGenerationFive) {
  // The sums of this many letters "a", computed by another program.
  const std::pair<std::size_t, const char*> cases[] = {
      {0, "dd0e891776933f43c7d032b08a917e25741f8aa9a12c12e1cac8801500f2ca4f"},
      {512, "e5c78b5cd735530b80a1377388c29164a54192ed3b1a745bce45488d1188e9bc"},
      {513, "985dfa163dbd74d7a74a42f57144bb8dd99a0395c1953404a73c585c567b1037"},
      {1500, "98ada8fceb03083697321062537b6d71be6fbee4dcf85c95450e88a5c2bc8b64"},
  };
  for (const auto& [size, sum] : cases) {
    for (const bool locked : {false, true}) {
      MadeArchive archive{.entries = {{.name = "a", .contents = std::string(size, 'a')}},
                          .locked = locked};
      MadeEntry& entry = archive.entries.front();
      entry.blake = DigestOf(sum);
      EXPECT_EQ(TextOf(RarReader(archive.Write(), kPassword).Read(0)), entry.contents);
      entry.blake->back() ^= 1;
      const RarContents damaged = RarReader(archive.Write(), kPassword).Read(0);
      EXPECT_EQ(damaged.problem, "its contents are damaged") << size;
    }
  }
}

TEST(RarReader, NeedsNoCheckValueToTellAWrongPassword) {
  const MadeArchive archive{.entries = {Compressed(0), {.name = "stored", .contents = "x"}},
                            .locked = true,
                            .checkValue = false};
  RarReader right(archive.Write(), kPassword);
  RarReader wrong(archive.Write(), "other");
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_EQ(TextOf(right.Read(i)), archive.entries[i].contents);
    EXPECT_EQ(TextOf(wrong.Read(i)), "(wrong password or damaged contents)");
  }
}

TEST(RarNames, AreHarmlessOrHaveAProblem) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"", {"a.bmp", "gfx/..a/.b", "gfx\\...a", "ab:c", "1:c", "name of blanks "}},
      {"its name leads out of the folder", {"../a", "a/../../b", "a\\..\\..\\b", "a/.. ./b", ".."}},
      {"its name is absolute", {"/etc/x", "\\\\host\\share", "C:\\x", "gfx/c:x"}},
      {"its name holds control characters", {"line\nbreak", std::string("zero\0.bmp", 9)}},
      {"it has no name", {""}},
  };
  for (const auto& [problem, names] : cases)
    for (const std::string& name : names) EXPECT_EQ(NameProblem(name), problem) << name;
}

TEST(RarReader, RefusesWithAReason) {
  const std::vector<std::pair<MadeEntry, std::string>> refusals = {
      {{.name = "../up.bmp"}, "its name leads out of the folder"},
      {{.name = "..", .folder = true}, "its name leads out of the folder"},
      {{.name = std::string("zero\0.bmp", 9)}, "its name holds control characters"},
      {{.name = ""}, "it has no name"},
      {{.name = "l", .link = true}, "a link, which is never unpacked"},
      {{.name = "a", .claimedSize = kMaxEntrySize + 1}, "larger than 256 MiB"},
      {{.name = "a", .claimedSize = 1}, "its sizes do not fit"},
  };
  for (const auto& [entry, problem] : refusals) {
    const MadeArchive archive{.entries = {entry, {.name = "good.bmp", .contents = "good"}}};
    RarReader reader(archive.Write(), "");
    ASSERT_THAT(reader.Entries(), SizeIs(2)) << entry.name;
    EXPECT_EQ(TextOf(reader.Read(0)), "(" + problem + ")") << entry.name;
    EXPECT_EQ(TextOf(reader.Read(1)), "good") << entry.name;
  }
}

TEST(RarReader, RefusesMoreThanAnArchiveMayHold) {
  const MadeEntry large{.name = "a", .packed = Bytes(1), .claimedSize = kMaxEntrySize};
  const RarReader reader(MadeArchive{.entries = {5, large}}.Write(), "");
  EXPECT_EQ(reader.Entries()[3].problem, "");
  EXPECT_EQ(reader.Entries()[4].problem, "the archive holds more than 1 GiB");
}

TEST(RarReader, RefusesContentsThatUnpackToAnotherSize) {
  for (const std::uint64_t claimed : {15U, 17U, 3000U}) {
    MadeArchive archive{.entries = {Compressed(0)}};
    archive.entries[0].claimedSize = claimed;
    EXPECT_EQ(TextOf(RarReader(archive.Write(), "").Read(0)), "(its contents are damaged)")
        << claimed;
  }
}

/// Old headers hold numbers at these distances before the entry's name.
enum OldField : std::size_t {
  kFlags = 29,
  kSize = 21,
  kHost = 17,
  kVersion = 8,
  kMethod = 7,
  kAttributes = 4,
  kName = 0
};

/// A change to an old archive's header.
struct OldChange {
  const char* name;
  OldField field;
  std::uint32_t value;
  int bytes;
  std::string problem;
};

TEST(RarReader, RefusesInTheOldGenerationToo) {
  const std::vector<OldChange> changes = {
      {"gfx\\stored", kName, 0x5C2E2E, 3, "its name leads out of the folder"},
      {"gfx\\stored", kSize, kMaxEntrySize + 1, 4, "larger than 256 MiB"},
      {"gfx\\stored", kSize, 0, 4, "its sizes do not fit"},
      {"packed", kSize, 21, 4, "its contents are damaged"},
      {"packed", kSize, 23, 4, "its contents are damaged"},
      {"packed", kSize, 3000, 4, "its contents are damaged"},
      {"packed", kFlags, 0x8010, 2,
       "compressed together with earlier entries, which cannot be read in this generation"},
      {"packed", kFlags, 0x8001, 2, "continues in another volume"},
      {"packed", kVersion, 20, 1, "compressed by the old version 2.0 of the format"},
      {"packed", kMethod, 0x36, 1, "compressed in an unknown way"},
  };
  for (const OldChange& change : changes) {
    Bytes archive = CommittedArchive("old_open");
    const std::size_t at = Text(archive).find(change.name);
    PutNumber(archive, at - change.field, change.value, change.bytes);
    RepairHeaders4(archive);
    RarReader reader(archive, "");
    const std::size_t index = change.name == kNames[2] ? 2 : 1;
    ASSERT_THAT(reader.Entries(), SizeIs(3)) << change.problem;
    EXPECT_EQ(TextOf(reader.Read(index)), "(" + change.problem + ")") << change.value;
    EXPECT_EQ(TextOf(reader.Read(3 - index)), kContents[3 - index]) << change.value;
  }
  Bytes link = CommittedArchive("old_open");
  const std::size_t name = Text(link).find("packed");
  PutNumber(link, name - kHost, 3, 1);
  PutNumber(link, name - kAttributes, 0xA1FF, 4);
  RepairHeaders4(link);
  EXPECT_EQ(RarReader(link, "").Read(2).problem, "a link, which is never unpacked");
}

TEST(RarReader, DecodesTwoPartNames) {
  using namespace std::string_literals;
  const std::vector<std::pair<std::string, std::string>> cases = {
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
  for (const auto& [stored, name] : cases)
    EXPECT_EQ(DecodeRar4Name(ToBytes(stored), stored.find('\0') != stored.npos), name);

  const RarReader reader(CommittedArchive("old_names"), "");
  ASSERT_THAT(reader.Entries(), SizeIs(2));
  EXPECT_EQ(reader.Entries()[0].name, "a\xCE\xB1") << "the header says that the name has two parts";
}

TEST(RarReader, KnowsWhatIsNoArchive) {
  for (const std::string text : {"", "Rar!", "Rar!\x1A\x07\x02", "PK\x03\x04"}) {
    EXPECT_FALSE(RarReader::Knows(ToBytes(text)));
    EXPECT_EQ(RarReader(ToBytes(text), "").Fault(), "not a RAR archive");
  }
}

}  // namespace
}  // namespace coilrun
