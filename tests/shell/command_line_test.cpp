#include "shell/command_line.h"

#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ports/terminate.h"
#include "shell/memory_settings.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitSwitches, CutsBeforeTheBlankThatPrecedesASlash) {
  EXPECT_THAT(SplitSwitches(""), IsEmpty());
  EXPECT_THAT(SplitSwitches("/DM /H /Limit=1"), ElementsAre("/DM", "/H", "/Limit=1"));
  EXPECT_THAT(SplitSwitches("xyz /Debug"), ElementsAre("xyz", "/Debug"));
  EXPECT_THAT(SplitSwitches("/L=my level.dat /DM "), ElementsAre("/L=my level.dat", "/DM "));
  EXPECT_THAT(SplitSwitches("/DM/H"), ElementsAre("/D", "/H"))
      << "the character before a slash is taken for a blank";
}

class OneLevel final : public Files {
 public:
  bool Exists(const std::string& path) const override { return path == ".\\lvl\\lvl3.dat"; }
  std::optional<Bytes> Read(const std::string&) const override { return std::nullopt; }
  std::optional<std::vector<std::string>> List(const std::string&,
                                               std::string_view) const override {
    return std::nullopt;
  }
  bool Write(const std::string&, std::span<const std::uint8_t>) override { return false; }
  bool MakeFolder(const std::string&) override { return false; }
  bool Delete(const std::string&) override { return false; }
  std::string FullName(const std::string& path) const override { return path; }
};

class LoudBox final : public MessageBox {
 public:
  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons) override {
    shown = title + "|" + text;
    return BoxAnswer::kOk;
  }
  std::string shown;
};

struct Switches {
  State state;
  OneLevel files;
  LoudBox box;
  MemorySettings settings;

  const State& Run(std::string_view commandLine) {
    CommandLine commands(state, files, box, settings);
    for (const std::string& arg : SplitSwitches(commandLine)) commands.SetCommand(arg);
    return state;
  }
};

struct SwitchCase {
  const char* commandLine;
  std::function<bool(const State&)> holds;
};

TEST(CommandLine, SwitchesSetTheMode) {
  const SwitchCase cases[] = {
      {"/DM /H /Limit=1",
       [](const State& s) {
         return s.mode.GameMode == GameMode::kDeathmatch && s.mode.HuntingMode &&
                s.mode.MatchLimit == 30;
       }},
      {"/Limit=1 /H", [](const State& s) { return s.mode.MatchLimit == 120; }},
      {"/Limit=7", [](const State& s) { return s.mode.MatchLimit == 7; }},
      {"/Limit=40000", [](const State& s) { return s.mode.MatchLimit == 0; }},
      {"/H2", [](const State& s) { return !s.mode.HuntingMode; }},
      {"/dm", [](const State& s) { return s.mode.GameMode == GameMode::kSingle; }},
      {"/AIS=3",
       [](const State& s) {
         return s.mode.NumSnakes == 4 && s.mode.AiEnabled && s.mode.AiCount == 3;
       }},
      {"/AIS=99", [](const State& s) { return s.mode.NumSnakes == 16 && s.mode.AiCount == 99; }},
      {"/AIS=-2",
       [](const State& s) {
         return s.mode.NumSnakes == 1 && !s.mode.AiEnabled && s.mode.AiSwitchGiven;
       }},
      {"/KM=DE", [](const State& s) { return s.mode.KeyboardLayout == "DE"; }},
      {"/KM=FR", [](const State& s) { return s.mode.KeyboardLayout == "US"; }},
      {"/L=lvl3.dat /Debug",
       [](const State& s) {
         return s.mode.StartLevelPath == ".\\lvl\\lvl3.dat" && s.shell.DebugMode;
       }},
      {"/L=",
       [](const State& s) { return s.mode.LevelSwitchGiven && s.mode.StartLevelPath.empty(); }},
      {"/NoClean=TRUE", [](const State& s) { return s.settings.NoCleanUp; }},
      {"/NoClean=perhaps", [](const State& s) { return !s.settings.NoCleanUp; }},
      {"xyz /Debug", [](const State& s) { return s.shell.DebugMode; }},
  };
  for (const SwitchCase& given : cases) {
    Switches switches;
    EXPECT_TRUE(given.holds(switches.Run(given.commandLine))) << given.commandLine;
  }
}

TEST(CommandLine, StoresNoCleanAtOnce) {
  Switches switches;
  switches.Run("/NoClean=1");
  EXPECT_EQ(switches.settings.Get("Options", "NoCleanUp"), "True");
  EXPECT_EQ(switches.settings.saves, 1);
}

TEST(CommandLine, AMissingStartLevelEndsTheProgram) {
  Switches switches;
  EXPECT_THROW(switches.Run("/L=lvl9.dat"), Terminate);
  EXPECT_EQ(switches.box.shown,
            "SetCommand_LoadLevel: Level does not exist!|Level lvl9.dat does not exist!");
}

}  // namespace
}  // namespace coilrun
