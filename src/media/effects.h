#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/state.h"
#include "model/table.h"
#include "ports/audio_out.h"
#include "ports/files.h"

namespace coilrun {

inline constexpr int kSndBuffers = 128;

/// The sound effects: a store of 128 slots, found by path without regard to letter case.
class Effects {
 public:
  Effects(State& state, Files& files, AudioOut& audio);

  /// Loads the effects that the rules use, in their order.
  void LoadStandardEffects();
  /// Starts an effect from its beginning; `path` is below the program folder. Effects of AI snakes
  /// (2 and above) and all effects can be switched off in the settings.
  void snPlaySound(std::string_view path, int snake);

  /// Loads an effect into a free slot; if it cannot be loaded, it stays silent and the console gets
  /// a line.
  int SnLoadSound(const std::string& path);
  /// The first free slot; a full store is emptied first.
  int FindFreeSndBuffer();
  void ClearSndBuffers();

 private:
  struct SndBuffer {
    std::string path;  ///< empty: a free slot
    std::optional<int> effect;
  };

  std::optional<int> Find(const std::string& path) const;

  State& state_;
  Files& files_;
  AudioOut& audio_;
  Table<SndBuffer, kSndBuffers> buffers_;
};

}  // namespace coilrun
