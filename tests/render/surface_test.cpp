#include "render/surface.h"

#include <gmock/gmock.h>

#include "model/rnd.h"
#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;

/// Compares a blit with drawing pixel by pixel.
void ExpectSameAsSlow(const Bitmap& bitmap, KeyMode key, const Rect& from, Point to, bool keyed) {
  constexpr Pixel kBelow = 0x123456;
  Surface surface;
  std::ranges::fill(surface.Pixels(), kBelow);
  surface.Blit(Picture(bitmap, key), from, to.x, to.y, keyed);

  std::vector<Pixel> expected(kScreenPixels, kBelow);
  const bool onScreen =
      to.x >= 0 && to.y >= 0 && to.x + from.Width() <= 640 && to.y + from.Height() <= 480;
  const bool drawn = onScreen && Rect{0, 0, bitmap.width, bitmap.height}.Holds(from);
  for (int y = from.top; drawn && y < from.bottom; ++y) {
    for (int x = from.left; x < from.right; ++x) {
      const Pixel pixel = bitmap.pixels[static_cast<std::size_t>(y * bitmap.width + x)];
      const int at = (to.y + y - from.top) * 640 + to.x + x - from.left;
      if (!keyed || !IsTransparent(key, pixel)) expected[static_cast<std::size_t>(at)] = pixel;
    }
  }
  EXPECT_TRUE(std::ranges::equal(surface.Pixels(), expected))
      << bitmap.width << "x" << bitmap.height << " at " << to.x << "," << to.y << " from "
      << from.left << "," << from.top << " keyed " << keyed;
}

/// Pixels that are opaque at random, with one long run in every row.
Bitmap RandomMask(Point size, Pixel transparent, Rnd& rnd) {
  return MakeBitmap(size.x, size.y, [&](int x, int y) {
    const bool longRun = x >= y && x < 2 * y;
    return longRun || rnd.Below(3) > 0 ? 0xC0C000U + static_cast<Pixel>(x) : transparent;
  });
}

TEST(Blit, CopiesWhatAPixelByPixelDrawCopies) {
  const std::pair<KeyMode, Pixel> keys[] = {
      {KeyMode::kBlack, 0x0A0A0A}, {KeyMode::kGrey131, 0x838383}, {KeyMode::kGrey128, 0x808080}};
  Rnd rnd;
  for (const auto& [key, transparent] : keys) {
    for (const Point size : {Point{1, 1}, {2, 1}, {7, 5}, {16, 24}, {20, 20}, {40, 13}}) {
      const Bitmap bitmap = RandomMask(size, transparent, rnd);
      const Rect whole{0, 0, size.x, size.y};
      for (const Point at : {Point{0, 0},
                             {3, 5},
                             {638, 479},
                             {-1, 0},
                             {0, -1},
                             {620, 9},
                             {600, 460},
                             {640 - size.x, 480 - size.y},
                             {32000, -32000}}) {
        ExpectSameAsSlow(bitmap, key, whole, at, true);
      }
      ExpectSameAsSlow(bitmap, key, whole, {9, 9}, false);
    }
    for (int width = 1; width < 60; ++width) {
      // Rows of one length, one below the other.
      const Bitmap slab = MakeBitmap(width, 9, [&, clear = transparent](int x, int y) {
        return x + 1 < width ? 0xC000U + static_cast<Pixel>(40 * y + x) : clear;
      });
      ExpectSameAsSlow(slab, key, {0, 0, width, 9}, {40, 471}, true);
    }
  }
}

TEST(CopyRows, IsTheSameWithEverySizeOfRegisters) {
  const auto copied = [](const Picture& picture, RowCopier copy) {
    std::vector<Pixel> screen(kScreenPixels);
    copy(picture.Opaque(), screen.data());
    return screen;
  };
  Rnd rnd;
  for (int width = 1; width <= 2 * kWidestRow; ++width) {
    const Picture mask(RandomMask({width, 24}, 0, rnd), KeyMode::kBlack);
    const Picture slab(Plain(width, 5, 0xC0C0C0), KeyMode::kBlack);
    for (const RowCopier copy : RowCopiers()) {
      EXPECT_EQ(copied(mask, copy), copied(mask, RowCopiers().front())) << width;
      EXPECT_EQ(copied(slab, copy), copied(slab, RowCopiers().front())) << width;
    }
  }
}

TEST(Blit, TakesPartsOnlyFromInsideThePicture) {
  Rnd rnd;
  const Bitmap bitmap = RandomMask({16, 24}, 0, rnd);
  for (const Rect& from : {Rect{0, 0, 16, 16}, Rect{3, 2, 11, 9}, Rect{0, 0, 16, 25},
                           Rect{-1, 0, 4, 4}, Rect{4, 4, 4, 8}, Rect{8, 8, 4, 4}}) {
    for (const bool keyed : {true, false}) {
      ExpectSameAsSlow(bitmap, KeyMode::kBlack, from, {100, 100}, keyed);
      ExpectSameAsSlow(bitmap, KeyMode::kBlack, from, {630, 470}, keyed);
    }
  }
}

TEST(Keys, AreExactGreysOrNearBlack) {
  const auto transparent = [](KeyMode key, const std::vector<Pixel>& pixels) {
    std::vector<bool> answers;
    for (const Pixel pixel : pixels) answers.push_back(IsTransparent(key, pixel));
    return answers;
  };
  EXPECT_THAT(transparent(KeyMode::kBlack, {0x000000, 0x0A0A0A, 0x00000B, 0x000B00, 0x0B0000}),
              ElementsAre(true, true, false, false, false));
  EXPECT_THAT(transparent(KeyMode::kGrey131, {0x838383, 0x828383, 0x000000}),
              ElementsAre(true, false, false));
  EXPECT_THAT(transparent(KeyMode::kGrey128, {0x808080, 0x838383}), ElementsAre(true, false));
}

TEST(TextOverPixels, IsMixedByCoverageAndCutAtTheEdges) {
  Surface surface;
  constexpr Pixel kGrey = 0x646464;
  surface.Fill({100, 100, 100});
  const TextMask mask{3, 1, {0, 128, 255}};  // none, half, full

  for (const Point at : {Point{638, 478}, {-2, 0}, {5, -1}, {5, 480}}) {
    surface.BlendText(mask, at.x, at.y, {200, 0, 100});
  }

  const auto pixels = surface.Pixels();
  EXPECT_THAT(pixels.subspan(0, 6), ElementsAre(0xC80064, kGrey, kGrey, kGrey, kGrey, kGrey));
  EXPECT_THAT(pixels.subspan(478 * 640 + 638, 3), ElementsAre(kGrey, 0x963264, kGrey));
}

TEST(Flip, SwapsTheBuffersAndShowsTheTexts) {
  OutputLog log;
  log.enabled = true;
  Canvas canvas(log);
  canvas.FillBack({1, 2, 3});
  canvas.RecordText("now", 4, 5, "1");
  canvas.RecordText("", 4, 5, "1");

  canvas.FlipBuffers();

  EXPECT_EQ(std::as_const(canvas).Primary().Pixels()[0], 0x010203U);
  EXPECT_EQ(canvas.Back().Pixels()[0], 0U);
  ASSERT_EQ(log.shown.size(), 1U);
  EXPECT_EQ(log.shown[0].Text, "now");
  canvas.DrawWhole({});
  EXPECT_TRUE(log.drawing.empty());
}

}  // namespace
}  // namespace coilrun
