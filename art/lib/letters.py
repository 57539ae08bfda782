"""Letters as pictures: masks from outline fonts, growth, chiselled relief."""

import numpy as np
from PIL import Image, ImageDraw, ImageFont

from lib import reduce

LIBERATION = "/usr/share/fonts/truetype/liberation2/Liberation"
DEJAVU = "/usr/share/fonts/truetype/dejavu/DejaVuSans"
COMIC = "/usr/share/fonts/opentype/comic-neue/ComicNeue-Bold.otf"
SPARTAN = "/usr/share/fonts/opentype/league-spartan/LeagueSpartan-Black.otf"


def distance(mask, reach):
    """Distance of every sample from the nearest set one, exact up to the reach."""
    height = mask.shape[0]
    far = 4 * int(reach) + 4
    column = np.where(mask, 0, far).astype(np.int64)
    for y in range(1, height):
        column[y] = np.minimum(column[y], column[y - 1] + 1)
    for y in range(height - 2, -1, -1):
        column[y] = np.minimum(column[y], column[y + 1] + 1)
    column = column**2
    best = column.copy()
    for dx in range(1, int(reach) + 2):
        best[:, dx:] = np.minimum(best[:, dx:], column[:, :-dx] + dx * dx)
        best[:, :-dx] = np.minimum(best[:, :-dx], column[:, dx:] + dx * dx)
    return np.sqrt(best)


def grown(mask, radius):
    """The mask grown by a disc."""
    return distance(mask, radius) <= radius


def written(text, font, size, spacing, width, height, base, fine, centre=None):
    """A mask, with fine samples per pixel, of a centred line of text with its base line at a row."""
    face = ImageFont.truetype(font, int(size * fine))
    advance = [face.getlength(char) + spacing * fine for char in text]
    middle = width / 2 if centre is None else centre
    x = middle * fine - (sum(advance) - spacing * fine) / 2
    picture = Image.new("L", (width * fine, height * fine), 0)
    draw = ImageDraw.Draw(picture)
    for char, step in zip(text, advance):
        draw.text((x, base * fine), char, fill=255, font=face, anchor="ls")
        x += step
    return np.asarray(picture) >= 128


def chiselled(mask, fine, bevel, ramp, rim, rim_width):
    """Float RGBA of letters in relief; ramp: lit, face above, face below, shaded, in sRGB."""
    inside = distance(~mask, bevel * fine) / fine
    rise = np.clip(inside / bevel, 0, 1)
    relief = bevel * np.sin(rise * np.pi / 2)
    gy, gx = np.gradient(relief, 1 / fine)
    lit = np.clip((-gy * 0.8 - gx * 0.5) * -1, -1, 1) * -1
    rows = np.flatnonzero(mask.any(axis=1))
    down = np.clip((np.arange(mask.shape[0]) - rows[0]) / max(rows[-1] - rows[0], 1), 0, 1)[
        :, None, None
    ]
    light, upper, lower, shade = (
        reduce.to_linear(np.array(colour, float) / 255) for colour in ramp
    )
    face = upper * (1 - down) + lower * down
    up, dark = np.clip(-lit, 0, 1)[..., None], np.clip(lit, 0, 1)[..., None]
    colour = face * (1 - up) * (1 - dark) + light * up + shade * dark
    body = grown(mask, rim_width * fine) if rim_width else mask
    out = np.zeros(mask.shape + (4,))
    out[..., :3] = np.array(rim, float) / 255
    out[..., 3] = body
    out[mask, :3] = reduce.to_srgb(colour)[mask]
    return out
