"""The snake models: what their bodies, heads and tails are made of.

Each model has a folder name (the game sorts by it), a display name and three methods that draw on a canvas along
a path.  Whatever reaches a border of the cell must be the same on both sides of it.
"""

import numpy as np

from tube import band, mix, profile, rgb, rounded, step

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
        canvas.dot(x - 0.3 * size * path.scale, y - 0.35 * size * path.scale, size * 0.3 * path.scale)


def tongue(canvas, path, s, colour=rgb(225, 20, 45)):
    canvas.stroke(path, ((s - 0.1, 0), (s + 0.07, 0)), 0.95, 0.5, colour)
    for side in (-1, 1):
        canvas.stroke(path, ((s + 0.06, 0), (s + 0.13, side * 1.9)), 0.8, 0.5, colour)


def scales(s, v, along=7, across=3.0, depth=0.22):
    """Relief of overlapping scales, whole periods a cell."""
    return depth * np.abs(np.sin(np.pi * (along * s + across * v)) * np.sin(np.pi * (along * s - across * v)))


class Boa:
    folder, name = "boa", "Emerald Boa"
    green, flank, yellow = rgb(22, 152, 30), rgb(120, 205, 50), rgb(255, 222, 20)

    def skin(self, s, v):
        colour = mix(self.green, self.flank, step(np.abs(v), 0.72, 0.12))
        reach = np.abs(s - 0.5) / 0.36 + np.abs(v) / 0.56
        colour = mix(colour, rgb(8, 48, 10), 1 - step(reach, 1.0, 0.1))
        colour = mix(colour, self.yellow, 1 - step(reach, 0.58, 0.1))
        return {"colour": colour, "gloss": 0.45, "bump": scales(s, v)}

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        tongue(canvas, path, 0.86)

        def face(s, v):
            colour = mix(self.green, self.flank, step(np.abs(v), 0.7, 0.15))
            colour = mix(colour, self.yellow, band(np.abs(v), 0.0, 0.16, 0.06) * band(s, 0.22, 0.2, 0.05))
            colour = mix(colour, rgb(10, 50, 12), band(np.abs(v), 0.16, 0.1, 0.05) * step(s, 0.76, 0.02))
            return {"colour": colour, "gloss": 0.5}

        canvas.tube(path, snout((0, BODY), (0.1, BODY), (0.4, 9.4), (0.9, 5.2)), face, height=0.8)
        eyes(canvas, path, 0.5, 4.9, 3.0, 4.6, white=rgb(255, 244, 150))

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.04, 1.0), (0.88, BODY), (1.0, BODY)), self.skin)


class Coral:
    folder, name = "coral", "Coral Queen"
    red, black, yellow = rgb(226, 24, 20), rgb(26, 22, 26), rgb(255, 226, 40)

    def skin(self, s, v):
        ring = np.abs((s - 0.5 + 0.5) % 1.0 - 0.5)
        colour = mix(self.red, self.yellow, step(ring, 0.2, 0.025))
        colour = mix(colour, self.black, step(ring, 0.3, 0.025))
        return {"colour": colour, "gloss": 0.7, "bump": scales(s, v, 6, 3.0, 0.12)}

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), lambda s, v: self.skin(s + 0.5, v))

    def head(self, canvas, path):
        tongue(canvas, path, 0.86)

        def face(s, v):
            colour = mix(self.red, self.black, step(s, 0.14, 0.02))
            colour = mix(colour, self.yellow, band(s, 0.34, 0.1, 0.03))
            return {"colour": colour, "gloss": 0.7}

        canvas.tube(path, snout((0, BODY), (0.15, BODY), (0.45, 8.4), (0.9, 6.0)), face, height=0.85)
        eyes(canvas, path, 0.6, 4.2, 2.5, 4.8)

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.04, 1.0), (0.88, BODY), (1.0, BODY)), lambda s, v: self.skin(s + 0.5, v))


ALL = (Boa(), Coral())
