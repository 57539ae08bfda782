#pragma once

#include "ports/archive.h"
#include "ports/audio_out.h"
#include "ports/clock.h"
#include "ports/files.h"
#include "ports/key_source.h"
#include "ports/message_box.h"
#include "ports/music_out.h"
#include "ports/screen.h"
#include "ports/settings_store.h"
#include "ports/text_face.h"

namespace coilrun {

/// Everything that the program needs of a machine.
struct Ports {
  Clock& clock;
  Screen& screen;
  KeySource& keys;
  MessageBox& box;
  AudioOut& audio;
  MusicOut& music;
  Files& files;
  Archive& archive;
  SettingsStore& settings;
  TextFace& text;
};

}  // namespace coilrun
