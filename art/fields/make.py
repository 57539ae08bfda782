"""The play-field backgrounds, 640 x 480.

A closed field has a rim 10 pixels wide: heads move from 10 to 630 and from 10 to 470, so a snake
just touches it. Fields whose names end in _open have none; they are for levels with open edges.
All keep to middle tones and muted colours, so that bright items, dark items, bricks and text all
stand out, most of all where the game writes: behind the status line, the messages and the item
panel a floor is a little darker and loses its fine detail.
"""

from pathlib import Path

import grass
import numpy as np
from lib import reduce, render

HERE = Path(__file__).parent
WIDTH, HEIGHT, RIM = 640, 480, 10
SHADOW = 7  # how far the rim's shadow reaches into the field

BRICK, STONE, TIMBER, SNOW, STEEL = range(5)

# name: (floor scene, or None for the meadow, which is drawn; rim)
FIELDS = {
    "bkg_standart": ("flagstones", BRICK),
    "bkg_stone": ("cobbles", STONE),
    "bkg_sand": ("sand", TIMBER),
    "bkg_grass": (None, TIMBER),
    "bkg_ice": ("ice", SNOW),
    "bkg_night": ("night", STONE),
    "bkg_metal": ("metal", STEEL),
    "bkg_marble": ("marble", STONE),
    "bkg_lagoon": ("lagoon", TIMBER),
    "bkg_deck": ("deck", TIMBER),
    "bkg_ember": ("ember", STONE),
    "bkg_sky": ("sky", SNOW),
}

# Where the game writes: left, top, right, bottom.
BANDS = ((14, 18, 626, 40), (14, 38, 320, 92), (18, 446, 280, 474))
BAND_FADE = 60
BAND_DETAIL = 0.5  # how much of the detail is left there
BAND_LIGHT = 0.93


def _field(scene):
    return render.Scene(scene, WIDTH, HEIGHT, alpha=False, antialias=0.06)


def _frame(material):
    return render.Scene(
        HERE / "frame.pov", WIDTH * 3, HEIGHT * 3, {"MATERIAL": material}, alpha=True
    )


def _blurred(picture, passes=3, reach=4):
    """Averaged over a few pixels around each one, the border repeated."""
    for _ in range(passes):
        for axis in (0, 1):
            pad = [(reach, reach) if a == axis else (0, 0) for a in range(3)]
            total = np.cumsum(np.pad(picture, pad, mode="edge"), axis=axis)
            first = np.insert(np.take(total, range(total.shape[axis] - 2 * reach - 1), axis), 0, 0, axis)
            picture = (np.take(total, range(2 * reach, total.shape[axis]), axis) - first) / (2 * reach + 1)
    return picture


def _calmed(floor):
    """The floor with its bands darker and smoother, fading into the rest."""
    y, x = np.mgrid[0:HEIGHT, 0:WIDTH] + 0.5
    inside = np.zeros((HEIGHT, WIDTH))
    for left, top, right, bottom in BANDS:
        across, down = np.maximum(left - x, x - right), np.maximum(top - y, y - bottom)
        away = np.hypot(np.maximum(across, 0), np.maximum(down, 0))
        inside = np.maximum(inside, np.clip(1 - away / BAND_FADE, 0, 1))
    inside = (inside * inside * (3 - 2 * inside))[..., None]
    light = reduce.to_linear(floor)
    calm = BAND_LIGHT * (BAND_DETAIL * light + (1 - BAND_DETAIL) * _blurred(light))
    return reduce.to_srgb(light + (calm - light) * inside)


def _shadow():
    """How much light the rim lets through: dark along its upper and left inner edge, fading inwards."""
    y, x = np.mgrid[0:HEIGHT, 0:WIDTH] + 0.5
    near = np.minimum(x, y) - RIM
    far = np.minimum(WIDTH - x, HEIGHT - y) - RIM
    strong = 0.55 * np.clip(1 - near / SHADOW, 0, 1) ** 1.5
    weak = 0.30 * np.clip(1 - far / 3, 0, 1)
    return (1 - strong) * (1 - weak)


def _closed(floor, frame):
    """The frame render laid over the shaded floor, in linear light."""
    colour, coverage = reduce.block_average(frame, 3)
    under = reduce.to_linear(floor) * _shadow()[..., None]
    over = reduce.to_linear(colour)
    return reduce.to_srgb(under + (over - under) * coverage[..., None])


def main():
    rims = sorted({rim for _, rim in FIELDS.values()})
    scenes = [floor for floor, _ in FIELDS.values() if floor]
    outputs = render.render_all(
        [_field(HERE / f"{scene}.pov") for scene in scenes] + [_frame(rim) for rim in rims]
    )
    floors = {s: reduce.load_rgba(o[0])[..., :3] for s, o in zip(scenes, outputs)}
    frames = {r: reduce.load_rgba(o[0]) for r, o in zip(rims, outputs[len(scenes) :])}
    for name, (scene, rim) in FIELDS.items():
        floor = _calmed(floors[scene] if scene else grass.draw())
        for file, picture in ((name, _closed(floor, frames[rim])), (f"{name}_open", floor)):
            reduce.save(np.rint(picture * 255).astype(np.uint8), render.GFX / f"{file}.png")


if __name__ == "__main__":
    main()
