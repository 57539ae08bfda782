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

# name: (floor scene, or None for the meadow that is drawn; rim)
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
}


def _field(scene):
    return render.Scene(scene, WIDTH, HEIGHT, alpha=False, antialias=0.06)


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
    rims = sorted({rim for _, rim in FIELDS.values()})
    scenes = [floor for floor, _ in FIELDS.values() if floor]
    outputs = render.render_all(
        [_field(HERE / f"{scene}.pov") for scene in scenes] + [_frame(rim) for rim in rims]
    )
    floors = {s: reduce.load_rgba(o[0])[..., :3] for s, o in zip(scenes, outputs)}
    frames = {r: reduce.load_rgba(o[0]) for r, o in zip(rims, outputs[len(scenes) :])}
    for name, (scene, rim) in FIELDS.items():
        floor = floors[scene] if scene else grass.draw()
        for file, picture in ((name, _closed(floor, frames[rim])), (f"{name}_open", floor)):
            reduce.save(np.rint(picture * 255).astype(np.uint8), render.GFX / f"{file}.png")


if __name__ == "__main__":
    main()
