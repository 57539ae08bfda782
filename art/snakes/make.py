#!/usr/bin/env python3
"""Draws the picture set of every snake model and writes its description."""

import sys

import numpy as np

import models
from lib import reduce
from lib.render import ROOT
from tube import BACK, CELL, FORW, LEFT, RIGHT, Canvas, Path, Ring

TARGET = ROOT / "assets" / "models"
AUTHOR = "Coilrun"
CONTOUR = 0.7  # how much of the brightness is left at the edge of a snake
HEADS = {"head_forw": FORW, "head_back": BACK, "head_left": LEFT, "head_right": RIGHT}
STRAIGHT = {"Snake_forw": FORW, "Snake_back": BACK, "Snake_left": LEFT, "Snake_right": RIGHT}
TAILS = {"tail_forw": FORW, "tail_back": BACK, "tail_left": LEFT, "tail_right": RIGHT}
# Directions in which a snake enters and leaves the cell; right turns, then left turns.
CORNERS = {
    "Snake_b_l": (RIGHT, BACK),
    "Snake_b_r": (FORW, RIGHT),
    "Snake_f_l": (BACK, LEFT),
    "Snake_f_r": (LEFT, FORW),
}
LEFT_CORNERS = {
    "Snake_b_l_i": (FORW, LEFT),
    "Snake_b_r_i": (LEFT, BACK),
    "Snake_f_l_i": (RIGHT, FORW),
    "Snake_f_r_i": (BACK, RIGHT),
}
TAIL_CORNERS = {
    "Tail_b_l": (FORW, LEFT),
    "Tail_b_r": (LEFT, BACK),
    "Tail_f_l": (RIGHT, FORW),
    "Tail_f_r": (BACK, RIGHT),
    "Tail_f_l_2": (BACK, LEFT),
    "Tail_r_f": (LEFT, FORW),
    "Tail_l_b": (RIGHT, BACK),
    "Tail_b_r_2": (FORW, RIGHT),
}


def draw(shape, path):
    canvas = Canvas()
    shape(canvas, path)
    return canvas.picture(getattr(shape.__self__, "contour", CONTOUR))


def start_marker(model):
    """The snake asleep on its start cell: a small coil with the head on top, or the head alone."""
    canvas = Canvas()
    if not getattr(model, "curls", True):
        model.head(canvas, Path(BACK, BACK, joined=(False, False), scale=0.92))
        return canvas.picture(CONTOUR)
    model.body(canvas, Ring(15.2, 5, scale=0.42))
    canvas.z -= 8
    model.head(
        canvas,
        Path(BACK, BACK, joined=(False, False), centre=(CELL / 2, CELL / 2 + 0.7), scale=0.6),
    )
    return canvas.picture(CONTOUR)


def pictures(model):
    """All 29 pictures by name."""
    made = {
        name: draw(model.head, Path(way, way, joined=(True, False))) for name, way in HEADS.items()
    }
    made |= {name: draw(model.body, Path(way, way)) for name, way in STRAIGHT.items()}
    made |= {name: draw(model.body, Path(*ways)) for name, ways in (CORNERS | LEFT_CORNERS).items()}
    made |= {
        name: draw(model.tail, Path(way, way, joined=(False, True))) for name, way in TAILS.items()
    }
    made |= {
        name: draw(model.tail, Path(*ways, joined=(False, True)))
        for name, ways in TAIL_CORNERS.items()
    }
    made["start"] = start_marker(model)
    return made


def main():
    for model in models.ALL:
        if len(sys.argv) > 1 and model.folder not in sys.argv[1:]:
            continue
        made = pictures(model)
        for name, picture in made.items():
            reduce.save(picture, TARGET / model.folder / f"{name}.png")
        turned = any(np.any(made[name] != made[name[:-2]]) for name in LEFT_CORNERS)
        lines = [
            f"NAME={model.name}",
            f"AUTHOR={AUTHOR}",
            "EDGES=1",
            f"EDGES_INVERS={int(turned)}",
            "TAIL_EDGES=1",
        ]
        with open(
            TARGET / model.folder / "model.ini", "w", encoding="cp1252", newline="\r\n"
        ) as file:
            file.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
