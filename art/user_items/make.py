"""Pictures for a level's own walls ("set:" lines): still ones, and animated ones of 45 frames.

A level decides with "let:" what TNT does. By their looks, these:

    can be blown up    ui_crate ui_barrel ui_bush ui_ice ui_cactus ui_hedge ui_flower ui_lock ui_cloud;
                       ui_fan ui_wheel ui_fountain ui_lantern
    withstand TNT      ui_rock ui_steel ui_idol ui_tree ui_gate ui_pillar ui_crystal;
                       ui_flame ui_coil ui_water ui_lava

A still one is set by its file (ui_crate.bmp), an animated one by its folder (ui_fan). The key of
animated ones is black when a level loads them and grey 131 when they are loaded again, so they fill
their cell and leave nothing to a key: water and lava run on from cell to cell, the others stand on a
slab.
"""

from pathlib import Path

import numpy as np
from lib import reduce, render

ZOOM = 8
SIZE = 20
STILL = (
    "ui_crate", "ui_barrel", "ui_bush", "ui_rock", "ui_ice", "ui_cactus", "ui_steel", "ui_idol",
    "ui_hedge", "ui_flower", "ui_tree", "ui_lock", "ui_gate", "ui_pillar", "ui_crystal", "ui_cloud",
)  # fmt: skip
STONE, STEEL = 0, 1
# name: what it stands on
ANIMATED = {
    "ui_fan": STEEL, "ui_coil": STEEL, "ui_flame": STONE, "ui_wheel": STONE, "ui_fountain": STONE,
    "ui_lantern": STONE, "ui_water": STONE, "ui_lava": STONE,
}  # fmt: skip
SHARPER = 0.22


def _scene(name, frames=0, **declare):
    scene = Path(__file__).with_name(f"{name}.pov")
    return render.Scene(scene, SIZE * ZOOM, SIZE * ZOOM, declare, frames=frames)


def _on_slab(thing, slab):
    """The two averaged in linear light, with every pixel opaque and clear of both keys."""
    colour, coverage = reduce.block_average(thing, ZOOM)
    under, _ = reduce.block_average(slab, ZOOM)
    low, high = reduce.to_linear(under), reduce.to_linear(colour)
    whole = np.ones((SIZE, SIZE), bool)
    picture = reduce.sharpen(reduce.to_srgb(low + (high - low) * coverage[..., None]), whole, SHARPER)
    lifted = reduce.keyed(picture, whole, reduce.BLACK) / 255.0
    return reduce.keyed(lifted, whole, reduce.GREY_131)


def main():
    jobs = [_scene(name) for name in STILL] + [_scene("base", KIND=kind) for kind in (STONE, STEEL)]
    outputs = render.render_all(jobs + [_scene(name, render.FRAMES) for name in ANIMATED])
    for name, files in zip(STILL, outputs):
        picture = reduce.reduce_render(reduce.load_rgba(files[0]), ZOOM, reduce.BLACK)
        reduce.save(picture, render.GFX / f"{name}.png")
    slabs = [reduce.load_rgba(files[0]) for files in outputs[len(STILL) : len(jobs)]]
    for (name, kind), files in zip(ANIMATED.items(), outputs[len(jobs) :]):
        for number, file in enumerate(files, 1):
            picture = _on_slab(reduce.load_rgba(file), slabs[kind])
            reduce.save(picture, render.GFX / name / f"{number}.png")


if __name__ == "__main__":
    main()
