#include "shell/program.h"

#include <utility>

#include "content/load_level.h"
#include "game/match.h"
#include "game/speed.h"
#include "menus/show_menus.h"
#include "model/feed.h"
#include "rivals/rivals.h"
#include "shell/display.h"
#include "shell/keys.h"
#include "shell/leaving.h"
#include "shell/screens.h"
#include "shell/settings.h"
#include "shell/start_up.h"

namespace coilrun {

Program::Program(State& state, const Ports& ports, std::string version)
    : state_(state),
      ports_(ports),
      version_(std::move(version)),
      pump_(state, ports_, *this, *this),
      renderer_(state, {ports_.files, ports_.text, ports_.box, pump_,
                        [this] { AbandonStartUp(shell_, 1); }, version_}),
      effects_(state, ports_.files, ports_.audio),
      music_(state, ports_.files, ports_.music),
      game_{state, *this},
      content_{state, ports_.files, ports_.archive, pump_, *this},
      levels_(ports_.files),
      menus_{state, pump_, ports_.screen, renderer_, music_, game_, levels_, *this},
      shell_{state, ports_, pump_, renderer_, effects_, music_, game_, content_, menus_} {
  pump_.ShowWith(renderer_);
}

void Program::Run(const std::string& commandLine) {
  StartUp(shell_, version_, commandLine);
  UnloadWindow(shell_);
}

void Program::PlayEffect(std::string_view path, int snake) {
  effects_.snPlaySound(path, snake);
}
void Program::DrawFrame() {
  coilrun::DrawFrame(shell_, true);
}
void Program::Yield() {
  pump_.Yield();
}
void Program::RunMenus() {
  ShowMenus(menus_);
}

void Program::LoadLevel(const std::string& path) {
  const auto fault = coilrun::LoadLevel(content_, path);
  game_.drivers = MakeDrivers(state_.more.Rivals);
  state_.menus.statusHeld = state_.shell.NoGameRunning;
  if (!fault) return;
  EndMatch(state_);
  if (state_.more.forRun.watchesLevel) state_.menus.StatusText = FaultText(path, *fault);
}

void Program::LoadSettings() {
  ports_.settings.Refresh();
  coilrun::LoadSettings(state_, ports_.settings);
  music_.snMusicVolume(state_.settings.MusicVolume);
}

void Program::RefreshHighScores() {
  if (ports_.settings.Refresh()) LoadHiScores(state_, ports_.settings);
}

void Program::SaveSettings() {
  coilrun::SaveSettings(state_, ports_.settings);
}

void Program::LeaveProgram() {
  ExitGame(shell_);
}

void Program::NotePageOpened() {
  beforePage_ = {state_.more, state_.Keys};
}
void Program::StorePage() {
  SaveMoreSettings(state_, beforePage_, ports_.settings);
}
SteeringKeys Program::ShippedKeys(int person) const {
  return coilrun::ShippedKeys(person, ports_.settings);
}

void Program::StoreSetting(const std::string& key, const std::string& value) {
  ports_.settings.Set("Options", key, value);
  ports_.settings.Save();
}

void Program::LoadBackground() {
  renderer_.LoadBackground();
}
void Program::PrepareLvlGfx() {
  renderer_.PrepareLvlGfx();
}
bool Program::PreloadUserItem(const std::string& name) {
  return renderer_.PreloadUserItem(name);
}
bool Program::HoldsPicture(const std::string& name) const {
  return renderer_.HoldsPicture(name);
}
void Program::LoadModelPictures(int model) {
  renderer_.LoadModelPictures(model);
}
void Program::ShowProgress() {
  renderer_.ShowProgress();
}

void Program::OnSecond() {
  AgeMessages(state_);
  state_.shell.Fps = state_.shell.FrameCount;
  state_.shell.FrameCount = 0;
  TickSecond(state_);
  if (state_.more.forRun.watchesLevel) watch_.Look(shell_);
}

void Program::OnKeyboard() {
  HandleKeys(shell_);
}
void Program::OnSpeedReset() {
  SpeedReset(state_);
}

void Program::OnWindowEvent(WindowEvent event) {
  switch (event) {
    case WindowEvent::kFocusLost:
      LoseFocus(shell_);
      break;
    case WindowEvent::kFocusGained:
      RegainFocus(shell_);
      break;
    case WindowEvent::kClose:
      UnloadWindow(shell_);
    case WindowEvent::kToggleFullScreen:
      ports_.screen.ToggleFullScreen();
      break;
  }
}

}  // namespace coilrun
