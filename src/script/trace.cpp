#include "script/trace.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <type_traits>

#include "model/numbers.h"
#include "ports/windows_1252.h"
#include "script/field_table.h"

namespace coilrun {
namespace {

/// Appends JSON to a text as the field table is visited; much faster than building a tree of
/// values, which matters because the lines are long and many.
class JsonLine {
 public:
  explicit JsonLine(std::string& json) : json_(json) {}

  template <typename Value>
  void Field(std::string_view name, const Value& value) {
    Key(name);
    Append(value);
  }
  template <typename Value>
  void Field(std::string_view name, const Value& value, Range /*settable*/) {
    Field(name, value);
  }
  template <typename Value>
  void ReadOnly(std::string_view name, const Value& value) {
    Field(name, value);
  }
  void TimerFields(const Timer& timer) {
    Field("Interval", timer.Interval);
    Field("Enabled", timer.Enabled);
  }

  template <typename VisitInside>
  void Object(std::string_view name, const VisitInside& visitInside) {
    Key(name);
    json_ += '{';
    visitInside();
    json_ += '}';
  }

  template <typename VisitSlot>
  void Array(std::string_view name, int first, int last, const VisitSlot& visitSlot) {
    Key(name);
    json_ += '[';
    for (int slot = first; slot <= last; ++slot) {
      json_ += slot == first ? "{" : ",{";
      visitSlot(slot);
      json_ += '}';
    }
    json_ += ']';
  }
  template <typename VisitSlot>
  void ReadOnlyArray(std::string_view name, int first, int last, const VisitSlot& visitSlot) {
    Array(name, first, last, visitSlot);
  }

  template <typename TextTable>
  void Texts(std::string_view name, const TextTable& table) {
    Key(name);
    json_ += '[';
    for (const std::string& text : table) {
      if (json_.back() != '[') json_ += ',';
      Append(text);
    }
    json_ += ']';
  }

  template <typename Values>
  void List(std::string_view name, const Values& values) {
    Key(name);
    json_ += '[';
    for (const auto& value : values) {
      if (json_.back() != '[') json_ += ',';
      Append(value);
    }
    json_ += ']';
  }

 private:
  void Key(std::string_view name) {
    if (json_.back() != '{') json_ += ',';
    json_ += '"';
    json_ += name;
    json_ += "\":";
  }

  void Append(bool value) { json_ += value ? "true" : "false"; }
  void Append(int value) {
    std::array<char, 16> digits{};
    json_.append(digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr);
  }
  void Append(Int16 value) { Append(int{value}); }
  void Append(Int32 value) { Append(int{value}); }
  void Append(double value) { json_ += std::isfinite(value) ? NumberText(value) : "null"; }
  void Append(const std::string& text) {
    json_ += '"';
    for (const char character : ToUtf8(text)) AppendCharacter(character);
    json_ += '"';
  }
  template <typename T>
  void Append(const Written<T>& value) {
    Append(value.Text());
  }
  template <typename Enum>
  requires std::is_enum_v<Enum>
  void Append(Enum value) {
    json_ += '"';
    json_ += Word(value);
    json_ += '"';
  }

  void Append(const RivalList& rivals) { Append(RivalText(rivals)); }

  void AppendCharacter(char character) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
      json_ += '\\';
      json_ += character;
    } else if (character == '\n') {
      json_ += "\\n";
    } else if (character == '\r') {
      json_ += "\\r";
    } else if (byte < 0x20U) {
      json_ += "\\u00";
      json_ += kHexDigits[byte >> 4U];
      json_ += kHexDigits[byte & 0xFU];
    } else {
      json_ += character;
    }
  }

  std::string& json_;
};

}  // namespace

std::string TraceLine(const State& state, const TraceMoment& moment) {
  constexpr std::size_t kUsualLength = std::size_t{32} * 1024;
  std::string json;
  json.reserve(kUsualLength);
  JsonLine line(json);
  json += '{';
  FieldTable(line, state, moment).VisitAll();
  json += '}';
  return json;
}

}  // namespace coilrun
