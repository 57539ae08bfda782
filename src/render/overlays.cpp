#include "render/overlays.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/numbers.h"
#include "model/snakes_in_play.h"
#include "render/match_result.h"

namespace coilrun {
namespace {

using std::to_string;

constexpr std::array<ItemKind, 4> kColoured = {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue,
                                               ItemKind::kBlack};

bool Multiplayer(const State& state) {
  return IsMultiplayer(state.mode.GameMode);
}

/// The places on the panel: icons (animated ones sit two pixels higher) and counters.
struct PanelPlace {
  ItemKind kind;
  int iconX;
  int counterX;
};
constexpr std::array<PanelPlace, 5> kPanel = {{{ItemKind::kYellow, 25, 41},
                                               {ItemKind::kRed, 75, 91},
                                               {ItemKind::kBlue, 127, 143},
                                               {ItemKind::kBlack, 177, 193},
                                               {ItemKind::kTnt, 224, 240}}};
constexpr int kAnimatedIconY = 448;
constexpr int kFlatIconY = 450;
constexpr int kCounterY = 452;

int Counter(const SnakeRec& player, ItemKind kind) {
  switch (kind) {
    case ItemKind::kYellow:
      return player.YellowEaten;
    case ItemKind::kRed:
      return player.RedEaten;
    case ItemKind::kBlue:
      return player.BlueEaten;
    case ItemKind::kBlack:
      return player.BlackEaten;
    default:
      return player.TNT;
  }
}

double Required(const LevelState& level, ItemKind kind) {
  switch (kind) {
    case ItemKind::kYellow:
      return level.reqYellow;
    case ItemKind::kRed:
      return level.reqRed;
    case ItemKind::kBlue:
      return level.reqBlue;
    default:
      return level.reqBlack;
  }
}

std::string StatsLine(const State& state, const SnakeRec& snake) {
  std::string line = snake.Name + ": " + to_string(snake.Score);
  if (!Multiplayer(state)) return line;
  line += "/frags:" + to_string(snake.Frags);
  if (!state.shell.MatchStatsDetail) return line;
  if (snake.Deaths < 1) return line + "/not died";
  return line + "/died " + to_string(snake.Deaths) + std::string{OrdinalSuffix(snake.Deaths)} +
         " time";
}

/// The lights' colours in phases 0 and 4. In each phase the row of four moves on by one.
constexpr std::array<Standard, 4> kLightColours = {Standard::kLedRed, Standard::kLedGreen,
                                                   Standard::kLedYellow, Standard::kLedBlue};
constexpr int kLights = 5;

Standard LightColour(int light, int phase) {
  const int turned = (light + 4 - std::clamp(phase, 0, 4)) % 4;
  return kLightColours[static_cast<std::size_t>(turned)];
}

}  // namespace

Overlays::Overlays(const State& state, Canvas& canvas, const StandardPictures& standard,
                   ItemPictures& items, TextPainter& text, std::string version)
    : state_(state),
      canvas_(canvas),
      standard_(standard),
      items_(items),
      text_(text),
      version_(std::move(version)) {}

void Overlays::DrawMessageFeed() {
  for (int line = 1; line <= kMsgLines; ++line) {
    text_.DrawBmpText(state_.feed.MsgLines(line), 18, 30 + 10 * line, 1);
  }
}

void Overlays::DrawStatusLine() {
  const SnakeRec& player = state_.Snakes(kPlayer);
  const std::string score = "Score: " + to_string(player.Score) + "  ";
  const std::string level = " Level: " + state_.level.lvlName;
  if (Multiplayer(state_)) {
    text_.DrawBmpText(score + level + "  ", 20, 20, 3);
    const std::string frags = to_string(player.Frags);
    text_.DrawBmpText(frags, 635 - BitmapFonts::Width(frags, 5), 450, 5);
  } else {
    text_.DrawBmpText(score + " Lives: " + to_string(player.Lives) + "  " + level, 20, 20, 3);
  }
  if (!state_.shell.ShowFPS) return;
  // Placed on purpose by the width of font 4, though it is drawn in font 3.
  const std::string fps = "FPS: " + to_string(state_.shell.Fps);
  text_.DrawBmpText(fps, kScreenWidth - (BitmapFonts::Width(fps, 4) + 25), 20, 3);
}

void Overlays::DrawItemPanel() {
  const bool animated = state_.settings.AnimatedItems;
  for (const PanelPlace& place : kPanel) {
    const bool tall = animated || place.kind == ItemKind::kTnt;
    items_.Draw(canvas_.Back(), items_.Icon(place.kind, animated), place.iconX,
                tall ? kAnimatedIconY : kFlatIconY);
    text_.DrawBmpText("=" + to_string(Counter(state_.Snakes(kPlayer), place.kind)), place.counterX,
                      kCounterY, 4);
  }
}

void Overlays::DrawMatchStats() {
  for (int s = 1; s <= SnakesInPlay(state_); ++s) {
    text_.DrawBmpText(StatsLine(state_, state_.Snakes(s)), 15, 120 + 10 * s, 1);
  }
}

void Overlays::DrawCenterLines() {
  for (const CenterLine& line : state_.CenterLines) {
    if (!line.Text.empty()) text_.DrawBmpTextCentred(line.Text, line.Y, line.Font);
  }
}

void Overlays::DrawWaitOverlay() {
  if (state_.overlay == WaitOverlay::kGameOver) {
    const Picture& picture = standard_(Standard::kGameOver);
    canvas_.Back().Blit(picture, kScreenWidth / 2 - picture.Width() / 2, 140);
  }
  if (state_.overlay == WaitOverlay::kTimeLimit) {
    text_.SetTextStyle("Standart");
    text_.SetFont({"Balloon", 20, false});
    text_.DrawSystemText("Time Limit Hit!", 230, 210);
    text_.SetFont({"Balloon", 12, false});
    text_.DrawSystemText("Press Enter", 270, 250);
    text_.SetTextStyle("Standart");
  }
  if (state_.overlay == WaitOverlay::kMatchResult) DrawMatchResult(state_, canvas_, text_);
}

void Overlays::DrawLevelScreenPage() {
  canvas_.Back().Blit(standard_(Standard::kStatistics), 162, 140);
  if (state_.shell.DebugMode) {
    const std::string version = "Coilrun v." + version_;
    text_.DrawBmpText(version, 477 - BitmapFonts::Width(version, 1), 146, 1);
  }
  text_.DrawBmpTextCentred(state_.level.lvlName, 155, 6);
  if (Multiplayer(state_)) {
    DrawMatchGoal();
  } else {
    DrawLevelGoals();
  }
  const LevelState& level = state_.level;
  const std::string clock = level.Timeout == 0
                                ? to_string(level.ElapsedSecs) + " seconds gone"
                                : NumberText(level.Timeout - level.ElapsedSecs) + " seconds remain";
  text_.DrawBmpTextCentred(clock, 306, 4);
  text_.DrawBmpText("Press F1", 172, 326, 1);
  DrawLights();
}

void Overlays::DrawMatchGoal() {
  const std::string limit = to_string(state_.mode.MatchLimit);
  text_.DrawBmpText("Deathmatch!", 180, 185, 4);
  if (state_.mode.HuntingMode) {
    text_.DrawBmpText("Hunting Mode", 200, 205, 4);
    text_.DrawBmpText("Length " + limit + " wins the match.", 200, 220, 4);
  } else {
    text_.DrawBmpText(limit + " frags wins the match.", 200, 205, 4);
  }
}

void Overlays::DrawLevelGoals() {
  constexpr std::array<int, 4> kGoalY = {203, 223, 243, 263};
  const SnakeRec& player = state_.Snakes(kPlayer);
  std::array<int, 4> textX{};
  text_.DrawBmpTextCentred("To complete this level you need:", 185, 4);
  for (std::size_t i = 0; i < kColoured.size(); ++i) {
    const std::string goal = ": " + NumberText(Required(state_.level, kColoured[i])) +
                             " (you have " + to_string(Counter(player, kColoured[i])) + ")";
    textX[i] = text_.DrawBmpTextCentred(goal, kGoalY[i], 4);
  }
  text_.DrawBmpTextCentred(
      "Score: " + to_string(state_.level.reqScore) + " (you have " + to_string(player.Score) + ")",
      282, 4);
  text_.DrawBmpTextCentred("Your Total Score: " + to_string(player.TotalScore), 295, 4);

  const bool animated = state_.settings.AnimatedItems;
  for (std::size_t i = 0; i < kColoured.size(); ++i) {
    const int row = static_cast<int>(i);
    items_.Draw(canvas_.Back(), items_.Icon(kColoured[i], animated), animated ? textX[i] - 20 : 185,
                200 + (animated ? 20 : 15) * row);
  }
}

void Overlays::DrawLights() {
  for (int light = 0; light < kLights; ++light) {
    const Picture& picture = standard_(LightColour(light, state_.timers.AnimPhase));
    canvas_.Back().Blit(picture, 427 + 10 * light, 333);
  }
}

void Overlays::DrawPausePicture() {
  const int x = RoundToInt(kScreenWidth / 2.0 - standard_.PauseFileWidth() / 2.0);
  canvas_.Back().Blit(standard_(Standard::kPause), x, 210);
}

std::string_view OrdinalSuffix(int number) {
  if (number <= 0) return "";
  if (number == 1) return "st";
  if (number == 2) return "nd";
  return number == 3 ? "rd" : "th";
}

}  // namespace coilrun
