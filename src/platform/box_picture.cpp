#include "platform/box_picture.h"

#include <algorithm>

#include "ports/screen.h"

namespace coilrun {
namespace {

constexpr std::uint32_t kDark = 0x101418;
constexpr std::uint32_t kPanel = 0x26303A;
constexpr std::uint32_t kEdge = 0xE8A030;
constexpr std::uint32_t kBright = 0xF0F0F0;
constexpr int kPanelWidth = 560;
constexpr int kMargin = 24;
constexpr int kLineHeight = 20;
constexpr std::size_t kMostLines = 20;

const FontStyle kTitleStyle{"Arial", 12, true};
const FontStyle kTextStyle{"Arial", 11, false};

struct Line {
  std::string text;
  FontStyle style;
  std::uint32_t color;
};

void Fill(BoxPicture& picture, int x, int y, int width, int height, std::uint32_t color) {
  for (int row = y; row < y + height; ++row) {
    std::fill_n(picture.begin() + row * kScreenWidth + x, width, color);
  }
}

/// One channel of `front` blended over `back` with an opacity of `share` / 255.
std::uint32_t Mix(std::uint32_t front, std::uint32_t back, std::uint32_t share, unsigned shift) {
  const std::uint32_t mixed =
      (((front >> shift) & 255U) * share + ((back >> shift) & 255U) * (255U - share)) / 255U;
  return mixed << shift;
}

void DrawLine(BoxPicture& picture, TextFace& face, const Line& line, int x, int y) {
  const TextMask& mask = face.Render(line.style, line.text);
  const int width = std::min(mask.width, kScreenWidth - x);
  const int height = std::min(mask.height, kScreenHeight - y);
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      const auto share = mask.coverage.at(static_cast<std::size_t>(row * mask.width + column));
      auto& pixel = picture.at(static_cast<std::size_t>((y + row) * kScreenWidth + x + column));
      pixel = Mix(line.color, pixel, share, 16U) | Mix(line.color, pixel, share, 8U) |
              Mix(line.color, pixel, share, 0U);
    }
  }
}

/// Appends a paragraph as lines that fit the panel, as many as it has room for; a word that is too
/// long is cut.
void Wrap(std::vector<Line>& lines, TextFace& face, std::string paragraph) {
  constexpr int kWidth = kPanelWidth - 2 * kMargin;
  // Even the narrowest letters fill a line by then; measuring more of a long text would take long.
  constexpr std::size_t kLongestLine = 200;
  while (lines.size() < kMostLines) {
    std::size_t fits = std::min(paragraph.size(), kLongestLine);
    while (fits > 1 && face.Measure(kTextStyle, paragraph.substr(0, fits)) > kWidth) {
      const std::size_t blank = paragraph.rfind(' ', fits - 1);
      fits = blank == std::string::npos || blank == 0 ? fits - 1 : blank;
    }
    lines.push_back({paragraph.substr(0, fits), kTextStyle, kBright});
    if (fits == paragraph.size()) return;
    paragraph.erase(0, fits + (paragraph[fits] == ' ' ? 1 : 0));
  }
}

std::vector<Line> LinesOf(TextFace& face, const std::string& title, const std::string& text,
                          bool isQuestion) {
  std::vector<Line> lines{{title, kTitleStyle, kEdge}, {"", kTextStyle, kBright}};
  for (std::size_t start = 0; start <= text.size() && lines.size() < kMostLines;) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    Wrap(lines, face, text.substr(start, end - start));
    start = end + 1;
  }
  lines.push_back({"", kTextStyle, kBright});
  lines.push_back({isQuestion ? "Enter: Yes      Escape: No" : "Enter: OK", kTitleStyle, kEdge});
  return lines;
}

}  // namespace

BoxPicture DrawBox(TextFace& face, const std::string& title, const std::string& text,
                   bool isQuestion) {
  BoxPicture picture(kScreenPixels, kDark);
  const auto lines = LinesOf(face, title, text, isQuestion);
  const int height = static_cast<int>(lines.size()) * kLineHeight + 2 * kMargin - kLineHeight / 4;
  const int x = (kScreenWidth - kPanelWidth) / 2;
  const int y = std::max(0, (kScreenHeight - height) / 2);
  Fill(picture, x - 2, std::max(0, y - 2), kPanelWidth + 4, std::min(height + 4, kScreenHeight),
       kEdge);
  Fill(picture, x, y, kPanelWidth, std::min(height, kScreenHeight), kPanel);
  int top = y + kMargin;
  for (const Line& line : lines) {
    if (!line.text.empty()) DrawLine(picture, face, line, x + kMargin, top);
    top += kLineHeight;
  }
  return picture;
}

}  // namespace coilrun
