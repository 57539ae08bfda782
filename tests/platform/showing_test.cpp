#include <gtest/gtest.h>

#include "platform/frame_pacer.h"
#include "platform/scaling.h"

namespace coilrun {
namespace {

std::vector<std::uint32_t> NumberedPixels() {
  std::vector<std::uint32_t> pixels(kScreenPixels);
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint32_t>(i);
  return pixels;
}

TEST(Scaling, WholeNumbersWhereTheyFillTheWindowElseAsLargeAsFits) {
  struct {
    int width, height;
    Area area;
  } constexpr kCases[] = {
      {640, 480, {0, 0, 640, 480}},       {1280, 1024, {0, 32, 1280, 960}},
      {1920, 1080, {320, 60, 1280, 960}}, {2560, 1440, {320, 0, 1920, 1440}},
      {1366, 768, {171, 0, 1024, 768}},   {800, 480, {80, 0, 640, 480}},
      {320, 480, {0, 120, 320, 240}},     {1, 1, {0, 0, 1, 1}},
  };
  for (const auto& row : kCases)
    EXPECT_EQ(PictureArea(row.width, row.height), row.area) << row.width << " x " << row.height;
}

TEST(Scaling, DrawsNearestNeighboursInsideItsAreaOnly) {
  const auto pixels = NumberedPixels();
  constexpr std::uint32_t kUntouched = 0xFFFFFFFF;
  for (const auto& [windowWidth, windowHeight] : {std::pair{1300, 1000}, {1366, 768}, {333, 250}}) {
    SCOPED_TRACE(windowWidth);
    const Area area = PictureArea(windowWidth, windowHeight);
    const int stride = windowWidth + 5;
    std::vector<std::uint32_t> canvas(static_cast<std::size_t>(stride * windowHeight), kUntouched);
    Scaler().Draw(ScreenPixels(pixels), {0, area.height}, area, {canvas, stride});
    int wrong = 0;
    for (int y = 0; y < windowHeight; ++y)
      for (int x = 0; x < stride; ++x) {
        const int column = x - area.x;
        const int row = y - area.y;
        const bool inside = column >= 0 && column < area.width && row >= 0 && row < area.height;
        const int nearest =
            row * kScreenHeight / area.height * kScreenWidth + column * kScreenWidth / area.width;
        const auto expected = inside ? static_cast<std::uint32_t>(nearest) : kUntouched;
        if (canvas[static_cast<std::size_t>(y * stride + x)] != expected) ++wrong;
      }
    EXPECT_EQ(wrong, 0);
  }
}

TEST(Scaling, RedrawingTheChangedRowsAloneGivesTheWholePicture) {
  const auto before = NumberedPixels();
  auto after = before;
  after[100 * kScreenWidth + 639] = 0xABCDEF;
  after[205 * kScreenWidth] = 0xABCDEF;
  const RowRange changed = ChangedRows(ScreenPixels(before), ScreenPixels(after));
  EXPECT_EQ(changed, (RowRange{100, 206}));
  const RowRange none = ChangedRows(ScreenPixels(after), ScreenPixels(after));
  EXPECT_EQ(none.first, none.end);
  for (const auto& [width, height] : {std::pair{1280, 960}, {1024, 768}, {400, 300}}) {
    const Area area{0, 0, width, height};
    const auto size = static_cast<std::size_t>(width * height);
    std::vector<std::uint32_t> partly(size);
    std::vector<std::uint32_t> whole(size);
    Scaler scaler;
    scaler.Draw(ScreenPixels(before), {0, height}, area, {partly, width});
    scaler.Draw(ScreenPixels(after), CanvasRows(changed, area), area, {partly, width});
    scaler.Draw(ScreenPixels(after), {0, height}, area, {whole, width});
    EXPECT_TRUE(partly == whole) << width;
  }
}

TEST(FramePacer, FramesComeEverySixtiethOfASecondWithoutCatchingUp) {
  FramePacer pacer;
  std::int64_t now = 5'000'000;
  now += pacer.Wait(now);
  const std::int64_t start = now;
  for (int frame = 1; frame <= 60; ++frame) {
    now += 3'000;  // the frame's own work
    now += pacer.Wait(now);
  }
  EXPECT_NEAR(static_cast<double>(now - start), 1e6, 100);
  now += 400'000;  // a level is loaded
  EXPECT_EQ(pacer.Wait(now), 0);
  EXPECT_GT(pacer.Wait(now), 16'000);
}

TEST(VsyncWatch, DoubtsADisplayOnlyAfterManyFlipsThatNoneCouldShow) {
  VsyncWatch watch;
  std::int64_t now = 0;
  for (int flip = 0; flip < 500; ++flip) {
    now += flip % 20 == 0 ? 100 : 4'166;  // 240 Hz, now and then a flip that catches up
    EXPECT_TRUE(watch.HoldsBack(now));
  }
  int believed = 0;
  for (int flip = 0; flip < 100; ++flip) believed += watch.HoldsBack(now += 300) ? 1 : 0;
  EXPECT_LT(believed, 40);
  EXPECT_FALSE(watch.HoldsBack(now + 16'667));
}

}  // namespace
}  // namespace coilrun
