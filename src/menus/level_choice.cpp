#include "menus/level_choice.h"

#include <algorithm>

namespace coilrun {

const std::vector<LevelOutline>& LevelChoice::All() {
  if (isKnown_) return all_;
  for (const std::string& file : LevelFiles(files_)) {
    if (auto outline = OutlineOf(files_, file)) all_.push_back(*std::move(outline));
  }
  isKnown_ = true;
  return all_;
}

std::optional<LevelOutline> LevelChoice::First() {
  for (const std::string& file : LevelFiles(files_)) {
    if (auto outline = OutlineOf(files_, file)) return outline;
  }
  return std::nullopt;
}

const LevelOutline* LevelChoice::Find(const std::string& file) {
  const auto& all = All();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const LevelOutline& level) { return level.file == file; });
  return found == all.end() ? nullptr : &*found;
}

const State* LevelChoice::FieldOf(const std::string& file) {
  if (file != shown_) {
    shown_ = file;
    field_ = PeekAtLevel(files_, file);
    if (field_) field_->mode.NumSnakes = field_->level.MapSnakeCount;
  }
  return field_.get();
}

void LevelChoice::Forget() {
  isKnown_ = false;
  all_.clear();
  shown_.clear();
  field_.reset();
}

}  // namespace coilrun
