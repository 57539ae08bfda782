#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/ini_settings.h"
#include "platform/support.h"

namespace coilrun {
namespace {

constexpr int kRounds = 220;
constexpr int kKeys = 200;

std::string KeyName(int key) {
  return "Key" + std::to_string(key);
}

IniSettings Open(const std::filesystem::path& file) {
  return {file, "", [](const std::string& line) { ADD_FAILURE() << line; }};
}

/// Saves stores without end; each holds one number, in all its keys. Tells when it begins.
[[noreturn]] void SaveForever(const std::filesystem::path& file, int number, int tell) {
  IniSettings settings = Open(file);
  if (write(tell, "!", 1) != 1) _exit(1);
  while (true) {
    ++number;
    for (int key = 0; key < kKeys; ++key)
      settings.Set("Numbers", KeyName(key), std::to_string(number));
    settings.Save();
  }
}

/// The one number of the store; -1 when its keys differ or one is missing.
int NumberIn(const std::filesystem::path& file) {
  const IniSettings settings = Open(file);
  const auto first = settings.Get("Numbers", KeyName(0));
  for (int key = 1; key < kKeys; ++key)
    if (settings.Get("Numbers", KeyName(key)) != first) return -1;
  return first ? std::stoi(*first) : 0;
}

TEST(SettingsCrash, AfterEveryKillDuringSavesTheOldOrTheNewStoreIsThereWhole) {
  const TestFolders folders;
  const auto file = folders.User() / "coilrun.ini";
  std::minstd_rand random(1);
  std::uniform_int_distribution<int> micros(0, 8'000);
  int number = 0;
  int roundsWithProgress = 0;
  for (int round = 0; round < kRounds; ++round) {
    std::array<int, 2> channel{};
    ASSERT_EQ(pipe(channel.data()), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(file, number, channel[1]);
    char begun = 0;
    ASSERT_EQ(read(channel[0], &begun, 1), 1);
    std::this_thread::sleep_for(std::chrono::microseconds(micros(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (const int end : channel) close(end);
    const int found = NumberIn(file);
    ASSERT_GE(found, number) << "round " << round;
    if (found > number) ++roundsWithProgress;
    number = found;
  }
  EXPECT_GT(roundsWithProgress, 0);
}

}  // namespace
}  // namespace coilrun
