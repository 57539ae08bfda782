#include <cstdlib>

#include <gtest/gtest.h>

#include "platform/platform.h"
#include "platform/support.h"

namespace coilrun {
namespace {

/// SDL with drivers that show and play nothing, so that the window's own code runs anywhere.
class SdlPlatformTest : public testing::Test {
 protected:
  PlatformResult<WindowPlatform> Make(const char* video, const char* audio) {
    setenv("SDL_VIDEODRIVER", video, 1);
    setenv("SDL_AUDIODRIVER", audio, 1);
    PlatformOptions options;
    options.data = folders_.Program();
    options.user = folders_.User();
    options.windowed = true;
    return MakeSdlPlatform(options);
  }

  TestFolders folders_;
  std::vector<std::uint32_t> picture_ = std::vector<std::uint32_t>(kScreenPixels);
};

TEST_F(SdlPlatformTest, WithoutADisplayThereIsAReasonInsteadOfAPlatform) {
  const auto made = Make("none such", "dummy");
  EXPECT_EQ(made.platform, nullptr);
  EXPECT_EQ(made.problem, "no display");
}

TEST_F(SdlPlatformTest, FlipsWaitForTheNextFrameAndPresentsDoNot) {
  const auto made = Make("dummy", "dummy");
  ASSERT_NE(made.platform, nullptr) << made.problem;
  const CommonPorts& ports = made.platform->Common();
  const auto microsFor = [&](auto show) {
    const std::int64_t start = ports.clock.NowMicros();
    for (int frame = 0; frame < 30; ++frame) show();
    return ports.clock.NowMicros() - start;
  };
  const auto flips = microsFor([&] { ports.screen.Flip(ScreenPixels(picture_)); });
  const auto presents = microsFor([&] { ports.screen.Present(ScreenPixels(picture_)); });
  EXPECT_GT(flips, 480'000);
  EXPECT_LT(presents, flips / 2);
}

TEST_F(SdlPlatformTest, SoundFilesLoadAndPlayWithAndWithoutADevice) {
  for (const char* const driver : {"dummy", "none such"}) {
    SCOPED_TRACE(driver);
    const auto made = Make("dummy", driver);
    ASSERT_NE(made.platform, nullptr) << made.problem;
    const CommonPorts& ports = made.platform->Common();
    EXPECT_EQ(ports.audio.Open(), std::string(driver) == "dummy");

    EXPECT_EQ(ports.audio.Load(ToBytes("RIFF, but no wave")), std::nullopt);
    const auto effect = ports.audio.Load(WaveOf(2'000));
    ASSERT_TRUE(effect);
    ports.audio.Play(*effect);
    ports.audio.Play(*effect);
    ports.audio.Release(*effect);
    ports.audio.Play(*effect);

    EXPECT_FALSE(ports.music.Load(ToBytes("no music")));
    ASSERT_TRUE(ports.music.Load(WaveOf(44'100)));
    EXPECT_NEAR(ports.music.Duration(), 2, 0.01);
    ports.music.SetVolume(-625);
    ports.music.Play(1);
    ports.clock.Sleep(300);
    EXPECT_GT(ports.music.Position(), 1);
    EXPECT_LT(ports.music.Position(), 2);
    ports.music.Stop();
    EXPECT_EQ(ports.music.Position(), 0);
  }
}

}  // namespace
}  // namespace coilrun
