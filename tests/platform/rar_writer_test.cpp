#include "platform/rar/rar_writer.h"

#include <set>

#include <gmock/gmock.h>

#include "platform/rar/rar_reader.h"
#include "support.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

std::vector<RarSource> Sources() {
  return {{.name = "gfx", .folder = true, .mtime = 1'700'000'000, .contents = {}},
          {.name = "gfx/a.bmp", .folder = false, .mtime = 1, .contents = Bytes(1000, 'a')},
          {.name = "gfx/b.bmp", .folder = false, .mtime = 4'000'000'000, .contents = {1, 2, 3}},
          {.name = "gfx/same.bmp", .folder = false, .mtime = 1, .contents = Bytes(1000, 'a')},
          {.name = "gfx/empty.txt", .folder = false, .mtime = 0, .contents = {}},
          {.name = "\xC3\xBC/" + std::string(300, 'n'), .folder = false, .contents = {9}}};
}

TEST(RarWriter, WritesWhatTheReaderReads) {
  const auto sources = Sources();
  for (const std::string password : {"", "p\xC3\xA4ssw\xC3\xB6rd"}) {
    RarReader reader(WriteRar(sources, password), password);
    EXPECT_EQ(reader.Fault(), "");
    ASSERT_THAT(reader.Entries(), SizeIs(sources.size()));
    for (std::size_t i = 0; i < sources.size(); ++i) {
      EXPECT_EQ(reader.Entries()[i].name, sources[i].name);
      EXPECT_EQ(reader.Entries()[i].folder, sources[i].folder);
      EXPECT_EQ(reader.Entries()[i].mtime, sources[i].mtime);
      const RarContents contents = reader.Read(i);
      EXPECT_EQ(contents.problem, "");
      EXPECT_EQ(contents.bytes, sources[i].contents);
    }
  }
}

TEST(RarWriter, HidesContentsAlikeButNoTwoEntriesWithTheSameVector) {
  const Bytes archive = WriteRar(Sources(), "sn80463");
  EXPECT_EQ(WriteRar(Sources(), "sn80463"), archive);
  EXPECT_THAT(Text(archive), Not(HasSubstr("aaaa")));
  EXPECT_THAT(Text(archive), HasSubstr("gfx/a.bmp"));

  const RarReader reader(archive, "sn80463");
  std::set<AesBlock> vectors;
  std::set<RarSalt> salts;
  for (const RarEntry& entry : reader.Entries()) {
    if (!entry.packed.encryption5) continue;
    vectors.insert(entry.packed.encryption5->iv);
    salts.insert(entry.packed.encryption5->recipe.salt);
  }
  EXPECT_THAT(vectors, SizeIs(4));
  EXPECT_THAT(salts, SizeIs(1)) << "each costs the reader a new key";

  auto other = Sources();
  other[1].contents[0] ^= 1;
  const RarReader changed(WriteRar(other, "sn80463"), "sn80463");
  EXPECT_NE(changed.Entries()[1].packed.encryption5->recipe.salt, *salts.begin());
}

}  // namespace
}  // namespace coilrun
