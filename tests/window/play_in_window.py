#!/usr/bin/env python3
"""Plays the installed program in a real window: Xvfb, a window manager, real key events, screenshots.

Usage: play_in_window.py BUILD_DIR [FOLDER_FOR_SCREENSHOTS]
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import numpy
from PIL import Image

SIZE = (640, 480)


class Faults(list):
    def expect(self, holds, what):
        if not holds:
            self.append(what)


class Desktop:
    """An X server of our own with a window manager; ends what it started."""

    def __init__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1024x768x24", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as display:
            number = display.readline().strip()
        self.environment = dict(os.environ, DISPLAY=":" + number, SDL_AUDIODRIVER="dummy")
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.manager = self.start(["openbox"], stderr=subprocess.DEVNULL)

    def start(self, command, **options):
        return subprocess.Popen(command, env=self.environment, **options)

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False)

    def window(self, seconds=20):
        for _ in range(int(seconds * 10)):
            found = self.run("xdotool", "search", "--onlyvisible", "--name", "^Coilrun$").stdout.split()
            if found:
                return found[-1]
            time.sleep(0.1)
        return None

    def key(self, *keys):
        for key in keys:
            self.run("xdotool", "keydown", key)
            time.sleep(0.06)
            self.run("xdotool", "keyup", key)
            time.sleep(0.06)

    def click(self, window, x, y, button=1):
        """Clicks where the window shows this place of the game's screen."""
        shape = self.run("xdotool", "getwindowgeometry", "--shell", window).stdout
        size = dict(line.split("=") for line in shape.split())
        place = str(x * int(size["WIDTH"]) // SIZE[0]), str(y * int(size["HEIGHT"]) // SIZE[1])
        self.run("xdotool", "mousemove", "--window", window, "5", "5")
        self.run("xdotool", "mousemove", "--window", window, *place)
        time.sleep(0.2)
        self.run("xdotool", "click", str(button))
        time.sleep(0.4)

    def screenshot(self, file):
        self.run("import", "-window", "root", str(file))
        return numpy.asarray(Image.open(file).convert("RGB")).astype(int)

    def wait_for_picture(self, file, seconds=90):
        """Waits until loading is over: its panel leaves the top of the picture black."""
        for _ in range(seconds * 2):
            picture = self.screenshot(file)
            if field_of(picture)[30:50].mean() > 30:
                return picture
            time.sleep(0.5)
        return picture

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait(timeout=10)


def field_of(picture):
    """The middle 640 x 480 pixels of a window's picture: the game unscaled."""
    height, width, _ = picture.shape
    top, left = (height - SIZE[1]) // 2, (width - SIZE[0]) // 2
    return picture[top:top + SIZE[1], left:left + SIZE[0]]


def install(build, folder):
    subprocess.run(["cmake", "--install", build, "--prefix", str(folder)], check=True, stdout=subprocess.DEVNULL)
    return folder / "bin" / "coilrun"


def wait_for_end(game, seconds=15):
    try:
        return game.wait(timeout=seconds)
    except subprocess.TimeoutExpired:
        game.kill()
        return None


def play_a_level(desktop, program, folder, shots, faults):
    game = desktop.start([program, "--windowed", "--user", folder / "user", "/L=lvl1.dat"])
    faults.expect(desktop.window(), "no window appeared")
    level_screen = desktop.wait_for_picture(shots / "level-screen.png")
    desktop.key("F1")
    time.sleep(0.5)
    start = desktop.screenshot(shots / "start.png")
    desktop.key("Left")
    time.sleep(0.8)
    moved = desktop.screenshot(shots / "moved.png")
    faults.expect(field_of(level_screen).std() > 10, "the level screen is blank")
    faults.expect((field_of(level_screen) != field_of(start)).mean() > 0.05, "F1 did not close the level screen")
    faults.expect((field_of(start) != field_of(moved)).mean() > 0.001, "nothing moved after Left")
    desktop.key("alt+Return")
    time.sleep(1.5)
    full = desktop.screenshot(shots / "full-screen.png")
    faults.expect(full[:, -20:].mean() > 30 and full[-20:].mean() > 30, "Alt+Enter did not fill the screen")
    desktop.key("alt+F4")
    faults.expect(wait_for_end(game) == 0, "closing the window did not end the game with 0")


def leave_by_the_menu(desktop, program, folder, shots, faults):
    game = desktop.start([program, "--windowed", "--user", folder / "user"])
    window = desktop.window()
    if not window:
        faults.append("no window appeared for the menu")
        return
    menu = desktop.wait_for_picture(shots / "menu.png")
    time.sleep(0.5)
    desktop.key("Up")
    time.sleep(0.3)
    lit = desktop.screenshot(shots / "menu-exit.png")
    faults.expect((menu != lit).mean() > 0.001, "Up did not move the menu's light")
    desktop.click(window, 320, 338)
    pages = desktop.screenshot(shots / "more.png")
    faults.expect((lit != pages).mean() > 0.1, "a click on \"Tab  More\" opened no page")
    desktop.click(window, 60, 215)
    match = desktop.screenshot(shots / "match.png")
    faults.expect((pages != match).mean() > 0.02, "a click on Match opened no page")
    desktop.click(window, 60, 215, button=3)
    desktop.click(window, 60, 215, button=3)
    desktop.key("Return")
    faults.expect(wait_for_end(game) == 0, "Exit did not end the game with 0")
    left = list((folder / "user").rglob("*.bmp")) + list((folder / "share").rglob("gfx/*.bmp"))
    faults.expect(not left, f"Exit left {len(left)} unpacked pictures behind")
    faults.expect((folder / "user" / "coilrun.ini").is_file(), "Exit saved no settings")


def watch_a_level(desktop, program, folder, shots, faults):
    level = folder / "share" / "coilrun" / "lvl" / "watched.dat"
    level.write_text("_ ;\nlvlName= First\nnumYellow=9\nreqYellow=9\n")
    game = desktop.start([program, "--windowed", "--watch", "--user", folder / "user", "/L=watched.dat"])
    faults.expect(desktop.window(), "no window appeared for the watched level")
    first = desktop.wait_for_picture(shots / "watched.png")
    time.sleep(1.5)
    level.write_text("_ ;\nlvlName= First\nnumRed=many\nnumBlue=99999\n")
    time.sleep(3)
    menu = desktop.screenshot(shots / "watched-fault.png")
    faults.expect((first != menu).mean() > 0.1, "a fault in the watched level did not open the menus")
    level.write_text("_ ;\nlvlName= Second\nBkgPic= bkg_ice.bmp\nnumYellow=9\nreqYellow=9\n")
    time.sleep(3)
    second = desktop.screenshot(shots / "watched-again.png")
    faults.expect((second != menu).mean() > 0.1, "the mended level was not loaded")
    faults.expect((second != first).mean() > 0.1, "the level is still the first one")
    desktop.key("alt+F4")
    faults.expect(wait_for_end(game) == 0, "closing the window did not end the watched game with 0")


def main():
    build = sys.argv[1]
    folder = pathlib.Path(tempfile.mkdtemp(prefix="coilrun-window-"))
    shots = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else folder / "shots"
    shots.mkdir(parents=True, exist_ok=True)
    faults = Faults()
    program = install(build, folder)
    desktop = Desktop()
    try:
        play_a_level(desktop, program, folder, shots, faults)
        leave_by_the_menu(desktop, program, folder, shots, faults)
        watch_a_level(desktop, program, folder, shots, faults)
    finally:
        desktop.close()
    for fault in faults:
        print(f"play_in_window: {fault} (screenshots in {shots})")
    if not faults:
        shutil.rmtree(folder)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
