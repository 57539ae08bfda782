"""Draws snake pieces from above as height fields.

A piece is a path through one cell of 20 x 20 (straight, or a quarter circle about a corner) with
shapes laid along it: tubes, ellipsoids, strokes.  Places on a path are (s, d): s runs 0 to 1 from
the side where a snake comes in to the side where it goes out, d is the distance to the left of the
path in pixels.  Every direction is drawn separately under the same two lights, from the north and
from the west.
"""

import numpy as np

from lib import reduce

CELL = 20
FINE = 8  # samples per pixel and axis
MARGIN = 6  # pixels around the cell that are drawn and cut off
INSET = 1.2  # pixels next to a joined side that only the joining tube may touch
FORW, BACK, LEFT, RIGHT = (0, -1), (0, 1), (-1, 0), (1, 0)


def rgb(*srgb):
    """An sRGB colour 0..255 as linear light."""
    return reduce.to_linear(np.array(srgb, float) / 255.0)


def mix(first, second, amount):
    """Blends colours (or colour fields) by a field or number 0..1."""
    amount = np.asarray(amount, float)[..., None]
    return np.asarray(first) * (1 - amount) + np.asarray(second) * amount


def step(value, edge, soft=0.06):
    """0 below the edge, 1 above, smooth over twice the softness."""
    x = np.clip((value - edge + soft) / (2 * soft), 0, 1)
    return x * x * (3 - 2 * x)


def band(value, centre, half, soft=0.06):
    """1 within half a width of the centre, 0 outside."""
    return 1 - step(np.abs(value - centre), half, soft)


def profile(*points):
    """A smooth curve through (s, value) points, level at each of them."""
    at, values = np.array(points, float).T

    def curve(s):
        i = np.clip(np.searchsorted(at, s) - 1, 0, len(at) - 2)
        x = np.clip((s - at[i]) / (at[i + 1] - at[i]), 0, 1)
        return values[i] + (values[i + 1] - values[i]) * x * x * (3 - 2 * x)

    return curve


def rounded(curve, end, length, forward=True):
    """The curve closed by a round tip: 0 beyond the end, full one length before it."""

    def closed(s):
        x = np.clip(((end - s) if forward else (s - end)) / length, 0, 1)
        return curve(s) * np.sqrt(1 - (1 - x) ** 2)

    return closed


class Path:
    """The middle line of a piece, entered in one direction and left in another."""

    def __init__(self, enter, leave, joined=(True, True), centre=(CELL / 2, CELL / 2), scale=1.0):
        self.joined = joined
        self.enter, self.leave = np.array(enter, float), np.array(leave, float)
        self.centre, self.scale = np.array(centre, float), scale
        self.straight = tuple(enter) == tuple(leave)
        self.start = -10 * self.enter
        self.pivot = self.start + 10 * self.leave
        self.left_turn = not self.straight and tuple(leave) == (enter[1], -enter[0])

    def field(self, x, y):
        """s, d and the direction of travel (two fields) at every sample."""
        x, y = (x - self.centre[0]) / self.scale, (y - self.centre[1]) / self.scale
        a, b = self.enter, self.leave
        ahead = (x - self.start[0]) * a[0] + (y - self.start[1]) * a[1]
        aside = (x - self.start[0]) * a[1] - (y - self.start[1]) * a[0]
        s, d = ahead / CELL, aside
        tx, ty = np.full_like(x, a[0]), np.full_like(x, a[1])
        if self.straight:
            return s, d, tx, ty
        px, py = x - self.pivot[0], y - self.pivot[1]
        angle = np.arctan2(px * a[0] + py * a[1], -(px * b[0] + py * b[1]))
        radius = np.hypot(px, py)
        bent = ahead >= 0
        s = np.where(bent, angle / (np.pi / 2), s)
        d = np.where(bent, (10 - radius) if self.left_turn else (radius - 10), d)
        tx = np.where(bent, np.cos(angle) * a[0] + np.sin(angle) * b[0], tx)
        ty = np.where(bent, np.cos(angle) * a[1] + np.sin(angle) * b[1], ty)
        beyond = (x - 10 * b[0]) * b[0] + (y - 10 * b[1]) * b[1]
        out = bent & (beyond > 0)
        s = np.where(out, 1 + beyond / CELL, s)
        d = np.where(out, x * b[1] - y * b[0], d)
        tx, ty = np.where(out, b[0], tx), np.where(out, b[1], ty)
        return s, d, tx, ty

    def room(self, x, y):
        """Distance in pixels from the nearest side of the cell where another piece joins."""
        x, y = (x - self.centre[0]) / self.scale, (y - self.centre[1]) / self.scale
        behind = (x - self.start[0]) * self.enter[0] + (y - self.start[1]) * self.enter[1]
        ahead = 10 - x * self.leave[0] - y * self.leave[1]
        far = np.full_like(x, 99.0)
        return np.minimum(behind if self.joined[0] else far, ahead if self.joined[1] else far)

    def place(self, s, d=0.0):
        """The point (x, y) and the direction (tx, ty) at a place on the path."""
        a, b = self.enter, self.leave
        if self.straight or s < 0:
            point, t = self.start + a * CELL * s, a
        elif s > 1:
            point, t = 10 * b + b * CELL * (s - 1), b
        else:
            angle = s * np.pi / 2
            point = self.pivot - 10 * b * np.cos(angle) + 10 * a * np.sin(angle)
            t = a * np.cos(angle) + b * np.sin(angle)
        point = point + d * np.array([t[1], -t[0]])
        return self.centre + self.scale * point, t


class Ring(Path):
    """A closed circle; s counts a number of cells around it."""

    def __init__(self, radius, cells, centre=(CELL / 2, CELL / 2), scale=1.0):
        super().__init__(RIGHT, RIGHT, (False, False), centre, scale)
        self.radius, self.cells = radius, cells

    def field(self, x, y):
        x, y = (x - self.centre[0]) / self.scale, (y - self.centre[1]) / self.scale
        angle = np.arctan2(y, x)
        s = (angle / (2 * np.pi) % 1.0) * self.cells
        return s % 1.0, np.hypot(x, y) - self.radius, -np.sin(angle), np.cos(angle)

    def place(self, s, d=0.0):
        angle = 2 * np.pi * s / self.cells
        out = np.array([np.cos(angle), np.sin(angle)])
        return self.centre + self.scale * (self.radius + d) * out, np.array([-out[1], out[0]])


class Canvas:
    """Samples of one piece: the highest shape wins; then light falls on it."""

    def __init__(self):
        side = (CELL + 2 * MARGIN) * FINE
        at = (np.arange(side) + 0.5) / FINE - MARGIN
        self.x, self.y = np.meshgrid(at, at)
        self.z = np.full((side, side), -1e9)
        self.normal = np.zeros((side, side, 3))
        self.normal[..., 2] = 1
        self.colour = np.zeros((side, side, 3))
        self.gloss = np.zeros((side, side))
        self.glow = np.zeros((side, side))

    def put(self, inside, z, slope_x, slope_y, colour, gloss=0.3, glow=0.0):
        """Lays down a shape, given by its height and slopes, where it is inside and higher."""
        top = inside & (z > self.z)
        normal = np.stack([-slope_x, -slope_y, np.ones_like(z)], axis=-1)
        normal /= np.linalg.norm(normal, axis=-1, keepdims=True)
        self.z[top] = z[top]
        self.normal[top] = normal[top]
        self.colour[top] = np.broadcast_to(colour, normal.shape)[top]
        self.gloss[top] = np.broadcast_to(gloss, z.shape)[top]
        self.glow[top] = np.broadcast_to(glow, z.shape)[top]

    def tube(self, path, radius, paint, power=2.0, height=1.0, lift=0.0):
        """A tube along the path. radius(s) in pixels; paint(s, v), v from -1 (right) to 1, gives
        a dictionary for put and, as "bump", a relief in pixels. power 2 is round, more is boxy."""
        s, d, tx, ty = path.field(self.x, self.y)
        room = path.room(self.x, self.y)
        first, last = radius(np.zeros(1))[0], radius(np.ones(1))[0]
        r = radius(s)
        if any(path.joined):
            border = np.where((s < 0.5) if path.joined[0] else np.zeros_like(s, bool), first, last)
            r = border + (r - border) * step(room, INSET + 0.8, 0.8)
        bend = (radius(s + 0.005) - radius(s - 0.005)) / (0.01 * CELL)
        x = np.clip(np.abs(d) / np.maximum(r, 1e-6), 0, 0.995)
        inside = (np.abs(d) < r) & (r > 0.05)
        rest = np.maximum(1 - x**power, 1e-3)
        z = height * r * rest ** (1 / power)
        steep = height * rest ** (1 / power - 1)
        across = -np.sign(d) * steep * x ** (power - 1)
        along = np.clip(bend, -3, 3) * steep
        look = paint(s, np.clip(d / np.maximum(r, 1e-6), -1, 1))
        bump = look.pop("bump", None)
        slope_x, slope_y = along * tx + across * ty, along * ty - across * tx
        if bump is not None:
            gy, gx = np.gradient(np.where(inside, bump, 0.0), 1 / FINE)
            slope_x, slope_y = slope_x + np.clip(gx, -2, 2), slope_y + np.clip(gy, -2, 2)
        self.put(inside, path.scale * z + lift, slope_x, slope_y, **look)

    def free(self, path):
        """Where shapes may lie that do not continue in the next piece."""
        return path.room(self.x, self.y) > INSET

    def ball(self, path, s, d, z, size, colour, gloss=0.5, glow=0.0, turn=0.0):
        """An ellipsoid: size is (along, across, up) in pixels, turn in degrees to the left."""
        (cx, cy), (tx, ty) = path.place(s, d)
        angle = np.radians(turn)
        ux, uy = tx * np.cos(angle) + ty * np.sin(angle), ty * np.cos(angle) - tx * np.sin(angle)
        along, across, up = (path.scale * k for k in size)
        dx, dy = self.x - cx, self.y - cy
        p, q = (dx * ux + dy * uy) / along, (dx * uy - dy * ux) / across
        far = p * p + q * q
        root = np.sqrt(np.maximum(1 - far, 0.02))
        sp, sq = -up * p / root / along, -up * q / root / across
        self.put(
            (far < 1) & self.free(path),
            path.scale * z + up * root,
            sp * ux + sq * uy,
            sp * uy - sq * ux,
            colour,
            gloss,
            glow,
        )

    def stroke(self, path, places, radius, z, colour, gloss=0.3, glow=0.0):
        """A rounded line through places (s, d) of the path; the radius may be a pair (from, to)."""
        first, last = radius if isinstance(radius, tuple) else (radius, radius)
        points = [path.place(*place)[0] for place in places]
        count = len(points) - 1
        for i in range(count):
            (ax, ay), (bx, by) = points[i], points[i + 1]
            ex, ey = bx - ax, by - ay
            along = np.clip(
                ((self.x - ax) * ex + (self.y - ay) * ey) / max(ex * ex + ey * ey, 1e-9), 0, 1
            )
            r = path.scale * (first + (last - first) * (i + along) / count)
            dx, dy = self.x - ax - along * ex, self.y - ay - along * ey
            far = (dx * dx + dy * dy) / (r * r)
            root = np.sqrt(np.maximum(1 - far, 0.02))
            self.put(
                (far < 1) & self.free(path),
                path.scale * z + r * root,
                -dx / r / root,
                -dy / r / root,
                colour,
                gloss,
                glow,
            )

    def dot(self, x, y, radius):
        """A white glint above everything at a point of the picture."""
        zeros = np.zeros_like(self.x)
        inside = np.hypot(self.x - x, self.y - y) < radius
        self.put(inside, zeros + 60, zeros, zeros, np.ones(3), 0.0, 1.0)

    def plate(self, path, corners, z, colour, gloss=0.2, glow=0.0, tilt=(0.0, 0.0)):
        """A flat convex polygon of places (s, d), tilted by slopes along and across the path."""
        points = [path.place(*corner)[0] for corner in corners]
        middle = np.mean(points, axis=0)
        inside = np.ones_like(self.x, bool)
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            side = (bx - ax) * (middle[1] - ay) - (by - ay) * (middle[0] - ax)
            inside &= ((bx - ax) * (self.y - ay) - (by - ay) * (self.x - ax)) * np.sign(side) >= 0
        _, (tx, ty) = path.place(*corners[0])
        zeros = np.zeros_like(self.x)
        self.put(
            inside & self.free(path),
            zeros + path.scale * z,
            zeros + tilt[0] * tx + tilt[1] * ty,
            zeros + tilt[0] * ty - tilt[1] * tx,
            colour,
            gloss,
            glow,
        )

    def lit(self):
        """The samples as float RGBA in sRGB."""
        north = np.array([0, -0.72, 0.69])
        west = np.array([-0.72, 0, 0.69])
        light = np.full(self.z.shape, 0.16)
        shine = np.zeros(self.z.shape)
        for direction, power in ((north, 0.62), (west, 0.5)):
            light += power * np.maximum(self.normal @ direction, 0)
            half = direction + np.array([0, 0, 1])
            shine += power * np.maximum(self.normal @ (half / np.linalg.norm(half)), 0) ** 28
        light *= 0.55 + 0.45 * np.clip(self.normal[..., 2] * 1.5, 0, 1)
        colour = self.colour * np.maximum(light, self.glow)[..., None]
        colour += (shine * self.gloss)[..., None]
        alpha = (self.z > -1e8).astype(float)
        return np.concatenate([reduce.to_srgb(colour), alpha[..., None]], axis=-1)

    def picture(self, contour):
        """The finished 20 x 20 picture, keyed black, its edge pixels darkened by the factor."""
        srgb, coverage = reduce.block_average(self.lit(), FINE)
        mask = reduce.opaque_mask(coverage)
        around = np.pad(mask, 1, mode="edge")
        inner = around[:-2, 1:-1] & around[2:, 1:-1] & around[1:-1, :-2] & around[1:-1, 2:]
        srgb = np.where((mask & ~inner)[..., None], srgb * contour, srgb)
        whole = reduce.keyed(reduce.sharpen(srgb, mask), mask, reduce.BLACK, reduce.BRIGHT_FIELD)
        return whole[MARGIN:-MARGIN, MARGIN:-MARGIN]
