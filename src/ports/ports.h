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

/// The ports that every run has; they live as long as their platform.
struct CommonPorts {
  Clock& clock;
  Screen& screen;
  AudioOut& audio;
  MusicOut& music;
  Files& files;
  Archive& archive;
  SettingsStore& settings;
  TextFace& text;
};

/// Everything that the program needs from a machine.
struct Ports : CommonPorts {
  KeySource& keys;
  MessageBox& box;
};

}  // namespace coilrun
