#include "model/words.h"

#include "model/numbers.h"

namespace coilrun {
namespace {

constexpr std::string_view kJustEaten = "new";
constexpr std::string_view kStillStart = "wall";
constexpr std::string_view kMovingStart = "ani_wall";

}  // namespace

std::string Word(SpawnUse use) {
  if (use.kind == SpawnUse::Kind::kTaken) return std::to_string(use.slot);
  return std::string{use.kind == SpawnUse::Kind::kJustEaten ? kJustEaten : ""};
}

template <>
KeyboardLayout Meaning<KeyboardLayout>(std::string_view text) {
  return FromWord<KeyboardLayout>(text).value_or(KeyboardLayout::kUs);
}

template <>
UserItemType Meaning<UserItemType>(std::string_view text) {
  if (const auto type = FromWord<UserItemType>(text)) return *type;
  if (text.starts_with(kStillStart)) return UserItemType::kPicture;
  return text.starts_with(kMovingStart) ? UserItemType::kMovingPicture : UserItemType::kNone;
}

template <>
SpawnUse Meaning<SpawnUse>(std::string_view text) {
  if (text == kJustEaten) return {SpawnUse::Kind::kJustEaten, {}};
  const double number = LeadingNumber(text);
  if (number == 0) return {};
  return SpawnUse::TakenBy(ToInt16(number).value_or(0));
}

}  // namespace coilrun
