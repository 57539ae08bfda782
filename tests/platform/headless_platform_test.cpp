#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <png.h>

#include "platform/headless/virtual_clock.h"
#include "platform/platform.h"
#include "platform/support.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HeadlessPlatformTest : public testing::Test {
 protected:
  std::unique_ptr<HeadlessPlatform> Make(int fps = 100) {
    PlatformOptions options;
    options.data = folders_.Program();
    options.fps = fps;
    options.report = [this](const std::string& line) { reports_.push_back(line); };
    return MakeHeadlessPlatform(options).platform;
  }

  TestFolders folders_;
  std::vector<std::string> reports_;
  std::vector<std::uint32_t> picture_ = std::vector<std::uint32_t>(kScreenPixels);
};

TEST(VirtualClock, CarriesTheRemainderSoThatAllFlipsOfASecondAreASecond) {
  for (const int fps : {1, 3, 7, 60, 100, 144, 999, 1000}) {
    VirtualClock clock(fps);
    for (int flip = 1; flip <= 2 * fps; ++flip) {
      clock.FlipAdvance();
      EXPECT_EQ(clock.NowMicros(), std::int64_t{flip} * 1'000'000 / fps) << fps;
    }
  }
}

TEST_F(HeadlessPlatformTest, FlipsAndSleepsAloneMoveTime) {
  const auto platform = Make(7);
  const CommonPorts& ports = platform->Common();
  ports.screen.Flip(ScreenPixels(picture_));
  EXPECT_EQ(ports.clock.NowMicros(), 142'857);
  ports.screen.Present(ScreenPixels(picture_));
  ports.clock.Sleep(4);
  EXPECT_EQ(ports.clock.NowMicros(), 146'857);
}

TEST_F(HeadlessPlatformTest, AShotIsThePictureAsItWasShown) {
  const auto platform = Make();
  picture_[0] = 0x123456;
  picture_[kScreenPixels - 1] = 0xFFABCDEF;
  platform->Common().screen.Present(ScreenPixels(picture_));
  picture_[0] = 0;
  const auto file = folders_.Outside() / "shot.png";
  ASSERT_TRUE(platform->Pictures().WriteShot(file.string()));
  EXPECT_FALSE(platform->Pictures().WriteShot((folders_.Outside() / "no" / "x.png").string()));

  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  ASSERT_NE(png_image_begin_read_from_file(&image, file.c_str()), 0);
  EXPECT_EQ(image.width, 640U);
  EXPECT_EQ(image.height, 480U);
  EXPECT_EQ(image.format, png_uint_32{PNG_FORMAT_RGB});
  std::vector<std::uint8_t> rgb(PNG_IMAGE_SIZE(image));
  ASSERT_NE(png_image_finish_read(&image, nullptr, rgb.data(), 0, nullptr), 0);
  EXPECT_THAT(std::vector(rgb.begin(), rgb.begin() + 3), ElementsAre(0x12, 0x34, 0x56));
  EXPECT_THAT(std::vector(rgb.end() - 3, rgb.end()), ElementsAre(0xAB, 0xCD, 0xEF));
}

TEST_F(HeadlessPlatformTest, MusicRunsInVirtualTimeAndGoesRound) {
  const auto platform = Make();
  Clock& clock = platform->Common().clock;
  MusicOut& music = platform->Common().music;
  EXPECT_FALSE(music.Load(ToBytes("no music")));
  EXPECT_EQ(music.Duration(), 0);
  ASSERT_TRUE(music.Load(WaveOf(2 * 22'050)));
  EXPECT_DOUBLE_EQ(music.Duration(), 2);
  clock.Sleep(700);
  EXPECT_EQ(music.Position(), 0);
  music.Play(0.5);
  clock.Sleep(1250);
  EXPECT_DOUBLE_EQ(music.Position(), 1.75);
  clock.Sleep(4500);
  EXPECT_DOUBLE_EQ(music.Position(), 0.25);
  music.Stop();
  EXPECT_EQ(music.Position(), 0);
}

TEST_F(HeadlessPlatformTest, SettingsAndUnpackedFilesOfARunAreGoneAfterIt) {
  std::string unpacked;
  {
    const ReadOnlyFolder program(folders_.Program());
    const auto platform = Make();
    ASSERT_TRUE(platform->Common().files.Write(".\\gfx\\a.bmp", {}));
    ASSERT_TRUE(platform->Common().settings.Save());
    unpacked = platform->Common().files.FullName(".");
    EXPECT_TRUE(std::filesystem::exists(unpacked));
  }
  EXPECT_FALSE(std::filesystem::exists(unpacked));
}

TEST_F(HeadlessPlatformTest, TextsAreMeasuredAndRenderedInTheirFaces) {
  std::filesystem::create_directory_symlink("/usr/share/fonts/truetype/liberation2",
                                            folders_.Program() / "fonts");
  const auto platform = Make();
  TextFace& text = platform->Common().text;
  const FontStyle arial{"Arial", 10, false};
  const FontStyle courier{"Courier New", 10, false};
  EXPECT_EQ(text.Measure(courier, "iii"), text.Measure(courier, "WWW"));
  EXPECT_LT(text.Measure(arial, "iii"), text.Measure(arial, "WWW"));
  EXPECT_LT(text.Measure(arial, "game"), text.Measure({"Arial", 10, true}, "game"));
  EXPECT_EQ(text.Measure(courier, "\xE4\x80"), text.Measure(courier, "ab"));

  const TextMask umlaut = text.Render(courier, "\xE4");
  const TextMask& plain = text.Render(courier, "a");
  EXPECT_EQ(umlaut.height, plain.height);
  EXPECT_NEAR(plain.height, 15, 2);  // 10 points are 13 pixels, and a line is a little taller
  EXPECT_EQ(plain.coverage.size(), static_cast<std::size_t>(plain.width * plain.height));
  EXPECT_EQ(*std::max_element(plain.coverage.begin(), plain.coverage.end()), 255);
  EXPECT_GT(std::accumulate(umlaut.coverage.begin(), umlaut.coverage.end(), 0),
            std::accumulate(plain.coverage.begin(), plain.coverage.end(), 0));
  EXPECT_EQ(text.Render(arial, "").width, 0);
  EXPECT_THAT(reports_, testing::IsEmpty());

  EXPECT_EQ(text.Measure({"Balloon", 14, false}, "Level"),
            text.Measure({"Arial", 14, false}, "Level"));
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("ComicNeue-Bold")));
}

TEST_F(HeadlessPlatformTest, MissingFontsAreToldOnceAndGiveEmptyTexts) {
  const auto platform = Make();
  TextFace& text = platform->Common().text;
  for (int size = 8; size < 12; ++size) {
    EXPECT_EQ(text.Measure({"Arial", size, false}, "text"), 0);
    EXPECT_EQ(text.Render({"Arial", size, false}, "text").coverage.size(), 0U);
  }
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("LiberationSans-Regular")));
}

}  // namespace
}  // namespace coilrun
