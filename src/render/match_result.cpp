#include "render/match_result.h"

#include <string>

#include "model/ranking.h"

namespace coilrun {
namespace {

using std::to_string;

constexpr int kLeft = 130;
constexpr int kRight = 510;
constexpr int kTop = 50;
constexpr int kFirstRow = 58;  ///< from the panel's top
constexpr int kRowHeight = 18;
constexpr int kPlaceX = 150;
constexpr int kNameX = 190;
constexpr int kReachedX = 370;
constexpr int kDeathsX = 440;
constexpr int kTitleFont = 4;
constexpr Color kPanel{24, 18, 12};
constexpr Color kRim{196, 160, 92};
constexpr Color kHeading{190, 190, 190};
constexpr Color kWinner{250, 250, 31};
constexpr Color kOthers{250, 250, 250};

void DrawPanel(Surface& target, int bottom) {
  target.FillRect({kLeft - 2, kTop - 2, kRight + 2, bottom + 2}, kRim);
  target.FillRect({kLeft, kTop, kRight, bottom}, kPanel);
}

void DrawHeadings(const State& state, TextPainter& text, int y) {
  text.SetColor(kHeading);
  text.DrawSystemText("Place", kPlaceX, y);
  text.DrawSystemText("Name", kNameX, y);
  text.DrawSystemText(state.mode.HuntingMode ? "Length" : "Frags", kReachedX, y);
  text.DrawSystemText("Deaths", kDeathsX, y);
}

}  // namespace

void DrawMatchResult(const State& state, Canvas& canvas, TextPainter& text) {
  const auto ranking = Ranking(state);
  const int rows = static_cast<int>(ranking.size());
  const int bottom = kTop + kFirstRow + rows * kRowHeight + 34;
  DrawPanel(canvas.Back(), bottom);
  text.DrawBmpTextCentred(state.Snakes(ranking.front()).Name + " wins the match!", kTop + 12,
                          kTitleFont);
  text.SetFont({"Arial", 10, false});
  int y = kTop + kFirstRow - kRowHeight;
  DrawHeadings(state, text, y);
  int place = 0;
  for (const int snake : ranking) {
    y += kRowHeight;
    text.SetColor(++place == 1 ? kWinner : kOthers);
    text.DrawSystemText(to_string(place), kPlaceX, y);
    text.DrawSystemText(state.Snakes(snake).Name, kNameX, y);
    text.DrawSystemText(to_string(ReachedInMatch(state, snake)), kReachedX, y);
    text.DrawSystemText(to_string(state.Snakes(snake).Deaths), kDeathsX, y);
  }
  text.DrawBmpTextCentred("-Press Enter-", bottom - 22, kTitleFont);
  text.SetTextStyle("Standart");
}

}  // namespace coilrun
