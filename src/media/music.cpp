#include "media/music.h"

#include "model/feed.h"
#include "model/numbers.h"

namespace coilrun {
namespace {

void DebugMessage(State& state, const std::string& text) {
  if (state.shell.DebugMode) MessagePrint(state, text);
}

}  // namespace

Music::Music(State& state, Files& files, MusicOut& out) : state_(state), files_(files), out_(out) {}

void Music::Check() {
  const std::string& wanted = state_.level.MusicFile;
  if (!state_.settings.MusicEnabled) return;
  if (wanted.empty()) {
    snStopMusic();
  } else if (state_.music.CurrentMusic != wanted || !state_.music.MusicPlaying) {
    Change(wanted);
  } else if (state_.music.MusicLoop) {
    MusicEndCheck();
  }
}

void Music::Change(const std::string& wanted) {
  snStopMusic();
  if (state_.music.refused == wanted) return;
  if (snLoadMusic(wanted)) {
    snPlayMusic(true, 0);
    snMusicVolume(state_.settings.MusicVolume);
  } else {
    state_.music.refused = wanted;
    ConsolePrint(state_, "snLoadMusic: unable to play " + wanted);
  }
}

bool Music::snLoadMusic(const std::string& path) {
  const auto file = files_.Read(path);
  if (!file || !out_.Load(*file)) return false;
  state_.music.CurrentMusic = path;
  DebugMessage(state_, "snLoadMusic: " + path);
  return true;
}

void Music::snPlayMusic(bool loop, double position) {
  if (!state_.settings.MusicEnabled) return;
  out_.Play(position);
  state_.music.MusicLoop = loop;
  state_.music.MusicPlaying = true;
  DebugMessage(state_, "snPlayMusic: Playing Music");
}

void Music::snStopMusic() {
  if (!state_.music.MusicPlaying) return;
  out_.Stop();
  state_.music.MusicPlaying = false;
  DebugMessage(state_, "snStopMusic: Stoping Music");
}

void Music::MusicEndCheck() {
  if (out_.Position() >= out_.Duration()) snPlayMusic(true, 0);
}

void Music::snMusicVolume(int percent) {
  if (!Loaded()) return;
  const int missing = 100 - percent;
  state_.music.Volume = RoundToInt(-missing * missing / 4.0);
  out_.SetVolume(state_.music.Volume);
  DebugMessage(state_, "snMusicVolume: " + std::to_string(percent) + "%");
}

}  // namespace coilrun
