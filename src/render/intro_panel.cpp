#include "render/intro_panel.h"

#include <algorithm>
#include <string>

#include "model/numbers.h"

namespace coilrun {
namespace {

constexpr Rect kPanel{113, 70, 527, 410};
constexpr int kMargin = 10;
constexpr int kPictureTop = kPanel.top + kMargin;
constexpr int kCaptionTop = 254;
constexpr int kBarTop = 278;
constexpr int kConsoleTop = 308;
constexpr int kLineHeight = 18;
/// The progress frame is never wider than this.
constexpr int kBarWidth = 394;
constexpr int kBarHeight = 14;

constexpr Color kBoard{18, 24, 22};
constexpr Color kBorder{196, 156, 72};
constexpr Color kBar{64, 160, 72};
constexpr Color kMatchBar{100, 0, 0};
constexpr Color kTrough{34, 42, 40};
constexpr Color kBright{240, 236, 220};
constexpr Color kCalm{150, 170, 160};

const FontStyle kFont{"Arial", 9, false};

std::string WithoutLineBreak(std::string_view line) {
  return std::string{line.substr(0, line.find('\r'))};
}

}  // namespace

IntroPanel::IntroPanel(State& state, Canvas& canvas, TextFace& textFace, Pump& pump,
                       const Files& files)
    : state_(state), canvas_(canvas), textFace_(textFace), pump_(pump), files_(files) {}

void IntroPanel::SetCaption(std::string_view caption) {
  state_.feed.introCaption = caption;
  Show();
}

void IntroPanel::SetProgress(double percent) {
  const auto width = [this] {
    return RoundToInt(std::clamp(state_.feed.introProgress, 0.0, 100.0) * kBarWidth / 100);
  };
  const int before = width();
  state_.feed.introProgress = percent;
  if (width() != before) Show();
}

void IntroPanel::Show() {
  if (!state_.feed.introVisible) return;
  DrawBackground();
  DrawText(state_.feed.introCaption, kPanel.left + kMargin, kCaptionTop, kBright);
  DrawBar();
  DrawConsole();
  pump_.Present();
}

void IntroPanel::DrawBackground() {
  if (!pictureTried_) {
    const auto file = files_.Read(InProgramFolder("\\intro.bmp"));
    auto bitmap = file ? DecodeBmp(*file) : std::nullopt;
    if (bitmap) picture_ = Picture(std::move(*bitmap), KeyMode::kBlack);
    pictureTried_ = true;
  }
  Surface& primary = canvas_.Primary();
  primary.Fill({});
  primary.FillRect(kPanel, kBorder);
  primary.FillRect({kPanel.left + 1, kPanel.top + 1, kPanel.right - 1, kPanel.bottom - 1}, kBoard);
  primary.Blit(picture_, picture_.Bounds(), kScreenWidth / 2 - picture_.Width() / 2, kPictureTop,
               false);
  if (state_.mode.GameMode == GameMode::kSingle) return;
  const char* const caption = state_.mode.HuntingMode ? "Deathmatch: Hunting" : "Deathmatch";
  DrawText(caption, kPanel.right - kMargin - textFace_.Measure(kFont, caption), kCaptionTop,
           kBright);
}

void IntroPanel::DrawBar() {
  const int left = kScreenWidth / 2 - kBarWidth / 2;
  const double part = std::clamp(state_.feed.introProgress, 0.0, 100.0) / 100;
  const bool match = state_.mode.GameMode != GameMode::kSingle;
  Surface& primary = canvas_.Primary();
  primary.FillRect({left, kBarTop, left + kBarWidth, kBarTop + kBarHeight}, kTrough);
  primary.FillRect({left, kBarTop, left + RoundToInt(kBarWidth * part), kBarTop + kBarHeight},
                   match ? kMatchBar : kBar);
}

void IntroPanel::DrawConsole() {
  int y = kConsoleTop;
  for (const std::string& line : state_.feed.Console) {
    DrawText(WithoutLineBreak(line), kPanel.left + kMargin, y, kCalm);
    y += kLineHeight;
  }
}

void IntroPanel::DrawText(std::string_view text, int x, int y, Color color) {
  if (!text.empty()) canvas_.Primary().BlendText(textFace_.Render(kFont, text), x, y, color);
}

}  // namespace coilrun
