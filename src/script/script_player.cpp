#include "script/script_player.h"

#include <cmath>
#include <ostream>
#include <utility>

#include "ports/terminate.h"
#include "ports/windows_1252.h"
#include "script/set_field.h"
#include "script/trace.h"

namespace coilrun {
namespace {

constexpr std::int64_t kMostTimeAfterTheLastStep = 10LL * 60 * 1'000'000;
constexpr int kMostYieldsWithoutTime = 1'000'000;
constexpr int kFailed = 2;

/// One line of UTF-8: line breaks become "\n".
std::string OneLine(const std::string& text) {
  std::string line;
  for (const char character : ToUtf8(text)) {
    if (character == '\n') {
      line += "\\n";
    } else if (character != '\r') {
      line += character;
    }
  }
  return line;
}

}  // namespace

ScriptPlayer::ScriptPlayer(Script script, const ScriptStage& stage)
    : script_(std::move(script)), stage_(stage) {}

void ScriptPlayer::Gather(WindowListener& listener) {
  const std::int64_t now = stage_.clock.NowMicros();
  CheckThatTimeMoves(now);
  while (nextStep_ < script_.steps.size() && script_.steps[nextStep_].at <= now) {
    Run(script_.steps[nextStep_++], listener);
  }
  if (now - script_.lastAt >= kMostTimeAfterTheLastStep) {
    Abandon("the game is still running ten minutes after the last command");
  }
}

void ScriptPlayer::CheckThatTimeMoves(std::int64_t now) {
  yieldsWithoutTime_ = now == lastNow_ ? yieldsWithoutTime_ + 1 : 1;
  lastNow_ = now;
  if (yieldsWithoutTime_ >= kMostYieldsWithoutTime) {
    Abandon("a million yields have passed, but no time");
  }
}

void ScriptPlayer::Run(const ScriptStep& step, WindowListener& listener) {
  switch (step.verb) {
    case Verb::kKeyDown:
      return QueueKey(step.code, true);
    case Verb::kKeyUp:
      return QueueKey(step.code, false);
    case Verb::kPointer:
      pointer_.push_back(step.pointer);
      return;
    case Verb::kFocusLost:
      return listener.OnWindowEvent(WindowEvent::kFocusLost);
    case Verb::kFocusGained:
      return listener.OnWindowEvent(WindowEvent::kFocusGained);
    case Verb::kClose:
      return listener.OnWindowEvent(WindowEvent::kClose);
    case Verb::kState:
      return WriteState(step);
    case Verb::kShot:
      if (!stage_.pictures.WriteShot(step.name)) Fail(step, step.name + " cannot be written");
      return;
    case Verb::kSet:
      if (const auto problem = SetField(stage_.state, step.name, step.value)) {
        Fail(step, step.name + ": " + *problem);
      }
      return;
    case Verb::kEnd:
      throw Terminate{0};
  }
}

void ScriptPlayer::QueueKey(std::uint8_t code, bool down) {
  Key& key = keys_.at(code);
  if (key.held == down) return;
  key.held = down;
  ++key.unseen;
}

void ScriptPlayer::ReadKeys(KeySnapshot& keys) {
  for (std::size_t code = 0; code < keys_.size(); ++code) {
    Key& key = keys_[code];
    if (key.unseen > 0) --key.unseen;
    const bool shownHeld = key.held != (key.unseen % 2 == 1);
    keys[code] = shownHeld ? 1 : 0;
  }
}

std::optional<PointerEvent> ScriptPlayer::NextPointerEvent() {
  if (pointer_.empty()) return std::nullopt;
  const PointerEvent event = pointer_.front();
  pointer_.pop_front();
  return event;
}

BoxAnswer ScriptPlayer::Show(const std::string& title, const std::string& text,
                             BoxButtons buttons) {
  stage_.messages << "box: " << OneLine(title) << ": " << OneLine(text) << std::endl;
  bool yes = false;
  if (nextAnswer_ < script_.answers.size() &&
      script_.answers[nextAnswer_].at <= stage_.clock.NowMicros()) {
    yes = script_.answers[nextAnswer_++].yes;
  }
  if (buttons == BoxButtons::kOk) return BoxAnswer::kOk;
  return yes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

void ScriptPlayer::WriteState(const ScriptStep& step) {
  const double length = stage_.music.Duration();
  const double position = stage_.music.Position();
  const TraceMoment moment{stage_.clock.NowMicros(),
                           length > 0 ? std::fmod(position, length) : position};
  stage_.trace << TraceLine(stage_.state, moment) << std::endl;
  if (!stage_.trace) Fail(step, "the trace cannot be written");
  stage_.state.output.sounds.clear();
}

void ScriptPlayer::Fail(const ScriptStep& step, std::string_view what) {
  stage_.messages << script_.file << ':' << step.line << ": " << what << std::endl;
  throw Terminate{kFailed};
}

void ScriptPlayer::Abandon(std::string_view what) {
  stage_.messages << "coilrun: " << what << std::endl;
  throw Terminate{kFailed};
}

}  // namespace coilrun
