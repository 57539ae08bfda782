#include "script/script.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <istream>
#include <iterator>
#include <utility>

#include "ports/scan_codes.h"
#include "ports/screen.h"
#include "script/script_text.h"

namespace coilrun {
namespace {

using std::string_view;

constexpr std::size_t kMaxTextSize = std::size_t{4} * 1024 * 1024;
constexpr std::size_t kMaxSteps = 500'000;
constexpr std::int64_t kMaxMillis = 1'000'000'000'000;
constexpr std::int64_t kMicrosInAMilli = 1000;
constexpr std::int64_t kTapLength = 30 * kMicrosInAMilli;
constexpr std::int64_t kTypePeriod = 60 * kMicrosInAMilli;
constexpr std::size_t kMaxTyped = 10'000;
constexpr string_view kByteOrderMark = "\xEF\xBB\xBF";

/// What is wrong with a line; nothing if it is fine.
using Problem = std::optional<std::string>;

/// Blanks before a comment are removed with it; without a comment they are part of the text.
string_view WithoutComment(string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  const std::size_t comment = line.find('#');
  return comment == line.npos ? line : WithoutBlanksBehind(line.substr(0, comment));
}

/// Takes the first word off `text`, together with the one blank that ends it.
string_view TakeWord(string_view& text) {
  const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
  const string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

std::optional<std::int64_t> WholeNumberOf(string_view text) {
  return NumberOf<std::int64_t>(text);
}

/// The scan code of the key that types a character on the US layout.
std::optional<std::uint8_t> KeyOf(char character) {
  if (character == ' ') return kKeySpace;
  const bool isTyped =
      ('a' <= character && character <= 'z') || ('0' <= character && character <= '9');
  if (!isTyped) return std::nullopt;
  return static_cast<std::uint8_t>(kUsCharacters.find(character));
}

/// Reads a script line by line. Later steps that `tap` and `type` imply are kept apart, so that
/// they come after the script's own steps at the same time.
class Reader {
 public:
  explicit Reader(string_view file) { script_.file = file; }

  Problem ReadLine(string_view line, int number) {
    line_ = number;
    string_view rest = WithoutBlanksInFront(WithoutComment(line));
    if (rest.empty()) return std::nullopt;
    if (Problem problem = ReadTime(TakeWord(rest))) return problem;
    rest = WithoutBlanksInFront(rest);
    const string_view command = TakeWord(rest);
    if (Problem problem = ReadCommand(command, rest)) return problem;
    script_.lastAt = now_;
    if (script_.steps.size() + implied_.size() + script_.answers.size() > kMaxSteps) {
      return "the script has more than " + std::to_string(kMaxSteps) + " steps";
    }
    return std::nullopt;
  }

  Script Finish() && {
    auto& steps = script_.steps;
    steps.insert(steps.end(), std::make_move_iterator(implied_.begin()),
                 std::make_move_iterator(implied_.end()));
    std::ranges::stable_sort(steps, {}, &ScriptStep::at);
    if (!steps.empty()) script_.lastAt = std::max(script_.lastAt, steps.back().at);
    return std::move(script_);
  }

 private:
  struct Command {
    string_view word;
    Problem (Reader::*read)(string_view rest);
  };

  Problem ReadTime(string_view word) {
    const auto millis = WholeNumberOf(word);
    if (!millis || *millis < 0 || *millis > kMaxMillis) {
      return Quoted(word) + " is not a time in milliseconds";
    }
    if (*millis * kMicrosInAMilli < now_) return "the time is before the one in the line above";
    now_ = *millis * kMicrosInAMilli;
    return std::nullopt;
  }

  Problem ReadCommand(string_view word, string_view rest) {
    static constexpr std::array kCommands = {
        Command{"down", &Reader::ReadDown},     Command{"up", &Reader::ReadUp},
        Command{"tap", &Reader::ReadTap},       Command{"type", &Reader::ReadType},
        Command{"answer", &Reader::ReadAnswer}, Command{"focus", &Reader::ReadFocus},
        Command{"state", &Reader::ReadState},   Command{"shot", &Reader::ReadShot},
        Command{"set", &Reader::ReadSet},       Command{"close", &Reader::ReadClose},
        Command{"end", &Reader::ReadEnd},       Command{"point", &Reader::ReadPoint},
        Command{"click", &Reader::ReadClick},   Command{"wheel", &Reader::ReadWheel}};
    const auto* const found = std::ranges::find(kCommands, word, &Command::word);
    if (found == kCommands.end()) return "there is no command " + Quoted(word);
    return (this->*found->read)(rest);
  }

  Problem ReadDown(string_view rest) { return ReadKey(Verb::kKeyDown, rest); }
  Problem ReadUp(string_view rest) { return ReadKey(Verb::kKeyUp, rest); }
  Problem ReadKey(Verb verb, string_view rest) {
    const auto code = CodeOf(rest);
    if (!code) return "a scan code is a number from 1 to 255";
    Add(verb).code = *code;
    return std::nullopt;
  }
  Problem ReadTap(string_view rest) {
    if (Problem problem = ReadDown(rest)) return problem;
    Imply(now_ + kTapLength, Verb::kKeyUp, script_.steps.back().code);
    return std::nullopt;
  }

  Problem ReadType(string_view text) {
    if (text.empty()) return "a text to type is missing";
    if (text.size() > kMaxTyped) return "the text to type is too long";
    std::int64_t at = now_;
    for (const char character : text) {
      const auto code = KeyOf(character);
      if (!code) return "only lower-case letters, digits and blanks can be typed";
      if (at == now_) {
        Add(Verb::kKeyDown).code = *code;
      } else {
        Imply(at, Verb::kKeyDown, *code);
      }
      Imply(at + kTapLength, Verb::kKeyUp, *code);
      at += kTypePeriod;
    }
    return std::nullopt;
  }

  Problem ReadAnswer(string_view rest) {
    const string_view answer = WithoutBlanksAround(rest);
    if (answer != "yes" && answer != "no") return "an answer is yes or no";
    script_.answers.push_back({now_, answer == "yes"});
    return std::nullopt;
  }
  Problem ReadFocus(string_view rest) {
    const string_view change = WithoutBlanksAround(rest);
    if (change != "lost" && change != "gained") return "the focus can be lost or gained";
    Add(change == "lost" ? Verb::kFocusLost : Verb::kFocusGained);
    return std::nullopt;
  }

  Problem ReadPoint(string_view rest) {
    rest = WithoutBlanksInFront(rest);
    const auto x = WholeNumberOf(TakeWord(rest));
    const auto y = WholeNumberOf(WithoutBlanksAround(rest));
    if (!x || !y || *x < 0 || *x >= kScreenWidth || *y < 0 || *y >= kScreenHeight) {
      return "a place is two numbers, from 0 to 639 and from 0 to 479";
    }
    Add(Verb::kPointer).pointer = {PointerAct::kMove, static_cast<int>(*x), static_cast<int>(*y)};
    return std::nullopt;
  }
  Problem ReadClick(string_view rest) {
    const string_view button = WithoutBlanksAround(rest);
    if (button != "left" && button != "right") return "a click is left or right";
    Add(Verb::kPointer).pointer.act =
        button == "left" ? PointerAct::kLeftButton : PointerAct::kRightButton;
    return std::nullopt;
  }
  Problem ReadWheel(string_view rest) {
    const string_view way = WithoutBlanksAround(rest);
    if (way != "up" && way != "down") return "the wheel goes up or down";
    Add(Verb::kPointer).pointer.act = way == "up" ? PointerAct::kWheelUp : PointerAct::kWheelDown;
    return std::nullopt;
  }

  Problem ReadState(string_view rest) { return ReadBare(Verb::kState, rest); }
  Problem ReadClose(string_view rest) { return ReadBare(Verb::kClose, rest); }
  Problem ReadEnd(string_view rest) { return ReadBare(Verb::kEnd, rest); }
  Problem ReadBare(Verb verb, string_view rest) {
    if (!WithoutBlanksAround(rest).empty()) return "nothing may follow this command";
    Add(verb);
    return std::nullopt;
  }

  Problem ReadShot(string_view rest) {
    const string_view file = WithoutBlanksAround(rest);
    if (file.empty()) return "the file of the picture is missing";
    Add(Verb::kShot).name = file;
    return std::nullopt;
  }
  Problem ReadSet(string_view rest) {
    rest = WithoutBlanksInFront(rest);
    const string_view name = TakeWord(rest);
    if (name.empty()) return "the name of a field is missing";
    ScriptStep& step = Add(Verb::kSet);
    step.name = name;
    step.value = rest;
    return std::nullopt;
  }

  static std::optional<std::uint8_t> CodeOf(string_view rest) {
    const auto code = WholeNumberOf(WithoutBlanksAround(rest));
    if (!code || *code < 1 || *code > kLastScanCode) return std::nullopt;
    return static_cast<std::uint8_t>(*code);
  }

  ScriptStep& Add(Verb verb) {
    return script_.steps.emplace_back(ScriptStep{now_, verb, 0, line_, {}, {}, {}});
  }
  void Imply(std::int64_t at, Verb verb, std::uint8_t code) {
    implied_.push_back({at, verb, code, line_, {}, {}, {}});
  }

  Script script_;
  std::vector<ScriptStep> implied_;
  std::int64_t now_ = 0;
  int line_ = 0;
};

std::optional<std::string> ReadAll(std::istream& input) {
  std::string text(kMaxTextSize + 1, '\0');
  input.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (input.bad()) return std::nullopt;
  text.resize(static_cast<std::size_t>(input.gcount()));
  return text;
}

}  // namespace

ScriptOrError ParseScript(std::string_view text, std::string_view file) {
  const std::string name(file);
  if (text.size() > kMaxTextSize) return {{}, name + ": the script is larger than 4 MiB"};
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  Reader reader(file);
  for (int line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    if (Problem problem = reader.ReadLine(text.substr(0, end), line)) {
      return {{}, name + ':' + std::to_string(line) + ": " + *problem};
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return {std::move(reader).Finish(), {}};
}

ScriptOrError LoadScript(const std::string& file) {
  std::ifstream opened;
  if (file != "-") {
    opened.open(file, std::ios::binary);
    if (!opened.is_open()) return {{}, file + ": cannot be read"};
  }
  const auto text = ReadAll(file == "-" ? std::cin : opened);
  if (!text) return {{}, file + ": cannot be read"};
  return ParseScript(*text, file);
}

}  // namespace coilrun
