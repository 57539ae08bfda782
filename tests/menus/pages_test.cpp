#include <gmock/gmock.h>

#include "menus/match_page.h"
#include "ports/scan_codes.h"
#include "stage.h"

namespace coilrun {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::SizeIs;
using Keys = std::vector<int>;

constexpr int kUp = kKeyUp;
constexpr int kDown = kKeyDown;
constexpr int kLeft = kKeyLeft;
constexpr int kRight = kKeyRight;
constexpr int kEnter = kKeyEnter;
constexpr int kEscape = kKeyEscape;
constexpr int kTab = kKeyTab;
constexpr int kControlsEntry = 6;

struct PagesTest : testing::Test, MenuStage {
  void Open(MorePage page) {
    Press({kTab});
    if (page == MorePage::kMatch) Press({kEnter});
    if (page == MorePage::kControls) Press({kUp, kEnter});
  }
};

TEST_F(PagesTest, TabOpensAndClosesAndEscapeGoesBackToTheEntry) {
  struct Row {
    Keys keys;
    MorePage page;
    int cursor;
  };
  for (const auto& [keys, page, cursor] : {
           Row{{kTab}, MorePage::kMore, 1},
           Row{{kTab, kTab}, MorePage::kNone, 0},
           Row{{kTab, kUp}, MorePage::kMore, kControlsEntry},
           Row{{kTab, kUp, kDown, kDown}, MorePage::kMore, 2},
           Row{{kTab, kUp, kEnter, kEscape}, MorePage::kMore, kControlsEntry},
           Row{{kTab, kEnter, kDown, kEscape}, MorePage::kMore, 1},
           Row{{kTab, kEnter, kTab}, MorePage::kNone, 0},
           Row{{kTab, kEscape}, MorePage::kNone, 0},
           Row{{kTab, kRight, kLeft}, MorePage::kMore, 1},
           Row{{kDown, kEnter, kTab}, MorePage::kNone, 0},         // the options
           Row{{kDown, kDown, kEnter, kTab}, MorePage::kNone, 0},  // the scores
           Row{{kTab, kFirstPadCode + 1}, MorePage::kMore, 2},
       }) {
    MenuStage stage;
    for (const int key : keys) {
      stage.Press({key});
      stage.Pass();
    }
    EXPECT_EQ(stage.state.more.Page, page);
    EXPECT_EQ(stage.state.more.Cursor, cursor);
  }
}

TEST_F(PagesTest, ValuesChangeAtOnceAndAreStoredWhenThePageIsLeft) {
  state.more.Rivals.kinds = {RivalKind::kClassic, RivalKind::kMaster};
  Press({kTab, kDown, kLeft, kDown, kRight, kDown, kEnter, kDown, kLeft});
  EXPECT_EQ(RivalText(state.more.Rivals), "master");
  EXPECT_EQ(state.more.Turns, TurnsMode::kQueue);
  EXPECT_TRUE(state.more.Confirm);
  EXPECT_TRUE(state.more.AnyKey);
  EXPECT_EQ(menuHost.stored, 0);
  Press({kDown, kEnter});
  EXPECT_EQ(menuHost.stored, 1) << "the page of controls took its place";
  Press({kTab});
  EXPECT_EQ(menuHost.stored, 2);
}

TEST_F(PagesTest, MatchTakesOverWhatTheLevelGives) {
  struct Row {
    std::string what;
    Keys keys;
    MatchChoice match;
  };
  constexpr MatchMode kCampaign = MatchMode::kCampaign;
  constexpr MatchMode kDeathmatch = MatchMode::kDeathmatch;
  constexpr MatchMode kHunting = MatchMode::kHunting;
  for (const auto& [what, keys, match] : {
           Row{"the first level", {}, {kCampaign, "arena.dat", -1, 150}},
           Row{"numbers in order, one that does not load left out",
               {kDown, kRight},
               {kCampaign, "lvl2.dat", -1, 120}},
           Row{"the level's limit", {kDown, kRight, kEnter}, {kCampaign, "lvl10.dat", -1, 40}},
           Row{"levels wrap", {kDown, kLeft}, {kCampaign, "lvl10.dat", -1, 40}},
           Row{"length has an end", {kLeft}, {kHunting, "arena.dat", -1, 95}},
           Row{"modes wrap", {kRight, kRight, kRight}, {kCampaign, "arena.dat", -1, 150}},
           Row{"no more snakes than starts",
               {kDown, kDown, kRight, kRight, kRight, kRight},
               {kCampaign, "arena.dat", 2, 150}},
           Row{"cut to the level's",
               {kDown, kDown, kRight, kRight, kRight, kUp, kRight},
               {kCampaign, "lvl2.dat", 1, 120}},
           Row{"the level's own again",
               {kDown, kDown, kRight, kLeft, kLeft},
               {kCampaign, "arena.dat", -1, 150}},
           Row{"limits by fives",
               {kDown, kDown, kDown, kRight, kRight, kLeft},
               {kCampaign, "arena.dat", -1, 155}},
           Row{"a change of mode takes the mode's limit",
               {kDown, kRight, kUp, kRight, kRight},
               {kHunting, "lvl2.dat", -1, 30}},
           Row{"asked for once more",
               {kRight, kEscape, kEnter},
               {kDeathmatch, "arena.dat", -1, 150}},
       }) {
    MenuStage stage;
    ChooseFirstMatch(stage.state, stage.levels);
    stage.Press({kTab, kEnter});
    stage.Press(keys);
    const MatchChoice& shown = stage.state.more.Match;
    EXPECT_EQ(Word(shown.Mode), Word(match.Mode)) << what;
    EXPECT_EQ(shown.Level, match.Level) << what;
    EXPECT_EQ(shown.Computers, match.Computers) << what;
    EXPECT_EQ(shown.Limit, match.Limit) << what;
  }
}

TEST_F(PagesTest, TheLimitKeepsToItsEndsAndToTheCommandLine) {
  state.more.Asked = {GameMode::kDeathmatch, true, 7, {}};
  files.DeleteAll(std::vector<std::string>{".\\lvl\\arena.dat"});
  ChooseFirstMatch(state, levels);
  EXPECT_EQ(state.more.Match.Mode, MatchMode::kHunting);
  EXPECT_EQ(state.more.Match.Limit, 7);
  Open(MorePage::kMatch);
  Press({kUp, kUp, kLeft, kLeft});
  EXPECT_EQ(state.more.Match.Limit, 5);
  Press(Keys(30, kRight));
  EXPECT_EQ(state.more.Match.Limit, 95);
  Press({kDown, kDown, kLeft});
  EXPECT_EQ(state.more.Match.Limit, 120) << "that of deathmatches";
}

TEST_F(PagesTest, StartAsksForTheGameAndAskedOnceMoreWhenOneRuns) {
  ChooseFirstMatch(state, levels);
  state.more.Confirm = true;
  state.Snakes(1).Lives = 1;
  state.Snakes(1).TotalScore = 70;
  Open(MorePage::kMatch);
  Press({kLeft, kDown, kDown, kRight, kRight, kRight, kDown, kDown});
  state.shell.NoGameRunning = false;
  Press({kEnter});
  EXPECT_EQ(state.menus.StatusText, "Press Enter again to give up the running game");
  Press({kUp, kDown, kEnter});
  EXPECT_THAT(host.calls, IsEmpty()) << "moving the cursor took the question back";
  Press({kEnter});
  EXPECT_THAT(host.calls, Contains("level .\\lvl\\arena.dat"));
  EXPECT_EQ(state.mode.GameMode, GameMode::kDeathmatch);
  EXPECT_TRUE(state.mode.HuntingMode);
  EXPECT_EQ(state.mode.MatchLimit, 95);
  EXPECT_EQ(state.mode.AiCount, 2);
  EXPECT_EQ(state.Snakes(1).Lives, 3);
  EXPECT_EQ(state.Snakes(1).TotalScore, 0);
  EXPECT_FALSE(state.shell.InMenu);
  EXPECT_EQ(state.more.Page, MorePage::kNone);
}

TEST_F(PagesTest, KeysAreBoundAndEmptiedAndGivenBack) {
  struct Row {
    Keys keys;
    Keys up;
  };
  for (const auto& [keys, up] : {
           Row{{kEnter, 44}, {200, 44}},
           Row{{kEnter, 200}, {200}},
           Row{{kEnter, kTab, kEnter, kKeyF1, kKeyPause, kFirstPadCode, 44}, {200, 44}},
           Row{{kEnter, kEscape, 44}, {200}},
           Row{{kEnter, 44, kEnter, 45, kEnter, 46, kEnter, 47}, {44, 45, 46, 47}},
           Row{{kKeyBackspace}, {}},
           Row{{kEnter, kKeyBackspace}, {200, kKeyBackspace}},
           Row{{kEnter, kDown}, {200, 208}},
           Row{{kKeyBackspace, kUp, kEnter}, {1}},
       }) {
    MenuStage stage;
    stage.state.Keys(1) = BuiltInKeys(1);
    stage.Press({kTab, kUp, kEnter});
    stage.Press(keys);
    EXPECT_EQ(stage.state.Keys(1).Up, up) << testing::PrintToString(keys);
    EXPECT_EQ(stage.state.more.Page, MorePage::kControls);
  }
}

TEST_F(PagesTest, ControlsTellOfAKeyThatSteersTwice) {
  state.Keys(1) = BuiltInKeys(1);
  state.Keys(1).Left = {200, 30, 72, 14};
  Open(MorePage::kControls);
  Press({kDown});
  Pass();
  EXPECT_THAT(
      Drawn(),
      IsSupersetOf({"55,218 Arial Up: arrow up   (also Left)", "55,236 Arial Down: arrow down",
                    "55,254 Arial Left: arrow up, A, pad 8, backspace   (also Up)"}));
  state.more.Players = 4;
  Pass();
  EXPECT_THAT(Drawn(), IsSupersetOf({"50,200 Arial Player 1", "50,300 Arial Player 2",
                                     "320,200 Arial Player 3", "320,300 Arial Player 4"}));
}

TEST_F(PagesTest, ThePointerMovesTheCursorsAndIsEnterEscapeAndTheArrows) {
  const auto point = [this](int x, int y) { return PointerKey(menus, {PointerAct::kMove, x, y}); };
  const auto act = [this](PointerAct what) { return PointerKey(menus, {what}); };
  point(300, 240);
  EXPECT_EQ(state.menus.MainCursor, 2);
  point(100, 240);
  EXPECT_EQ(state.menus.MainCursor, 2) << "beside the buttons";
  EXPECT_EQ(act(PointerAct::kLeftButton), kEnter);
  EXPECT_EQ(act(PointerAct::kRightButton), kEscape);
  EXPECT_EQ(act(PointerAct::kWheelUp), kLeft);
  EXPECT_EQ(act(PointerAct::kWheelDown), kRight);
  point(295, 335);
  EXPECT_EQ(act(PointerAct::kLeftButton), kTab) << "on the words \"Tab  More\"";
  Open(MorePage::kControls);
  point(60, 240);
  EXPECT_EQ(state.more.Cursor, 2);
  Press({kEnter});
  point(60, 220);
  EXPECT_EQ(state.more.Cursor, 2) << "a key is waited for";
  EXPECT_EQ(act(PointerAct::kWheelUp), 0);
  Press({kEscape, kTab});
  state.menus.OptionsPage = 1;
  point(260, 305);
  EXPECT_EQ(state.menus.OptionsCursor, 12);
}

TEST_F(PagesTest, ThePointerHidesWhenStillAndInPlay) {
  PointerKey(menus, {PointerAct::kMove, 1, 1});
  EXPECT_TRUE(screen.pointerShown);
  state.timers.now += 1'999'999;
  HideStillPointer(menus);
  EXPECT_TRUE(screen.pointerShown);
  state.timers.now += 1;
  HideStillPointer(menus);
  EXPECT_FALSE(screen.pointerShown);
  PointerKey(menus, {PointerAct::kMove, 2, 1});
  Pass();
  EXPECT_FALSE(screen.pointerShown) << "the menus were left";
}

struct OptionsTest : PagesTest {
  OptionsTest() {
    SnakeRec& player = state.Snakes(kPlayer);
    player.Name = "Ann";
    state.ModelPacks(0).Name = "Boa";
    state.ModelPacks(0).Author = "Eve";
    state.menus.OptionsPage = 1;
    state.menus.OptionsCursor = 6;
  }
};

TEST_F(OptionsTest, PageShowsFourteenLinesAndTheCursorsOnceMore) {
  state.menus.MenuAction = MenuAction::kPlus;
  Pass();
  const auto drawn = Drawn();
  ASSERT_THAT(drawn, SizeIs(22));
  EXPECT_THAT(drawn,
              IsSupersetOf({"50,285 Arial Game (Speed) Mutators", "55,220 Arial Maximum Speed: 250",
                            "60,345 Arial Speed rate: 0.5", "50,415 Arial Player Name: Ann",
                            "255,220 Arial 3D Items: yes", "255,320 Arial Music Volume: 30",
                            "300,415 Arial Player Model: Boa by Eve"}));
  EXPECT_THAT(std::vector(drawn.begin() + 19, drawn.end()),
              ElementsAre("60,345 Arial Speed rate: 1",
                          "5,459 Arial Set the speed increase value [0.5 - 30] (Speed will "
                          "increase by it every 2 seconds)",
                          "580,459 Arial v. 1.2.24"));
  EXPECT_EQ(At(60, 345), (Color{250, 250, 31}.ToPixel()));
}

TEST_F(OptionsTest, PageDimsTheMutatorsInAMatchAndBarsThem) {
  constexpr Pixel kWhite = Color{250, 250, 250}.ToPixel();
  constexpr Pixel kDimmed = Color{150, 150, 150}.ToPixel();
  state.mode.GameMode = GameMode::kDeathmatch;
  state.menus.MenuAction = MenuAction::kPlus;
  Pass();
  EXPECT_THAT(At({{55, 260}, {50, 285}, {55, 305}, {50, 370}, {55, 390}}),
              ElementsAre(kWhite, kDimmed, kDimmed, kWhite, kWhite));
  EXPECT_EQ(state.menus.StatusText, "Not in DM mode");
  EXPECT_EQ(state.settings.SpeedRate, 0.5);
}

}  // namespace
}  // namespace coilrun
