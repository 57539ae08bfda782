#include "render/play_field.h"

#include <gmock/gmock.h>

#include "render/snake_pieces.h"
#include "stage.h"

namespace coilrun {
namespace {

using enum ModelPiece;
using Piece = std::optional<ModelPiece>;

ModelPack Pack(bool edges, bool inverse, bool tail) {
  return {"", "", "", "", edges, inverse, tail};
}

TEST(SnakePieces, FollowDirectionsTurnsAndTheModelsFlags) {
  struct Case {
    const char* dir;
    Piece head;
    Piece body;
    Piece inverse;
    Piece tail;
  };
  for (const Case& c : std::vector<Case>{{"", {}, {}, {}, {}},
                                         {"Forw", kHeadForw, kForw, kForw, kTailForw},
                                         {"Back", kHeadBack, kBack, kBack, kTailBack},
                                         {"Left", kHeadLeft, kLeft, kLeft, kTailLeft},
                                         {"Right", kHeadRight, kRight, kRight, kTailRight},
                                         {"FL", {}, kBL, kBLInverse, kTailBL},
                                         {"RF", {}, kFL, kFLInverse, kTailFL},
                                         {"LB", {}, kBR, kBRInverse, kTailBR},
                                         {"BR", {}, kFR, kFRInverse, kTailFR},
                                         {"LF", {}, kFR, kFR, kTailRF},
                                         {"RB", {}, kBL, kBL, kTailLB},
                                         {"FR", {}, kBR, kBR, kTailBR2},
                                         {"BL", {}, kFL, kFL, kTailFL2}}) {
    const Dir dir = FromWord<Dir>(c.dir).value();
    EXPECT_EQ(HeadPiece(dir), c.head) << c.dir;
    EXPECT_EQ(BodyPiece(dir, Pack(true, false, false)), c.body) << c.dir;
    EXPECT_EQ(BodyPiece(dir, Pack(true, true, false)), c.inverse) << c.dir;
    EXPECT_EQ(TailPiece(dir, Pack(false, false, true)), c.tail) << c.dir;
    EXPECT_EQ(BodyPiece(dir, Pack(false, true, true)), IsTurn(dir) ? Piece{} : c.body) << c.dir;
    EXPECT_EQ(TailPiece(dir, Pack(true, true, false)), IsTurn(dir) ? Piece{} : c.tail) << c.dir;
  }
}

/// Every picture has a colour of its own.
struct FieldStage : Stage {
  FieldStage() {
    const std::string gfx = ".\\gfx\\";
    files.Put(gfx + "bkg_standart.bmp", Plain(640, 480, 0x101010));
    int colour = 0;
    for (const char* const wall :
         {"brik_v", "brik_h", "brik_h_t", "brik_h_b", "brik_v_l", "brik_v_r", "brik"}) {
      files.Put(gfx + wall + ".bmp", Plain(20, 20, Wall(++colour)));
    }
    for (const char* const piece : {"start", "head_left", "Snake_left", "tail_left"}) {
      files.Put(gfx + "m\\" + piece + ".bmp", Plain(20, 20, Hue(piece)));
    }
    state.ModelPacks(0).Dir = "m";
    renderer.LoadStandardPictures();
    renderer.LoadModelPictures(0);
    renderer.Field().DrawBackground();
  }

  static Pixel Wall(int number) { return 0x00FF00U + static_cast<Pixel>(number); }
  static Pixel Hue(std::string_view name) {
    return 0xC00000U + static_cast<Pixel>(name.size() * 1000 + static_cast<unsigned char>(name[0]));
  }
};

TEST(Walls, ShowThePictureOfTheirKind) {
  FieldStage stage;
  const std::array<int, 8> pictureOf = {0, 2, 1, 5, 6, 3, 4, 7};
  stage.state.numWalls = 8;
  for (int kind = 0; kind < 8; ++kind) {
    stage.state.Walls(kind + 1) = {20 * kind, 40, true, static_cast<WallKind>(kind)};
  }
  stage.state.Walls(4).Present = false;
  stage.state.Walls(5).X = 630;

  stage.renderer.Field().DrawWalls();

  for (int kind = 0; kind < 8; ++kind) {
    const bool drawn = kind != 0 && kind != 3 && kind != 4;
    const Pixel expected =
        drawn ? FieldStage::Wall(pictureOf.at(static_cast<std::size_t>(kind))) : 0x101010U;
    EXPECT_EQ(stage.At(20 * kind + 9, 50), expected) << kind;
  }
  EXPECT_EQ(stage.At(635, 50), 0x101010U) << "nothing is clipped";
}

TEST(Snakes, AreDrawnHeadThenBodyBackwardsThenTail) {
  FieldStage stage;
  SnakeRec& snake = stage.state.Snakes(1);
  snake = {};
  snake.X = 100;
  snake.Y = 100;
  snake.Dir = Dir::kLeft;
  snake.Length = 4;
  snake.Seg(0) = {200, 100, Dir::kLeft};
  snake.Seg(1) = {120, 100, Dir::kLeft};
  snake.Seg(2) = {140, 100, Dir::kFL};
  snake.Seg(3) = {160, 100, Dir::kLeft};
  snake.Seg(4) = {220, 100, Dir::kLeft};
  snake.Tail = {180, 100, Dir::kLeft};
  Table<bool, kMaxSnakes> shown;

  stage.renderer.Field().DrawSnakes(shown);
  EXPECT_EQ(stage.At(105, 105), 0x101010U);
  shown(1) = true;
  stage.renderer.Field().DrawSnakes(shown);

  EXPECT_EQ(stage.At(105, 105), FieldStage::Hue("head_left"));
  EXPECT_EQ(stage.At(125, 105), FieldStage::Hue("Snake_left"));
  EXPECT_EQ(stage.At(145, 105), 0x101010U) << "no corners in this model";
  EXPECT_EQ(stage.At(165, 105), FieldStage::Hue("Snake_left"));
  EXPECT_EQ(stage.At(185, 105), FieldStage::Hue("tail_left"));
  EXPECT_EQ(stage.At(205, 105), 0x101010U) << "Seg(0)";
  EXPECT_EQ(stage.At(225, 105), 0x101010U) << "Seg(Length)";
}

TEST(StartMarkers, ShowWhereSnakesWaitAndMoveNobody) {
  FieldStage stage;
  stage.state.mode.NumSnakes = 2;
  for (int s = 1; s <= 2; ++s) stage.state.Snakes(s).StartX = 100 * s;
  stage.state.Snakes(2).Dir = Dir::kLeft;

  stage.renderer.Field().DrawStartMarkers();
  EXPECT_EQ(stage.At(105, 5), FieldStage::Hue("start"));
  EXPECT_EQ(stage.At(205, 5), 0x101010U);
  stage.state.shell.WaitingForStart = true;
  stage.renderer.Field().DrawStartMarkers();

  EXPECT_EQ(stage.At(205, 5), FieldStage::Hue("start"));
  EXPECT_EQ(stage.state.Snakes(1).X, 0);
}

TEST(Items, ShowTheFrameOrTheStillPicture) {
  struct Case {
    bool animated;
    bool forceFlat;
    Pixel expected;
    bool tall;
  };
  for (const Case& c : std::vector<Case>{{true, false, 0xFF0007, true},
                                         {true, true, 0x00FF00, false},
                                         {false, false, 0x00FF00, false}}) {
    FieldStage stage;
    stage.files.Put(".\\gfx\\Yellow_animated\\7.bmp", Plain(16, 24, 0xFF0007));
    stage.files.Put(".\\gfx\\banana.bmp", Plain(16, 16, 0x00FF00));
    stage.state.timers.AnimFrame = 7;
    stage.state.settings.AnimatedItems = c.animated;
    ItemList& items = stage.state.Items(ItemKind::kYellow);
    items.count = 2;
    items(1) = {50, 60, true, -1, false};
    items(2) = {90, 60, false, -1, false};

    stage.renderer.Field().DrawItems(ItemKind::kYellow, c.forceFlat);

    EXPECT_EQ(stage.At(65, 75), c.expected);
    EXPECT_EQ(stage.At(50, 83), c.tall ? c.expected : 0x101010U);
    EXPECT_EQ(stage.At(95, 65), 0x101010U) << "absent";
  }
}

TEST(UserItems, ShowStillAndMovingWallsByTheirType) {
  FieldStage stage;
  stage.files.Put(".\\gfx\\crate.bmp", Plain(20, 20, 0x00AA00));
  stage.files.Put(".\\gfx\\fan\\3.bmp", Plain(20, 20, 0x00BB00));
  stage.files.Put(".\\gfx\\smoke\\3.bmp", Plain(20, 20, 0x838383));
  stage.state.timers.AnimFrame = 3;
  stage.state.numUserItems = 5;
  stage.state.UserItems(1) = {20, 20, true, "crate.bmp", "wall_no_tnt"};
  stage.state.UserItems(2) = {40, 20, true, "fan", "ani_wall"};
  stage.state.UserItems(3) = {60, 20, true, "crate.bmp", "ani"};
  stage.state.UserItems(4) = {80, 20, false, "crate.bmp", "wall"};
  stage.state.UserItems(5) = {100, 20, true, "smoke", "ani_wall"};

  stage.renderer.Field().DrawUserItems();

  EXPECT_EQ(stage.At(25, 25), 0x00AA00U);
  EXPECT_EQ(stage.At(45, 25), 0x00BB00U);
  EXPECT_EQ(stage.At(65, 25), 0x101010U);
  EXPECT_EQ(stage.At(85, 25), 0x101010U);
  EXPECT_EQ(stage.At(105, 25), 0x101010U) << "the grey of animations is transparent";
}

}  // namespace
}  // namespace coilrun
