#include <set>

#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(BitmapFontWidth, IsWiderThanTheInk) {
  EXPECT_EQ(BitmapFonts::Width("", 1), 7);
  EXPECT_EQ(BitmapFonts::Width("", 3), 5);
  EXPECT_EQ(BitmapFonts::Width("AB", 1), 21);
  EXPECT_EQ(BitmapFonts::Width("AB", 2), 27);
  EXPECT_EQ(BitmapFonts::Width("AB", 3), 27);
  EXPECT_EQ(BitmapFonts::Width("xxxxxxxxx", 2), 90) << "90.5";
  EXPECT_EQ(BitmapFonts::Width("xxxxxxxxxxxxxxxxxxx", 2), 181);
  EXPECT_EQ(BitmapFonts::Width("7", 5), 18);
  EXPECT_EQ(BitmapFonts::Width("A", 6), 16);
  EXPECT_EQ(BitmapFonts::Width("A", 0), 0);
  EXPECT_EQ(BitmapFonts::Width("A", 7), 0);
}

TEST(GlyphRects, AreOneNarrowerThanTheCellAndRoundHalvesToEven) {
  EXPECT_EQ(GlyphRect(1, {0, 0}), (Rect{0, 0, 6, 14}));
  EXPECT_EQ(GlyphRect(2, {10, 0}), (Rect{90, 0, 99, 16})) << "90.5, 98.55 and 16.5";
  EXPECT_EQ(GlyphRect(2, {11, 1}), (Rect{100, 16, 108, 33}));
  EXPECT_EQ(GlyphRect(2, {9, 2}), (Rect{81, 33, 90, 50})) << "81.45, 89.5 and 49.5";
  EXPECT_EQ(GlyphRect(5, {25, 0}), (Rect{418, 0, 433, 24}));
}

TEST(GlyphCells, HoldLettersDigitsAndThirteenSigns) {
  const std::vector<std::pair<char, GlyphCell>> cases = {
      {'A', {0, 0}},  {'Z', {25, 0}}, {'a', {0, 1}},  {'z', {25, 1}},    {'0', {0, 2}},
      {'9', {9, 2}},  {'.', {11, 2}}, {'=', {19, 2}}, {'\\', {20, 2}},   {'?', {23, 2}},
      {' ', {10, 2}}, {',', {10, 2}}, {'@', {10, 2}}, {'\xE4', {10, 2}}, {'\0', {10, 2}}};
  for (const auto& [character, cell] : cases) EXPECT_EQ(CellOf(character), cell) << character;
}

TEST(FurtherGlyphCells, HoldMarksAndUmlautsBesideOrBelowTheOthers) {
  struct Case {
    char character;
    std::optional<GlyphCell> small;
    std::optional<GlyphCell> large;
  };
  const std::vector<Case> cases = {{'\'', {{26, 0}}, {{0, 3}}},
                                   {',', {{27, 0}}, {{1, 3}}},
                                   {'%', {{32, 0}}, {{6, 3}}},
                                   {'\xA7', {{46, 0}}, {{20, 3}}},
                                   {'\xC4', {{26, 1}}, {{0, 4}}},
                                   {'\xDF', {{32, 1}}, {{6, 4}}},
                                   {'A', {}, {}},
                                   {'?', {}, {}},
                                   {' ', {}, {}},
                                   {'\xE9', {}, {}}};
  for (const auto& [character, small, large] : cases) {
    for (const int font : {1, 2, 4}) EXPECT_EQ(FurtherCellOf(font, character), small) << character;
    for (const int font : {3, 5, 6}) EXPECT_EQ(FurtherCellOf(font, character), large) << character;
  }
  EXPECT_EQ(FurtherCellOf(3, 'Z'), (GlyphCell{7, 4})) << "its first cell leaves the sheet";
  EXPECT_EQ(FurtherCellOf(3, 'z'), (GlyphCell{8, 4}));
  EXPECT_EQ(FurtherCellOf(5, 'Z'), std::nullopt);
}

TEST(FurtherGlyphCells, GiveEveryTypableCharacterAPlaceOfItsOwnOnTheSheet) {
  const std::array<Rect, kBitmapFonts> sheets = {{{0, 0, 499, 50},
                                                  {0, 0, 499, 50},
                                                  {0, 0, 439, 133},
                                                  {0, 0, 499, 50},
                                                  {0, 0, 439, 133},
                                                  {0, 0, 439, 140}}};
  for (int font = 1; font <= kBitmapFonts; ++font) {
    std::set<std::pair<int, int>> taken;
    for (char character = '!'; character <= '~'; ++character) {
      const Rect place =
          GlyphRect(font, FurtherCellOf(font, character).value_or(CellOf(character)));
      EXPECT_TRUE(sheets.at(static_cast<std::size_t>(font - 1)).Holds(place)) << font << character;
      EXPECT_TRUE(taken.emplace(place.left, place.top).second) << font << character;
    }
  }
}

/// Font sheets that are white all over.
struct TextTest : testing::Test, Stage {
  TextTest() {
    for (const char* const name : {"cour_8", "cour_11", "sys_8"}) PutSheet(name, 499, 50);
    for (const char* const name : {"bl_16", "DM_16"}) PutSheet(name, 439, 133);
    PutSheet("cour_16", 439, 140);
    renderer.LoadStandardPictures();
    renderer.FillBack({});
    state.mode.NumSnakes = 2;
  }
  void PutSheet(const std::string& name, int width, int height) {
    Put("fonts\\fnt_" + name, width, height, 0xFFFFFF);
  }
  void Redraw(const std::string& name, int width, int height, Pixel (*pixelAt)(int x, int y)) {
    files.Put(".\\gfx\\fonts\\fnt_" + name + ".bmp", MakeBitmap(width, height, pixelAt));
    renderer.LoadStandardPictures();
    renderer.FillBack({});
  }
  /// The first column of each stretch of ink in row `y`.
  std::vector<int> InkStarts(int y) {
    std::vector<int> starts;
    for (int x = 0; x < kScreenWidth; ++x) {
      if (At(x, y) != 0 && (x == 0 || At(x - 1, y) == 0)) starts.push_back(x);
    }
    return starts;
  }
  TextPainter& text = renderer.Text();
};

TEST_F(TextTest, GlyphsStandAtRoundedPlaces) {
  EXPECT_EQ(text.DrawBmpText("AB", 18, 0, 1), 21);
  EXPECT_EQ(text.DrawBmpText("aaaaaaaaaaa", 0, 100, 4), 96);
  EXPECT_EQ(text.DrawBmpText("AA", 10, 200, 5), 30) << "5 left of x, then 11.7 on: 5 and 16.7";
  EXPECT_EQ(text.DrawBmpText("AB", 0, 300, 7), 0);
  EXPECT_EQ(text.DrawBmpText("AB", 0, 300, 1, true), 21);

  EXPECT_THAT(InkStarts(0), ElementsAre(18, 25));
  EXPECT_THAT(InkStarts(100), ElementsAre(0, 8, 16, 24, 32, 40, 48, 56, 64, 72, 80));
  EXPECT_THAT(InkStarts(200), ElementsAre(5)) << "the second glyph touches the first";
  EXPECT_THAT(InkStarts(300), IsEmpty());
  EXPECT_THAT(Drawn(), ElementsAre("18,0 1 AB", "0,100 4 aaaaaaaaaaa", "10,200 5 AA"));
}

TEST_F(TextTest, OnlyGlyphsThatLeaveScreenOrSheetAreLeftOut) {
  text.DrawBmpText("xxx", 628, 0, 1);
  EXPECT_THAT(InkStarts(0), ElementsAre(628)) << "the second would end at 641";

  Redraw("bl_16", 439, 133, [](int, int y) { return y < 69 ? 0xFFFFFFu : 0u; });
  text.DrawBmpText("ZAZ", 100, 100, 3);
  EXPECT_THAT(InkStarts(100), ElementsAre(105)) << "without further cells the sheet ends inside Z";
}

TEST_F(TextTest, FurtherCellsAreDrawnUnlessTheSheetHasNothingThere) {
  constexpr Pixel kOther = 0x800000;
  constexpr Pixel kApostrophe = 0x008000;
  Redraw("cour_8", 499, 50, [](int x, int y) {
    if (y < 14 && x >= 182 && x < 188) return kApostrophe;
    return y >= 28 && y < 42 && x >= 70 && x < 76 ? kOther : 0;
  });
  text.DrawBmpText("',\xE9", 0, 0, 1);
  EXPECT_THAT(At({{0, 0}, {7, 0}, {14, 0}}), ElementsAre(kApostrophe, kOther, kOther));

  text.DrawBmpText("Z", 100, 100, 3);
  EXPECT_THAT(InkStarts(100), ElementsAre(94));
}

TEST_F(TextTest, CentredTextRoundsHalvesToEven) {
  EXPECT_EQ(text.DrawBmpTextCentred("AB", 5, 1), 310) << "320 - 10.5";
  EXPECT_EQ(text.DrawBmpTextCentred("ABCD", 5, 1), 302) << "320 - 17.5";
  EXPECT_THAT(Drawn(), ElementsAre("310,5 1 AB", "302,5 1 ABCD"));
}

TEST_F(TextTest, SnakeNamesStandOverTheHeadsWhenAskedFor) {
  state.Snakes(1).Name = "Ann";
  state.Snakes(1).X = 101;
  state.Snakes(1).Y = 50;

  text.DrawSnakeNames(false);
  EXPECT_THAT(Drawn(), IsEmpty());
  state.keys.KeyPressed = 49;
  text.DrawSnakeNames(false);
  state.keys.KeyPressed = 0;
  text.DrawSnakeNames(true);
  text.DrawSystemText("next", 1, 1);

  EXPECT_THAT(Drawn(), ElementsAre("102,40 Arial Ann", "102,40 Arial Ann", "1,1 Balloon next"));
  EXPECT_THAT(At({{102, 40}, {1, 1}}), ElementsAre(0xC80000, 0x960000));
}

}  // namespace
}  // namespace coilrun
