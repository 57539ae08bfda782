#pragma once

#include <string>

#include "content/context.h"
#include "content/loader_host.h"
#include "game/game.h"
#include "game/game_host.h"
#include "media/effects.h"
#include "media/music.h"
#include "menus/context.h"
#include "model/state.h"
#include "ports/ports.h"
#include "render/renderer.h"
#include "shell/level_watch.h"
#include "shell/main_pump.h"
#include "shell/more_settings.h"
#include "shell/shell.h"
#include "shell/timer_firing.h"

namespace coilrun {

/// The program on the machine that the ports provide: ties the folders together and implements what
/// the lower ones call upwards.
class Program final : private GameHost,
                      private LoaderHost,
                      private MenuHost,
                      private TimerHandlers,
                      private WindowListener {
 public:
  /// `version` is "major.minor.revision".
  Program(State& state, const Ports& ports, std::string version);

  /// Runs from start-up to the end; most ways out throw `Terminate`.
  void Run(const std::string& commandLine);

 private:
  void PlayEffect(std::string_view path, int snake) override;
  void DrawFrame() override;
  void Yield() override;
  void LoadLevel(const std::string& path) override;
  void RunMenus() override;
  void LoadSettings() override;
  void RefreshHighScores() override;
  void SaveSettings() override;

  void StoreSetting(const std::string& key, const std::string& value) override;
  void LoadBackground() override;
  void PrepareLvlGfx() override;
  bool PreloadUserItem(const std::string& name) override;
  bool HoldsPicture(const std::string& name) const override;
  void LoadModelPictures(int model) override;
  void ShowProgress() override;

  void LeaveProgram() override;
  void NotePageOpened() override;
  void StorePage() override;
  SteeringKeys ShippedKeys(int person) const override;

  void OnSecond() override;
  void OnKeyboard() override;
  void OnSpeedReset() override;
  void OnWindowEvent(WindowEvent event) override;

  State& state_;
  Ports ports_;
  std::string version_;
  MainPump pump_;
  Renderer renderer_;
  Effects effects_;
  Music music_;
  Game game_;
  ContentContext content_;
  LevelChoice levels_;
  MenuContext menus_;
  Shell shell_;
  LevelWatch watch_;
  MoreSettings beforePage_;  ///< the settings when the open page was opened
};

}  // namespace coilrun
