#include "platform/sdl/sdl_message_box.h"

#include <array>
#include <iostream>

#include <SDL.h>

#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr int kYes = 1;
constexpr int kNo = 0;
constexpr Uint32 kOnEnter = SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT;
constexpr Uint32 kOnEscape = SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT;

}  // namespace

BoxAnswer SdlMessageBox::Show(const std::string& title, const std::string& text,
                              BoxButtons buttons) {
  constexpr std::array<SDL_MessageBoxButtonData, 2> kYesNoButtons = {
      {{kOnEscape, kNo, "No"}, {kOnEnter, kYes, "Yes"}}};
  constexpr std::array<SDL_MessageBoxButtonData, 1> kOkButton = {
      {{kOnEnter | kOnEscape, kYes, "OK"}}};
  const bool isQuestion = buttons == BoxButtons::kYesNo;
  const std::string shownTitle = ToUtf8(title);
  const std::string shownText = ToUtf8(text);
  const SDL_MessageBoxData box = {SDL_MESSAGEBOX_ERROR,
                                  window_.Handle(),
                                  shownTitle.c_str(),
                                  shownText.c_str(),
                                  isQuestion ? 2 : 1,
                                  isQuestion ? kYesNoButtons.data() : kOkButton.data(),
                                  nullptr};
  int pressed = kNo;
  if (SDL_ShowMessageBox(&box, &pressed) != 0) std::cerr << shownTitle << ": " << shownText << "\n";
  keys_.ForgetRecent();
  if (!isQuestion) return BoxAnswer::kOk;
  return pressed == kYes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace coilrun
