#include "script/script.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "model/state.h"
#include "script/set_field.h"

/// Any bytes as a script; what it sets is set.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const coilrun::ScriptOrError parsed = coilrun::ParseScript(text, "fuzz");
  if (parsed.script.has_value() != parsed.error.empty()) __builtin_trap();
  if (!parsed.script) return 0;
  static coilrun::State state;
  for (const coilrun::ScriptStep& step : parsed.script->steps) {
    if (step.verb == coilrun::Verb::kSet) coilrun::SetField(state, step.name, step.value);
  }
  return 0;
}
