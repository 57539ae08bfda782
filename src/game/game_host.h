#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// What the rules ask of the rest of the program.
class GameHost {
 public:
  virtual ~GameHost() = default;

  /// Plays an effect, given by its path below the program folder ("\snd\wall.wav"), for the snake
  /// that causes it.
  virtual void PlayEffect(std::string_view path, int snake) = 0;
  /// Draws a complete frame and flips it.
  virtual void DrawFrame() = 0;
  virtual void Yield() = 0;
  virtual void LoadLevel(const std::string& path) = 0;
  /// Runs the menus until they are left.
  virtual void RunMenus() = 0;
  virtual void LoadSettings() = 0;
  /// Takes in the high scores that another running game has stored meanwhile.
  virtual void RefreshHighScores() = 0;
  virtual void SaveSettings() = 0;
};

}  // namespace coilrun
