"""Models after living snakes."""

import numpy as np

from parts import BODY, WAVE, even, eyes, scales, snout, taper, tongue
from tube import band, mix, rgb, step


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
            colour = mix(
                colour, self.yellow, band(np.abs(v), 0.0, 0.16, 0.06) * band(s, 0.22, 0.2, 0.05)
            )
            colour = mix(
                colour, rgb(10, 50, 12), band(np.abs(v), 0.16, 0.1, 0.05) * step(s, 0.76, 0.02)
            )
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

        canvas.tube(
            path, snout((0, BODY), (0.15, BODY), (0.45, 8.4), (0.9, 6.0)), face, height=0.85
        )
        eyes(canvas, path, 0.6, 4.2, 2.5, 4.8)

    def tail(self, canvas, path):
        canvas.tube(
            path, taper((0.04, 1.0), (0.88, BODY), (1.0, BODY)), lambda s, v: self.skin(s + 0.5, v)
        )


class Frost:
    folder, name = "frost", "Frost Viper"
    deep, ice, snow = rgb(18, 62, 205), rgb(70, 170, 255), rgb(235, 250, 255)

    def skin(self, s, v):
        crystal = 0.5 + 0.5 * np.cos(WAVE * 2 * s)
        colour = mix(self.deep, self.ice, step(np.abs(v), 0.3 + 0.4 * crystal, 0.1))
        colour = mix(colour, self.snow, 1 - step(np.abs(v), 0.07 + 0.2 * crystal, 0.06))
        return {"colour": colour, "gloss": 1.0}

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin, power=1.45, height=1.25)

    def head(self, canvas, path):
        canvas.stroke(path, ((0.34, 0), (0.08, 0)), (1.4, 0.6), 8.0, self.snow, 0.8)

        def face(s, v):
            colour = mix(self.ice, self.deep, step(np.abs(v), 0.35, 0.2))
            colour = mix(colour, self.snow, step(s, 0.78, 0.04))
            return {"colour": colour, "gloss": 0.9}

        canvas.tube(path, snout((0, BODY), (0.1, BODY), (0.45, 8.8), (0.97, 4.6)), face, 1.6, 1.1)
        eyes(canvas, path, 0.54, 4.6, 3.3, 5.5, white=rgb(255, 240, 130))

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.03, 0.6), (0.88, BODY), (1.0, BODY)), self.skin, 1.45, 1.25)


class Lava:
    folder, name = "lava", "Magma Python"
    rock, fire, hot = rgb(52, 44, 46), rgb(255, 96, 0), rgb(255, 232, 90)

    PLATES = (
        (1, -7),
        (3, 1),
        (2, 7),
        (7, -3),
        (9, 4),
        (7, 9),
        (12, -8),
        (13, 0),
        (15, 6),
        (17, -4),
        (18, 9),
        (8, -10),
    )

    def skin(self, s, v):
        along, across = (s % 1) * 20, 10 * np.arcsin(np.clip(v, -1, 1)) / 1.57
        gaps = []
        for a, c in self.PLATES:
            gaps.append(np.hypot((along - a + 10) % 20 - 10, across - c))
        near = np.sort(np.stack(gaps), axis=0)
        crack = near[1] - near[0]
        open_ = 1 - step(crack, 0.75, 0.4)
        colour = mix(self.rock, self.fire, open_)
        colour = mix(colour, self.hot, 1 - step(crack, 0.3, 0.25))
        return {
            "colour": colour,
            "gloss": 0.3,
            "glow": open_ * 0.95,
            "bump": 0.25 * np.minimum(crack, 2.5),
        }

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)

    def head(self, canvas, path):
        canvas.stroke(path, ((0.8, 0), (0.97, 0)), (2.4, 0.9), 0.5, self.hot, 0, 1.0)

        def face(s, v):
            lit = band(np.abs(v), 0.42, 0.09, 0.05) * step(s, 0.12, 0.05) * (1 - step(s, 0.4, 0.05))
            lit = np.maximum(lit, band(s, 0.86, 0.035, 0.02))
            return {"colour": mix(self.rock, self.fire, lit), "gloss": 0.35, "glow": lit}

        canvas.tube(path, snout((0, BODY), (0.1, BODY), (0.42, 9.5), (0.92, 6.0)), face, 2.4, 0.8)
        for side in (-1, 1):
            canvas.ball(path, 0.55, side * 4.4, 4.6, (2.9, 2.6, 2.4), rgb(30, 24, 26), 0.1)
            canvas.ball(path, 0.57, side * 4.4, 5.4, (2.2, 1.9, 2.0), self.hot, 0, 1.0)
            canvas.ball(path, 0.6, side * 4.2, 8.4, (1.5, 0.7, 1.0), rgb(150, 10, 0), 0, 0.9)

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.03, 1.2), (0.88, BODY), (1.0, BODY)), self.skin)


class Dragon:
    folder, name = "dragon", "Dusk Dragon"
    hide, belly, gold = rgb(132, 22, 168), rgb(240, 110, 200), rgb(255, 205, 40)

    def skin(self, s, v):
        colour = mix(self.hide, self.belly, step(np.abs(v), 0.66, 0.12))
        colour = mix(
            colour,
            rgb(70, 6, 104),
            band((2 * s + 0.9 * np.abs(v)) % 1, 0.5, 0.1, 0.08) * (np.abs(v) < 0.7),
        )
        return {"colour": colour, "gloss": 0.5, "bump": scales(s, v, 6, 2.4, 0.2)}

    def spikes(self, canvas, path, places, size=1.0):
        for s in places:
            canvas.stroke(
                path, ((s + 0.15, 0), (s - 0.17, 0)), (3.0 * size, 0.4), 6.5, self.gold, 0.5
            )

    def body(self, canvas, path):
        canvas.tube(path, even(BODY), self.skin)
        self.spikes(canvas, path, (0.27, 0.77))

    def head(self, canvas, path):
        canvas.tube(
            path,
            snout((0, BODY), (0.12, BODY), (0.38, 8.6), (0.7, 6.0), (0.97, 5.6)),
            self.skin,
            height=0.85,
        )
        for side in (-1, 1):
            canvas.stroke(
                path,
                ((0.36, side * 4.2), (0.24, side * 6.8), (0.1, side * 8.6)),
                (1.6, 0.6),
                6.0,
                self.gold,
            )
            canvas.ball(path, 0.86, side * 2.4, 4.2, (1.2, 1.0, 1.0), rgb(50, 0, 70), 0)
        self.spikes(canvas, path, (0.24,), 0.9)
        eyes(canvas, path, 0.52, 4.6, 2.8, 5.4, white=rgb(200, 255, 110))

    def tail(self, canvas, path):
        canvas.tube(path, taper((0.16, 1.0), (0.88, BODY), (1.0, BODY)), self.skin)
        self.spikes(canvas, path, (0.77,), 0.9)
        canvas.plate(path, ((0.0, 0), (0.2, 4.4), (0.32, 0), (0.2, -4.4)), 4.0, self.gold, 0.3)
