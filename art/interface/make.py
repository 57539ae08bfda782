#!/usr/bin/env python3
"""Draws the menus, captions, the level-start panel with its lights, the intro picture, the icon."""

from pathlib import Path

import numpy as np
from PIL import Image, ImageFilter

from lib import reduce
from lib.letters import SPARTAN, LIBERATION, chiselled, written
from lib.render import GFX, ROOT, Drawing, Scene, render_all

HERE = Path(__file__).resolve().parent
SCREEN = (640, 480)
FINE = 8
PLATE_FINE = 4
OPTIONS_TITLE = (148, 2, 340)
PAGE_TITLES = {"more": "More", "match": "Match", "controls": "Controls"}
TITLE_STRIP = (220, 84, 420, 140)
BUTTONS = {"NewGame": "New Game", "Options": "Options", "HiScore": "High Scores", "Exit": "Exit"}
GOLD = ((255, 250, 214), (255, 214, 84), (232, 140, 22), (112, 52, 6))
RED = ((255, 214, 196), (250, 84, 60), (190, 18, 14), (90, 4, 6))
BLUE = ((220, 240, 255), (96, 170, 255), (30, 80, 220), (10, 24, 110))
IVORY = ((255, 255, 255), (255, 250, 226), (255, 226, 150), (150, 92, 20))
BRONZE = ((255, 250, 220), (255, 228, 150), (238, 192, 98), (110, 70, 20))
SHADE = (30, 16, 6)
ICONS = (16, 32, 48, 64, 128, 256)
LIGHTS = {
    "Yellow": (255, 222, 30),
    "Red": (255, 44, 30),
    "Blue": (60, 120, 255),
    "Green": (50, 230, 60),
}


def caption(text, font, size, spacing, width, height, base, ramp, bevel=1.2, rim=1.4, shade=SHADE):
    mask = written(text, font, size, spacing, width, height, base, FINE)
    return chiselled(mask, FINE, bevel, ramp, shade, rim)


def keyed_caption(*arguments, **options):
    picture = caption(*arguments, **options)
    return reduce.reduce_render(picture, FINE, reduce.BLACK, reduce.BRIGHT_INTERFACE, 0.15)


def over(below, above):
    """A float RGBA picture laid over an opaque float RGB one, in linear light."""
    alpha = above[..., 3:4]
    light = reduce.to_linear(below) * (1 - alpha) + reduce.to_linear(above[..., :3]) * alpha
    return reduce.to_srgb(light)


def small(rgba, factor):
    srgb, coverage = reduce.block_average(rgba, factor)
    return np.concatenate([srgb, coverage[..., None]], axis=2)


def placed(rgba, x, y):
    """A picture on an empty screen."""
    screen = np.zeros((SCREEN[1], SCREEN[0], 4))
    height, width = rgba.shape[:2]
    screen[y : y + height, x : x + width] = rgba
    return screen


def soft(alpha, radius):
    picture = Image.fromarray(np.rint(alpha * 255).astype(np.uint8))
    return np.asarray(picture.filter(ImageFilter.GaussianBlur(radius)), float) / 255


def standing_out(layer, outline=2.0, shadow=4.0):
    """The layer with a dark outline and a soft shadow down to the right."""
    alpha = layer[..., 3]
    edge = np.clip(soft(alpha, outline) * 3.2, 0, 1)
    fall = 0.8 * np.roll(soft(alpha, shadow), (4, 3), axis=(0, 1))
    dark = np.maximum(edge, fall)
    total = alpha + dark * (1 - alpha)
    colour = layer[..., :3] * (alpha / np.maximum(total, 1e-6))[..., None]
    return np.concatenate([colour, total[..., None]], axis=2)


def graded(picture):
    """More contrast and colour: takes the haze off a scene."""
    picture = np.clip((picture - 0.05) / 0.93, 0, 1)
    picture = picture + 0.32 * (picture * picture * (3 - 2 * picture) - picture)
    grey = picture.mean(axis=2, keepdims=True)
    return np.clip(grey + 1.16 * (picture - grey), 0, 1)


def background(scene, title, place, subtitle=None, fade=(410, 438, 0.16)):
    """A scene with the name of the game, perhaps a second line, and a dark foot for texts."""
    picture = graded(reduce.load_rgba(scene)[..., :3])
    rows = np.arange(SCREEN[1])
    x = np.clip((rows - fade[0]) / (fade[1] - fade[0]), 0, 1)
    dim = 1 - (1 - fade[2]) * x * x * (3 - 2 * x)
    picture = picture * dim[:, None, None]
    x0, y0, width = place
    height = round(width * title.shape[0] / title.shape[1])
    scaled = Image.fromarray(np.rint(title * 255).astype(np.uint8), "RGBA")
    scaled = scaled.convert("RGBa").resize((width, height), Image.LANCZOS).convert("RGBA")
    layer = placed(np.asarray(scaled, float) / 255, x0, y0)
    picture = over(picture, standing_out(layer))
    if subtitle:
        text, size, base, middle = subtitle
        mask = written(
            text, LIBERATION + "Serif-Bold.ttf", size, 1.5, *SCREEN, base, PLATE_FINE, middle
        )
        letters = small(chiselled(mask, PLATE_FINE, 1.6, GOLD, SHADE, 1.2), PLATE_FINE)
        picture = over(picture, standing_out(letters, 1.5, 3.0))
    return np.rint(picture * 255).astype(np.uint8)


def options_page(scene, title, text):
    """The scene of the options page under another heading; the pages that look like it share all
    but `TITLE_STRIP`."""
    return background(scene, title, OPTIONS_TITLE, (text, 38, 117, 316), (436, 462, 0.25))


def button(plate, text, ramp):
    rgba = np.repeat(np.repeat(reduce.load_rgba(plate), 2, axis=0), 2, axis=1)
    srgb, coverage = reduce.block_average(rgba, FINE)
    mask = reduce.opaque_mask(coverage)
    label = small(
        caption(
            text, LIBERATION + "Sans-Bold.ttf", 14, 0.5, 250, 30, 20, ramp, 0.5, 1.1, (14, 12, 8)
        ),
        FINE,
    )
    srgb = over(reduce.sharpen(srgb, mask), label)
    return reduce.keyed(srgb, mask, reduce.BLACK, reduce.BRIGHT_INTERFACE)


def light(colour):
    """A small lamp with a highlight."""
    y, x = (np.mgrid[0 : 5 * 16, 0 : 6 * 16] + 0.5) / 16
    u, v = (x - 3) / 2.95, (y - 2.5) / 2.45
    far = u * u + v * v
    shade = np.clip(1.15 - 0.75 * far, 0.3, 1)[..., None]
    glint = np.exp(-((u + 0.35) ** 2 + (v + 0.4) ** 2) * 9)[..., None]
    rgb = np.clip(np.array(colour) / 255 * shade + 0.8 * glint, 0, 1)
    return reduce.reduce_render(
        np.concatenate([rgb, (far < 1)[..., None]], axis=2), 16, reduce.BLACK, 18, 0
    )


def captions():
    bold = SPARTAN
    yield "pause", keyed_caption("Pause", bold, 46, 1.0, 174, 44, 35, GOLD, bevel=2.4, rim=1.8)
    yield "gover", keyed_caption("Game Over", bold, 33, -0.2, 174, 44, 33, RED, bevel=2.0, rim=1.8)
    yield "hitwall", keyed_caption(
        "You hit the wall!", bold, 24, 0.2, 203, 24, 18, GOLD, bevel=1.4, rim=1.3
    )
    yield "dm", keyed_caption("DM", bold, 25, 1.0, 54, 21, 18.5, RED, bevel=1.5, rim=1.3)
    yield "dm_red", keyed_caption("Deathmatch", bold, 42, 0.2, 250, 70, 49, RED, bevel=2.6, rim=2.2)
    yield "dm_blue", keyed_caption(
        "Deathmatch", bold, 42, 0.2, 250, 70, 49, BLUE, bevel=2.6, rim=2.2
    )


def screen_scene(name):
    return Scene(HERE / f"{name}.pov", *SCREEN, alpha=False, antialias=0.15)


def plate(which, width, height, lit=0):
    size = (width * PLATE_FINE, height * PLATE_FINE)
    return Scene(HERE / "plates.pov", *size, declare={"Which": which, "Lit": lit})


def main():
    jobs = [
        Scene(HERE / "title.pov", 1760, 440),
        plate(1, 250, 30),
        plate(1, 250, 30, 1),
        plate(2, 315, 201),
    ]
    jobs += [screen_scene(name) for name in ("menu", "options", "scores")]
    name, normal, lit, panel, menu, options, scores = (files[0] for files in render_all(jobs))
    title = reduce.load_rgba(name)

    menus = GFX / "menu"
    reduce.save(background(menu, title, (212, 0, 420)), menus / "bkg.png")
    reduce.save(options_page(options, title, "Options"), menus / "bkg_o.png")
    for file, text in PAGE_TITLES.items():
        strip = Image.fromarray(options_page(options, title, text)).crop(TITLE_STRIP)
        reduce.save(np.asarray(strip), menus / f"title_{file}.png")
    line = ("High Scores", 46, 164, 408)
    reduce.save(
        background(scores, title, (250, 4, 340), line, (432, 458, 0.25)), menus / "bkg_hs.png"
    )
    intro = Image.fromarray(background(menu, title, (266, 6, 366), fade=(478, 480, 1)))
    intro.crop((0, 4, 640, 248)).resize((394, 150), Image.LANCZOS).save(
        ROOT / "assets" / "intro.png", optimize=True
    )
    for file, text in BUTTONS.items():
        reduce.save(button(normal, text, BRONZE), menus / f"{file}_n.png")
        reduce.save(button(lit, text, IVORY), menus / f"{file}_h.png")
    for file, pixels in captions():
        reduce.save(pixels, GFX / f"{file}.png")
    for file, colour in LIGHTS.items():
        reduce.save(light(colour), GFX / f"LED_{file}.png")
    reduce.save(
        reduce.reduce_render(reduce.load_rgba(panel), PLATE_FINE, reduce.BLACK, 18),
        GFX / "statistics.png",
    )
    icons()


def icons():
    """The program's icon; the smallest sizes come from a simpler drawing."""
    folder = ROOT / "assets" / "icon"
    drawings = [HERE / "icon_small.svg" if size < 40 else folder / "coilrun.svg" for size in ICONS]
    jobs = [Drawing(drawing, 8 * size / 256) for drawing, size in zip(drawings, ICONS)]
    for size, (file,) in zip(ICONS, render_all(jobs)):
        fine = Image.open(file).convert("RGBa").resize((size, size), Image.BOX)
        fine.convert("RGBA").save(folder / f"coilrun-{size}.png", optimize=True)


if __name__ == "__main__":
    main()
