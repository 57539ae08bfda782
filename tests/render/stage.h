#pragma once

#include <string>
#include <vector>

#include "render/renderer.h"
#include "support/fake_files.h"
#include "support/fake_pump.h"

namespace coilrun {

/// A bitmap file with 32 bits per pixel, stored top-down.
inline Bytes EncodeBmp(const Bitmap& bitmap) {
  constexpr int kOnePlaneOf32Bits = 1 | 32 << 16;
  Bytes file = {'B', 'M'};
  const auto append = [&file](std::uint32_t number) {
    for (int i = 0; i < 4; ++i) file.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
  };
  for (const int number :
       {0, 0, 54, 40, bitmap.width, -bitmap.height, kOnePlaneOf32Bits, 0, 0, 0, 0, 0, 0}) {
    append(static_cast<std::uint32_t>(number));
  }
  for (const Pixel pixel : bitmap.pixels) append(pixel);
  return file;
}

/// A bitmap whose pixels come from a function of x and y.
template <typename PixelAt>
Bitmap MakeBitmap(int width, int height, PixelAt pixelAt) {
  Bitmap bitmap{width, height, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) bitmap.pixels.push_back(pixelAt(x, y));
  }
  return bitmap;
}
inline Bitmap Plain(int width, int height, Pixel pixel) {
  return MakeBitmap(width, height, [pixel](int, int) { return pixel; });
}

/// Files in memory, among them pictures.
class MemoryFiles : public FakeFiles {
 public:
  using FakeFiles::Put;
  void Put(const std::string& path, const Bitmap& bitmap) { Write(path, EncodeBmp(bitmap)); }
};

/// Every character is a block of 6 x 8 pixels.
class BlockText : public TextFace {
 public:
  int Measure(const FontStyle&, std::string_view text) override {
    return 6 * static_cast<int>(text.size());
  }
  const TextMask& Render(const FontStyle& style, std::string_view text) override {
    const int width = Measure(style, text);
    return mask_ = {width, 8, std::vector<std::uint8_t>(static_cast<std::size_t>(width * 8), 255)};
  }

 private:
  TextMask mask_;
};

class AnsweringBox : public MessageBox {
 public:
  BoxAnswer Show(const std::string&, const std::string&, BoxButtons) override {
    ++shown;
    return answer;
  }
  BoxAnswer answer = BoxAnswer::kYes;
  int shown = 0;
};

/// A renderer over a state made in code, with files in memory.
struct Stage {
  Stage() {
    state.output.enabled = true;
    state.shell.DisplayReady = true;
  }

  /// A picture of one colour, by its name below the gfx folder without ".bmp".
  void Put(const std::string& name, int width, int height, Pixel pixel) {
    files.Put(".\\gfx\\" + name + ".bmp", Plain(width, height, pixel));
  }
  /// Pixels of the back buffer.
  Pixel At(int x, int y) {
    return renderer.Screen().Back().Pixels()[static_cast<std::size_t>(y * kScreenWidth + x)];
  }
  std::vector<Pixel> At(const std::vector<Point>& points) {
    std::vector<Pixel> pixels;
    for (const auto [x, y] : points) pixels.push_back(At(x, y));
    return pixels;
  }
  /// Pixels of one row.
  std::vector<Pixel> Row(int y, const std::vector<int>& columns) {
    std::vector<Pixel> pixels;
    for (const int x : columns) pixels.push_back(At(x, y));
    return pixels;
  }
  /// The texts on the back buffer as "X,Y font text".
  std::vector<std::string> Drawn() const {
    std::vector<std::string> texts;
    for (const DrawnText& text : state.output.drawing) {
      texts.push_back(std::to_string(text.X) + "," + std::to_string(text.Y) + " " + text.Font +
                      " " + text.Text);
    }
    return texts;
  }

  State state;
  MemoryFiles files;
  BlockText textFace;
  AnsweringBox box;
  FakePump pump;
  int givenUp = 0;
  Renderer renderer{state, {files, textFace, box, pump, [this] { ++givenUp; }, "1.2.24"}};
};

}  // namespace coilrun
