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
  /// What switches set, as text.
  std::string Mode() const {
    const ModeState& mode = state.mode;
    std::ostringstream text;
    text << Word(mode.GameMode) << (mode.HuntingMode ? " hunting " : "") << "to " << mode.MatchLimit
         << ", " << mode.NumSnakes << " snakes" << (mode.AiEnabled ? " with AI" : "");
    if (mode.AiSwitchGiven) text << " of " << mode.AiCount;
    text << ", keys " << mode.KeyboardLayout;
    if (mode.LevelSwitchGiven) text << ", level " << mode.StartLevelPath;
    if (state.shell.DebugMode) text << ", debug";
    if (state.settings.NoCleanUp) text << ", no clean-up";
    return text.str();
  }
};

TEST(CommandLine, SwitchesSetTheMode) {
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {
      {"/DM /H /Limit=1", "DM hunting to 30, 1 snakes, keys US"},
      {"/Limit=1 /H", " hunting to 120, 1 snakes, keys US"},
      {"/Limit=2", "to 2, 1 snakes, keys US"},
      {"/Limit=40000", "to 0, 1 snakes, keys US"},
      {"/H2 /dm", "to 0, 1 snakes, keys US"},
      {"/AIS=3", "to 0, 4 snakes with AI of 3, keys US"},
      {"/AIS=99", "to 0, 16 snakes with AI of 99, keys US"},
      {"/AIS=-2", "to 0, 1 snakes of 0, keys US"},
      {"/KM=DE", "to 0, 1 snakes, keys DE"},
      {"/KM=FR", "to 0, 1 snakes, keys US"},
      {"/L=lvl3.dat /Debug", "to 0, 1 snakes, keys US, level .\\lvl\\lvl3.dat, debug"},
      {"/L=", "to 0, 1 snakes, keys US, level "},
      {"/NoClean=TRUE", "to 0, 1 snakes, keys US, no clean-up"},
      {"/NoClean=perhaps", "to 0, 1 snakes, keys US"},
      {"xyz /Debug", "to 0, 1 snakes, keys US, debug"}};
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
