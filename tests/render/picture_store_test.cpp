#include "render/picture_store.h"

#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::FieldsAre;
using ::testing::HasSubstr;

const std::string kGfx = ".\\gfx\\";

/// A store with its loader on a stage.
struct StoreStage : Stage {
  Canvas canvas{state.output};
  IntroPanel panel{state, canvas, textFace, pump, files};
  PictureLoader loader{state, files, box, panel, [this] { ++givenUp; }};
  PictureStore store{state, loader};

  std::vector<std::string> Console() const {
    return {state.feed.Console.begin(), state.feed.Console.end()};
  }
};
struct PictureStoreTest : testing::Test, StoreStage {};

TEST_F(PictureStoreTest, LoadsAPictureOnceAndSpellingsApart) {
  state.shell.DebugMode = true;
  Put("red\\1", 4, 4, 0xFF0000);
  NamedPicture picture{"red\\1.bmp", KeyMode::kGrey131};
  NamedPicture again{"red\\1.bmp", KeyMode::kBlack};
  NamedPicture spelt{"Red\\1.bmp", KeyMode::kGrey131};

  for (int i = 0; i < 3; ++i) EXPECT_TRUE(store.Fetch(picture).IsSet());
  EXPECT_EQ(store.Fetch(again).Key(), KeyMode::kGrey131) << "the first load decides";
  store.Fetch(spelt);

  EXPECT_THAT(Console(), ElementsAre("", "SnLoadPic: Loading 1.bmp to buffer 1.\r\n",
                                     "DD_CreateSurfFromFile: processing \\gfx\\red\\1.bmp\r\n",
                                     "SnLoadPic: Loading 1.bmp to buffer 2.\r\n",
                                     "DD_CreateSurfFromFile: processing \\gfx\\Red\\1.bmp\r\n"));
  EXPECT_EQ(store.FindPicBuffer(kGfx + "Red\\1.bmp"), 2);
  EXPECT_EQ(store.FindPicBuffer(kGfx + "RED\\1.bmp"), 0);
  EXPECT_TRUE(store.Holds("Red\\1.bmp"));
  store.ClearPicBuffers();
  EXPECT_EQ(store.Fetch(again).Key(), KeyMode::kBlack);
}

TEST_F(PictureStoreTest, IsFlushedByThe1024thPicture) {
  std::vector<NamedPicture> pictures;
  for (int i = 1; i <= 1024; ++i) {
    Put(std::to_string(i), 1, 1, 0xFFFFFF);
    pictures.emplace_back(std::to_string(i) + ".bmp", KeyMode::kBlack);
  }
  for (std::size_t i = 0; i < 1023; ++i) store.Fetch(pictures[i]);
  EXPECT_EQ(store.FindPicBuffer(kGfx + "1023.bmp"), 1023);

  EXPECT_TRUE(store.Fetch(pictures[1023]).IsSet());

  EXPECT_EQ(store.FindPicBuffer(kGfx + "1024.bmp"), 1);
  EXPECT_EQ(store.FindPicBuffer(kGfx + "1.bmp"), 0);
  EXPECT_TRUE(store.Fetch(pictures[0]).IsSet()) << "a remembered slot is not trusted";
  EXPECT_EQ(store.FindPicBuffer(kGfx + "1.bmp"), 2);
}

TEST_F(PictureStoreTest, TellsAMissingPictureOnceAndGoesOn) {
  NamedPicture missing{"none.bmp", KeyMode::kBlack};
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(store.Fetch(missing).IsSet());

  EXPECT_THAT(Console(), ElementsAre("", "", "", "", HasSubstr("none.bmp")));
  EXPECT_EQ(box.shown, 0);
  EXPECT_FALSE(store.Holds("none.bmp"));
  EXPECT_FALSE(store.Preload("none.bmp", KeyMode::kBlack));
  Put("none", 1, 1, 0xFFFFFF);
  EXPECT_TRUE(store.Preload("none.bmp", KeyMode::kBlack)) << "tried again";
  EXPECT_TRUE(store.Fetch(missing).IsSet());
}

TEST(PictureLoader, AsksOnlyForMissingFilesOfTheStart) {
  // Returns how many boxes were shown, whether the player gave up, and the last console line.
  const auto load = [](BoxAnswer answer, bool ready, LoadFlags flags, bool damaged) {
    StoreStage stage;
    stage.box.answer = answer;
    stage.state.shell.DisplayReady = ready;
    if (damaged) stage.files.Put(kGfx + "a.bmp", "BM");
    const Picture picture = stage.loader.DD_CreateSurfFromFile(kGfx + "a.bmp", PictureSize{20, 20},
                                                               KeyMode::kBlack, flags);
    EXPECT_FALSE(picture.IsSet());
    EXPECT_EQ(stage.state.feed.LoadedCount, 1);
    return std::tuple(stage.box.shown, stage.givenUp, stage.state.feed.Console(5));
  };
  constexpr LoadFlags kModel{.modelPicture = true};
  EXPECT_THAT(load(BoxAnswer::kYes, false, {}, false), FieldsAre(1, 0, ""));
  EXPECT_THAT(load(BoxAnswer::kNo, false, {}, false), FieldsAre(1, 1, ""));
  EXPECT_THAT(load(BoxAnswer::kNo, false, {}, true),
              FieldsAre(0, 0, "DD_CreateSurfFromFile: unable to read .\\gfx\\a.bmp\r\n"));
  EXPECT_THAT(load(BoxAnswer::kNo, false, kModel, false),
              FieldsAre(0, 0, "Could not load model .\\gfx\\a.bmp\r\n"));
  EXPECT_THAT(load(BoxAnswer::kNo, true, kModel, false), FieldsAre(0, 0, "")) << "after the start";
}

TEST(PictureLoader, CountsModelPicturesAndMovesTheBar) {
  Stage stage;
  stage.state.shell.DisplayReady = false;
  stage.state.feed.LoadTotal = 32;
  stage.state.feed.UnpackedCount = 29;
  stage.state.ModelPacks(0) = {"x.smp", "x", "X", "", true, false, true};

  stage.renderer.LoadModelPictures(0);

  EXPECT_EQ(stage.state.feed.LoadedCount, 25) << "29 less the four left turns";
  EXPECT_DOUBLE_EQ(stage.state.feed.introProgress, (25 + 29) / 2.0 * 100 / 64);
}

TEST(PrepareLvlGfx, LoadsWhatTheLevelUsesAndYieldsAFrame) {
  Stage stage;
  stage.state.level.UsesBlue = stage.state.level.UsesTNT = stage.state.level.UsesPower = true;
  stage.state.shell.DebugMode = true;
  for (const char* const name : {"blue_animated\\45", "red_animated\\45", "banana"}) {
    stage.Put(name, 16, 24, 1);
  }
  stage.renderer.PrepareLvlGfx();

  EXPECT_EQ(stage.pump.yields, 45);
  EXPECT_TRUE(stage.renderer.HoldsPicture("blue_animated\\45.bmp"));
  EXPECT_TRUE(stage.renderer.HoldsPicture("banana.bmp"));
  EXPECT_FALSE(stage.renderer.HoldsPicture("red_animated\\45.bmp"));
  EXPECT_EQ(stage.state.feed.introProgress, 100);
  EXPECT_FALSE(stage.state.feed.introVisible);

  Stage still;
  still.state.settings.AnimatedItems = false;
  still.state.shell.DisplayReady = false;
  for (int level = 1; level <= 2; ++level) still.renderer.PrepareLvlGfx();
  EXPECT_EQ(still.pump.yields, 0);
  EXPECT_EQ(still.box.shown, 5) << "one question a missing picture, whatever is loaded";
}

}  // namespace
}  // namespace coilrun
