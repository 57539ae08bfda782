#include "media/effects.h"

#include <array>

#include "model/feed.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::array<std::string_view, 4> kStandardEffects = {
    "\\Snd\\collect.wav", "\\Snd\\explode.wav", "\\Snd\\live.wav", "\\Snd\\wall.wav"};

}  // namespace

Effects::Effects(State& state, Files& files, AudioOut& audio)
    : state_(state), files_(files), audio_(audio) {}

void Effects::LoadStandardEffects() {
  for (const std::string_view path : kStandardEffects) SnLoadSound(InProgramFolder(path));
}

void Effects::snPlaySound(std::string_view path, int snake) {
  if (!state_.settings.SndEnabled) return;
  if (snake > 1 && !state_.settings.KiSndEnabled) return;
  const std::string full = InProgramFolder(path);
  const std::optional<int> held = Find(full);
  const SndBuffer& buffer = buffers_(held ? *held : SnLoadSound(full));
  if (!buffer.effect) return;
  audio_.Play(*buffer.effect);
  if (state_.output.enabled) state_.output.sounds.push_back({buffer.path, snake});
  if (state_.shell.DebugMode) MessagePrint(state_, "snPlaySound: " + buffer.path);
}

int Effects::SnLoadSound(const std::string& path) {
  const int slot = FindFreeSndBuffer();
  SndBuffer& buffer = buffers_(slot);
  buffer.path = path;
  DebugPrint(state_, "SnLoadSound: Loading " + path + " to buffer " + std::to_string(slot) + ".");
  const auto wave = files_.Read(path);
  if (wave) buffer.effect = audio_.Load(*wave);
  if (!buffer.effect) ConsolePrint(state_, "SnLoadSound: unable to load " + path);
  return slot;
}

int Effects::FindFreeSndBuffer() {
  for (int slot = 1; slot < kSndBuffers; ++slot) {
    if (buffers_(slot).path.empty()) return slot;
  }
  ClearSndBuffers();
  return 1;
}

void Effects::ClearSndBuffers() {
  for (SndBuffer& buffer : buffers_) {
    if (buffer.effect) audio_.Release(*buffer.effect);
    buffer = {};
  }
}

std::optional<int> Effects::Find(const std::string& path) const {
  const std::string folded = FoldCase(path);
  for (int slot = 1; slot <= kSndBuffers; ++slot) {
    if (FoldCase(buffers_(slot).path) == folded) return slot;
  }
  return std::nullopt;
}

}  // namespace coilrun
