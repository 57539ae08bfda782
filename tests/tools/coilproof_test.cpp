#include <gmock/gmock.h>

#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;

TEST(Coilproof, CompletesLevelsByKeysAlone) {
  const Workshop shop;
  const std::string proof = COILRUN_BUILD_DIR "/tools/coilproof --data " COILRUN_BUILD_DIR "/game ";
  const auto outcome = shop.Run(proof + "--seeds 1 lvl1.dat lvl9.dat lvl24.dat");
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  for (const char* const level : {"lvl1.dat", "lvl9.dat", "lvl24.dat"}) {
    EXPECT_THAT(outcome.output, HasSubstr(std::string{"| "} + level + " | 1 of "));
  }
  EXPECT_EQ(shop.Run(proof + "--seeds none").code, 2);
}

}  // namespace
}  // namespace coilrun
