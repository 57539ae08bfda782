#include "render/picture_store.h"

#include <gmock/gmock.h>

#include "model/feed.h"
#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr Pixel kGrey = 0x838383;
const std::string kGfx = ".\\gfx\\";

/// A store with its loader on a stage.
struct StoreStage : Stage {
  Canvas canvas{state.witness};
  IntroPanel panel{state, canvas, textFace, pump, files};
  PictureLoader loader{state, files, box, panel, [this] { ++givenUp; }};
  PictureStore store{state, loader};
};

TEST(PictureStore, LoadsAPictureOnceAndSpellingsApart) {
  StoreStage stage;
  stage.files.Put(kGfx + "red\\1.bmp", Plain(4, 4, 0xFF0000));
  NamedPicture picture{"red\\1.bmp", KeyMode::kGrey131};
  NamedPicture again{"red\\1.bmp", KeyMode::kBlack};
  NamedPicture spelt{"Red\\1.bmp", KeyMode::kGrey131};

  for (int i = 0; i < 3; ++i) EXPECT_TRUE(stage.store.Fetch(picture).IsSet());
  EXPECT_EQ(stage.store.Fetch(again).Key(), KeyMode::kGrey131) << "the first load decides";
  stage.store.Fetch(spelt);

  EXPECT_EQ(stage.files.reads, 2);
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "red\\1.bmp"), 1);
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "Red\\1.bmp"), 2);
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "RED\\1.bmp"), 0);
  EXPECT_TRUE(stage.store.Holds("Red\\1.bmp"));
}

TEST(PictureStore, IsFlushedByThe1024thPicture) {
  StoreStage stage;
  std::vector<NamedPicture> pictures;
  for (int i = 1; i <= 1024; ++i) {
    pictures.emplace_back(std::to_string(i) + ".bmp", KeyMode::kBlack);
    stage.files.Put(kGfx + pictures.back().name, Plain(1, 1, 0xFFFFFF));
  }
  for (int i = 0; i < 1023; ++i) stage.store.Fetch(pictures[static_cast<std::size_t>(i)]);
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "1023.bmp"), 1023);

  EXPECT_TRUE(stage.store.Fetch(pictures[1023]).IsSet());

  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "1024.bmp"), 1);
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "1.bmp"), 0);
  EXPECT_TRUE(stage.store.Fetch(pictures[0]).IsSet()) << "a remembered slot is not trusted";
  EXPECT_EQ(stage.store.FindPicBuffer(kGfx + "1.bmp"), 2);
}

TEST(PictureStore, ResolvesTheKeyAnewAfterAFlush) {
  StoreStage stage;
  stage.files.Put(kGfx + "a.bmp", Bitmap{3, 1, {kGrey, 0, 0xFFFFFF}});
  NamedPicture grey{"a.bmp", KeyMode::kGrey131};
  NamedPicture black{"a.bmp", KeyMode::kBlack};
  Surface surface;
  const auto drawn = [&](NamedPicture& picture) {
    surface.Fill({0, 0, 1});
    surface.Blit(stage.store.Fetch(picture), 0, 0);
    const auto pixels = std::as_const(surface).Pixels();
    return std::vector<Pixel>(pixels.begin(), pixels.begin() + 3);
  };

  EXPECT_THAT(drawn(grey), ElementsAre(1U, 0U, 0xFFFFFFU));
  stage.store.ClearPicBuffers();
  EXPECT_THAT(drawn(black), ElementsAre(kGrey, 1U, 0xFFFFFFU));
}

TEST(PictureStore, TellsAMissingPictureOnceAndGoesOn) {
  StoreStage stage;
  NamedPicture missing{"none.bmp", KeyMode::kBlack};
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(stage.store.Fetch(missing).IsSet());

  EXPECT_THAT(stage.state.feed.Console(5), HasSubstr("none.bmp"));
  EXPECT_THAT(stage.state.feed.Console(4), IsEmpty());
  EXPECT_THAT(stage.box.shown, IsEmpty());
  EXPECT_FALSE(stage.store.Holds("none.bmp"));
  EXPECT_FALSE(stage.store.Preload("none.bmp", KeyMode::kBlack));
  stage.files.Put(kGfx + "none.bmp", Plain(1, 1, 0xFFFFFF));
  EXPECT_TRUE(stage.store.Preload("none.bmp", KeyMode::kBlack)) << "tried again";
  EXPECT_TRUE(stage.store.Fetch(missing).IsSet());
}

TEST(PictureStore, NamesFileAndSlotInDebugMode) {
  StoreStage stage;
  stage.state.shell.DebugMode = true;
  stage.files.Put(kGfx + "red\\1.bmp", Plain(1, 1, 1));
  NamedPicture picture{"red\\1.bmp", KeyMode::kBlack};
  stage.store.Fetch(picture);

  EXPECT_EQ(stage.state.feed.Console(4), "SnLoadPic: Loading 1.bmp to buffer 1.\r\n");
  EXPECT_EQ(stage.state.feed.Console(5), "DD_CreateSurfFromFile: processing \\gfx\\red\\1.bmp\r\n");
}

TEST(PictureLoader, AsksOnlyForMissingFilesOfTheStart) {
  struct Case {
    const char* what;
    bool ready;
    bool modelPicture;
    bool damaged;
    BoxAnswer answer;
    std::size_t boxes;
    int givenUp;
    std::string console;
  };
  for (const Case& c :
       std::vector<Case>{{"no", false, false, false, BoxAnswer::kNo, 1, 1, ""},
                         {"yes", false, false, false, BoxAnswer::kYes, 1, 0, ""},
                         {"model", false, true, false, BoxAnswer::kNo, 0, 0,
                          "Could not load model .\\gfx\\a.bmp\r\n"},
                         {"damaged", false, false, true, BoxAnswer::kNo, 0, 0, ""},
                         {"later", true, false, false, BoxAnswer::kNo, 0, 0, ""},
                         {"later model", true, true, false, BoxAnswer::kNo, 0, 0, ""}}) {
    StoreStage stage;
    stage.state.shell.DisplayReady = c.ready;
    stage.box.answer = c.answer;
    if (c.damaged) stage.files.Put(kGfx + "a.bmp", Bytes{'B', 'M', 0});

    EXPECT_FALSE(stage.loader
                     .DD_CreateSurfFromFile(kGfx + "a.bmp", std::nullopt, KeyMode::kBlack,
                                            {.modelPicture = c.modelPicture})
                     .IsSet());

    EXPECT_EQ(stage.box.shown.size(), c.boxes) << c.what;
    EXPECT_EQ(stage.givenUp, c.givenUp) << c.what;
    EXPECT_EQ(stage.state.feed.Console(5), c.console) << c.what;
    EXPECT_EQ(stage.state.feed.LoadedCount, 1) << c.what;
  }
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
  stage.state.settings.AnimatedItems = true;
  stage.state.level.UsesBlue = true;
  stage.state.level.UsesTNT = true;
  stage.state.level.UsesPower = true;
  stage.files.Put(kGfx + "blue_animated\\45.bmp", Plain(16, 24, 1));
  stage.files.Put(kGfx + "red_animated\\45.bmp", Plain(16, 24, 1));
  stage.files.Put(kGfx + "banana.bmp", Plain(16, 16, 1));
  stage.state.shell.DebugMode = true;
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
  EXPECT_EQ(still.box.shown.size(), 5U) << "one question a missing picture, whatever is loaded";
}

}  // namespace
}  // namespace coilrun
