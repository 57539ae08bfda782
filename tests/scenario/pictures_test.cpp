#include <algorithm>
#include <cstdlib>
#include <vector>

#include <gmock/gmock.h>
#include <png.h>

#include "scenario/game_run.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// Returns an empty image when the file is not a picture.
Image ReadPng(const fs::path& file) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&png, file.c_str()) == 0) return {};
  png.format = PNG_FORMAT_RGBA;
  Image image{static_cast<int>(png.width), static_cast<int>(png.height), {}};
  image.pixels.resize(std::size_t{png.width} * png.height);
  if (png_image_finish_read(&png, nullptr, image.pixels.data(), 0, nullptr) == 0) return {};
  return image;
}

/// Compares with the committed picture of the same name, which COILRUN_UPDATE_GOLDEN replaces.
void ExpectCommittedPicture(const fs::path& seen) {
  const fs::path committed =
      fs::path(COILRUN_SOURCE_DIR "/tests/scenario/expected") / seen.filename();
  constexpr auto kReplace = fs::copy_options::overwrite_existing;
  if (std::getenv("COILRUN_UPDATE_GOLDEN") != nullptr) {
    fs::copy_file(seen, committed, kReplace);
    return;
  }
  const Image is = ReadPng(seen);
  const Image was = ReadPng(committed);
  ASSERT_EQ(is.width, 640) << seen;
  ASSERT_EQ(is.pixels.size(), was.pixels.size()) << committed;
  const auto [at, ignored] = std::ranges::mismatch(is.pixels, was.pixels);
  if (at == is.pixels.end()) return;
  const auto first = static_cast<int>(at - is.pixels.begin());
  const fs::path kept = fs::path(COILRUN_BUILD_DIR) / ("seen-" + seen.filename().string());
  fs::copy_file(seen, kept, kReplace);
  ADD_FAILURE() << "The screen, kept in " << kept << ", is not that of " << committed
                << ": they first differ at " << first % is.width << "," << first / is.width;
}

TEST(Pictures, WholeScreensAreThoseThatWereLookedAt) {
  const ProgramFolder folder;
  const GameRun menus = folder.Play(
      "500 shot menu.png\n"
      "600 tap 208\n"
      "700 tap 28\n"
      "900 shot options.png\n"
      "900 end");
  const GameRun play = folder.Play(
      "900 shot level.png\n"
      "1000 tap 59\n"
      "1200 tap 203\n"
      "2200 shot play.png\n"
      "2300 focus lost\n"
      "2600 shot pause.png\n"
      "2600 end",
      {"/L=lvl3.dat"});
  ASSERT_EQ(menus.exitCode, 0) << menus.errors;
  ASSERT_EQ(play.exitCode, 0) << play.errors;
  for (const char* const name : {"menu.png", "options.png", "level.png", "play.png", "pause.png"}) {
    ExpectCommittedPicture(folder.Home() / name);
  }
}

}  // namespace
}  // namespace coilrun
