#pragma once

#include <string>
#include <vector>

#include "game/field.h"
#include "menus/menu_keys.h"
#include "menus/pointer.h"
#include "menus/show_menus.h"
#include "render/stage.h"
#include "support/silent_music.h"

namespace coilrun {

class RecordingMenuHost final : public MenuHost {
 public:
  void LeaveProgram() override { ++left; }
  void NotePageOpened() override {}
  void StorePage() override { ++stored; }
  SteeringKeys ShippedKeys(int person) const override { return {{person}, {}, {}, {person + 1}}; }

  int left = 0;
  int stored = 0;
};

struct RecordingScreen final : Screen {
  void Flip(ScreenPixels /*primary*/) override {}
  void Present(ScreenPixels /*primary*/) override {}
  void SetFullScreen(bool /*on*/) override {}
  void ToggleFullScreen() override {}
  void ShowPointer(bool visible) override { pointerShown = visible; }

  bool pointerShown = false;
};

/// The menus over a program folder with levels, with no game running.
struct MenuStage : Stage {
  MenuStage() {
    const auto put = [this](const std::string& file, const std::string& starts,
                            const std::string& keys) {
      files.Put(".\\lvl\\" + file, starts + " _ ;\r\n" + keys);
    };
    put("lvl10.dat", "S 1 2 3 4", "lvlName= Ten\r\nMatchLimit=40\r\n");
    put("LVL2.dat", "S 1", "lvlName= Two\r\n");
    put("lvl9.dat", "S", "numYellow=many\r\nnumYellow=99999999\r\n");
    put("arena.dat", "S 1 2", "lvlName= Arena\r\nMatchLimit=150\r\n");
    state.shell.InMenu = true;
    state.shell.NoGameRunning = true;
    state.menus.MainCursor = 1;
  }

  void Press(const std::vector<int>& keys) {
    for (const int key : keys) {
      if (key == kKeyEscape) {
        LeavePage(menus);
      } else {
        MenuKey(menus, key);
      }
    }
  }
  /// One pass of the menus, the way they run.
  void Pass() {
    pump.onYield = [this] { state.shell.InMenu = false; };
    ShowMenus(menus);
    state.shell.InMenu = true;
  }

  RecordingHost host{state};
  RecordingMenuHost menuHost;
  RecordingScreen screen;
  SilentMusic silence;
  Music music{state, files, silence};
  Game game{state, host};
  LevelChoice levels{files};
  MenuContext menus{state, pump, screen, renderer, music, game, levels, menuHost};
};

}  // namespace coilrun
