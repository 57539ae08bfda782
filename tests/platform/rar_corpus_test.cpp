#include <filesystem>

#include <gtest/gtest.h>

#include "../../fuzz/rar_input.h"
#include "support.h"

namespace coilrun {
namespace {

TEST(RarCorpus, IsSurvived) {
  int archives = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(COILRUN_SOURCE_DIR "/fuzz/corpus/rar")) {
    const Bytes bytes = ToBytes(Contents(entry.path()));
    EXPECT_TRUE(fuzz::SurvivesAsArchive(bytes)) << entry.path();
    ++archives;
  }
  EXPECT_GE(archives, 10) << "the corpus is there";
}

}  // namespace
}  // namespace coilrun
