#pragma once

#include <functional>
#include <string>

#include "model/state.h"
#include "ports/files.h"
#include "ports/message_box.h"
#include "ports/pump.h"
#include "ports/screen.h"
#include "ports/text_face.h"
#include "render/level_picture.h"
#include "render/menu_pages.h"
#include "render/overlays.h"
#include "render/play_field.h"

namespace coilrun {

/// What drawing needs from the machine and from the shell.
struct RendererPorts {
  const Files& files;
  TextFace& textFace;
  MessageBox& messageBox;
  Pump& pump;
  /// Called when the player does not want to go on without a picture: cleans up, throws
  /// `Terminate`.
  std::function<void()> giveUp;
  std::string version;  ///< "1.2.24"
};

/// Everything that is drawn, and the pictures that it is drawn with. Draws from the state, never
/// waits, changes no rule state.
class Renderer {
 public:
  Renderer(State& state, RendererPorts ports);

  Renderer(const Renderer&) = delete;
  Renderer& operator=(const Renderer&) = delete;

  PlayField& Field() { return field_; }
  Overlays& Overlay() { return overlays_; }
  MenuPages& Menus() { return menus_; }
  /// Draws a small picture of a level that is not being played, its top left at `x`, `y`.
  void DrawLevelPicture(const State& level, const std::string& name, int x, int y) {
    levelPicture_.Draw(canvas_.Back(), level, name, x, y);
  }
  void ForgetLevelPicture() { levelPicture_.Forget(); }
  TextPainter& Text() { return text_; }
  Canvas& Screen() { return canvas_; }

  /// What the screen shows: to be handed to `Screen::Flip` and `Screen::Present`.
  ScreenPixels Primary() const { return canvas_.Primary().Pixels(); }
  void FlipBuffers() { canvas_.FlipBuffers(); }
  void FillBack(Color color) { canvas_.FillBack(color); }
  void FillPrimary(Color color) { canvas_.Primary().Fill(color); }

  /// A complete frame on the back buffer, without the flip: `DrawFrame` after its music check.
  void DrawFrame(const Table<bool, kMaxSnakes>& shown);

  /// Shows the panel, resets `LoadedCount` and loads the 36 standard pictures.
  void LoadStandardPictures();
  void LoadModelPictures(int model) { models_.LoadModelPictures(model); }
  void LoadBackground() { standard_.LoadBackground(); }
  /// Preloads the pictures of the item kinds that the level uses; yields after each frame.
  void PrepareLvlGfx();
  bool PreloadUserItem(const std::string& name) { return store_.Preload(name, KeyMode::kBlack); }
  bool HoldsPicture(std::string_view name) const { return store_.Holds(name); }
  void ClearPicBuffers() { store_.ClearPicBuffers(); }
  /// Shows the intro panel as the feed describes it; does nothing while it is hidden.
  void ShowProgress() { panel_.Show(); }

 private:
  void PrepareFrame(int frame);

  State& state_;
  Pump& pump_;
  Canvas canvas_;
  IntroPanel panel_;
  PictureLoader loader_;
  StandardPictures standard_;
  ModelPictures models_;
  PictureStore store_;
  ItemPictures items_;
  TextPainter text_;
  PlayField field_;
  Overlays overlays_;
  MenuPages menus_;
  LevelPicture levelPicture_;
};

}  // namespace coilrun
