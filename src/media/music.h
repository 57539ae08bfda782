#pragma once

#include <string>

#include "model/state.h"
#include "ports/files.h"
#include "ports/music_out.h"

namespace coilrun {

/// The background music, which follows the level by a check on every frame.
class Music {
 public:
  Music(State& state, Files& files, MusicOut& out);

  /// Starts, changes, restarts or stops the music so that it fits the level.
  void Check();

  /// True when the file was loaded; a failure is silent.
  bool snLoadMusic(const std::string& path);
  /// Plays from `position` in seconds, when music is enabled.
  void snPlayMusic(bool loop, double position);
  void snStopMusic();
  /// Restarts the music when it has reached its end.
  void MusicEndCheck();
  /// `percent` is 0 to 100: from 25 dB below full volume up to full.
  void snMusicVolume(int percent);
  bool Loaded() const { return !state_.music.CurrentMusic.empty(); }

 private:
  void Change(const std::string& wanted);

  State& state_;
  Files& files_;
  MusicOut& out_;
};

}  // namespace coilrun
