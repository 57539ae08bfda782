#include "render/standard_pictures.h"

#include <string_view>

namespace coilrun {
namespace {

constexpr std::string_view kDefaultBackground = "\\gfx\\bkg_standart.bmp";

struct StandardFile {
  std::string_view path;
  PictureSize size;
};

constexpr PictureSize kWall{20, 20};
constexpr PictureSize kWholeScreen{640, 480};
constexpr PictureSize kCaption{174, 44};
constexpr PictureSize kButton{250, 30};
constexpr PictureSize kLight{6, 5};
constexpr PictureSize kTeam{250, 70};
constexpr PictureSize kSmallSheet{499, 50};
constexpr PictureSize kLargeSheet{439, 133};

/// In loading order. All are keyed black.
constexpr std::array<StandardFile, kStandardPictures> kFiles = {{
    {"\\gfx\\brik_v.bmp", kWall},
    {"\\gfx\\brik_h.bmp", kWall},
    {"\\gfx\\brik_h_t.bmp", kWall},
    {"\\gfx\\brik_h_b.bmp", kWall},
    {"\\gfx\\brik_v_l.bmp", kWall},
    {"\\gfx\\brik_v_r.bmp", kWall},
    {"\\gfx\\brik.bmp", kWall},
    {"\\gfx\\pause.bmp", kCaption},
    {"", kWholeScreen},  // the background: named by the level
    {"\\gfx\\hitwall.bmp", {203, 24}},
    {"\\gfx\\gover.bmp", kCaption},
    {"\\gfx\\statistics.bmp", {315, 201}},
    {"\\gfx\\menu\\bkg.bmp", kWholeScreen},
    {"\\gfx\\menu\\Exit_h.bmp", kButton},
    {"\\gfx\\menu\\Exit_n.bmp", kButton},
    {"\\gfx\\menu\\HiScore_h.bmp", kButton},
    {"\\gfx\\menu\\HiScore_n.bmp", kButton},
    {"\\gfx\\menu\\NewGame_h.bmp", kButton},
    {"\\gfx\\menu\\NewGame_n.bmp", kButton},
    {"\\gfx\\menu\\Options_h.bmp", kButton},
    {"\\gfx\\menu\\Options_n.bmp", kButton},
    {"\\gfx\\LED_Yellow.bmp", kLight},
    {"\\gfx\\LED_Red.bmp", kLight},
    {"\\gfx\\LED_Blue.bmp", kLight},
    {"\\gfx\\LED_Green.bmp", kLight},
    {"\\gfx\\menu\\bkg_o.bmp", kWholeScreen},
    {"\\gfx\\menu\\bkg_hs.bmp", kWholeScreen},
    {"\\gfx\\dm.bmp", {54, 21}},
    {"\\gfx\\dm_red.bmp", kTeam},
    {"\\gfx\\dm_blue.bmp", kTeam},
    {"\\gfx\\fonts\\fnt_cour_8.bmp", kSmallSheet},
    {"\\gfx\\fonts\\fnt_cour_11.bmp", kSmallSheet},
    {"\\gfx\\fonts\\fnt_bl_16.bmp", kLargeSheet},
    {"\\gfx\\fonts\\fnt_sys_8.bmp", kSmallSheet},
    {"\\gfx\\fonts\\fnt_DM_16.bmp", kLargeSheet},
    {"\\gfx\\fonts\\fnt_cour_16.bmp", {439, 140}},
}};

constexpr std::size_t Index(Standard which) {
  return static_cast<std::size_t>(which);
}

}  // namespace

StandardPictures::StandardPictures(State& state, const Files& files, PictureLoader& loader)
    : state_(state), files_(files), loader_(loader) {}

void StandardPictures::LoadAll() {
  for (std::size_t i = 0; i < kFiles.size(); ++i) Load(static_cast<Standard>(i));
  const auto pauseFile = files_.Read(InProgramFolder(kFiles[Index(Standard::kPause)].path));
  const auto pause = pauseFile ? DecodeBmp(*pauseFile) : std::nullopt;
  pauseFileWidth_ = pause ? pause->width : 0;
}

void StandardPictures::LoadBackground() {
  Load(Standard::kBackground);
}

void StandardPictures::Load(Standard which) {
  const StandardFile& file = kFiles[Index(which)];
  std::string_view path = file.path;
  if (which == Standard::kBackground) {
    if (state_.level.BkgPic.empty()) state_.level.BkgPic = kDefaultBackground;
    path = state_.level.BkgPic;
  }
  pictures_[Index(which)] =
      loader_.DD_CreateSurfFromFile(InProgramFolder(path), file.size, KeyMode::kBlack);
}

}  // namespace coilrun
