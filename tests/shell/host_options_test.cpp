#include "shell/host_options.h"

#include <gtest/gtest.h>

namespace coilrun {
namespace {

using Arguments = std::vector<std::string>;

TEST(HostOptions, AreTakenOutOfTheCommandLine) {
  const auto parsed =
      ParseHostOptions({"/DM", "--headless", "/L=my", "level.dat", "--fps", "60", "--seed", "7",
                        "--user", "/tmp/u", "--rivals", "classic,master", "/H"});
  const auto* options = std::get_if<HostOptions>(&parsed);
  ASSERT_NE(options, nullptr);
  EXPECT_TRUE(options->headless);
  EXPECT_EQ(options->fps, 60);
  EXPECT_EQ(options->seed, 7U);
  EXPECT_EQ(options->user, "/tmp/u");
  EXPECT_EQ(RivalText(*options->rivals), "classic,master");
  EXPECT_EQ(options->commandLine, "/DM /L=my level.dat /H");
}

TEST(HostOptions, WrongOnesAreRefusedByName) {
  const Arguments wrong[] = {{"--headles"},
                             {"--data"},
                             {"--headless", "--fps", "0"},
                             {"--fps", "1001"},
                             {"--fps", "12x"},
                             {"--seed", "-1"},
                             {"--script", "a"},
                             {"--data", ""},
                             {"--headless", "--trace"},
                             {"--rivals", "classic,"},
                             {"--rivals", "Clever"},
                             {"--headless", "--watch"}};
  for (const Arguments& arguments : wrong) {
    const auto parsed = ParseHostOptions(arguments);
    const auto* fault = std::get_if<std::string>(&parsed);
    ASSERT_NE(fault, nullptr) << arguments.front();
    EXPECT_NE(fault->find("--"), std::string::npos) << *fault;
  }
}

}  // namespace
}  // namespace coilrun
