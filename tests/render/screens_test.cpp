#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::SizeIs;
using Texts = std::vector<std::string>;

constexpr Pixel kWhite = Color{250, 250, 250}.ToPixel();

/// A game under way: counters, names, a level.
struct ScreensTest : testing::Test, Stage {
  ScreensTest() {
    SnakeRec& player = state.Snakes(1);
    player.Name = "Ann";
    player.Score = -40;
    player.TotalScore = 1200;
    player.Lives = 3;
    player.Frags = 7;
    player.YellowEaten = 2;
    player.TNT = 5;
    state.Snakes(2).Name = "Bot";
    state.Snakes(2).Deaths = 2;
    state.mode.NumSnakes = 2;
    state.mode.MatchLimit = 30;
    state.level.lvlName = "Cellar";
    state.level.reqYellow = 5;
    state.level.ElapsedSecs = 15;
  }
  void Deathmatch() { state.mode.GameMode = GameMode::kDeathmatch; }
  /// The texts that one step of drawing writes.
  Texts TextsOf(void (Overlays::*draw)()) {
    renderer.FillBack({});
    (renderer.Overlay().*draw)();
    return Drawn();
  }

  MenuPages& menus = renderer.Menus();
};

TEST_F(ScreensTest, StatusLineShowsTheFragsOfAMatch) {
  Deathmatch();
  state.shell.ShowFPS = true;
  state.shell.Fps = 60;
  EXPECT_THAT(
      TextsOf(&Overlays::DrawStatusLine),
      ElementsAre("20,20 3 Score: -40   Level: Cellar  ", "617,450 5 7", "551,20 3 FPS: 60"));
}

TEST_F(ScreensTest, MatchStatsTellFragsAndDeathsAsAsked) {
  Deathmatch();
  state.shell.MatchStatsDetail = true;
  EXPECT_THAT(
      TextsOf(&Overlays::DrawMatchStats),
      ElementsAre("15,130 1 Ann: -40/frags:7/not died", "15,140 1 Bot: 0/frags:0/died 2nd time"));
  state.shell.MatchStatsDetail = false;
  EXPECT_THAT(TextsOf(&Overlays::DrawMatchStats),
              ElementsAre("15,130 1 Ann: -40/frags:7", "15,140 1 Bot: 0/frags:0"));
}

TEST(Ordinals, EndInThBeyondThree) {
  Texts suffixes;
  for (const int number : {-1, 0, 1, 2, 3, 4, 21}) suffixes.emplace_back(OrdinalSuffix(number));
  EXPECT_THAT(suffixes, ElementsAre("", "", "st", "nd", "rd", "th", "th"));
}

TEST_F(ScreensTest, LevelScreenListsTheGoalsOfTheMode) {
  state.level.Timeout = 60;
  EXPECT_THAT(TextsOf(&Overlays::DrawLevelScreenPage),
              IsSupersetOf({"188,185 4 To complete this level you need:",
                            "252,203 4 : 5 (you have 2)", "252,263 4 : 0 (you have 0)",
                            "224,282 4 Score: 0 (you have -40)", "228,295 4 Your Total Score: 1200",
                            "248,306 4 45 seconds remain", "172,326 1 Press F1"}));
  Deathmatch();
  state.level.Timeout = 0;
  state.shell.DebugMode = true;
  EXPECT_THAT(TextsOf(&Overlays::DrawLevelScreenPage),
              IsSupersetOf({"358,146 1 Coilrun v.1.2.24", "180,185 4 Deathmatch!",
                            "200,205 4 30 frags wins the match.", "256,306 4 15 seconds gone"}));
  state.mode.HuntingMode = true;
  EXPECT_THAT(TextsOf(&Overlays::DrawLevelScreenPage),
              IsSupersetOf({"200,205 4 Hunting Mode", "200,220 4 Length 30 wins the match."}));
}

TEST_F(ScreensTest, LevelScreenTurnsItsLights) {
  for (const std::string colour : {"Red", "Green", "Yellow", "Blue"}) {
    Put("LED_" + colour, 6, 5, static_cast<Pixel>(colour[0]));
  }
  renderer.LoadStandardPictures();
  Texts rows;
  for (int phase = 0; phase <= 4; ++phase) {
    state.timers.AnimPhase = phase;
    renderer.Overlay().DrawLevelScreenPage();
    const std::vector<Pixel> row = Row(333, {427, 437, 447, 457, 467});
    rows.emplace_back(row.begin(), row.end());
  }
  EXPECT_THAT(rows, ElementsAre("RGYBR", "BRGYB", "YBRGY", "GYBRG", "RGYBR"));
}

TEST_F(ScreensTest, PausePictureIsCentredByTheWidthOfItsFile) {
  Put("pause", 101, 44, kWhite);
  renderer.LoadStandardPictures();
  renderer.Overlay().DrawPausePicture();
  // Starts at 320 - 50.5, stretched to 174 x 44.
  EXPECT_THAT(Row(210, {269, 270, 443, 444}), ElementsAre(0, kWhite, kWhite, 0));
  EXPECT_EQ(At(443, 253), kWhite);
}

TEST_F(ScreensTest, FrameDrawsItsLayersInOrderOverACleanBackground) {
  state.feed.MsgLines(1) = "hello";
  state.shell.ShowNames = true;
  state.shell.ShowMatchStats = state.shell.MatchStatsDetail = true;
  state.CenterLines(0) = {"Game Over", 215, 4};
  state.CenterLines(1) = {"no font", 230, 0};
  state.overlay = WaitOverlay::kTimeLimit;
  for (int i = 0; i < 2; ++i) renderer.DrawFrame({});

  EXPECT_THAT(Drawn(),
              ElementsAre("18,40 1 hello", "20,20 3 Score: -40   Lives: 3   Level: Cellar",
                          "1,-10 Arial Ann", "1,-10 Arial Bot", "15,130 1 Ann: -40",
                          "15,140 1 Bot: 0", "41,452 4 =2", "91,452 4 =0", "143,452 4 =0",
                          "193,452 4 =0", "240,452 4 =5", "280,215 4 Game Over",
                          "230,210 Balloon Time Limit Hit!", "270,250 Balloon Press Enter"));
}

TEST_F(ScreensTest, MainPageShowsTheLitButtonOverItsNeighbours) {
  constexpr Pixel kNormal = 0x404040;
  constexpr Pixel kBanana = 0xFFFF00;
  for (const std::string name : {"NewGame", "Options", "HiScore", "Exit"}) {
    Put("menu\\" + name + "_n", 250, 30, kNormal);
  }
  Put("menu\\Options_h", 250, 30, kWhite);
  Put("Yellow_animated\\1", 16, 24, kBanana);
  renderer.LoadStandardPictures();
  state.menus.EntryLit(2) = true;
  state.menus.StatusText = "status";
  state.menus.CreditsTicker = "someone";

  menus.DrawMainPage();
  menus.DrawMainPageFoot();

  // The lit button overlaps the next one; the banana has 24 rows.
  EXPECT_THAT(At({{400, 229}, {400, 230}, {400, 259}}), ElementsAre(kNormal, kWhite, kWhite));
  EXPECT_THAT(At({{285, 235}, {285, 258}, {285, 259}}), ElementsAre(kBanana, kBanana, 0));
  EXPECT_THAT(Drawn(), ElementsAre("5,459 Arial status", "580,459 Arial v. 1.2.24",
                                   "5,437 Courier New Credits someone",
                                   "5,437 Courier New Credits ", "290,330 Arial Tab  More"));
}

TEST_F(ScreensTest, TheEndOfAMatchNamesTheWinnerAboveTheTable) {
  Deathmatch();
  state.mode.NumSnakes = 3;
  state.Snakes(2).Frags = 9;
  state.Snakes(3).Name = "Cat";
  state.Snakes(3).Frags = 7;
  state.Snakes(3).Deaths = 1;
  state.overlay = WaitOverlay::kMatchResult;
  EXPECT_THAT(TextsOf(&Overlays::DrawWaitOverlay),
              IsSupersetOf({"190,108 Arial Bot", "370,108 Arial 9", "440,108 Arial 2",
                            "190,126 Arial Ann", "190,144 Arial Cat", "440,144 Arial 1"}));
  state.mode.HuntingMode = true;
  state.Snakes(3).Length = 30;
  const Texts hunting = TextsOf(&Overlays::DrawWaitOverlay);
  EXPECT_THAT(hunting, Contains(testing::EndsWith("Cat wins the match!")));
  EXPECT_THAT(hunting, IsSupersetOf({"370,90 Arial Length", "370,108 Arial 30"}));
}

TEST_F(ScreensTest, HighScorePageShowsTenPlacesAndTheCommandLineOfCheats) {
  state.HiScore(1) = {"Unknown", 10000};
  state.mode.CheatLine = "god";
  menus.DrawHighScorePage();
  EXPECT_THAT(Drawn(),
              IsSupersetOf({"310,220 Courier New  1st: Unknown", "490,220 Courier New 10000 Pts",
                            "310,400 Courier New 10th: ", "490,400 Courier New 0 Pts",
                            "5,459 Arial Coilrun 'The Hall Of Fame' (High Scores)"}));
  EXPECT_THAT(Drawn(), Not(Contains("5,440 Arial x: god")));

  state.mode.Cheated = true;
  menus.DrawHighScorePage();
  EXPECT_THAT(Drawn(), Contains("5,440 Arial x: god"));
}

TEST(Fade, RoundsHalvesToEven) {
  std::vector<Pixel> colours;
  for (const int step : {0, 1, 3, 5, 60}) colours.push_back(FadeColor(step).ToPixel());
  EXPECT_THAT(colours, ElementsAre(0, 0x000200, 0x020602, 0x020A02, 0x1E781E));
}

TEST_F(ScreensTest, IntroPanelShowsProgressOnThePrimaryOnly) {
  renderer.ShowProgress();
  EXPECT_EQ(pump.presents, 0) << "hidden";
  state.feed.introVisible = true;
  state.feed.introProgress = 50;
  state.feed.introCaption = "Loading GFx...";
  renderer.ShowProgress();
  EXPECT_EQ(pump.presents, 1);
  EXPECT_THAT(Drawn(), IsEmpty());
  EXPECT_EQ(At(320, 280), 0U);

  renderer.FlipBuffers();
  // The caption, and the bar, which is half full.
  EXPECT_THAT(At({{123, 254}, {319, 280}, {320, 280}}), ElementsAre(0xF0ECDC, 0x40A048, 0x222A28));
}

}  // namespace
}  // namespace coilrun
