"""The seven wall pieces.

A map code draws one piece; vertical walls have the brik_h pictures, horizontal walls the brik_v
ones:

    <---->   brik_v_l, brik_v ..., brik_v_r: a horizontal wall with rounded ends
    ^        brik_h_t: the upper end of a vertical wall
    |        brik_h:   its middle
    .        brik_h_b: its lower end
    +        brik:     a pier, wherever walls meet or turn, at the corners of a frame, or alone

Walls are 18 pixels wide and join along their length without a seam; a pier fills its cell, so walls
end flush against it from any side, and it juts out a little beyond them.
"""

from pathlib import Path

from lib import reduce, render

ZOOM = 12
SIZE = 20
LEVEL, UPRIGHT, PIER = 0, 1, 2

# name: (family, first end free, second end free)
PIECES = {
    "brik": (PIER, 1, 1),
    "brik_v": (LEVEL, 0, 0),
    "brik_v_l": (LEVEL, 1, 0),
    "brik_v_r": (LEVEL, 0, 1),
    "brik_h": (UPRIGHT, 0, 0),
    "brik_h_t": (UPRIGHT, 1, 0),
    "brik_h_b": (UPRIGHT, 0, 1),
}


def main():
    scene = Path(__file__).with_name("wall.pov")
    jobs = [
        render.Scene(
            scene,
            SIZE * ZOOM,
            SIZE * ZOOM,
            {"FAMILY": family, "FREE_A": first, "FREE_B": second},
        )
        for family, first, second in PIECES.values()
    ]
    for name, outputs in zip(PIECES, render.render_all(jobs)):
        picture = reduce.reduce_render(reduce.load_rgba(outputs[0]), ZOOM, reduce.BLACK)
        reduce.save(picture, render.GFX / f"{name}.png")


if __name__ == "__main__":
    main()
