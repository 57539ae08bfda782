#include "level_checker.h"

#include <algorithm>
#include <array>
#include <optional>

#include "band_check.h"
#include "content/level_list.h"
#include "content/lines.h"
#include "model/numbers.h"
#include "model/state.h"
#include "ports/windows_1252.h"
#include "quiet_level.h"

namespace coilrun {
namespace {

/// This word fills a column of the map without placing anything.
constexpr std::string_view kFiller = "_";
constexpr int kColumns = 32;
constexpr std::array<std::string_view, 4> kTypes = {"wall", "wall_no_tnt", "ani_wall",
                                                    "ani_wall_no_tnt"};

std::string Quoted(std::string_view text) {
  return "\"" + std::string{text} + "\"";
}

bool IsItemCount(LevelKey key) {
  return key <= LevelKey::kNumPower;
}

/// The first line that holds a character that never occurs in text.
std::optional<int> FirstLineOfBytes(std::string_view text) {
  int line = 1;
  for (const char character : text) {
    if (character == '\n') ++line;
    const bool isLineEnd = character == '\n' || character == '\r';
    if (static_cast<unsigned char>(character) < ' ' && !isLineEnd && character != '\t') return line;
  }
  return std::nullopt;
}

int LimitOf(CellKind kind) {
  if (kind == CellKind::kWall) return kMaxWalls;
  return kind == CellKind::kUserItem ? kMaxUserItems : kMaxSpawnPoints;
}

}  // namespace

std::vector<Finding> LevelChecker::Check(std::string_view text) {
  const auto level = LoadQuietly(text, pictures_);
  if (text.empty()) return {{1, "the file is empty"}};
  if (const auto line = FirstLineOfBytes(text)) {
    return {{*line, "these bytes are not text, so this is not a level", level == nullptr}};
  }
  CheckLines(text);
  if (cells_ == 0 && lines_.keys.empty()) return {{1, "nothing here makes a level"}};
  CheckItemCounts();
  if (!lines_.keys.contains(LevelKey::kLvlName)) Warn("the level has no title");
  CheckLetters();
  CheckStarts();
  Add(walls_.Find());
  if (level) Add(CheckField(*level, lines_));
  if (level) Add(CheckBands(*level));
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const Finding& a, const Finding& b) { return a.line < b.line; });
  return findings_;
}

void LevelChecker::Add(const std::vector<Finding>& findings) {
  findings_.insert(findings_.end(), findings.begin(), findings.end());
}

void LevelChecker::CheckLines(std::string_view text) {
  LineReader lines(text);
  while (const auto line = lines.Next()) {
    ++line_;
    const KeyDef* key = CheckKey(*line);
    if (line_ <= kMapRows) CheckRow(*line, key != nullptr);
    if (key == nullptr) CheckNoKey(*line);
    if (key == nullptr && line_ > kMapRows) CheckRowBelow(*line);
  }
}

void LevelChecker::CheckRow(std::string_view line, bool isKeyLine) {
  ScanRow(line, [&](int column, std::string_view word) {
    CheckCell(column, word, isKeyLine);
    return true;
  });
  if (!isKeyLine) CheckOpenEnd(line);
}

void LevelChecker::CheckRowBelow(std::string_view line) {
  int cells = 0;
  const bool isRow = ScanRow(line, [&](int, std::string_view word) {
    const bool places = CodeOf(word).has_value();
    cells += places ? 1 : 0;
    return places || word == kFiller;
  });
  if (isRow && cells > 0) Warn("ignored: the map has " + std::to_string(kMapRows) + " rows");
}

void LevelChecker::CheckCell(int column, std::string_view word, bool isKeyLine) {
  const auto code = CodeOf(word);
  if (!code) {
    cells_ += word == kFiller ? 1 : 0;
    if (!isKeyLine && word != kFiller) Warn("the word " + Quoted(word) + " places nothing");
    return;
  }
  if (isKeyLine) Warn("this key line is a map row too: " + Quoted(word) + " is placed");
  if (column > kColumns) Warn(Quoted(word) + " lies outside the field");
  ++cells_;
  if (code->kind == CellKind::kWall) walls_.Put(column, line_, code->wall, word[0]);
  if (code->kind == CellKind::kStart) {
    NoteStart(code->snake, word);
  } else {
    Count(code->kind, code->letter);
  }
}

void LevelChecker::NoteStart(int snake, std::string_view word) {
  lastStart_ = snake;
  highestStart_ = std::max(highestStart_, snake);
  StartLine& start = lines_.starts[snake];
  if (start.line != 0) {
    Warn("the start " + Quoted(word) + " again: the one in line " + std::to_string(start.line) +
         " has no effect");
  }
  start = {line_, "the start " + Quoted(word)};
}

/// The cell after the last blank that the game examines is never closed.
void LevelChecker::CheckOpenEnd(std::string_view line) {
  if (line.empty()) return;
  const std::string_view examined = line.substr(0, line.size() - 1);
  const std::size_t blank = examined.rfind(' ');
  std::string_view open = line.substr(blank == examined.npos ? 0 : blank + 1);
  if (open.ends_with(' ')) open.remove_suffix(1);
  if (CodeOf(open)) {
    Warn("the last cell " + Quoted(open) +
         " places nothing: a blank and one more character are missing");
  }
}

void LevelChecker::Count(CellKind kind, char letter) {
  if (++counts_[kind] == LimitOf(kind) + 1) {
    constexpr std::array<std::string_view, 4> kThings = {"walls", "", "user items", "spawn points"};
    Refuse("more than " + std::to_string(LimitOf(kind)) + " " +
           std::string{kThings.at(static_cast<std::size_t>(kind))});
  }
  if (kind == CellKind::kUserItem) letters_.try_emplace(letter, Letter{line_});
}

const KeyDef* LevelChecker::CheckKey(std::string_view line) {
  for (const KeyDef& def : LevelKeys()) {
    if (!HasKey(def, line)) continue;
    const auto value = ReadValue(def, line);
    if (value) {
      CheckValue(def, line, *value);
    } else {
      Refuse("not a value that " + Quoted(def.text) + " can take");
    }
    const bool accumulates = def.key == LevelKey::kRequires || def.kind == ValueKind::kUserItem;
    int& before = lines_.keys[def.key];
    if (before != 0 && !accumulates) {
      Warn(Quoted(def.text) + " again: line " + std::to_string(before) + " has no effect");
    }
    before = line_;
    if (def.key == LevelKey::kSnakeStrtX || def.key == LevelKey::kSnakeStrtY) {
      lines_.starts[1] = {line_, "the player's start"};
    }
    return &def;
  }
  return nullptr;
}

void LevelChecker::CheckValue(const KeyDef& def, std::string_view line, const LevelValue& value) {
  std::string_view rest = line.substr(def.text.size());
  if (def.skipsOne) {
    if (rest[0] != ' ') {
      Warn("the first character after " + Quoted(def.text) + " is skipped: put a blank there");
    }
    rest.remove_prefix(1);
  }
  switch (def.kind) {
    case ValueKind::kInteger:
    case ValueKind::kLong:
    case ValueKind::kReal:
      CheckNumber(def, rest, value);
      break;
    case ValueKind::kTrueFlag:
      if (!value.flag && rest != "False") Warn("only " + Quoted("True") + " switches this on");
      break;
    case ValueKind::kText:
    case ValueKind::kName:
      CheckName(def, value.text);
      break;
    case ValueKind::kUserItem:
      CheckUserItem(def, value);
      break;
    case ValueKind::kBoolean:
      break;
  }
}

void LevelChecker::CheckNumber(const KeyDef& def, std::string_view rest, const LevelValue& value) {
  const std::string_view digits = rest.substr(std::min(rest.find_first_not_of(' '), rest.size()));
  const std::size_t blank = digits.find(' ');
  const bool goesOn = blank != digits.npos && digits.find_first_not_of(' ', blank) != digits.npos;
  if (goesOn || WholeNumber(rest) != value.number) {
    Warn(Quoted(rest) + " is read as " + NumberText(value.number));
  }
  CheckRange(def, value.number);
}

void LevelChecker::CheckRange(const KeyDef& def, double number) {
  if (IsItemCount(def.key)) itemCounts_[def.key] = number;
  if (def.key != LevelKey::kAIS) {
    if (number < 0) Warn("a number below 0");
    return;
  }
  aiSnakes_ = number;
  if (!ToInt16(number + 1)) Refuse("more snakes than the game can count");
}

void LevelChecker::CheckName(const KeyDef& def, std::string_view text) {
  if (text.empty()) {
    Warn("no name after " + Quoted(def.text));
  } else if (def.key == LevelKey::kBkgPic && !pictures_.Has(std::string{text})) {
    Warn("there is no picture " + Quoted(text));
  } else if (def.key == LevelKey::kNextLvl && text != "END" &&
             !pictures_.HasFile("lvl", std::string{text})) {
    Warn("there is no level " + Quoted(text));
  } else if (def.key == LevelKey::kMusicFile && !pictures_.HasFile("music", std::string{text})) {
    Warn("there is no music " + Quoted(text));
  }
  if (def.key != LevelKey::kRequires) return;
  constexpr int kMaxArchives = decltype(LevelState::RequiredArchives)::kSize;
  if (++archives_ == kMaxArchives + 1) {
    Refuse("more than " + std::to_string(kMaxArchives) + " archives");
  }
  if (!text.ends_with(".snr")) Warn("only names that end in \".snr\" are unpacked");
}

void LevelChecker::CheckUserItem(const KeyDef& def, const LevelValue& value) {
  if (value.letter == 0) {
    Warn("ignored: it needs a lower-case letter, one character and a text");
    return;
  }
  const auto found = letters_.find(value.letter);
  if (found == letters_.end()) {
    Warn("ignored: the map above has no such letter");
    return;
  }
  Letter& letter = found->second;
  if (def.key == LevelKey::kSet) {
    // An archive of the level may bring any picture.
    letter.hasPicture = archives_ > 0 || pictures_.Has(std::string{value.text});
    if (!letter.hasPicture) Warn("ignored: there is no picture " + Quoted(value.text));
    return;
  }
  if (letter.hasPicture) Warn("ignored: \"let:\" must come before the \"set:\" of the same letter");
  letter.hasType = !letter.hasPicture;
  if (std::find(kTypes.begin(), kTypes.end(), value.text) == kTypes.end()) {
    Warn(Quoted(value.text) + " is not a type of user item");
  }
}

void LevelChecker::CheckNoKey(std::string_view line) {
  if (line.starts_with(kMatchLimitKey)) {
    if (!MatchLimitOf(line)) Warn("ignored: a match's limit is a whole number from 5 to 200");
    return;
  }
  const std::size_t start = std::min(line.find_first_not_of(" \t"), line.size());
  const std::string_view word = line.substr(start);
  const std::string folded = FoldCase(word);
  for (const KeyDef& def : LevelKeys()) {
    if (folded.starts_with(FoldCase(def.text))) {
      Warn("ignored: a line must begin with exactly " + Quoted(def.text));
      return;
    }
  }
  const std::size_t equals = word.find('=');
  const bool looksLikeAKey = equals != word.npos && word.find(' ') > equals;
  if (line_ > kMapRows && looksLikeAKey) {
    Warn("ignored: there is no key " + Quoted(word.substr(0, equals + 1)));
  }
}

/// Only the last line of a kind counts: earlier ones may ask for too many items.
void LevelChecker::CheckItemCounts() {
  for (const auto& [key, number] : itemCounts_) {
    line_ = lines_.keys[key];
    if (number > kMaxItems) Refuse("more than " + std::to_string(kMaxItems) + " items of a kind");
  }
}

void LevelChecker::CheckLetters() {
  for (const auto& [name, letter] : letters_) {
    line_ = letter.line;
    const std::string shown(1, LowerCase(name));
    if (!letter.hasPicture) Warn("the user item " + Quoted(shown) + " gets no picture");
    if (letter.hasPicture && !letter.hasType) {
      Warn("the user item " + Quoted(shown) + " gets no type and stays invisible");
    }
  }
}

/// The start that is read last says how many snakes can take part.
void LevelChecker::CheckStarts() {
  lines_.starts.try_emplace(1, StartLine{1, "the player's start"});
  const StartLine highest = lines_.starts.rbegin()->second;
  line_ = highest.line;
  for (int snake = 2; snake < highestStart_; ++snake) {
    if (lines_.starts.contains(snake)) continue;
    Warn("snake " + std::to_string(snake) + " has no start, though there is " + highest.name);
  }
  if (lastStart_ < highestStart_) {
    Warn(highest.name + " is not the start that is read last: only " + std::to_string(lastStart_) +
         " of the snakes can take part");
  } else if (aiSnakes_ > 0 && aiSnakes_ + 1 > highestStart_) {
    line_ = lines_.keys[LevelKey::kAIS];
    Warn("the map has starts for " + std::to_string(highestStart_) + " snakes only");
  }
}

}  // namespace coilrun
