#include "render/level_picture.h"

#include "ports/files.h"
#include "render/play_field.h"

namespace coilrun {
namespace {

constexpr int kReduction = 3;

/// The average of a square of pixels.
Pixel Average(ScreenPixels pixels, int left, int top) {
  constexpr int kCount = kReduction * kReduction;
  int red = 0;
  int green = 0;
  int blue = 0;
  for (int y = top; y < top + kReduction; ++y) {
    for (int x = left; x < left + kReduction; ++x) {
      const Pixel pixel = pixels[static_cast<std::size_t>(y * kScreenWidth + x)];
      red += static_cast<int>(pixel >> 16 & 0xFF);
      green += static_cast<int>(pixel >> 8 & 0xFF);
      blue += static_cast<int>(pixel & 0xFF);
    }
  }
  const auto mean = [](int sum) { return static_cast<std::uint8_t>(sum / kCount); };
  return Color{mean(red), mean(green), mean(blue)}.ToPixel();
}

Bitmap Reduced(ScreenPixels pixels) {
  Bitmap small{kScreenWidth / kReduction, kScreenHeight / kReduction, {}};
  for (int y = 0; y < small.height; ++y) {
    for (int x = 0; x < small.width; ++x) {
      small.pixels.push_back(Average(pixels, x * kReduction, y * kReduction));
    }
  }
  return small;
}

}  // namespace

LevelPicture::LevelPicture(PictureLoader& loader, const StandardPictures& standard,
                           const ModelPictures& models, ItemPictures& items)
    : loader_(loader), standard_(standard), models_(models), items_(items) {}

void LevelPicture::Draw(Surface& target, const State& level, const std::string& name, int x,
                        int y) {
  if (name != name_) {
    picture_ = Make(level);
    name_ = name;
  }
  target.Blit(picture_, picture_.Bounds(), x, y, false);
}

Picture LevelPicture::Make(const State& level) {
  OutputLog unread;
  Canvas canvas(unread);
  PlayField field(level, canvas, standard_, models_, items_);
  canvas.DrawWhole(loader_.DD_CreateSurfFromFile(InProgramFolder(level.level.BkgPic),
                                                 PictureSize{kScreenWidth, kScreenHeight},
                                                 KeyMode::kBlack));
  field.DrawStartMarkers();
  field.DrawAllItems();
  field.DrawWalls();
  field.DrawUserItems();
  return Picture(Reduced(canvas.Back().Pixels()), KeyMode::kBlack);
}

}  // namespace coilrun
