#include "platform/sdl/sdl_message_box.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include <SDL.h>

#include "platform/box_picture.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

/// How often the window is served while the box waits.
constexpr Uint32 kPatienceMillis = 30;

std::optional<BoxAnswer> AnswerOfKey(SDL_Keycode key, bool isQuestion) {
  const bool yes = key == SDLK_RETURN || key == SDLK_KP_ENTER || key == SDLK_y;
  const bool no = key == SDLK_ESCAPE || key == SDLK_n;
  if (!isQuestion) return yes || no ? std::optional(BoxAnswer::kOk) : std::nullopt;
  if (yes) return BoxAnswer::kYes;
  return no ? std::optional(BoxAnswer::kNo) : std::nullopt;
}

}  // namespace

BoxAnswer SdlMessageBox::Show(const std::string& title, const std::string& text,
                              BoxButtons buttons) {
  std::cerr << ToUtf8(title) << ": " << ToUtf8(text) << "\n";
  const BoxPicture picture = DrawBox(text_, title, text, buttons == BoxButtons::kYesNo);
  const BoxAnswer answer = Wait(picture, buttons);
  keys_.ForgetRecent();
  return answer;
}

BoxAnswer SdlMessageBox::Wait(const BoxPicture& picture, BoxButtons buttons) {
  const bool isQuestion = buttons == BoxButtons::kYesNo;
  const BoxAnswer careful = isQuestion ? BoxAnswer::kNo : BoxAnswer::kOk;
  while (!stopped_()) {
    window_.Damaged();
    window_.Present(ScreenPixels(picture));
    SDL_Event event;
    if (SDL_PollEvent(&event) == 0) {
      SDL_Delay(kPatienceMillis);
      continue;
    }
    if (event.type == SDL_QUIT) {
      SDL_PushEvent(&event);
      return careful;
    }
    if (event.type != SDL_KEYDOWN || event.key.repeat != 0) continue;
    if (const auto answer = AnswerOfKey(event.key.keysym.sym, isQuestion)) return *answer;
  }
  return careful;
}

}  // namespace coilrun
