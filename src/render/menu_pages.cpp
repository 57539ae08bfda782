#include "render/menu_pages.h"

#include <array>
#include <string_view>
#include <utility>

#include "model/numbers.h"

namespace coilrun {
namespace {

constexpr Color kWhite{250, 250, 250};
constexpr Color kDimmed{150, 150, 150};
constexpr Color kCursor{250, 250, 31};
constexpr Color kWarning{250, 130, 90};
constexpr Color kScore{150, 170, 160};
constexpr int kStatusY = 459;
constexpr int kVersionX = 580;
constexpr int kTickerY = 437;
constexpr Point kTitleAt{220, 84};

struct Button {
  Standard normal;
  Standard lit;
  int y;
};
constexpr int kButtonX = 290;
constexpr std::array<Button, 4> kButtons = {{{Standard::kNewGame, Standard::kNewGameLit, 210},
                                             {Standard::kOptions, Standard::kOptionsLit, 230},
                                             {Standard::kHiScore, Standard::kHiScoreLit, 250},
                                             {Standard::kExit, Standard::kExitLit, 290}}};

constexpr std::array<std::string_view, kHiScores> kPlaces = {
    " 1st: ", " 2nd: ", " 3rd: ", " 4th: ", " 5th: ",
    " 6th: ", " 7th: ", " 8th: ", " 9th: ", "10th: "};

FontStyle MenuFont(const char* face) {
  return {face, 10, false};
}

}  // namespace

MenuPages::MenuPages(const State& state, Canvas& canvas, const StandardPictures& standard,
                     const ModelPictures& models, ItemPictures& items, TextPainter& text,
                     std::string version)
    : state_(state),
      canvas_(canvas),
      standard_(standard),
      models_(models),
      items_(items),
      text_(text),
      version_(std::move(version)) {}

void MenuPages::DrawMainPage() {
  canvas_.DrawWhole(standard_(Standard::kMenu));
  // Buttons overlap the next one: the lit one is drawn last, over its neighbours.
  for (const Button& button : kButtons) DrawButton(button.normal, button.y);
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    if (state_.menus.EntryLit(static_cast<int>(i) + 1))
      DrawLitButton(kButtons[i].lit, kButtons[i].y);
  }
  DrawStatus(state_.menus.StatusText);
}

void MenuPages::DrawMainPageFoot() {
  text_.SetFont(MenuFont("Courier New"));
  text_.SetColor({160, 160, 160});
  text_.DrawSystemText("Credits " + state_.menus.CreditsTicker, 5, kTickerY);
  text_.SetColor({190, 220, 190});
  text_.DrawSystemText("Credits ", 5, kTickerY);
  DrawText("Tab  More", {kMoreText.left, kMoreText.top}, TextLook::kPlain);
}

void MenuPages::DrawOptionsBackground() {
  canvas_.DrawWhole(standard_(Standard::kMenuOptions));
}

void MenuPages::DrawPageBackground(MorePage page) {
  DrawOptionsBackground();
  NamedPicture& title = titles_.at(static_cast<std::size_t>(page));
  if (title.name.empty()) {
    title = {"menu\\title_" + std::string{Word(page)} + ".bmp", KeyMode::kBlack};
  }
  const Picture& picture = items_.Fetch(title);
  canvas_.Back().Blit(picture, picture.Bounds(), kTitleAt.x, kTitleAt.y, false);
}

void MenuPages::DrawText(std::string_view text, Point at, TextLook look) {
  constexpr std::array kColors = {kWhite, kDimmed, kCursor, kWarning};
  text_.SetFont(MenuFont("Arial"));
  text_.SetColor(kColors.at(static_cast<std::size_t>(look)));
  text_.DrawSystemText(text, at.x, at.y);
}

void MenuPages::DrawHighScorePage() {
  canvas_.DrawWhole(standard_(Standard::kMenuHiScore));
  text_.SetFont(MenuFont("Courier New"));
  for (int place = 1; place <= kHiScores; ++place) {
    const HiScoreEntry& entry = state_.HiScore(place);
    const int y = 200 + 20 * place;
    const std::string label{kPlaces[static_cast<std::size_t>(place - 1)]};
    text_.SetColor(place == state_.menus.EnteredPlace ? kCursor : kScore);
    text_.DrawSystemText(label + entry.Name, 310, y);
    text_.DrawSystemText(NumberText(entry.Score) + " Pts", 490, y);
  }
  const std::string& status = state_.menus.StatusText;
  DrawStatus(status.empty() ? "Coilrun 'The Hall Of Fame' (High Scores)" : status);
  if (state_.mode.Cheated) text_.DrawSystemText("x: " + state_.mode.CheatLine, 5, 440);
}

void MenuPages::DrawStatus(std::string_view status) {
  DrawText(status, {5, kStatusY}, TextLook::kPlain);
  DrawText("v. " + version_, {kVersionX, kStatusY}, TextLook::kPlain);
}

void MenuPages::DrawModelPreview() {
  constexpr std::array kPieces = {ModelPiece::kHeadLeft, ModelPiece::kLeft, ModelPiece::kTailLeft};
  int x = 300;
  for (const ModelPiece piece : kPieces) {
    canvas_.Back().Blit(models_(state_.Snakes(kPlayer).Model, piece), x, 390);
    x += kCell;
  }
}

void MenuPages::DrawButton(Standard picture, int y) {
  canvas_.Back().Blit(standard_(picture), kButtonX, y);
}

void MenuPages::DrawLitButton(Standard picture, int y) {
  constexpr Rect kBananaPart{0, 0, 16, 24};
  DrawButton(picture, y);
  ItemPicture& banana = items_.Frame(ItemKind::kYellow, state_.timers.AnimFrame);
  canvas_.Back().Blit(items_.Fetch(banana.picture), kBananaPart, 285, y + 5, true);
}

Color FadeColor(int step) {
  const auto half = static_cast<std::uint8_t>(RoundToInt(step / 2.0));
  return {half, static_cast<std::uint8_t>(2 * step), half};
}

}  // namespace coilrun
