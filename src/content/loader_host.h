#pragma once

#include <string>

namespace coilrun {

/// What the loaders of levels and model packs ask of the rest of the program.
class LoaderHost {
 public:
  virtual ~LoaderHost() = default;

  virtual void LoadSettings() = 0;
  /// Stores one setting at once (section "Options").
  virtual void StoreSetting(const std::string& key, const std::string& value) = 0;
  /// Loads the picture at `State::level.BkgPic` as the background; if it is missing, there is none.
  virtual void LoadBackground() = 0;
  /// Preloads the pictures of the item kinds that the level uses.
  virtual void PrepareLvlGfx() = 0;
  /// Preloads a user item's picture by its name below the gfx folder, with black as its colour key;
  /// false when it cannot be loaded. A picture that is already loaded costs nothing.
  virtual bool PreloadUserItem(const std::string& name) = 0;
  /// True when the picture store already holds the picture with this name below the gfx folder.
  virtual bool HoldsPicture(const std::string& name) const = 0;
  virtual void LoadModelPictures(int model) = 0;
  /// Shows the intro panel as `State::feed` describes it now, even in the middle of loading.
  virtual void ShowProgress() = 0;
};

}  // namespace coilrun
