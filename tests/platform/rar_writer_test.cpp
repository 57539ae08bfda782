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

// The tests of coilpack prove that other programs and we can read what is written.

TEST(RarWriter, HidesContentsAlikeButNoTwoEntriesWithTheSameVector) {
  std::vector<RarSource> sources = {{.name = "gfx", .folder = true, .contents = {}},
                                    {.name = "gfx/a.bmp", .contents = Bytes(1000, 'a')},
                                    {.name = "gfx/same.bmp", .contents = Bytes(1000, 'a')},
                                    {.name = "gfx/empty.txt", .contents = {}},
                                    {.name = "b.bmp", .contents = {1, 2, 3}}};
  const Bytes archive = WriteRar(sources, "sn80463").value();
  EXPECT_EQ(WriteRar(sources, "sn80463"), archive);
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
  EXPECT_THAT(vectors, SizeIs(3));
  EXPECT_THAT(salts, SizeIs(1)) << "each costs the reader a new key";

  sources[1].contents[0] ^= 1;
  const RarReader changed(WriteRar(sources, "sn80463").value(), "sn80463");
  EXPECT_NE(changed.Entries()[1].packed.encryption5->recipe.salt, *salts.begin());
}

}  // namespace
}  // namespace coilrun
