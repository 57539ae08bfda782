#include "platform/ini_settings.h"

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "platform/support.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

class IniSettingsTest : public testing::Test {
 protected:
  IniSettings Open() {
    return {file_, defaults_, [this](const std::string& line) { reports_.push_back(line); }};
  }

  TestFolders folders_;
  std::filesystem::path defaults_ = folders_.Program() / "defaults.ini";
  std::filesystem::path file_ = folders_.User() / "coilrun" / "coilrun.ini";
  std::vector<std::string> reports_;
};

TEST_F(IniSettingsTest, EveryTextComesBackAsItWasSet) {
  const std::vector<std::string> texts = {"",    " ",    " a",          "a ",  "\"a\"",
                                          "\"",  "\"\"", "a=b",         ";a",  "# a;b",
                                          "[a]", "<<<",  "K\xE4se\x80", "\\n", "'a'"};
  {
    IniSettings settings = Open();
    for (std::size_t i = 0; i < texts.size(); ++i)
      settings.Set("Texts", "Key" + std::to_string(i), texts[i]);
    settings.Set("Texts", "Controls", "a\nb\tc");
    EXPECT_TRUE(settings.Save());
  }
  const IniSettings settings = Open();
  for (std::size_t i = 0; i < texts.size(); ++i)
    EXPECT_THAT(settings.Get("texts", "key" + std::to_string(i)), Optional(texts[i]));
  EXPECT_THAT(settings.Get("Texts", "Controls"), Optional(std::string("a b c")));
  EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(IniSettingsTest, ShippedDefaultsLieUnderThePlayersOwn) {
  Put(defaults_, "[Tweak]\nMinSpeed = 150\nMaxSpeed = 30\n");
  Put(file_, "[tweak]\nmaxspeed=44\n");
  IniSettings settings = Open();
  EXPECT_THAT(settings.Get("Tweak", "MinSpeed"), Optional(std::string("150")));
  EXPECT_THAT(settings.Get("Tweak", "MaxSpeed"), Optional(std::string("44")));
  EXPECT_EQ(settings.Get("Tweak", "Speed"), std::nullopt);
  EXPECT_TRUE(settings.Save());
  EXPECT_THAT(Contents(file_), testing::Not(HasSubstr("150")));
}

TEST_F(IniSettingsTest, WhatTheGameDoesNotKnowSurvivesASaveAndALinkStaysALink) {
  const auto dotfile = folders_.Outside() / "dotfiles.ini";
  Put(dotfile,
      "\xEF\xBB\xBF; mine\r\n\r\n[Other]\r\nColour=gr\xC3\xBCn\r\n; hint\r\n[Options]\r\nX=1\r\n");
  std::filesystem::create_directories(file_.parent_path());
  std::filesystem::create_symlink(dotfile, file_);
  IniSettings settings = Open();
  settings.Set("Options", "Show FPS", "True");
  EXPECT_TRUE(settings.Save());
  for (const char* const part : {"; mine", "[Other]", "Colour = gr\xC3\xBCn", "; hint", "X = 1"})
    EXPECT_THAT(Contents(dotfile), HasSubstr(part));
  EXPECT_THAT(Contents(dotfile), HasSubstr("Show FPS = True"));
  EXPECT_TRUE(std::filesystem::is_symlink(file_));
  EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(IniSettingsTest, ADamagedFileIsSetAsideAndToldOnce) {
  const std::string damaged[] = {
      std::string("[Options]\nPlayer Name=A\0B\n", 26),
      "[Options]\nPlayer Name=\xE4\n",
      "[Options]\nPlayer Name=\xED\xA0\x80\n",
      "[Options]\nPlayer Name=\xC3",
      "[Options\nPlayer Name=A\n",
      "[Options]\nPlayer Na",
      "[Options]\nPlayer Name=A\rnn\n",
      std::string((1U << 20U) + 1, '\n'),
  };
  Put(defaults_, "[Options]\nPlayer Name=Default\n");
  int number = 0;
  for (const std::string& contents : damaged) {
    SCOPED_TRACE(++number);
    Put(file_, contents);
    reports_.clear();
    IniSettings settings = Open();
    const std::string aside =
        file_.string() + (number == 1 ? ".damaged" : ".damaged." + std::to_string(number));
    EXPECT_EQ(Contents(aside), contents);
    EXPECT_FALSE(std::filesystem::exists(file_));
    EXPECT_THAT(settings.Get("Options", "Player Name"), Optional(std::string("Default")));
    EXPECT_TRUE(settings.Save());
    EXPECT_THAT(reports_, ElementsAre(HasSubstr(aside)));
  }
}

TEST_F(IniSettingsTest, AFileThatCannotBeReadIsNeitherSetAsideNorOverwritten) {
  std::filesystem::create_directories(file_ / "a folder in its place");
  IniSettings settings = Open();
  settings.Set("Options", "X", "2");
  EXPECT_FALSE(settings.Save());
  EXPECT_TRUE(std::filesystem::is_directory(file_));
  EXPECT_FALSE(std::filesystem::exists(file_.string() + ".damaged"));
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("cannot be read")));
}

TEST_F(IniSettingsTest, AFileThatCannotBeOpenedStaysAsItIs) {
  std::filesystem::create_directories(file_.parent_path());
  std::filesystem::create_symlink(file_.filename(), file_);
  IniSettings settings = Open();
  settings.Set("Options", "X", "2");
  EXPECT_FALSE(settings.Save());
  EXPECT_TRUE(std::filesystem::is_symlink(file_)) << "a link that leads to itself";
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("no settings will be saved")));
}

TEST_F(IniSettingsTest, InstancesThatShareAFileKeepEachOthersChanges) {
  Put(file_, "[Options]\nVolume = 1\nName = A\nFPS = True\n");
  IniSettings first = Open();
  IniSettings second = Open();
  first.Set("Options", "Volume", "2");
  EXPECT_TRUE(first.Save());
  EXPECT_FALSE(first.Refresh()) << "its own change is no news";
  second.Set("Options", "Name", "B");
  EXPECT_TRUE(second.Save());
  // The way the game saves: every value, most of them as they were read.
  for (const auto& [key, value] : {std::pair{"Volume", "2"}, {"Name", "A"}, {"FPS", "False"}})
    first.Set("Options", key, value);
  EXPECT_TRUE(first.Save());
  EXPECT_EQ(Contents(file_), "[Options]\nVolume = 2\nName = B\nFPS = False\n");
  EXPECT_THAT(second.Get("Options", "Volume"), Optional(std::string("1")));
  EXPECT_TRUE(second.Refresh());
  EXPECT_THAT(second.Get("Options", "Volume"), Optional(std::string("2")));
}

TEST_F(IniSettingsTest, AValueThatIsOnlySaidInOtherWordsGivesWayToAnotherInstances) {
  // What is stored at first, what the other instance stores, what this one sets, what is found
  // then.
  using Row = std::tuple<const char*, const char*, const char*, const char*>;
  const auto rows = {Row{"", "77", "30", "77"},           Row{"V=030\n", "77", "30", "77"},
                     Row{"V=30\n", "77", "30", "77"},     Row{"V=030\n", "77", "55", "55"},
                     Row{"V=030\n", nullptr, "30", "30"}, Row{"", nullptr, "30", "30"}};
  for (const auto& [stored, theirs, own, found] : rows) {
    SCOPED_TRACE(testing::Message() << stored << " " << (theirs ? theirs : "-") << " " << own);
    Put(file_, std::string("[Options]\n") + stored);
    IniSettings settings = Open();
    settings.TakeAsRead("Options", "V", "30");
    if (theirs) Put(file_, std::string("[Options]\nV=") + theirs + "\n");
    // The second time, nothing is left to change.
    for (int time = 0; time < 2; ++time) {
      settings.Set("Options", "V", own);
      EXPECT_TRUE(settings.Save());
      EXPECT_THAT(Open().Get("Options", "V"), Optional(std::string(found)));
    }
  }
}

TEST_F(IniSettingsTest, WhatASaveFindsOnDiskIsStillNewsAndAVanishedFileIsWrittenWhole) {
  Put(file_, "[Options]\nA = 1\nB = 1\n");
  IniSettings settings = Open();
  Put(file_, "[Options]\nA = 1\nB = 2\n");
  settings.Set("Options", "A", "2");
  settings.Set("Options", "B", "1");
  EXPECT_TRUE(settings.Save());
  EXPECT_TRUE(settings.Refresh());
  EXPECT_THAT(settings.Get("Options", "B"), Optional(std::string("2")));
  EXPECT_FALSE(settings.Refresh());

  std::filesystem::remove(file_);
  for (const char* const key : {"A", "B"}) settings.Set("Options", key, "2");
  EXPECT_TRUE(settings.Save());
  EXPECT_EQ(Contents(file_), "[Options]\nA = 2\nB = 2\n");
}

TEST_F(IniSettingsTest, ASaveKeepsThePermissions) {
  Put(file_, "[Options]\nX = 1\n");
  using std::filesystem::perms;
  std::filesystem::permissions(file_, perms::owner_read | perms::owner_write);
  IniSettings settings = Open();
  settings.Set("Options", "X", "2");
  EXPECT_TRUE(settings.Save());
  EXPECT_EQ(std::filesystem::status(file_).permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(IniSettingsTest, WhatLiesInTheWayOfTheTemporaryFileIsTold) {
  const std::filesystem::path temporary = file_.string() + ".new";
  for (const bool pipe : {true, false}) {
    Put(file_, "[Options]\nX = 1\n");
    const bool made =
        pipe ? mkfifo(temporary.c_str(), 0600) == 0 : std::filesystem::create_directory(temporary);
    ASSERT_TRUE(made);
    reports_.clear();
    IniSettings settings = Open();
    settings.Set("Options", "X", "2");
    EXPECT_FALSE(settings.Save());
    EXPECT_THAT(reports_, ElementsAre(HasSubstr("cannot be written to " + file_.string())));
    std::filesystem::remove(temporary);
  }
}

TEST_F(IniSettingsTest, ASaveDoesNotWaitForAGameThatHasStopped) {
  const std::filesystem::path temporary = file_.string() + ".new";
  Put(temporary, "");
  const int stopped = open(temporary.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(stopped, LOCK_EX), 0);
  IniSettings settings = Open();
  settings.Set("Options", "X", "2");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(settings.Save());
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("cannot be written")));
  close(stopped);
  EXPECT_TRUE(settings.Save());
}

TEST_F(IniSettingsTest, AStoreThatCannotBeWrittenIsToldOnceAndStaysWhole) {
  // A damaged one cannot be set aside either.
  for (const std::string contents : {"[Options]\nX = 1\n", "prose"}) {
    Put(file_, contents);
    reports_.clear();
    const ReadOnlyFolder folder(file_.parent_path());
    IniSettings settings = Open();
    settings.Set("Options", "X", "2");
    EXPECT_FALSE(settings.Save());
    EXPECT_FALSE(settings.Save());
    EXPECT_THAT(reports_, ElementsAre(HasSubstr(file_.string())));
    EXPECT_EQ(Contents(file_), contents);
  }
}

constexpr int kRounds = 220;
constexpr int kKeys = 200;

/// Saves stores without end, each with one number in all its keys. Tells when it begins.
[[noreturn]] void SaveForever(IniSettings settings, int number, int tell) {
  if (write(tell, "!", 1) != 1) _exit(1);
  while (true) {
    ++number;
    for (int key = 0; key < kKeys; ++key)
      settings.Set("Numbers", std::to_string(key), std::to_string(number));
    settings.Save();
  }
}

/// The number in all keys of the store; -1 when they differ or one is missing.
int NumberIn(const IniSettings& settings) {
  const auto first = settings.Get("Numbers", "0");
  for (int key = 1; key < kKeys; ++key)
    if (settings.Get("Numbers", std::to_string(key)) != first) return -1;
  return first ? std::stoi(*first) : 0;
}

TEST_F(IniSettingsTest, AfterEveryKillDuringSavesTheOldOrTheNewStoreIsThereWhole) {
  std::minstd_rand random(1);
  std::uniform_int_distribution<int> micros(0, 8'000);
  int number = 0;
  int roundsWithProgress = 0;
  for (int round = 0; round < kRounds; ++round) {
    std::array<int, 2> channel{};
    ASSERT_EQ(pipe(channel.data()), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(Open(), number, channel[1]);
    char begun = 0;
    ASSERT_EQ(read(channel[0], &begun, 1), 1);
    std::this_thread::sleep_for(std::chrono::microseconds(micros(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (const int end : channel) close(end);
    const int found = NumberIn(Open());
    ASSERT_GE(found, number) << "round " << round;
    if (found > number) ++roundsWithProgress;
    number = found;
  }
  EXPECT_GT(roundsWithProgress, 0);
  EXPECT_THAT(reports_, IsEmpty());
}

}  // namespace
}  // namespace coilrun
