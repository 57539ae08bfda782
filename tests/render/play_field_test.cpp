#include "render/play_field.h"

#include <gmock/gmock.h>

#include "render/snake_pieces.h"
#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using enum ModelPiece;

TEST(SnakePieces, FollowDirectionsTurnsAndTheModelsFlags) {
  struct Case {
    const char* dir;
    SnakePiece head, body, inverse, tail;
  };
  const Case cases[] = {
      {"", {}, {}, {}, {}},
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
      {"BL", {}, kFL, kFL, kTailFL2},
  };
  const auto pack = [](bool edges, bool inverse, bool tail) {
    return ModelPack{"", "", "", "", edges, inverse, tail};
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.dir);
    const Dir dir = FromWord<Dir>(c.dir).value();
    EXPECT_EQ(HeadPiece(dir), c.head);
    EXPECT_EQ(BodyPiece(dir, pack(true, false, false)), c.body);
    EXPECT_EQ(BodyPiece(dir, pack(true, true, false)), c.inverse);
    EXPECT_EQ(TailPiece(dir, pack(false, false, true)), c.tail);
    EXPECT_EQ(BodyPiece(dir, pack(false, true, true)), IsTurn(dir) ? SnakePiece{} : c.body);
    EXPECT_EQ(TailPiece(dir, pack(true, true, false)), IsTurn(dir) ? SnakePiece{} : c.tail);
  }
}

constexpr Pixel kBare = 0x101010;
constexpr Pixel kHead = 0xC10000;
constexpr Pixel kBody = 0xC20000;
constexpr Pixel kTail = 0xC30000;
constexpr Pixel kMarker = 0xC40000;

/// Every picture has its own colour; walls count from 0xF1.
struct PlayFieldTest : testing::Test, Stage {
  PlayFieldTest() {
    Put("bkg_standart", 640, 480, kBare);
    Pixel wall = 0xF0;
    for (const char* const name :
         {"brik_v", "brik_h", "brik_h_t", "brik_h_b", "brik_v_l", "brik_v_r", "brik"}) {
      Put(name, 20, 20, ++wall);
    }
    Put("m\\head_left", 20, 20, kHead);
    Put("m\\Snake_left", 20, 20, kBody);
    Put("m\\tail_left", 20, 20, kTail);
    Put("m\\start", 20, 20, kMarker);
    state.ModelPacks(0).Dir = "m";
    renderer.LoadStandardPictures();
    renderer.LoadModelPictures(0);
    field.DrawBackground();
  }
  PlayField& field = renderer.Field();
};

TEST_F(PlayFieldTest, WallsShowThePictureOfTheirKind) {
  state.numWalls = kMaxWalls + 1;
  for (int kind = 0; kind < 8; ++kind) {
    state.Walls(kind + 1) = {20 * kind, 40, true, static_cast<WallKind>(kind)};
  }
  state.Walls(9) = {160, 40, false, WallKind::kS};
  state.Walls(10) = {630, 40, true, WallKind::kS};  // leaves the screen: nothing is clipped

  field.DrawWalls();

  EXPECT_THAT(Row(50, {9, 29, 49, 69, 89, 109, 129, 149, 169, 635}),
              ElementsAre(kBare, 0xF2, 0xF1, 0xF5, 0xF6, 0xF3, 0xF4, 0xF7, kBare, kBare));
}

TEST_F(PlayFieldTest, SnakesAreHeadBodyAndTail) {
  SnakeRec& snake = state.Snakes(1);
  snake.X = 100;
  snake.Y = 100;
  snake.Dir = Dir::kLeft;
  snake.Length = 4;
  for (SegRec& seg : snake.Seg)
    seg = {220, 100, Dir::kLeft};  // not part of the body, except 1 to 3
  snake.Seg(1) = {120, 100, Dir::kLeft};
  snake.Seg(2) = {140, 100, Dir::kFL};  // a corner, for which this model has no picture
  snake.Seg(3) = {160, 100, Dir::kLeft};
  snake.Tail = {180, 100, Dir::kLeft};
  const std::vector<int> columns = {105, 125, 145, 165, 185, 225};
  Table<bool, kMaxSnakes> shown;

  field.DrawSnakes(shown);
  EXPECT_EQ(Row(105, columns), std::vector<Pixel>(6, kBare));
  shown(1) = true;
  field.DrawSnakes(shown);
  EXPECT_THAT(Row(105, columns), ElementsAre(kHead, kBody, kBare, kBody, kTail, kBare));
}

TEST_F(PlayFieldTest, StartMarkersShowWhereSnakesWaitAndMoveNobody) {
  state.mode.NumSnakes = 2;
  for (int s = 1; s <= 2; ++s) state.Snakes(s).StartX = 100 * s;
  state.Snakes(2).Dir = Dir::kLeft;

  field.DrawStartMarkers();
  EXPECT_THAT(Row(5, {105, 205}), ElementsAre(kMarker, kBare));
  state.shell.WaitingForStart = true;
  field.DrawStartMarkers();
  EXPECT_EQ(At(205, 5), kMarker);
  EXPECT_EQ(state.Snakes(1).X, 0);
}

TEST_F(PlayFieldTest, ItemsShowTheFrameOrTheStillPicture) {
  constexpr Pixel kFrame = 0xFF0007;
  constexpr Pixel kStill = 0x00FF00;
  Put("Yellow_animated\\7", 16, 24, kFrame);
  Put("banana", 16, 16, kStill);
  state.timers.AnimFrame = 7;
  ItemList& items = state.Items(ItemKind::kYellow);
  items.count = 2;
  items(1) = {50, 60, true, -1, false};
  items(2) = {90, 60, false, -1, false};
  const auto draw = [this](bool animated, bool forceFlat) {
    field.DrawBackground();
    state.settings.AnimatedItems = animated;
    field.DrawItems(ItemKind::kYellow, forceFlat);
    return At({{65, 75}, {50, 83}, {95, 75}});
  };

  EXPECT_THAT(draw(true, false), ElementsAre(kFrame, kFrame, kBare)) << "24 rows";
  EXPECT_THAT(draw(true, true), ElementsAre(kStill, kBare, kBare)) << "16 rows";
  EXPECT_THAT(draw(false, false), ElementsAre(kStill, kBare, kBare));
}

TEST_F(PlayFieldTest, UserItemsShowStillAndMovingWallsByTheirType) {
  Put("crate", 20, 20, 0x00AA00);
  Put("fan\\3", 20, 20, 0x00BB00);
  Put("smoke\\3", 20, 20, 0x838383);  // the grey of animations: transparent
  state.timers.AnimFrame = 3;
  state.numUserItems = kMaxUserItems + 1;
  state.UserItems(1) = {20, 20, true, "crate.bmp", UserItemType::kHardWall};
  state.UserItems(2) = {40, 20, true, "fan", UserItemType::kMovingWall};
  state.UserItems(3) = {60, 20, true, "crate.bmp", UserItemType::kNone};
  state.UserItems(4) = {80, 20, false, "crate.bmp", UserItemType::kPicture};
  state.UserItems(5) = {100, 20, true, "smoke", UserItemType::kMovingPicture};
  state.UserItems(6) = {120, 20, true, "fan", UserItemType::kNone};

  field.DrawUserItems();

  EXPECT_THAT(Row(25, {25, 45, 65, 85, 105, 125}),
              ElementsAre(0x00AA00, 0x00BB00, kBare, kBare, kBare, kBare));
}

}  // namespace
}  // namespace coilrun
