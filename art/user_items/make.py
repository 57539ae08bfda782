"""Pictures of a level's own walls ("set:" lines): still ones, and animated ones of 45 frames.

A level decides with "let:" what TNT does. By their looks:

    can be blown up    ui_crate ui_barrel ui_bush ui_ice ui_cactus; ui_fan ui_wheel ui_fountain
    withstand TNT      ui_rock ui_steel ui_idol; ui_flame ui_coil

A still one is set by its file (ui_crate.bmp), an animated one by its folder (ui_fan). Animated ones
are keyed black when a level loads them and grey 131 when they are loaded again, so they stand on a
plate and leave nothing to a key.
"""

from pathlib import Path

from lib import reduce, render

ZOOM = 8
SIZE = 20
PLATE = (36, 34, 40)
STILL = ("ui_crate", "ui_barrel", "ui_bush", "ui_rock", "ui_ice", "ui_cactus", "ui_steel", "ui_idol")
ANIMATED = ("ui_fan", "ui_flame", "ui_coil", "ui_wheel", "ui_fountain")


def _job(name, frames=0):
    scene = Path(__file__).with_name(f"{name}.pov")
    return render.Scene(scene, SIZE * ZOOM, SIZE * ZOOM, frames=frames)


def main():
    jobs = [_job(name) for name in STILL] + [_job(name, render.FRAMES) for name in ANIMATED]
    outputs = render.render_all(jobs)
    for name, files in zip(STILL, outputs):
        picture = reduce.reduce_render(reduce.load_rgba(files[0]), ZOOM, reduce.BLACK)
        reduce.save(picture, render.GFX / f"{name}.png")
    for name, files in zip(ANIMATED, outputs[len(STILL) :]):
        for number, file in enumerate(files, 1):
            picture = reduce.reduce_render(reduce.load_rgba(file), ZOOM, reduce.BLACK)
            picture[(picture == reduce.BLACK).all(axis=2)] = PLATE
            reduce.save(picture, render.GFX / name / f"{number}.png")


if __name__ == "__main__":
    main()
