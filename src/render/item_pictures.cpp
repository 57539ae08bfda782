#include "render/item_pictures.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr Rect kFlatPart{0, 0, 16, 16};
constexpr Rect kFramePart{0, 0, 16, 24};
constexpr Rect kPowerPart{0, 0, 22, 21};

struct KindFiles {
  std::string_view flat;
  std::string_view folder;      ///< of the frames
  std::string_view iconFolder;  ///< the same, as the panel spells it: it takes a slot of its own
};

constexpr std::array<KindFiles, kItemKinds> kFiles = {
    {{"banana.bmp", "Yellow_animated\\", "Yellow_animated\\"},
     {"red_banana.bmp", "red_animated\\", "Red_animated\\"},
     {"blue_banana.bmp", "blue_animated\\", "Blue_animated\\"},
     {"black_banana.bmp", "black_animated\\", "Black_animated\\"},
     {"tnt.bmp", "tnt_animated\\", "TNT_animated\\"},
     {"atomic_animated\\1.bmp", "atomic_animated\\", "atomic_animated\\"}}};

constexpr std::size_t Index(ItemKind kind) {
  return static_cast<std::size_t>(kind);
}

std::size_t FrameIndex(int frame) {
  return static_cast<std::size_t>(std::clamp(frame, 1, kAnimationFrames) - 1);
}

Rect FramePart(ItemKind kind) {
  return kind == ItemKind::kPower ? kPowerPart : kFramePart;
}

ItemPicture FramePicture(ItemKind kind, std::string_view folder, int frame) {
  return {NamedPicture{FrameFile(folder, frame), FrameKey(kind)}, FramePart(kind)};
}

ItemPicture FlatPicture(ItemKind kind) {
  const std::string name{kFiles[Index(kind)].flat};
  if (kind == ItemKind::kPower) return {NamedPicture{name, FrameKey(kind)}, kPowerPart};
  return {NamedPicture{name, KeyMode::kBlack}, kFlatPart};
}

}  // namespace

std::string_view FrameFolder(ItemKind kind) {
  return kFiles[Index(kind)].folder;
}

KeyMode FrameKey(ItemKind kind) {
  return kind == ItemKind::kTnt ? KeyMode::kGrey128 : KeyMode::kGrey131;
}

ItemPictures::ItemPictures(PictureStore& store) : store_(store) {
  for (std::size_t i = 0; i < kItemKinds; ++i) {
    const auto kind = static_cast<ItemKind>(i);
    flat_[i] = FlatPicture(kind);
    icons_[i] = FramePicture(kind, kFiles[i].iconFolder, 1);
    for (int frame = 1; frame <= kAnimationFrames; ++frame) {
      Frame(kind, frame) = FramePicture(kind, kFiles[i].folder, frame);
    }
  }
}

ItemPicture& ItemPictures::Frame(ItemKind kind, int frame) {
  return frames_[Index(kind)].at(FrameIndex(frame));
}

ItemPicture& ItemPictures::Icon(ItemKind kind, bool animated) {
  const bool hasFlatIcon = kind != ItemKind::kTnt;
  return animated || !hasFlatIcon ? icons_[Index(kind)] : Flat(kind);
}

NamedPicture* ItemPictures::UserItem(const UserItemRec& item, int frame) {
  if (IsStill(item.Type)) {
    auto found = stillWalls_.find(item.Name);
    if (found == stillWalls_.end()) {
      found = stillWalls_.emplace(item.Name, NamedPicture{item.Name, KeyMode::kBlack}).first;
    }
    return &found->second;
  }
  if (!IsMoving(item.Type)) return nullptr;
  auto found = movingWalls_.find(item.Name);
  if (found == movingWalls_.end()) {
    found = movingWalls_.emplace(item.Name, UserFrames{}).first;
    for (int n = 1; n <= kAnimationFrames; ++n) {
      found->second[static_cast<std::size_t>(n - 1)] =
          NamedPicture{FrameFile(item.Name + "\\", n), KeyMode::kGrey131};
    }
  }
  return &found->second.at(FrameIndex(frame));
}

void ItemPictures::Draw(Surface& target, ItemPicture& item, int x, int y) {
  target.Blit(store_.Fetch(item.picture), item.part, x, y, true);
}

}  // namespace coilrun
