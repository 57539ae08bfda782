#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/box_picture.h"
#include "platform/sdl/sdl_keys.h"
#include "platform/sdl/sdl_window.h"
#include "ports/message_box.h"
#include "ports/text_face.h"

namespace coilrun {

/// A message in the game's own window, so that it shows in full screen too, and a request to leave
/// the program is noticed while it waits. Its text also goes to standard error.
class SdlMessageBox : public MessageBox {
 public:
  /// `stopped` tells whether the program has been asked to leave.
  SdlMessageBox(SdlWindow& window, SdlKeys& keys, TextFace& text, std::function<bool()> stopped)
      : window_(window), keys_(keys), text_(text), stopped_(std::move(stopped)) {}

  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons buttons) override;

 private:
  BoxAnswer Wait(const BoxPicture& picture, BoxButtons buttons);

  SdlWindow& window_;
  SdlKeys& keys_;
  TextFace& text_;
  std::function<bool()> stopped_;
};

}  // namespace coilrun
