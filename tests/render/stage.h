#pragma once

#include <cctype>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "render/renderer.h"

namespace coilrun {

/// A bitmap file with 24 bits a pixel, stored from the bottom up.
inline Bytes EncodeBmp(const Bitmap& bitmap) {
  Bytes file;
  const auto number = [&file](std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) file.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  };
  const int padding = (4 - bitmap.width * 3 % 4) % 4;
  number(0x4D42, 2);
  number(0, 4), number(0, 4), number(54, 4), number(40, 4);
  number(static_cast<std::uint32_t>(bitmap.width), 4);
  number(static_cast<std::uint32_t>(bitmap.height), 4);
  number(1, 2), number(24, 2);
  for (int i = 0; i < 6; ++i) number(0, 4);
  for (int y = bitmap.height - 1; y >= 0; --y) {
    for (int x = 0; x < bitmap.width; ++x) {
      number(bitmap.pixels[static_cast<std::size_t>(y * bitmap.width + x)], 3);
    }
    number(0, padding);
  }
  return file;
}

/// A bitmap whose pixels a function of x and y gives.
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

/// Files in memory, found whatever the letter case.
class MemoryFiles : public Files {
 public:
  void Put(const std::string& path, const Bitmap& bitmap) {
    files_[Lower(path)] = EncodeBmp(bitmap);
  }
  void Put(const std::string& path, Bytes bytes) { files_[Lower(path)] = std::move(bytes); }
  void Remove(const std::string& path) { files_.erase(Lower(path)); }

  bool Exists(const std::string& path) const override { return files_.contains(Lower(path)); }
  std::optional<Bytes> Read(const std::string& path) const override {
    const auto found = files_.find(Lower(path));
    if (found == files_.end()) return std::nullopt;
    ++reads;
    return found->second;
  }
  std::optional<std::vector<std::string>> List(const std::string&,
                                               std::string_view) const override {
    return std::nullopt;
  }
  bool Write(const std::string&, std::span<const std::uint8_t>) override { return false; }
  bool MakeFolder(const std::string&) override { return false; }
  bool Delete(const std::string&) override { return false; }
  std::string FullName(const std::string& path) const override { return path; }

  mutable int reads = 0;

 private:
  static std::string Lower(std::string path) {
    for (char& c : path) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return path;
  }
  std::map<std::string, Bytes> files_;
};

/// Every character is a block of 6 x 8 pixels.
class BlockText : public TextFace {
 public:
  int Measure(const FontStyle&, std::string_view text) override {
    return 6 * static_cast<int>(text.size());
  }
  const TextMask& Render(const FontStyle& style, std::string_view text) override {
    mask_.width = Measure(style, text);
    mask_.height = 8;
    mask_.coverage.assign(static_cast<std::size_t>(mask_.width * mask_.height), 255);
    return mask_;
  }

 private:
  TextMask mask_;
};

class AnsweringBox : public MessageBox {
 public:
  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons) override {
    shown.push_back(title + ": " + text);
    return answer;
  }
  BoxAnswer answer = BoxAnswer::kYes;
  std::vector<std::string> shown;
};

class CountingPump : public Pump {
 public:
  void Yield() override { ++yields; }
  void Flip() override {}
  void Present() override { ++presents; }
  void Sleep(int) override {}

  int yields = 0;
  int presents = 0;
};

/// A renderer over a state made in code, with files in memory.
struct Stage {
  Stage() {
    state.witness.enabled = true;
    state.shell.DisplayReady = true;
  }

  const Surface& Back() { return renderer.Screen().Back(); }
  Pixel At(int x, int y) { return Back().Pixels()[static_cast<std::size_t>(y * kScreenWidth + x)]; }
  /// The texts on the back buffer as "X,Y font text".
  std::vector<std::string> Drawn() const {
    std::vector<std::string> texts;
    for (const DrawnText& text : state.witness.drawing) {
      texts.push_back(std::to_string(text.X) + "," + std::to_string(text.Y) + " " + text.Font +
                      " " + text.Text);
    }
    return texts;
  }

  State state;
  MemoryFiles files;
  BlockText textFace;
  AnsweringBox box;
  CountingPump pump;
  int givenUp = 0;
  Renderer renderer{state, {files, textFace, box, pump, [this] { ++givenUp; }, "1.2.24"}};
};

}  // namespace coilrun
