"""The six animated items, 45 frames each, and the five flat ones.

They can be told apart without colour: a banana's crescent (yellow), a chili's broad-shouldered cone
with a cap (red), a cut crystal pointed at both ends (blue), a half-peeled banana with splayed skin
(black), a square bundle with a label (TNT), a round medal with an atom (atomic power).
"""

from pathlib import Path

from lib import reduce, render

ZOOM = 8
HERE = Path(__file__).parent

# folder: (scene, width, height, colour key)
ANIMATED = {
    "Yellow_animated": ("yellow", 16, 24, reduce.GREY_131),
    "red_animated": ("red", 16, 24, reduce.GREY_131),
    "blue_animated": ("blue", 16, 24, reduce.GREY_131),
    "black_animated": ("black", 16, 24, reduce.GREY_131),
    "tnt_animated": ("tnt", 16, 24, reduce.GREY_128),
    "atomic_animated": ("atomic", 22, 21, reduce.GREY_131),
}
FLAT = ("banana", "red_banana", "blue_banana", "black_banana", "tnt")


def make_animated():
    jobs = [
        render.Scene(HERE / f"{scene}.pov", width * ZOOM, height * ZOOM, frames=render.FRAMES)
        for scene, width, height, _ in ANIMATED.values()
    ]
    for (folder, (_, _, _, key)), outputs in zip(ANIMATED.items(), render.render_all(jobs)):
        for number, output in enumerate(outputs, 1):
            picture = reduce.reduce_render(reduce.load_rgba(output), ZOOM, key)
            reduce.save(picture, render.GFX / folder / f"{number}.png")


def make_flat():
    jobs = [render.Drawing(HERE / f"{name}.svg", ZOOM) for name in FLAT]
    for name, outputs in zip(FLAT, render.render_all(jobs)):
        picture = reduce.reduce_render(reduce.load_rgba(outputs[0]), ZOOM, reduce.BLACK)
        reduce.save(picture, render.GFX / f"{name}.png")


if __name__ == "__main__":
    make_animated()
    make_flat()
