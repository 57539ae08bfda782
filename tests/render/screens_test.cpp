#include <gmock/gmock.h>

#include "render/options_lines.h"
#include "stage.h"

namespace coilrun {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsSubsetOf;
using Texts = std::vector<std::string>;

/// A game in its middle: counters, names, a level.
struct GameStage : Stage {
  GameStage() {
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
};

TEST(StatusLine, DependsOnTheMode) {
  GameStage stage;
  stage.renderer.Overlay().DrawStatusLine();
  EXPECT_THAT(stage.Drawn(), ElementsAre("20,20 3 Score: -40   Lives: 3   Level: Cellar"));

  stage.renderer.FillBack({});
  stage.Deathmatch();
  stage.state.shell.ShowFPS = true;
  stage.state.shell.Fps = 60;
  stage.renderer.Overlay().DrawStatusLine();
  EXPECT_THAT(stage.Drawn(), ElementsAre("20,20 3 Score: -40   Level: Cellar  ", "617,450 5 7",
                                         "551,20 3 FPS: 60"));
}

TEST(ItemPanel, CountsTheFourColoursAndTnt) {
  GameStage stage;
  stage.renderer.Overlay().DrawItemPanel();
  EXPECT_THAT(stage.Drawn(), ElementsAre("41,452 4 =2", "91,452 4 =0", "143,452 4 =0",
                                         "193,452 4 =0", "240,452 4 =5"));
}

TEST(MatchStats, TellFragsAndDeathsAsAsked) {
  struct Case {
    bool deathmatch;
    bool detail;
    Texts lines;
  };
  for (const Case& c : std::vector<Case>{
           {false, true, {"15,130 1 Ann: -40", "15,140 1 Bot: 0"}},
           {true, false, {"15,130 1 Ann: -40/frags:7", "15,140 1 Bot: 0/frags:0"}},
           {true,
            true,
            {"15,130 1 Ann: -40/frags:7/not died", "15,140 1 Bot: 0/frags:0/died 2nd time"}}}) {
    GameStage stage;
    if (c.deathmatch) stage.Deathmatch();
    stage.state.shell.MatchStatsDetail = c.detail;
    stage.renderer.Overlay().DrawMatchStats();
    EXPECT_EQ(stage.Drawn(), c.lines);
  }
}

TEST(Ordinals, EndInThBeyondThree) {
  const std::vector<std::pair<int, std::string_view>> cases = {
      {-1, ""}, {0, ""}, {1, "st"}, {2, "nd"}, {3, "rd"}, {4, "th"}, {11, "th"}, {21, "th"}};
  for (const auto& [number, suffix] : cases) EXPECT_EQ(OrdinalSuffix(number), suffix) << number;
}

TEST(LevelScreen, ListsTheGoalsOfTheMode) {
  GameStage single;
  single.state.level.Timeout = 60;
  single.renderer.Overlay().DrawLevelScreenPage();
  EXPECT_THAT(Texts({"188,185 4 To complete this level you need:", "252,203 4 : 5 (you have 2)",
                     "252,263 4 : 0 (you have 0)", "224,282 4 Score: 0 (you have -40)",
                     "228,295 4 Your Total Score: 1200", "248,306 4 45 seconds remain",
                     "172,326 1 Press F1"}),
              IsSubsetOf(single.Drawn()));

  GameStage match;
  match.Deathmatch();
  match.state.shell.DebugMode = true;
  match.renderer.Overlay().DrawLevelScreenPage();
  EXPECT_THAT(Texts({"358,146 1 Coilrun v.1.2.24", "180,185 4 Deathmatch!",
                     "200,205 4 30 frags wins the match.", "256,306 4 15 seconds gone"}),
              IsSubsetOf(match.Drawn()));

  match.renderer.FillBack({});
  match.state.mode.HuntingMode = true;
  match.renderer.Overlay().DrawLevelScreenPage();
  EXPECT_THAT(Texts({"200,205 4 Hunting Mode", "200,220 4 Length 30 wins the match."}),
              IsSubsetOf(match.Drawn()));
}

TEST(LevelScreen, TurnsItsLights) {
  constexpr Pixel kRed = 0xFF0000;
  constexpr Pixel kGreen = 0x00FF00;
  constexpr Pixel kYellow = 0xFFFF00;
  constexpr Pixel kBlue = 0x0000FF;
  const std::vector<std::vector<Pixel>> rows = {{kRed, kGreen, kYellow, kBlue, kRed},
                                                {kBlue, kRed, kGreen, kYellow, kBlue},
                                                {kYellow, kBlue, kRed, kGreen, kYellow},
                                                {kGreen, kYellow, kBlue, kRed, kGreen},
                                                {kRed, kGreen, kYellow, kBlue, kRed}};
  Stage stage;
  stage.files.Put(".\\gfx\\LED_Red.bmp", Plain(6, 5, kRed));
  stage.files.Put(".\\gfx\\LED_Green.bmp", Plain(6, 5, kGreen));
  stage.files.Put(".\\gfx\\LED_Yellow.bmp", Plain(6, 5, kYellow));
  stage.files.Put(".\\gfx\\LED_Blue.bmp", Plain(6, 5, kBlue));
  stage.renderer.LoadStandardPictures();
  for (std::size_t phase = 0; phase < rows.size(); ++phase) {
    stage.state.timers.AnimPhase = static_cast<int>(phase);
    stage.renderer.Overlay().DrawLevelScreenPage();
    for (int light = 0; light < 5; ++light) {
      EXPECT_EQ(stage.At(427 + 10 * light, 333), rows[phase][static_cast<std::size_t>(light)])
          << phase << " " << light;
    }
  }
}

TEST(PausePicture, IsCentredByTheWidthOfItsFile) {
  Stage stage;
  stage.files.Put(".\\gfx\\pause.bmp", Plain(101, 44, 0xFFFFFF));
  stage.renderer.LoadStandardPictures();
  stage.renderer.Overlay().DrawPausePicture();
  EXPECT_EQ(stage.At(269, 210), 0U);
  EXPECT_EQ(stage.At(270, 210), 0xFFFFFFU) << "320 - 50.5";
  EXPECT_EQ(stage.At(270 + 173, 253), 0xFFFFFFU) << "stretched to 174 x 44";
}

TEST(Frame, DrawsItsLayersInOrderOverACleanBackground) {
  GameStage stage;
  stage.state.feed.MsgLines(1) = "hello";
  stage.state.shell.ShowNames = true;
  stage.state.shell.ShowMatchStats = true;
  stage.state.CenterLines(0) = {"Game Over", 215, 4};
  stage.state.CenterLines(1) = {"no font", 230, 0};
  stage.state.overlay = WaitOverlay::kTimeLimit;
  for (int i = 0; i < 2; ++i) stage.renderer.DrawFrame({});

  const Texts drawn = stage.Drawn();
  ASSERT_EQ(drawn.size(), 14U);
  EXPECT_THAT(
      Texts(drawn.begin(), drawn.begin() + 6),
      ElementsAre("18,40 1 hello", "20,20 3 Score: -40   Lives: 3   Level: Cellar",
                  "1,-10 Arial Ann", "1,-10 Arial Bot", "15,130 1 Ann: -40", "15,140 1 Bot: 0"));
  EXPECT_THAT(Texts(drawn.begin() + 11, drawn.end()),
              ElementsAre("280,215 4 Game Over", "230,210 Balloon Time Limit Hit!",
                          "270,250 Balloon Press Enter"));
}

TEST(OptionsPage, ShowsFourteenLinesAndTheCursorsOnceMore) {
  GameStage stage;
  stage.state.ModelPacks(0).Name = "Boa";
  stage.state.ModelPacks(0).Author = "Eve";
  stage.state.settings.SpeedRate = 0.5;
  stage.state.menus.OptionsCursor = 6;
  stage.state.menus.StatusText = "help";

  stage.renderer.Menus().DrawOptionsLines();
  EXPECT_THAT(stage.Drawn(), testing::SizeIs(19));
  EXPECT_THAT(Texts({"50,285 Arial Game (Speed) Mutators", "55,220 Arial Maximum Speed: 250",
                     "60,345 Arial Speed rate: 0.5", "50,415 Arial Player Name: Ann",
                     "255,220 Arial 3D Items: yes", "255,320 Arial Music Volume: 30",
                     "300,415 Arial Player Model: Boa by Eve"}),
              IsSubsetOf(stage.Drawn()));
  EXPECT_EQ(stage.At(60, 345), (Color{250, 250, 250}.ToPixel()));
  stage.state.settings.SpeedRate = 1;
  stage.renderer.Menus().DrawOptionsCursorLine();
  EXPECT_EQ(stage.At(60, 345), (Color{250, 250, 31}.ToPixel()));
  stage.renderer.Menus().DrawOptionsFooter();
  const Texts drawn = stage.Drawn();
  EXPECT_THAT(
      Texts(drawn.end() - 3, drawn.end()),
      ElementsAre("60,345 Arial Speed rate: 1", "5,459 Arial help", "580,459 Arial v. 1.2.24"));
}

TEST(OptionsPage, DimsTheMutatorsInAMatch) {
  GameStage stage;
  stage.Deathmatch();
  stage.renderer.Menus().DrawOptionsLines();
  const Pixel white = Color{250, 250, 250}.ToPixel();
  const Pixel dimmed = Color{150, 150, 150}.ToPixel();
  const std::vector<std::pair<Point, Pixel>> places = {{{55, 260}, white},  {{50, 285}, dimmed},
                                                       {{55, 305}, dimmed}, {{60, 345}, dimmed},
                                                       {{50, 370}, white},  {{55, 390}, white}};
  for (const auto& [at, colour] : places) EXPECT_EQ(stage.At(at.x, at.y), colour) << at.y;
}

TEST(MainPage, ShowsTheLitButtonOverItsNeighbours) {
  Stage stage;
  const std::string menu = ".\\gfx\\menu\\";
  for (const char* const name : {"NewGame_n", "Options_n", "HiScore_n", "Exit_n"}) {
    stage.files.Put(menu + name + ".bmp", Plain(250, 30, 0x404040));
  }
  stage.files.Put(menu + "Options_h.bmp", Plain(250, 30, 0xFFFFFF));
  stage.files.Put(".\\gfx\\Yellow_animated\\1.bmp", Plain(16, 24, 0xFFFF00));
  stage.renderer.LoadStandardPictures();
  stage.state.menus.EntryLit(2) = true;
  stage.state.menus.StatusText = "status";
  stage.state.menus.CreditsTicker = "someone";

  stage.renderer.Menus().DrawMainPage();
  stage.renderer.Menus().DrawTicker();

  EXPECT_EQ(stage.At(400, 229), 0x404040U);
  EXPECT_EQ(stage.At(400, 230), 0xFFFFFFU);
  EXPECT_EQ(stage.At(400, 259), 0xFFFFFFU) << "over the next button";
  EXPECT_EQ(stage.At(285, 235), 0xFFFF00U);
  EXPECT_EQ(stage.At(285, 258), 0xFFFF00U);
  EXPECT_EQ(stage.At(285, 259), 0U) << "24 rows of the banana";
  EXPECT_THAT(stage.Drawn(),
              ElementsAre("5,459 Arial status", "580,459 Arial v. 1.2.24",
                          "5,437 Courier New Credits someone", "5,437 Courier New Credits "));
}

TEST(HighScorePage, ShowsTenPlacesAndTheCommandLineOfCheats) {
  Stage stage;
  stage.state.HiScore(1) = {"Unknown", 10000};
  stage.state.mode.CheatLine = "god";
  stage.renderer.Menus().DrawHighScorePage();
  EXPECT_THAT(Texts({"310,220 Courier New  1st: Unknown", "490,220 Courier New 10000 Pts",
                     "310,400 Courier New 10th: ", "490,400 Courier New 0 Pts",
                     "5,459 Arial Coilrun 'The Hall Of Fame' (High Scores)"}),
              IsSubsetOf(stage.Drawn()));
  EXPECT_THAT(stage.Drawn(), testing::Not(Contains("5,440 Arial x: god")));

  stage.state.mode.Cheated = true;
  stage.renderer.Menus().DrawHighScorePage();
  EXPECT_THAT(stage.Drawn(), Contains("5,440 Arial x: god"));
}

TEST(Fade, RoundsHalvesToEven) {
  struct Case {
    int step;
    Pixel pixel;
  };
  for (const Case& c : {Case{0, 0}, {1, 0x000200}, {3, 0x020602}, {5, 0x020A02}, {60, 0x1E781E}}) {
    EXPECT_EQ(FadeColor(c.step).ToPixel(), c.pixel) << c.step;
  }
}

TEST(IntroPanel, ShowsProgressOnThePrimaryOnly) {
  Stage stage;
  stage.renderer.ShowProgress();
  EXPECT_EQ(stage.pump.presents, 0) << "hidden";
  stage.state.feed.introVisible = true;
  stage.state.feed.introCaption = "Loading GFx...";
  const auto lit = [&] {
    const auto pixels = stage.renderer.Primary();
    return kScreenPixels - std::count(pixels.begin(), pixels.end(), 0U);
  };
  stage.renderer.ShowProgress();

  EXPECT_EQ(stage.pump.presents, 1);
  EXPECT_GT(lit(), 10000);
  EXPECT_THAT(stage.Drawn(), testing::IsEmpty());
  EXPECT_EQ(stage.At(320, 280), 0U);
}

}  // namespace
}  // namespace coilrun
