#include "content/level_list.h"

#include <gmock/gmock.h>

#include "support/fake_files.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(LevelList, HasNumbersInNamesInOrder) {
  FakeFiles files;
  EXPECT_THAT(LevelFiles(files), IsEmpty());
  for (const char* name : {"lvl10", "lvl2", "lvl1", "a2b10", "A2b9", "lvl02x", "lvl"}) {
    files.Put(".\\lvl\\" + std::string{name} + ".dat", "");
  }
  EXPECT_THAT(LevelFiles(files), ElementsAre("a2b9.dat", "a2b10.dat", "lvl.dat", "lvl1.dat",
                                             "lvl2.dat", "lvl02x.dat", "lvl10.dat"));
}

TEST(LevelList, ReadsTheLimitThatSuitsALevel) {
  using Row = std::pair<std::string, std::optional<int>>;
  for (const auto& [level, limit] :
       {Row{"", {}}, Row{"MatchLimit=40", 40}, Row{"MatchLimit= 200 \r\nAIS=1", 200},
        Row{"MatchLimit=4", {}}, Row{"MatchLimit=201", {}}, Row{"MatchLimit=7.5", {}},
        Row{"matchlimit=40", {}}, Row{"MatchLimit=many", {}},
        Row{"MatchLimit=40\r\nMatchLimit=50\r\n", 50}}) {
    EXPECT_EQ(MatchLimitOf(level), limit) << level;
  }
}

TEST(LevelList, TellsOfALevelWithoutATraceOfIt) {
  FakeFiles files;
  files.Put(".\\lvl\\a.dat", "S 1 2 _ ;\r\nlvlName= Hall\r\nRequires=more.snr\r\nAIS=9\r\n");
  files.Put(".\\lvl\\broken.dat", "numYellow=99999999\r\n");
  const auto before = files.contents;
  const auto hall = OutlineOf(files, "a.dat");
  ASSERT_TRUE(hall);
  EXPECT_EQ(hall->title, "Hall");
  EXPECT_EQ(hall->starts, 3);
  EXPECT_FALSE(OutlineOf(files, "broken.dat"));
  EXPECT_FALSE(OutlineOf(files, "missing.dat"));
  EXPECT_EQ(files.contents, before);
}

}  // namespace
}  // namespace coilrun
