#include "shell/main_loop.h"

#include "content/ai_snakes.h"
#include "game/collision.h"
#include "game/game_over.h"
#include "game/movement.h"
#include "game/shown_snakes.h"
#include "game/steps.h"
#include "menus/show_menus.h"
#include "model/feed.h"
#include "shell/display.h"
#include "shell/screens.h"

namespace coilrun {
namespace {

void OpenDevices(Shell& shell) {
  State& state = shell.state;
  DebugPrint(state, "DI_Init: Keyboard initialized...");
  if (!shell.ports.audio.Open()) {
    shell.ports.box.Show(
        "Coilrun",
        "Unable to start DirectSound. Check to see that your sound card is working properly!",
        BoxButtons::kOk);
  }
  shell.ports.screen.SetFullScreen(true);
  shell.ports.screen.ShowPointer(state.shell.DebugMode);
  DebugPrint(state, "\r\n");
  DebugPrint(state, "DX_INIT: Display Coop Level Set");
  DebugPrint(state, "DX_INIT: Display 640x480x32");
  DebugPrint(state, "\r\n");
  DebugPrint(state, "DX_INIT: Creating Buffers");
}

void LoadStartLevel(Shell& shell) {
  std::string& path = shell.state.mode.StartLevelPath;
  if (!path.empty()) shell.game.host.LoadLevel(path);
  path.clear();
}

void ResetPlayer(State& state) {
  SnakeRec& player = state.Snakes(kPlayer);
  player.Length = 1;
  player.Score = 0;
  player.Lives = kLivesOfAGame;
  PutOnStart(player);
  player.Dir = Dir::kNone;
  player.NextDir = Dir::kNone;
}

void PrepareMenus(MenuState& menus) {
  if (!menus.statusHeld) menus.StatusText = "Welcome to Coilrun";
  menus.MainCursor = 1;
  menus.OptionsCursor = 1;
  menus.EntryLit(1) = true;
}

void Greet(State& state) {
  if (state.shell.DebugMode) MessagePrint(state, "Debugmode active! -> Entering main loop");
  if (state.mode.GameMode == GameMode::kDeathmatch) {
    MessagePrint(state, state.mode.HuntingMode ? "Coilrun Multiplayer: Hunting Mode!"
                                               : "Coilrun Multiplayer");
  } else {
    state.mode.HuntingMode = false;
  }
  MessagePrint(state, "----------------------");
  MessagePrint(state, "Welcome to Coilrun 3D");
}

void Initialise(Shell& shell) {
  State& state = shell.state;
  state.shell.Running = true;
  OpenDevices(shell);
  state.feed.introVisible = true;
  DD_CreateGraphicsFromFile(shell);
  SnCreateSounds(shell);
  LoadStartLevel(shell);
  ReseedFromClock(state);
  shell.renderer.Text().SetTextStyle("Standart");
  state.feed.introVisible = false;
  ResetPlayer(state);
  ConsolePrint(state, "DX_INIT: Creating Items");
  if (state.mode.AiSwitchGiven && state.mode.AiEnabled) SetupAiSnakes(state, shell.ports.files);
  PrepareMenus(state.menus);
  DebugPrint(state, "DX_INIT: Loading Textures...");
  shell.renderer.PrepareLvlGfx();
  state.shell.ShowLevelScreen = false;
  state.shell.IsPause = false;
  state.shell.DisplayReady = true;
  Greet(state);
}

void DrawBackdrop(Shell& shell) {
  Renderer& renderer = shell.renderer;
  renderer.FillBack({});
  renderer.Field().DrawBackground();
  PlaceWaitingSnakes(shell.state);
  renderer.Field().DrawStartMarkers();
  renderer.Text().SetTextStyle("Standart");
}

enum class ItemOrder { kPowerFirst, kTntFirst };

void DrawItemsAndWalls(Shell& shell, ItemOrder order) {
  PlayField& field = shell.renderer.Field();
  field.DrawAllItems(order == ItemOrder::kTntFirst);
  field.DrawWalls();
  if (shell.state.level.UserItemsUsed) field.DrawUserItems();
}

void StepAndDrawPlayer(Shell& shell) {
  BeginPlayerStep(shell.game);
  DrawItemsAndWalls(shell, ItemOrder::kTntFirst);
  EndPlayerStep(shell.state);
  EndSpentImmortality(shell.state);
  shell.renderer.Field().DrawSnake(kPlayer);
}

void DrawBetweenSteps(Shell& shell) {
  DrawItemsAndWalls(shell, ItemOrder::kPowerFirst);
  shell.renderer.Field().DrawSnakes(SnakesShownInLoop(shell.state));
}

void DrawLayers(Shell& shell) {
  Overlays& overlay = shell.renderer.Overlay();
  overlay.DrawMessageFeed();
  if (shell.state.shell.IsPause) return;
  overlay.DrawStatusLine();
  overlay.DrawItemPanel();
}

void PlayFrame(Shell& shell) {
  State& state = shell.state;
  shell.music.Check();
  DrawBackdrop(shell);
  ApplyGrowth(state);
  StepAiSnakes(shell.game);
  for (int snake = kPlayer + 1; snake <= SnakesInPlay(state); ++snake)
    shell.renderer.Field().DrawSnake(snake);
  if (PlayerStepDue(state)) {
    StepAndDrawPlayer(shell);
  } else {
    DrawBetweenSteps(shell);
  }
  shell.renderer.Text().DrawSnakeNames(state.shell.ShowNames);
  if (state.shell.ShowMatchStats) shell.renderer.Overlay().DrawMatchStats();
  CapLengths(state);
  ColChk(shell.game);
  DrawLayers(shell);
  shell.pump.Flip();
  ++state.shell.FrameCount;
  if (state.shell.ShowLevelScreen) DrawLevelScreen(shell);
}

void Pass(Shell& shell) {
  ShellState& now = shell.state.shell;
  if (now.InMenu) {
    ShowMenus(shell.menus);
    return;
  }
  if (now.LevelIntroPending) now.ShowLevelScreen = true;
  if (now.IsPause) {
    DrawPauseScreen(shell);
  } else {
    PlayFrame(shell);
  }
}

}  // namespace

void RunGame(Shell& shell) {
  Initialise(shell);
  do {
    Pass(shell);
    shell.pump.Yield();
  } while (shell.state.shell.Running);
}

}  // namespace coilrun
