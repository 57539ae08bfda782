"""Curves, eyes and reliefs that the snake models share."""

import numpy as np

from tube import profile, rgb, rounded

BODY = 7.6
BLACK, WHITE = rgb(12, 12, 14), rgb(250, 250, 245)
WAVE = 2 * np.pi


def even(radius):
    return lambda s: np.full_like(s, radius)


def taper(*points, length=0.12):
    """A tail's radius: through the points, with a round tip at the first."""
    return rounded(profile(*points), points[0][0], length, forward=False)


def snout(*points, length=0.25):
    """A head's radius: through the points, with a round snout at the last."""
    return rounded(profile(*points), points[-1][0], length)


def eyes(canvas, path, s, d, size=2.6, z=5.0, white=WHITE, pupil=BLACK, look=0.06):
    """Two bulging eyes that look ahead, each with a glint."""
    for side in (-1, 1):
        canvas.ball(path, s, side * d, z, (size, size, size), white, 0.1)
        canvas.ball(path, s + look, side * (d - 0.2), z + 4, (size * 0.64,) * 3, pupil, 0.0)
        x, y = path.place(s + look, side * (d - 0.2))[0]
        canvas.dot(
            x - 0.3 * size * path.scale, y - 0.35 * size * path.scale, size * 0.3 * path.scale
        )


def tongue(canvas, path, s, colour=rgb(225, 20, 45)):
    canvas.stroke(path, ((s - 0.1, 0), (s + 0.07, 0)), 0.95, 0.5, colour)
    for side in (-1, 1):
        canvas.stroke(path, ((s + 0.06, 0), (s + 0.13, side * 1.9)), 0.8, 0.5, colour)


def scales(s, v, along=7, across=3.0, depth=0.22):
    """Relief of overlapping scales, in whole periods per cell."""
    return depth * np.abs(
        np.sin(np.pi * (along * s + across * v)) * np.sin(np.pi * (along * s - across * v))
    )
