"""Models after other creatures."""

import numpy as np

from parts import BLACK, BODY, WAVE, WHITE, even, eyes, snout, taper
from tube import band, mix, rgb, step


class Bee:
    folder, name = "bee", "Busy Bee"
    yellow, dark = rgb(255, 202, 10), rgb(40, 26, 14)

    def skin(self, s, v):
        fur = 0.25 * np.sin(WAVE * 9 * s + 5 * np.sin(7 * v)) * np.cos(11 * v)
        colour = mix(self.yellow, self.dark, band((2 * s) % 1, 0.5, 0.27, 0.05))
        return {"colour": colour, "gloss": 0.12, "bump": fur}

    def body(self, canvas, path):
        canvas.tube(path, lambda s: BODY - 0.1 + 0.4 * np.cos(WAVE * 2 * s), self.skin)

    def head(self, canvas, path):
        for side in (-1, 1):
            canvas.stroke(
                path,
                ((0.7, side * 2.6), (0.9, side * 4.0), (0.94, side * 5.6)),
                (0.8, 0.9),
                5.0,
                self.dark,
            )
            canvas.ball(path, 0.93, side * 5.6, 5.0, (1.5, 1.5, 1.5), self.dark)

        def face(s, v):
            return {"colour": mix(self.yellow, self.dark, band(s, 0.2, 0.1, 0.03)), "gloss": 0.3}

        canvas.tube(
            path,
            snout((0, BODY + 0.3), (0.1, BODY), (0.3, 6.9), (0.5, 8.6), (0.86, 6.6)),
            face,
            height=0.9,
        )
        for side in (-1, 1):
            canvas.ball(
                path,
                0.26,
                side * 6.2,
                6.0,
                (3.6, 2.6, 1.2),
                rgb(205, 230, 250),
                0.8,
                0.5,
                turn=side * 28,
            )
        eyes(canvas, path, 0.56, 4.7, 3.2, 4.2)

    def tail(self, canvas, path):
        canvas.stroke(path, ((0.3, 0), (0.03, 0)), (1.8, 0.5), 1.0, self.dark)
        canvas.tube(
            path,
            taper((0.2, 2.5), (0.45, 6.4), (0.8, 7.2), (1.0, BODY + 0.3), length=0.2),
            self.skin,
        )


class Caterpillar:
    folder, name = "caterpillar", "Inchy Caterpillar"
    blue, foot, spot = rgb(54, 178, 220), rgb(255, 130, 20), rgb(255, 240, 80)

    def skin(self, s, v):
        colour = mix(rgb(24, 108, 186), self.blue, step(np.abs(np.sin(WAVE * s)), 0.3, 0.25))
        dot = np.hypot(((2 * s) % 1 - 0.5) * 10, v * 7)
        colour = mix(colour, self.spot, 1 - step(dot, 2.1, 0.5))
        return {"colour": colour, "gloss": 0.35}

    def feet(self, canvas, path, places):
        for s in places:
            for side in (-1, 1):
                canvas.ball(path, s, side * 7.4, 0, (2.2, 2.0, 2.0), self.foot, 0.3)

    def radius(self, s):
        return 6.95 - 0.7 * np.cos(WAVE * 2 * s)

    def body(self, canvas, path):
        self.feet(canvas, path, (0.25, 0.75))
        canvas.tube(path, self.radius, self.skin)

    def head(self, canvas, path):
        for side in (-1, 1):
            canvas.stroke(path, ((0.6, side * 3.0), (0.86, side * 6.0)), 0.7, 7.0, rgb(20, 60, 120))
            canvas.ball(path, 0.86, side * 6.4, 7.0, (1.8, 1.8, 1.8), self.foot)
        canvas.tube(
            path, snout((0, 6.25), (0.06, 6.25), (0.22, 5.6), (0.26, 5.6), length=0.1), self.skin
        )
        canvas.ball(path, 0.5, 0, 1.0, (8.4, 8.8, 7.0), self.blue, 0.4)
        canvas.ball(path, 0.84, 0, 5.0, (2.1, 2.5, 2.0), rgb(235, 40, 50), 0.6)
        eyes(canvas, path, 0.58, 3.7, 3.2, 6.0)

    def tail(self, canvas, path):
        self.feet(canvas, path, (0.75,))

        def narrow(s):
            return self.radius(s) * taper((0.1, 0.5), (0.5, 0.95), (0.88, 1), (1.0, 1), length=0.3)(
                s
            )

        canvas.tube(path, narrow, self.skin)


class Clown:
    folder, name = "clown", "Reef Clown"
    orange, edge = rgb(255, 108, 8), rgb(46, 20, 12)

    def skin(self, s, v):
        ring = np.abs(s - 0.5) + 0.05 * np.cos(3 * v)
        colour = mix(self.orange, rgb(214, 62, 0), step(np.abs(v), 0.75, 0.2))
        colour = mix(colour, self.edge, 1 - step(ring, 0.23, 0.02))
        colour = mix(colour, WHITE, 1 - step(ring, 0.165, 0.02))
        return {"colour": colour, "gloss": 0.5}

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        for side in (-1, 1):
            canvas.ball(
                path, 0.3, side * 7.2, 1.0, (4.2, 2.4, 1.5), self.orange, 0.4, turn=side * 30
            )

        def face(s, v):
            colour = mix(self.orange, self.edge, band(s, 0.24, 0.15, 0.02))
            colour = mix(colour, WHITE, band(s, 0.24, 0.1, 0.02))
            return {"colour": mix(colour, self.edge, band(s, 0.885, 0.022, 0.02)), "gloss": 0.5}

        canvas.tube(
            path,
            snout((0, BODY), (0.1, BODY), (0.45, 8.2), (0.97, 5.6), length=0.4),
            face,
            height=0.9,
        )
        eyes(canvas, path, 0.56, 4.8, 3.3, 4.2)

    def tail(self, canvas, path):
        canvas.plate(
            path, ((0.02, 7.0), (0.34, 1.5), (0.34, -1.5), (0.02, -7.0), (0.1, 0)), 0.5, self.edge
        )
        canvas.plate(
            path,
            ((0.05, 5.6), (0.32, 0.8), (0.32, -0.8), (0.05, -5.6), (0.13, 0)),
            1.0,
            self.orange,
            0.2,
        )
        canvas.tube(path, taper((0.22, 2.6), (0.88, BODY), (1.0, BODY)), self.skin)


class Skeleton:
    folder, name = "skeleton", "Rattlebones"
    contour, curls = 1.0, False
    bone, shade, dark = rgb(246, 238, 212), rgb(150, 130, 100), rgb(58, 46, 36)
    SPINE = 2.6

    def vertebra(self, canvas, path, s, reach):
        for side in (-1, 1):
            places = ((s, 0), (s - 0.02, side * reach * 0.6), (s - 0.1, side * reach))
            canvas.stroke(path, places, (2.3, 1.95), -3.0, self.dark, 0.0)
            canvas.stroke(path, places, (1.6, 1.2), 1.0, self.bone, 0.2)
        canvas.ball(path, s, 0, 1.5, (2.2, 3.7, 3.4), self.bone, 0.35)

    def spine(self, canvas, path, first=0.0):
        def paint(s, v):
            return {"colour": mix(self.shade, self.shade, s), "gloss": 0.1}

        canvas.tube(path, lambda s: np.where(s < first, 0.0, self.SPINE), paint)

    def body(self, canvas, path):
        self.spine(canvas, path)
        for s in (0.19, 0.5, 0.81):
            self.vertebra(canvas, path, s, 7.6)

    def head(self, canvas, path):
        def stub(s, v):
            return {"colour": mix(self.shade, self.shade, s), "gloss": 0.1}

        canvas.tube(path, lambda s: np.where(s > 0.4, 0.0, self.SPINE), stub)

        def skull(s, v):
            colour = mix(self.bone, self.shade, band(s, 0.86, 0.02, 0.02) * 0.8)
            return {
                "colour": mix(
                    colour, BLACK, band(np.abs(v), 0.28, 0.13, 0.06) * band(s, 0.8, 0.035, 0.02)
                ),
                "gloss": 0.3,
            }

        ends = snout((0.12, 5.2), (0.42, 8.9), (0.66, 6.0), (0.96, 5.0), length=0.2)
        back = taper((0.12, 5.2), (0.42, 8.9), (1.0, 8.9), length=0.22)
        canvas.tube(path, lambda s: np.minimum(ends(s), back(s)), skull, height=0.75)
        for side in (-1, 1):
            canvas.ball(path, 0.52, side * 4.0, 5.0, (3.1, 2.9, 1.6), BLACK, 0.0)
            canvas.ball(path, 0.55, side * 3.8, 6.2, (1.3, 1.3, 1.3), rgb(255, 60, 20), 0, 1.0)

    def tail(self, canvas, path):
        self.spine(canvas, path, 0.12)
        for s, reach in ((0.22, 2.2), (0.5, 4.6), (0.81, 7.0)):
            self.vertebra(canvas, path, s, reach)


class Tiger:
    folder, name = "tiger", "Paper Tiger"
    coat, cream, stripe = rgb(240, 160, 52), rgb(255, 240, 210), rgb(36, 22, 14)

    def skin(self, s, v):
        colour = mix(self.coat, self.cream, step(np.abs(v), 0.78, 0.1))
        wedge = 0.24 * (1 - 0.5 * np.abs(v))
        stripes = band((3 * s + 0.55 * np.abs(v)) % 1, 0.5, wedge, 0.07) * (
            1 - band(v, 0, 0.1, 0.04)
        )
        return {"colour": mix(colour, self.stripe, stripes), "gloss": 0.15}

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        canvas.tube(path, snout((0, BODY), (0.2, BODY), (0.3, 6.0), length=0.1), self.skin)
        for side in (-1, 1):
            canvas.ball(path, 0.26, side * 6.4, 5.0, (2.9, 3.0, 2.4), self.coat, 0.1)
            canvas.ball(path, 0.28, side * 6.4, 7.2, (1.6, 1.7, 1.0), rgb(60, 30, 20), 0.0)
        canvas.ball(path, 0.54, 0, 1.0, (8.2, 9.2, 6.5), self.coat, 0.2)
        canvas.stroke(path, ((0.24, 0), (0.42, 0)), 0.9, 6.8, self.stripe, 0)
        for side in (-1, 1):
            canvas.stroke(path, ((0.26, side * 2.6), (0.36, side * 2.2)), 0.8, 6.4, self.stripe, 0)
            canvas.stroke(path, ((0.5, side * 8.2), (0.54, side * 6.4)), 0.8, 4.6, self.stripe, 0)
            canvas.ball(path, 0.82, side * 2.3, 3.6, (2.8, 2.7, 2.6), self.cream, 0.1)
        canvas.ball(path, 0.88, 0, 6.2, (1.5, 2.0, 1.4), rgb(235, 90, 110), 0.5)
        eyes(canvas, path, 0.6, 4.2, 2.5, 5.6, white=rgb(200, 245, 120))

    def tail(self, canvas, path):
        canvas.tube(
            path, taper((0.04, 2.6), (0.4, 3.6), (0.88, BODY), (1.0, BODY), length=0.14), self.skin
        )
