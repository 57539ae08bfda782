#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

#include "model/animation.h"
#include "model/state.h"
#include "render/picture_store.h"

namespace coilrun {

/// The folder of a kind's frames below gfx, ending in a backslash, and their colour key.
std::string_view FrameFolder(ItemKind kind);
KeyMode FrameKey(ItemKind kind);

/// A picture in the store and the part of it that is drawn.
struct ItemPicture {
  NamedPicture picture;
  Rect part;
};

/// The pictures of the six item kinds, of the panel's icons and of the user items.
class ItemPictures {
 public:
  explicit ItemPictures(PictureStore& store);

  ItemPicture& Flat(ItemKind kind) { return flat_[static_cast<std::size_t>(kind)]; }
  /// `frame` is 1 to `kAnimationFrames`; other numbers give the nearest.
  ItemPicture& Frame(ItemKind kind, int frame);
  /// The icon of a kind on the item panel and the level screen.
  ItemPicture& Icon(ItemKind kind, bool animated);
  /// The picture of a user item whose type is drawn; nothing for other types.
  NamedPicture* UserItem(const UserItemRec& item, int frame);

  /// Draws it on the back buffer with its colour key.
  void Draw(Surface& target, ItemPicture& item, int x, int y);
  const Picture& Fetch(NamedPicture& picture) { return store_.Fetch(picture); }

 private:
  struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
      return std::hash<std::string_view>{}(name);
    }
  };
  using Frames = std::array<ItemPicture, kAnimationFrames>;
  using UserFrames = std::array<NamedPicture, kAnimationFrames>;

  PictureStore& store_;
  std::array<ItemPicture, kItemKinds> flat_;
  std::array<Frames, kItemKinds> frames_;
  std::array<ItemPicture, kItemKinds> icons_;
  std::unordered_map<std::string, NamedPicture, NameHash, std::equal_to<>> stillWalls_;
  std::unordered_map<std::string, UserFrames, NameHash, std::equal_to<>> movingWalls_;
};

}  // namespace coilrun
