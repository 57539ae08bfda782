#pragma once

#include "platform/sdl/sdl_keys.h"
#include "platform/sdl/sdl_window.h"
#include "ports/message_box.h"

namespace coilrun {

/// The desktop's message box. Where none can be shown, the text goes to standard error and the
/// answer is the careful one.
class SdlMessageBox : public MessageBox {
 public:
  SdlMessageBox(const SdlWindow& window, SdlKeys& keys) : window_(window), keys_(keys) {}

  BoxAnswer Show(const std::string& title, const std::string& text, BoxButtons buttons) override;

 private:
  const SdlWindow& window_;
  SdlKeys& keys_;
};

}  // namespace coilrun
