#include "pictures.h"

#include <cmath>

namespace coilrun::bench {
namespace {

constexpr std::array<const char*, kItemKinds> kFolders = {"Yellow", "red", "blue",
                                                          "black",  "tnt", "atomic"};
constexpr std::array<const char*, 7> kWalls = {"brik_v",   "brik_h",   "brik_h_t", "brik_h_b",
                                               "brik_v_l", "brik_v_r", "brik"};
constexpr std::array<const char*, kModelPieces> kModelFiles = {
    "head_forw",   "head_back",   "head_left",   "head_right",  "Snake_forw", "Snake_back",
    "Snake_left",  "Snake_right", "Snake_b_l",   "Snake_b_r",   "Snake_f_l",  "Snake_f_r",
    "Snake_b_l_i", "Snake_b_r_i", "Snake_f_l_i", "Snake_f_r_i", "tail_forw",  "tail_back",
    "tail_left",   "tail_right",  "Tail_b_l",    "Tail_b_r",    "Tail_f_l",   "Tail_f_r",
    "Tail_f_l_2",  "Tail_r_f",    "Tail_l_b",    "Tail_b_r_2",  "start"};

struct Sheet {
  const char* file;
  int width;
  int height;
};
constexpr std::array<Sheet, kBitmapFonts> kSheets = {{{"fnt_cour_8", 499, 50},
                                                      {"fnt_cour_11", 499, 50},
                                                      {"fnt_bl_16", 439, 133},
                                                      {"fnt_sys_8", 499, 50},
                                                      {"fnt_DM_16", 439, 133},
                                                      {"fnt_cour_16", 439, 140}}};

constexpr Pixel kGrey131 = 0x838383;
constexpr Pixel kGrey128 = 0x808080;

Pixel Shade(int x, int y) {
  return 0x405060U + static_cast<Pixel>(x * 5 + y * 3);
}

double Distance(double x, double y, double fromX, double fromY) {
  return std::hypot(x - fromX, y - fromY);
}

bool InItem(ItemKind kind, int x, int y) {
  if (kind == ItemKind::kTnt) return x >= 2 && x < 14 && y >= 3 && y < 21;
  if (kind == ItemKind::kPower) return Distance(x, y, 10.5, 10) <= 10;
  return Distance(x, y, -2, 11.5) <= 14.5 && Distance(x, y, -5, 11.5) >= 12 && y >= 1 && y < 23;
}

/// Whether a pixel lies in a tube of radius 7.6: straight, or a quarter turn about a corner of the
/// cell.
bool InTube(ModelPiece piece, int x, int y) {
  using enum ModelPiece;
  const auto corner = [&](int cornerX, int cornerY) {
    return std::abs(Distance(x, y, cornerX - 0.5, cornerY - 0.5) - 10) <= 7.6;
  };
  switch (piece) {
    case kForw:
    case kBack:
      return std::abs(x - 9.5) <= 7.6;
    case kBL:
    case kBLInverse:
      return corner(0, 20);
    case kBR:
    case kBRInverse:
      return corner(20, 20);
    case kFL:
    case kFLInverse:
      return corner(0, 0);
    case kFR:
    case kFRInverse:
      return corner(20, 0);
    default:
      return std::abs(y - 9.5) <= 7.6;
  }
}

}  // namespace

Bitmap ItemFrame(ItemKind kind) {
  const bool power = kind == ItemKind::kPower;
  const Pixel key = kind == ItemKind::kTnt ? kGrey128 : kGrey131;
  return MakeBitmap(power ? 22 : 16, power ? 21 : 24,
                    [&](int x, int y) { return InItem(kind, x, y) ? Shade(x, y) : key; });
}

Bitmap ModelPicture(ModelPiece piece) {
  return MakeBitmap(20, 20,
                    [&](int x, int y) { return InTube(piece, x, y) ? Shade(x, y) : Pixel{0}; });
}

Bitmap WallPicture() {
  return MakeBitmap(20, 20, [](int x, int y) {
    const bool roundedOff = (x == 0 || x == 19) && (y == 0 || y == 19);
    return roundedOff ? Pixel{0} : Shade(x, y);
  });
}

/// A sheet whose every cell holds a vertical stroke and two bars.
Bitmap FontSheet(int font) {
  const Sheet& sheet = kSheets.at(static_cast<std::size_t>(font - 1));
  Bitmap bitmap = Plain(sheet.width, sheet.height, 0);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 24; ++column) {
      const Rect cell = GlyphRect(font, {column, row});
      for (int y = cell.top + 2; y < cell.bottom - 3 && y < sheet.height; ++y) {
        const bool bar = (y - cell.top) % 5 == 2;
        const int right = bar ? cell.right - 1 : cell.left + 1 + cell.Width() / 5;
        for (int x = cell.left + 1; x < right; ++x) {
          bitmap.pixels[static_cast<std::size_t>(y * sheet.width + x)] = 0xF0F0E0;
        }
      }
    }
  }
  return bitmap;
}

Bitmap Background() {
  return MakeBitmap(kScreenWidth, kScreenHeight,
                    [](int x, int y) { return Shade(x & 63, y & 63); });
}

void PutPictures(MemoryFiles& files) {
  const std::string gfx = ".\\gfx\\";
  files.Put(gfx + "bkg_standart.bmp", Background());
  for (const char* const wall : kWalls) files.Put(gfx + wall + ".bmp", WallPicture());
  for (std::size_t kind = 0; kind < kItemKinds; ++kind) {
    for (int frame = 1; frame <= kAnimationFrames; ++frame) {
      files.Put(gfx + kFolders[kind] + "_animated\\" + std::to_string(frame) + ".bmp",
                ItemFrame(static_cast<ItemKind>(kind)));
    }
  }
  for (std::size_t piece = 0; piece < kModelPieces; ++piece) {
    files.Put(gfx + "tube\\" + kModelFiles[piece] + ".bmp",
              ModelPicture(static_cast<ModelPiece>(piece)));
  }
  for (int font = 1; font <= kBitmapFonts; ++font) {
    files.Put(gfx + "fonts\\" + kSheets[static_cast<std::size_t>(font - 1)].file + ".bmp",
              FontSheet(font));
  }
}

}  // namespace coilrun::bench
