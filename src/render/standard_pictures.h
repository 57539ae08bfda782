#pragma once

#include <array>

#include "render/picture_loader.h"

namespace coilrun {

/// The fixed set of pictures, in loading order.
enum class Standard : std::uint8_t {
  kBrikV,
  kBrikH,
  kBrikHT,
  kBrikHB,
  kBrikVL,
  kBrikVR,
  kBrik,
  kPause,
  kBackground,
  kHitWall,
  kGameOver,
  kStatistics,
  kMenu,
  kExitLit,
  kExit,
  kHiScoreLit,
  kHiScore,
  kNewGameLit,
  kNewGame,
  kOptionsLit,
  kOptions,
  kLedYellow,
  kLedRed,
  kLedBlue,
  kLedGreen,
  kMenuOptions,
  kMenuHiScore,
  kDm,
  kDmRed,
  kDmBlue,
  kFont1,
  kFont2,
  kFont3,
  kFont4,
  kFont5,
  kFont6,
};
inline constexpr int kStandardPictures = 36;

/// The pictures that are loaded once at start-up (and again when the focus comes back).
class StandardPictures {
 public:
  StandardPictures(State& state, const Files& files, PictureLoader& loader);

  void LoadAll();
  /// Loads the level's background, `State::level.BkgPic` below the program folder, if it names one.
  void LoadBackground();

  const Picture& operator()(Standard which) const {
    return pictures_[static_cast<std::size_t>(which)];
  }
  /// Width of the pause picture's bitmap file, by which it is centred; 0 when it could not be read.
  int PauseFileWidth() const { return pauseFileWidth_; }

 private:
  void Load(Standard which);

  State& state_;
  const Files& files_;
  PictureLoader& loader_;
  std::array<Picture, kStandardPictures> pictures_;
  int pauseFileWidth_ = 0;
};

}  // namespace coilrun
