#include "shell/command_line.h"

#include <sstream>

#include <gmock/gmock.h>

#include "ports/terminate.h"
#include "shell/memory_settings.h"
#include "support/fake_files.h"

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

class LoudBox final : public MessageBox {
 public:
  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons) override {
    shown = title + "|" + text;
    return BoxAnswer::kOk;
  }
  std::string shown;
};

struct Switches {
  Switches() { files.Put(".\\lvl\\lvl3.dat", ""); }

  State state;
  FakeFiles files;
  LoudBox box;
  MemorySettings settings;

  void Run(std::string_view commandLine) {
    CommandLine commands(state, files, box, settings);
    for (const std::string& arg : SplitSwitches(commandLine)) commands.SetCommand(arg);
  }
  /// What differs from a start without switches.
  std::string Mode() const {
    const ModeState& mode = state.mode;
    std::ostringstream text;
    text << Word(mode.GameMode) << (mode.HuntingMode ? " hunting" : "");
    if (mode.MatchLimit != 0) text << " to " << mode.MatchLimit;
    if (mode.AiSwitchGiven) text << "AI " << mode.AiCount << (mode.AiEnabled ? " on" : " off");
    if (mode.NumSnakes != 1) text << ", snakes " << mode.NumSnakes;
    if (mode.KeyboardLayout != KeyboardLayout::kUs) text << "keys " << mode.KeyboardLayout.Text();
    if (mode.LevelSwitchGiven) text << "level " << mode.StartLevelPath;
    text << (state.shell.DebugMode ? " debug" : "") << (state.settings.NoCleanUp ? " dirty" : "");
    return text.str();
  }
};

TEST(CommandLine, SwitchesSetTheMode) {
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"/DM /H /Limit=1", "DM hunting to 30"},
                      {"/Limit=1 /H", " hunting to 120"},
                      {"/Limit=2", " to 2"},
                      {"/Limit=40000", ""},
                      {"/H2 /dm", ""},
                      {"/AIS=3", "AI 3 on, snakes 4"},
                      {"/AIS=99", "AI 99 on, snakes 16"},
                      {"/AIS=-2", "AI 0 off"},
                      {"/KM=DE", "keys DE"},
                      {"/KM=FR", ""},
                      {"/L=lvl3.dat /Debug", "level .\\lvl\\lvl3.dat debug"},
                      {"/L=", ""},
                      {"/NoClean=TRUE", " dirty"},
                      {"/NoClean=perhaps", ""},
                      {"xyz /Debug", " debug"}};
  for (const auto& [commandLine, mode] : rows) {
    Switches switches;
    switches.Run(commandLine);
    EXPECT_EQ(switches.Mode(), mode) << commandLine;
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
