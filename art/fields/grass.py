"""A meadow drawn blade by blade: short strokes over a soft patchwork, some clover and daisies."""

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

ZOOM = 3
WIDTH, HEIGHT = 640, 480
BLADES = 90000
DAISIES = 26


def _patches(rng):
    """Smooth noise 0..1 at field size, from three octaves of blurred dots."""
    total = np.zeros((HEIGHT, WIDTH))
    for cells, weight in ((5, 0.5), (12, 0.3), (30, 0.2)):
        small = rng.random((cells * 3 // 4 + 1, cells + 1))
        image = Image.fromarray((small * 255).astype(np.uint8))
        total += weight * np.asarray(image.resize((WIDTH, HEIGHT), Image.BICUBIC)) / 255.0
    return np.clip((total - total.min()) / (total.max() - total.min()), 0, 1)


def _blade_colour(rng, tone):
    """Straw to sage by the tone of the patch, with a little variation."""
    dry = np.array([170, 168, 98])
    fresh = np.array([112, 136, 74])
    colour = fresh + (dry - fresh) * np.clip(tone + rng.normal(0, 0.16), 0, 1)
    return tuple(int(v) for v in np.clip(colour + rng.normal(0, 8), 0, 255))


def _draw_blades(draw, rng, patches):
    order = np.sort(rng.random(BLADES)) * (HEIGHT + 12)  # from the back to the front
    for y in order:
        x = rng.random() * (WIDTH + 12) - 6
        tone = patches[min(int(y), HEIGHT - 1), min(max(int(x), 0), WIDTH - 1)]
        length, lean = 3.0 + 3.5 * rng.random(), rng.normal(0, 1.6)
        points = [(x, y), (x + 0.35 * lean, y - 0.6 * length), (x + lean, y - length)]
        scaled = [(px * ZOOM, py * ZOOM) for px, py in points]
        draw.line(scaled, fill=_blade_colour(rng, tone), width=2 if length < 4.5 else 3)


def _draw_daisies(draw, rng):
    for _ in range(DAISIES):
        x, y = rng.random() * WIDTH * ZOOM, rng.random() * HEIGHT * ZOOM
        for petal in range(7):
            angle = petal * 2 * np.pi / 7
            px, py = x + 4.2 * np.cos(angle), y + 3.6 * np.sin(angle)
            draw.ellipse([px - 2.4, py - 2.2, px + 2.4, py + 2.2], fill=(206, 208, 190))
        draw.ellipse([x - 2.4, y - 2.2, x + 2.4, y + 2.2], fill=(205, 170, 70))


def draw():
    """The meadow as float RGB 0..1."""
    rng = np.random.default_rng(31)
    patches = _patches(rng)
    image = Image.new("RGB", (WIDTH * ZOOM, HEIGHT * ZOOM), (96, 110, 62))
    canvas = ImageDraw.Draw(image)
    _draw_blades(canvas, rng, patches)
    _draw_daisies(canvas, rng)
    small = image.resize((WIDTH, HEIGHT), Image.BOX).filter(ImageFilter.GaussianBlur(0.35))
    return np.asarray(small, dtype=float) / 255.0
