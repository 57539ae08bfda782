#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <iosfwd>
#include <string>
#include <string_view>

#include "model/state.h"
#include "ports/clock.h"
#include "ports/key_source.h"
#include "ports/message_box.h"
#include "ports/music_out.h"
#include "ports/picture_sink.h"
#include "script/script.h"

namespace coilrun {

/// What a script is played on. All of it must outlive the player.
struct ScriptStage {
  State& state;
  const Clock& clock;
  const MusicOut& music;
  PictureSink& pictures;
  std::ostream& trace;     ///< where `state` lines go
  std::ostream& messages;  ///< message boxes and errors (standard error)
};

/// Plays a headless run: keys, window events, answers, and everything else that a script asks for.
/// The script may be empty. `Gather` leaves the program with `Terminate`: with 0 at `end`; with 2
/// and one line of explanation when a step fails, ten virtual minutes after the last command, and
/// after a million calls during which time has not moved.
class ScriptPlayer final : public KeySource, public MessageBox {
 public:
  ScriptPlayer(Script script, const ScriptStage& stage);

  void Gather(WindowListener& listener) override;
  void Serve() override {}
  void ReadKeys(KeySnapshot& keys) override;
  std::optional<PointerEvent> NextPointerEvent() override;

  /// Prints the box and takes the oldest answer that is due; if there is none, it is No or OK.
  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons buttons) override;

 private:
  /// The changes of a key alternate, so their number says all about its queue.
  struct Key {
    bool held = false;  ///< after all changes
    int unseen = 0;     ///< changes that no poll has seen yet
  };

  void CheckThatTimeMoves(std::int64_t now);
  void Run(const ScriptStep& step, WindowListener& listener);
  void QueueKey(std::uint8_t code, bool down);
  void WriteState(const ScriptStep& step);
  [[noreturn]] void Fail(const ScriptStep& step, std::string_view what);
  [[noreturn]] void Abandon(std::string_view what);

  Script script_;
  ScriptStage stage_;
  std::size_t nextStep_ = 0;
  std::size_t nextAnswer_ = 0;
  std::array<Key, std::tuple_size_v<KeySnapshot>> keys_{};
  std::deque<PointerEvent> pointer_;
  std::int64_t lastNow_ = -1;
  int yieldsWithoutTime_ = 0;
};

}  // namespace coilrun
