#pragma once

#include "game/game.h"
#include "media/music.h"
#include "menus/level_choice.h"
#include "menus/menu_host.h"
#include "ports/pump.h"
#include "ports/screen.h"
#include "render/renderer.h"

namespace coilrun {

/// What the pages work with. Made once by the shell; everything in it outlives it.
struct MenuContext {
  State& state;
  Pump& pump;
  Screen& screen;
  Renderer& renderer;
  Music& music;
  Game& game;
  LevelChoice& levels;
  MenuHost& host;
};

}  // namespace coilrun
