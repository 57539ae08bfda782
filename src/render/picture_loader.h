#pragma once

#include <functional>
#include <optional>
#include <string>

#include "model/state.h"
#include "ports/files.h"
#include "ports/message_box.h"
#include "render/intro_panel.h"
#include "render/picture.h"

namespace coilrun {

/// How a picture is loaded: the flags of `DD_CreateSurfFromFile`.
struct LoadFlags {
  bool modelPicture = false;  ///< belongs to a model pack: a missing one only costs a console line
  bool counted = false;       ///< advances the progress bar while the program starts
};

struct PictureSize {
  int width = 0;
  int height = 0;
};

/// Makes pictures from bitmap files.
class PictureLoader {
 public:
  /// `giveUp` is called when the player answers a missing picture with No; it cleans up and throws
  /// `Terminate`.
  PictureLoader(State& state, const Files& files, MessageBox& messageBox, IntroPanel& panel,
                std::function<void()> giveUp);

  /// The picture in exactly that size (a bitmap of another size is stretched), or in the bitmap's
  /// own size if none is given. Unset when the file is missing or not a bitmap; while the program
  /// starts, the player is asked about a missing one.
  Picture DD_CreateSurfFromFile(const std::string& path, std::optional<PictureSize> size,
                                KeyMode key, LoadFlags flags = {});

 private:
  Picture Load(const std::string& path, std::optional<PictureSize> size, KeyMode key);
  void TellMissing(const std::string& path, bool modelPicture);
  void ReportProgress();

  State& state_;
  const Files& files_;
  MessageBox& messageBox_;
  IntroPanel& panel_;
  std::function<void()> giveUp_;
};

}  // namespace coilrun
