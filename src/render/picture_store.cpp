#include "render/picture_store.h"

#include "model/feed.h"

namespace coilrun {
namespace {

std::string PathOf(std::string_view nameBelowGfx) {
  return InProgramFolder("\\gfx\\", nameBelowGfx);
}

}  // namespace

PictureStore::PictureStore(State& state, PictureLoader& loader)
    : state_(state), loader_(loader), slots_(kPicBuffers) {}

const Picture& PictureStore::Fetch(NamedPicture& picture) {
  if (picture.generation != generation_) {
    picture.slot = SlotFor(PathOf(picture.name), picture.key);
    picture.generation = generation_;
  }
  return Slot(picture.slot).surface;
}

bool PictureStore::Preload(const std::string& name, KeyMode key) {
  const std::string path = PathOf(name);
  const int held = FindPicBuffer(path);
  if (held == 0) return Slot(SnLoadPic(path, key)).surface.IsSet();
  if (!Slot(held).surface.IsSet()) LoadInto(held, key);
  return Slot(held).surface.IsSet();
}

bool PictureStore::Holds(std::string_view name) const {
  const int slot = FindPicBuffer(PathOf(name));
  return slot != 0 && Slot(slot).surface.IsSet();
}

int PictureStore::FindPicBuffer(std::string_view path) const {
  const auto found = slotOf_.find(path);
  return found == slotOf_.end() ? 0 : found->second;
}

void PictureStore::ClearPicBuffers() {
  for (int slot = 1; slot <= used_; ++slot) Slot(slot) = {};
  used_ = 0;
  slotOf_.clear();
  ++generation_;
}

int PictureStore::SlotFor(const std::string& path, KeyMode key) {
  const int held = FindPicBuffer(path);
  return held != 0 ? held : SnLoadPic(path, key);
}

int PictureStore::SnLoadPic(const std::string& path, KeyMode key) {
  const int slot = FindFreePicBuffer();
  const std::string file = path.substr(path.rfind('\\') + 1);
  DebugPrint(state_, "SnLoadPic: Loading " + file + " to buffer " + std::to_string(slot) + ".");
  Slot(slot).path = path;
  slotOf_.emplace(path, slot);
  LoadInto(slot, key);
  return slot;
}

int PictureStore::FindFreePicBuffer() {
  if (used_ + 1 == kPicBuffers) ClearPicBuffers();
  return ++used_;
}

void PictureStore::LoadInto(int slot, KeyMode key) {
  PicBuffer& buffer = Slot(slot);
  buffer.surface = loader_.DD_CreateSurfFromFile(buffer.path, std::nullopt, key);
  if (!buffer.surface.IsSet()) ConsolePrint(state_, "SnLoadPic: unable to load " + buffer.path);
}

}  // namespace coilrun
