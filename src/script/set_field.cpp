#include "script/set_field.h"

#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "model/numbers.h"
#include "ports/windows_1252.h"
#include "script/field_table.h"
#include "script/script_text.h"

namespace coilrun {
namespace {

using Problem = std::optional<std::string>;

/// Whole numbers: `int` and the saturating ones.
template <typename Target>
Problem AssignWhole(Target& target, std::string_view value, Range range) {
  const auto number = NumberOf<std::int64_t>(WithoutBlanksAround(value));
  if (!number) return Quoted(value) + " is not a whole number";
  if (*number < range.lowest || *number > range.highest) {
    return Quoted(value) + " is not within " + std::to_string(range.lowest) + " to " +
           std::to_string(range.highest);
  }
  target = static_cast<int>(*number);
  return std::nullopt;
}

Problem Assign(Int16& target, std::string_view value) {
  return AssignWhole(target, value, kAny16);
}
Problem Assign(Int32& target, std::string_view value) {
  return AssignWhole(target, value, {Int32::kMin, Int32::kMax});
}

Problem Assign(double& target, std::string_view value) {
  const auto number = NumberOf<double>(WithoutBlanksAround(value));
  if (!number || !std::isfinite(*number)) return Quoted(value) + " is no number";
  target = *number;
  return std::nullopt;
}

Problem Assign(bool& target, std::string_view value) {
  const std::string_view word = WithoutBlanksAround(value);
  const bool isWord = !word.empty() && std::string_view("tTfF").find(word[0]) != word.npos;
  const auto flag = isWord ? ToBoolean(word) : std::nullopt;
  if (!flag) return Quoted(value) + " is neither true nor false";
  target = *flag;
  return std::nullopt;
}

Problem Assign(std::string& target, std::string_view value) {
  target = FromUtf8(value);
  return std::nullopt;
}

Problem Assign(RivalList& target, std::string_view value) {
  auto rivals = RivalsFromText(WithoutBlanksAround(value));
  if (!rivals) return Quoted(value) + " is not a list of rivals";
  target = *std::move(rivals);
  return std::nullopt;
}

template <typename T>
Problem Assign(Written<T>& target, std::string_view value) {
  target = Written<T>{FromUtf8(value)};
  return std::nullopt;
}

template <typename Enum>
requires std::is_enum_v<Enum> Problem Assign(Enum& target, std::string_view value) {
  const auto word = FromWord<Enum>(WithoutBlanksAround(value));
  if (!word) return Quoted(value) + " is not a word for this field";
  target = *word;
  return std::nullopt;
}

/// Walks the field table down the one branch that a dotted name takes, and writes its field.
class FieldSetter {
 public:
  FieldSetter(const Timers& timers, std::string_view name, std::string_view value)
      : timers_(timers), rest_(name), value_(value) {}

  template <typename Value>
  void Field(std::string_view name, Value& value) {
    if (IsField(name)) Finish(Assign(value, value_));
  }
  template <typename Value>
  void Field(std::string_view name, Value& value, Range range) {
    if (IsField(name)) Finish(AssignWhole(value, value_, range));
  }
  template <typename Value>
  void ReadOnly(std::string_view name, const Value& /*value*/) {
    if (IsField(name)) Finish("cannot be set");
  }

  void TimerFields(Timer& timer) {
    if (IsField("Interval")) SetInterval(timer);
    if (IsField("Enabled")) Switch(timer);
  }

  template <typename VisitInside>
  void Object(std::string_view name, const VisitInside& visitInside) {
    if (!Enter(name)) return;
    visitInside();
    EndOfBranch();
  }

  template <typename VisitSlot>
  void Array(std::string_view name, int first, int last, const VisitSlot& visitSlot) {
    if (!Enter(name)) return;
    const std::string_view number = rest_.substr(0, rest_.find('.'));
    const auto slot = NumberOf<int>(number);
    if (!slot || *slot < first || *slot > last) {
      return Finish(Quoted(number) + " is not a live slot of " + std::string(name));
    }
    if (Enter(number)) visitSlot(*slot);
    EndOfBranch();
  }
  template <typename VisitSlot>
  void ReadOnlyArray(std::string_view name, int /*first*/, int /*last*/,
                     const VisitSlot& /*visitSlot*/) {
    if (Enter(name)) Finish("cannot be set");
  }

  template <typename TextTable>
  void Texts(std::string_view name, TextTable& table) {
    if (!Enter(name)) return;
    const auto slot = NumberOf<int>(rest_);
    if (!slot || !table.Holds(*slot)) {
      return Finish(Quoted(rest_) + " is not a line of " + std::string(name));
    }
    Finish(Assign(table(*slot), value_));
  }

  template <typename Values>
  void List(std::string_view /*name*/, const Values& /*values*/) const {}

  Problem Outcome() {
    EndOfBranch();
    return problem_;
  }

 private:
  bool IsField(std::string_view name) const { return !found_ && rest_ == name; }

  /// True when the name goes on below `name`; the rest is then what follows the dot.
  bool Enter(std::string_view name) {
    if (found_ || !rest_.starts_with(name) || !rest_.substr(name.size()).starts_with('.')) {
      return false;
    }
    rest_.remove_prefix(name.size() + 1);
    return true;
  }

  /// The name led here and no further, so it names no field anywhere.
  void EndOfBranch() {
    if (!found_) Finish("no such field");
  }

  void Finish(Problem problem) {
    found_ = true;
    problem_ = std::move(problem);
  }

  void SetInterval(Timer& timer) {
    int milliseconds = 0;
    Finish(AssignWhole(milliseconds, value_, kTimerInterval));
    if (!problem_) timers_.SetInterval(timer, milliseconds);
  }

  void Switch(Timer& timer) {
    bool on = false;
    Finish(Assign(on, value_));
    if (problem_) return;
    if (on) {
      timers_.Start(timer);
    } else {
      Timers::Stop(timer);
    }
  }

  const Timers& timers_;
  std::string_view rest_;
  std::string_view value_;
  bool found_ = false;
  Problem problem_;
};

}  // namespace

std::optional<std::string> SetField(State& state, std::string_view name, std::string_view value) {
  const TraceMoment noMoment;
  FieldSetter setter(state.timers, name, value);
  FieldTable(setter, state, noMoment).VisitAll();
  return setter.Outcome();
}

}  // namespace coilrun
