"""The play-field backgrounds, 640 x 480.

A closed field has a rim 10 pixels broad: heads move from 10 to 630 and from 10 to 470, so a snake
just touches it. The names that end in _open have none; they are for levels with open walls.
All keep to the middle tones and to muted colours, so that bright items, dark items, bricks and
text all stand out.
"""

from pathlib import Path

import grass
import numpy as np
from lib import reduce, render

HERE = Path(__file__).parent
WIDTH, HEIGHT, RIM = 640, 480, 10
SHADOW = 7  # how far the rim's shadow reaches into the field

BRICK, STONE, TIMBER, SNOW, STEEL = range(5)

# name: (floor scene or None for the drawn meadow, rim, whether an open one is made too)
FIELDS = {
    "bkg_standart": ("flagstones", BRICK, False),
    "bkg_stone": ("cobbles", STONE, False),
    "bkg_sand": ("sand", TIMBER, True),
    "bkg_grass": (None, TIMBER, True),
    "bkg_ice": ("ice", SNOW, True),
    "bkg_night": ("night", STONE, True),
    "bkg_metal": ("metal", STEEL, False),
}


def _field(scene, **declare):
    return render.Scene(scene, WIDTH, HEIGHT, declare, alpha=False, antialias=0.06)


def _frame(material):
    return render.Scene(
        HERE / "frame.pov", WIDTH * 3, HEIGHT * 3, {"MATERIAL": material}, alpha=True
    )


def _shadow():
    """How much light the rim leaves: dark along the upper and left inside, fading inwards."""
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
    rims = sorted({rim for _, rim, _ in FIELDS.values()})
    scenes = [floor for floor, _, _ in FIELDS.values() if floor]
    outputs = render.render_all(
        [_field(HERE / f"{scene}.pov") for scene in scenes] + [_frame(rim) for rim in rims]
    )
    floors = {s: reduce.load_rgba(o[0])[..., :3] for s, o in zip(scenes, outputs)}
    frames = {r: reduce.load_rgba(o[0]) for r, o in zip(rims, outputs[len(scenes) :])}
    for name, (scene, rim, has_open) in FIELDS.items():
        floor = floors[scene] if scene else grass.draw()
        pictures = {name: _closed(floor, frames[rim])}
        if has_open:
            pictures[f"{name}_open"] = floor
        for file, picture in pictures.items():
            reduce.save(np.rint(picture * 255).astype(np.uint8), render.GFX / f"{file}.png")


if __name__ == "__main__":
    main()
