#pragma once

#include "content/context.h"
#include "game/game.h"
#include "media/effects.h"
#include "media/music.h"
#include "menus/context.h"
#include "model/state.h"
#include "ports/ports.h"
#include "ports/pump.h"
#include "render/renderer.h"

namespace coilrun {

/// Everything that the shell works with, passed to its routines. Made once by `Program`.
struct Shell {
  State& state;
  Ports& ports;
  Pump& pump;
  Renderer& renderer;
  Effects& effects;
  Music& music;
  Game& game;
  const ContentContext& content;
  MenuContext& menus;
};

}  // namespace coilrun
