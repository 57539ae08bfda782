#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "render/canvas.h"
#include "render/picture_loader.h"

namespace coilrun {

/// The last slot is never used: needing it flushes the store.
inline constexpr int kPicBuffers = 1024;

/// A picture that is drawn by name again and again. Remembers its slot for as long as the store
/// holds it, so that drawing a frame neither builds nor looks up paths.
struct NamedPicture {
  NamedPicture() = default;
  NamedPicture(std::string nameBelowGfx, KeyMode keyMode)
      : name(std::move(nameBelowGfx)), key(keyMode) {}

  std::string name;
  KeyMode key = KeyMode::kBlack;
  int slot = 0;
  int generation = 0;
};

/// Pictures that are loaded when they are first drawn: `PicBuffers`. Names are exact; "red\1.bmp"
/// and "Red\1.bmp" take two slots. The 1024th picture flushes the store.
class PictureStore {
 public:
  PictureStore(State& state, PictureLoader& loader);

  /// The picture, loaded if necessary. Unset when it cannot be loaded, which one console line
  /// reports. Valid until the store is cleared.
  const Picture& Fetch(NamedPicture& picture);

  /// True when the picture is in the store or can be loaded; a failed one is tried again.
  bool Preload(const std::string& name, KeyMode key);
  /// True when the store holds the picture with this name below the gfx folder.
  bool Holds(std::string_view name) const;

  /// The slot with exactly this path; 0 when no slot holds it.
  int FindPicBuffer(std::string_view path) const;
  void ClearPicBuffers();

 private:
  struct PicBuffer {
    Picture surface;
    std::string path;
  };
  struct PathHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view path) const {
      return std::hash<std::string_view>{}(path);
    }
  };

  PicBuffer& Slot(int number) { return slots_[static_cast<std::size_t>(number - 1)]; }
  const PicBuffer& Slot(int number) const { return slots_[static_cast<std::size_t>(number - 1)]; }
  int SlotFor(const std::string& path, KeyMode key);
  int SnLoadPic(const std::string& path, KeyMode key);
  int FindFreePicBuffer();
  void LoadInto(int slot, KeyMode key);

  State& state_;
  PictureLoader& loader_;
  std::vector<PicBuffer> slots_;
  int used_ = 0;  ///< slots fill in order and are freed together
  std::unordered_map<std::string, int, PathHash, std::equal_to<>> slotOf_;
  int generation_ = 1;
};

}  // namespace coilrun
