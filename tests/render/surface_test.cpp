#include "render/surface.h"

#include <gtest/gtest.h>

#include "model/rnd.h"
#include "stage.h"

namespace coilrun {
namespace {

constexpr Pixel kBelow = 0x123456;

/// What a blit does, pixel by pixel.
void DrawSlowly(std::vector<Pixel>& screen, const Bitmap& bitmap, KeyMode key, const Rect& from,
                int x, int y, bool keyed) {
  if (!Rect{0, 0, bitmap.width, bitmap.height}.Holds(from)) return;
  if (x < 0 || y < 0 || x + from.Width() > 640 || y + from.Height() > 480) return;
  for (int row = from.top; row < from.bottom; ++row) {
    for (int column = from.left; column < from.right; ++column) {
      const Pixel pixel = bitmap.pixels[static_cast<std::size_t>(row * bitmap.width + column)];
      if (keyed && IsTransparent(key, pixel)) continue;
      const int at = (y + row - from.top) * 640 + x + column - from.left;
      screen[static_cast<std::size_t>(at)] = pixel;
    }
  }
}

void ExpectSameAsSlow(const Bitmap& bitmap, KeyMode key, const Rect& from, int x, int y,
                      bool keyed) {
  Surface surface;
  std::fill(surface.Pixels().begin(), surface.Pixels().end(), kBelow);
  std::vector<Pixel> expected(kScreenPixels, kBelow);

  surface.Blit(Picture(bitmap, key), from, x, y, keyed);

  DrawSlowly(expected, bitmap, key, from, x, y, keyed);
  const auto pixels = std::as_const(surface).Pixels();
  EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(), expected.begin()))
      << bitmap.width << "x" << bitmap.height << " at " << x << "," << y << " from " << from.left
      << "," << from.top << " keyed " << keyed;
}

constexpr Pixel KeyPixel(KeyMode key) {
  if (key == KeyMode::kGrey131) return 0x838383;
  return key == KeyMode::kGrey128 ? 0x808080 : 0x0A0A0A;
}

/// Runs of all lengths: pixel `x` of row `y` is opaque when its bit in a random word is set, and
/// every row has one long run besides.
Bitmap RandomMask(int width, int height, KeyMode key, Rnd& rnd) {
  return MakeBitmap(width, height, [&](int x, int y) {
    const bool longRun = x >= y && x < 2 * y;
    return longRun || rnd.Below(3) > 0 ? 0xC0C000U + static_cast<Pixel>(x) : KeyPixel(key);
  });
}

/// Rows of one length, one below the other.
Bitmap Slab(int width, int height, KeyMode key) {
  return MakeBitmap(width, height, [&](int x, int y) {
    return x + 1 < width ? 0xC000U + static_cast<Pixel>(40 * y + x) : KeyPixel(key);
  });
}

TEST(Blit, CopiesWhatAPixelByPixelDrawCopies) {
  Rnd rnd;
  const std::vector<Point> places = {{0, 0},   {3, 5},     {638, 479}, {-1, 0},    {0, -1},
                                     {620, 9}, {600, 460}, {640, 480}, {-20, -20}, {32000, -32000}};
  for (const KeyMode key : {KeyMode::kBlack, KeyMode::kGrey131, KeyMode::kGrey128}) {
    for (const Point size : {Point{1, 1}, {2, 1}, {7, 5}, {16, 24}, {20, 20}, {40, 13}}) {
      const Bitmap bitmap = RandomMask(size.x, size.y, key, rnd);
      const Rect whole{0, 0, size.x, size.y};
      for (const Point at : places) ExpectSameAsSlow(bitmap, key, whole, at.x, at.y, true);
      ExpectSameAsSlow(bitmap, key, whole, 640 - size.x, 480 - size.y, true);
      ExpectSameAsSlow(bitmap, key, whole, 9, 9, false);
    }
    for (int width = 1; width < 60; ++width) {
      ExpectSameAsSlow(Slab(width, 9, key), key, {0, 0, width, 9}, 40, 471, true);
    }
  }
}

TEST(Blit, TakesPartsOnlyFromInsideThePicture) {
  Rnd rnd;
  const Bitmap bitmap = RandomMask(16, 24, KeyMode::kBlack, rnd);
  for (const Rect from : {Rect{0, 0, 16, 16},
                          {3, 2, 11, 9},
                          {0, 0, 16, 25},
                          {-1, 0, 4, 4},
                          {4, 4, 4, 8},
                          {8, 8, 4, 4}}) {
    for (const bool keyed : {true, false}) {
      ExpectSameAsSlow(bitmap, KeyMode::kBlack, from, 100, 100, keyed);
      ExpectSameAsSlow(bitmap, KeyMode::kBlack, from, 630, 470, keyed);
    }
  }
}

TEST(Keys, AreExactGreysOrNearBlack) {
  struct Case {
    KeyMode key;
    Pixel pixel;
    bool transparent;
  };
  for (const Case& c : {Case{KeyMode::kBlack, 0x000000, true},
                        {KeyMode::kBlack, 0x0A0A0A, true},
                        {KeyMode::kBlack, 0x0A0A0B, false},
                        {KeyMode::kBlack, 0x0B0000, false},
                        {KeyMode::kBlack, 0x000B00, false},
                        {KeyMode::kGrey131, 0x838383, true},
                        {KeyMode::kGrey131, 0x828383, false},
                        {KeyMode::kGrey131, 0x000000, false},
                        {KeyMode::kGrey128, 0x808080, true},
                        {KeyMode::kGrey128, 0x838383, false}}) {
    EXPECT_EQ(IsTransparent(c.key, c.pixel), c.transparent) << std::hex << c.pixel;
  }
}

TEST(TextOverPixels, IsMixedByCoverageAndCutAtTheEdges) {
  Surface surface;
  surface.Fill({100, 100, 100});
  const TextMask mask{3, 1, {0, 128, 255}};

  surface.BlendText(mask, 638, 479, {200, 0, 100});
  surface.BlendText(mask, -2, 0, {200, 0, 100});
  surface.BlendText(mask, 5, -1, {200, 0, 100});

  const auto pixels = std::as_const(surface).Pixels();
  EXPECT_EQ(pixels[kScreenPixels - 2], 0x646464U) << "no coverage";
  EXPECT_EQ(pixels[kScreenPixels - 1], (Color{150, 50, 100}.ToPixel())) << "half";
  EXPECT_EQ(pixels[0], (Color{200, 0, 100}.ToPixel())) << "full";
  EXPECT_EQ(pixels[5], 0x646464U);
}

TEST(Flip, SwapsTheBuffersAndShowsTheTexts) {
  WitnessState witness;
  witness.enabled = true;
  Canvas canvas(witness);
  canvas.FillBack({1, 2, 3});
  canvas.RecordText("now", 4, 5, "1");
  canvas.RecordText("", 4, 5, "1");

  canvas.FlipBuffers();

  EXPECT_EQ(std::as_const(canvas).Primary().Pixels()[0], 0x010203U);
  EXPECT_EQ(std::as_const(canvas).Back().Pixels()[0], 0U);
  ASSERT_EQ(witness.shown.size(), 1U);
  EXPECT_EQ(witness.shown[0].Text, "now");
  canvas.DrawWhole({});
  EXPECT_TRUE(witness.drawing.empty());
}

}  // namespace
}  // namespace coilrun
