"""Models after things that people make."""

import numpy as np

from parts import BODY, WAVE, WHITE, even, eyes, snout, taper
from tube import band, mix, rgb, step


class Candy:
    folder, name = "candy", "Candy Cane"
    red, mint = rgb(228, 16, 60), rgb(255, 250, 250)

    def skin(self, s, v):
        turn = 2 * s + 0.30 * np.arcsin(np.clip(v, -1, 1))
        colour = mix(self.mint, self.red, band(turn % 1, 0.5, 0.26, 0.05))
        return {
            "colour": mix(colour, rgb(80, 190, 120), band((turn + 0.5) % 1, 0.5, 0.05, 0.03)),
            "gloss": 0.9,
        }

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        canvas.tube(path, snout((0, BODY), (0.1, BODY), (0.2, 7.0), length=0.1), self.skin)

        canvas.ball(path, 0.56, 0, 0.5, (8.0, 8.8, 6.6), self.red, 1.0)
        canvas.ball(path, 0.8, 0, 3.4, (2.8, 4.2, 3.0), rgb(255, 150, 170), 0.6)
        eyes(canvas, path, 0.54, 4.4, 3.2, 5.2)

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.1, BODY - 1.0), (0.5, BODY), (1.0, BODY), length=0.3), self.skin)


class Robot:
    folder, name = "robot", "Robo Crawler"
    curls = False
    steel, dark, lamp = rgb(168, 186, 204), rgb(44, 50, 60), rgb(60, 240, 255)
    JOINT = 4.6

    def hinge(self, canvas, path, radius):
        def rubber(s, v):
            return {
                "colour": mix(self.dark, rgb(96, 104, 118), 0.5 + 0.5 * np.cos(WAVE * 8 * s)),
                "gloss": 0.2,
            }

        canvas.tube(path, radius, rubber)

    def shell(self, canvas, path, first, last, colour, width=8.4):
        def radius(s):
            return np.where((s > first) & (s < last), width, 0.0)

        def plate(s, v):
            edge = np.minimum(s - first, last - s)
            shade = mix(colour, self.dark, 1 - step(edge, 0.035, 0.02))
            shade = mix(shade, self.dark, band(np.abs(v), 0.62, 0.05, 0.03))
            return {"colour": shade, "gloss": 0.6}

        canvas.tube(path, radius, plate, power=4.5, height=0.7)
        for side in (-1, 1):
            for s in (first + 0.1, last - 0.1):
                canvas.ball(path, s, side * 6.6, 4.0, (0.9, 0.9, 0.9), WHITE, 0.6)

    def body(self, canvas, path):
        self.hinge(canvas, path, even(self.JOINT))
        self.shell(canvas, path, 0.13, 0.87, self.steel)
        canvas.ball(path, 0.5, 0, 5.2, (2.8, 2.8, 1.0), self.dark, 0.3)
        canvas.ball(path, 0.5, 0, 5.8, (1.9, 1.9, 1.2), self.lamp, 0.3, 0.9)

    def head(self, canvas, path):
        self.hinge(canvas, path, lambda s: np.where(s < 0.5, self.JOINT, 0.0))
        canvas.stroke(path, ((0.3, 6.0), (0.04, 8.6)), 0.6, 7.0, rgb(210, 216, 226))
        canvas.ball(path, 0.05, 8.4, 8.0, (1.5, 1.5, 1.5), rgb(255, 40, 30), 0.4, 0.8)
        self.shell(canvas, path, 0.16, 0.95, rgb(200, 214, 228), 9.2)
        canvas.plate(path, ((0.58, 7.4), (0.84, 7.0), (0.84, -7.0), (0.58, -7.4)), 8.0, self.dark)
        for side in (-1, 1):
            canvas.ball(path, 0.71, side * 3.9, 8.2, (2.3, 2.3, 1.0), rgb(255, 60, 40), 0.2, 1.0)
            canvas.ball(path, 0.74, side * 3.9, 9.2, (0.9, 0.9, 0.8), WHITE, 0.2, 1.0)
        canvas.plate(path, ((0.88, 4.0), (0.92, 4.0), (0.92, -4.0), (0.88, -4.0)), 8.0, self.dark)

    def tail(self, canvas, path):
        self.hinge(canvas, path, lambda s: np.where(s > 0.5, self.JOINT, 0.0))
        self.shell(canvas, path, 0.3, 0.87, self.steel, 7.4)
        canvas.stroke(path, ((0.32, 3.2), (0.16, 3.2)), 2.0, 1.5, self.dark)
        canvas.stroke(path, ((0.32, -3.2), (0.16, -3.2)), 2.0, 1.5, self.dark)
        for side in (-1, 1):
            canvas.ball(path, 0.1, side * 3.2, 2.0, (1.6, 1.7, 1.5), rgb(255, 150, 20), 0.2, 0.9)


class Rope:
    folder, name = "rope", "Old Rope"
    hemp, dark = rgb(228, 186, 112), rgb(74, 44, 16)

    def skin(self, s, v):
        twist = (3 * s + 0.42 * np.arcsin(np.clip(v, -1, 1))) % 1
        round_ = np.sin(np.pi * twist)
        fibre = 0.5 + 0.5 * np.sin(WAVE * (6 * s + 2.4 * v))
        colour = mix(self.dark, self.hemp, step(round_, 0.3, 0.28))
        return {
            "colour": mix(colour, rgb(250, 222, 164), 0.35 * fibre * round_),
            "gloss": 0.08,
            "bump": 1.6 * round_,
        }

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        canvas.tube(path, snout((0, BODY), (0.15, BODY), (0.3, 7.0), length=0.1), self.skin)

        def knot(s, v):
            twist = (4 * s + 0.35 * np.abs(v)) % 1
            round_ = np.sin(np.pi * twist)
            return {
                "colour": mix(self.dark, self.hemp, step(round_, 0.25, 0.25)),
                "gloss": 0.08,
                "bump": 1.3 * round_,
            }

        canvas.tube(
            path,
            snout((0.14, 8.0), (0.5, 9.6), (0.86, 7.6), length=0.2),
            lambda s, v: knot(s, v),
            2.0,
            1.0,
        )
        for d in (-4, -1.4, 1.4, 4):
            canvas.stroke(path, ((0.84, d * 0.7), (0.985, d)), (1.1, 0.7), 1.0, self.hemp, 0)
        eyes(canvas, path, 0.54, 4.4, 3.3, 7.0, pupil=rgb(170, 14, 24))

    def tail(self, canvas, path):
        for d in (-6, -3.2, 0, 3.2, 6):
            canvas.stroke(
                path, ((0.4, d * 0.6), (0.06 + 0.012 * abs(d), d)), (1.5, 0.7), 1.0, self.hemp, 0
            )
        canvas.tube(
            path, taper((0.26, 4.6), (0.5, 5.4), (0.88, BODY), (1.0, BODY), length=0.06), self.skin
        )
        canvas.tube(
            path,
            lambda s: np.where((s > 0.36) & (s < 0.48), 5.9, 0.0),
            lambda s, v: {
                "colour": mix(rgb(200, 30, 40), rgb(120, 10, 20), band((s * 12) % 1, 0, 0.2)),
                "gloss": 0.3,
            },
        )


class Train:
    folder, name = "train", "Banana Express"
    curls = False
    red, dark, gold = rgb(196, 30, 34), rgb(52, 52, 60), rgb(255, 212, 40)
    COUPLER = 2.6

    def coupler(self, canvas, path, first=-9.0, last=9.0):
        canvas.tube(
            path,
            lambda s: np.where((s > first) & (s < last), self.COUPLER, 0.0),
            lambda s, v: {
                "colour": mix(self.dark, rgb(130, 130, 140), 1 - np.abs(v)),
                "gloss": 0.4,
            },
        )

    def box(self, canvas, path, first, last, width, colour, top, power=6.0, rim=0.16):
        def paint(s, v):
            edge = np.minimum(np.minimum(s - first, last - s) * 20, (1 - np.abs(v)) * width)
            return {"colour": mix(colour, top, step(edge, 1.7, 0.3)), "gloss": 0.25}

        canvas.tube(
            path, lambda s: np.where((s > first) & (s < last), width, 0.0), paint, power, 0.6
        )

    def wheels(self, canvas, path, places, reach=8.4):
        for s in places:
            for side in (-1, 1):
                canvas.ball(path, s, side * (reach - 0.7), 0, (2.0, 1.2, 1.5), self.dark, 0.3)

    def body(self, canvas, path):
        self.coupler(canvas, path)
        self.wheels(canvas, path, (0.27, 0.73))
        self.box(canvas, path, 0.1, 0.9, 7.8, self.red, rgb(88, 44, 24))
        for s, d, turn in (
            (0.3, 2.2, 20),
            (0.36, -2.6, -15),
            (0.56, 1.6, 70),
            (0.62, -3.0, 30),
            (0.7, 2.6, -25),
        ):
            canvas.ball(path, s, d, 4.2, (3.6, 1.5, 1.6), self.gold, 0.4, turn=turn)

    def head(self, canvas, path):
        self.coupler(canvas, path, last=0.3)
        self.wheels(canvas, path, (0.24, 0.56, 0.8), 7.6)
        canvas.plate(path, ((0.84, 6.4), (0.985, 2.0), (0.985, -2.0), (0.84, -6.4)), 1.5, self.red)

        def boiler(s, v):
            colour = mix(rgb(20, 120, 62), self.gold, band(s, 0.62, 0.022, 0.015))
            return {"colour": colour, "gloss": 0.7}

        canvas.tube(path, lambda s: np.where((s > 0.3) & (s < 0.93), 6.2, 0.0), boiler)
        self.box(canvas, path, 0.1, 0.46, 8.8, rgb(110, 12, 16), self.red)
        canvas.ball(path, 0.79, 0, 5.5, (3.3, 3.3, 2.6), self.gold, 0.6)
        canvas.ball(path, 0.79, 0, 7.6, (2.3, 2.3, 1.2), rgb(20, 18, 20), 0.0)
        for side in (-1, 1):
            canvas.ball(path, 0.91, side * 4.8, 4.0, (2.0, 2.0, 1.6), rgb(255, 250, 200), 0.4, 1.0)

    def tail(self, canvas, path):
        self.coupler(canvas, path, first=0.5)
        self.wheels(canvas, path, (0.36, 0.74))
        self.box(canvas, path, 0.16, 0.9, 7.8, rgb(110, 12, 16), self.red)
        canvas.ball(path, 0.54, 0, 4.4, (4.2, 3.2, 2.2), rgb(96, 14, 16), 0.3)
        for side in (-1, 1):
            canvas.ball(path, 0.14, side * 4.6, 3.0, (1.5, 1.7, 1.5), rgb(255, 70, 40), 0.3, 1.0)
