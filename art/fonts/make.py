#!/usr/bin/env python3
"""Draws the six bitmap font sheets of the game from free outline fonts.

Three small sheets are hinted one-bit letters with a dark rim; three large ones are smooth letters
with a colour gradient, a lit upper edge and a dark rim.  All are keyed with near black, so the rim
is the darkest colour used.
"""
import os
import numpy as np
from PIL import Image, ImageDraw, ImageFont

from lib.letters import COMIC, DEJAVU, LIBERATION, SPARTAN, grown

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
TARGET = os.path.join(ROOT, "assets", "gfx", "fonts")
ROWS = ("ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz", "0123456789\0.:-+*/()=\\_!?")
# Further characters: beside these rows on small sheets, below them on large ones.
FURTHER = ("',;\"#$%&@<>[]{}^|~`´§", "ÄÖÜäöüß")
BESIDE, BELOW = (26, 0), (0, 3)
RIM = (24, 24, 24)
SCALE = 16
SPARE = 4


def cell(column, row, width, height):
    """Left, top, right, bottom of a glyph; right and bottom are exclusive, halves round to even."""
    return (
        round(column * width),
        round(row * height),
        round((column + 1) * width - 1),
        round((row + 1) * height),
    )


def block_mean(array, n):
    h, w = array.shape
    return array.reshape(h // n, n, w // n, n).mean(axis=(1, 3))


def redrawn():
    """Letters of narrow.txt: character to (rows of ink, rows below the base line)."""
    letters = {}
    rows, char, below = [], None, 0
    with open(os.path.join(HERE, "narrow.txt"), encoding="utf-8") as lines:
        for line in [*lines, "\n"]:
            line = line.rstrip("\n")
            if line.startswith("//"):
                continue
            if " " in line:
                char, below = line[0], int(line[2:])
            elif line:
                rows.append([dot == "#" for dot in line])
            elif rows:
                letters[char] = (np.array(rows), below)
                rows = []
    return letters


def letter_dots(char, font, letters):
    """The ink of a one-bit letter, and which of its rows stands on the base line."""
    if char in letters:
        dots, below = letters[char]
        return dots, dots.shape[0] - 1 - below
    probe = Image.new("1", (64, 64), 0)
    ImageDraw.Draw(probe).text((24, 32), char, fill=1, font=font, anchor="ls")
    dots = np.array(probe)
    columns, rows = np.flatnonzero(dots.any(axis=0)), np.flatnonzero(dots.any(axis=1))
    return dots[rows[0] : rows[-1] + 1, columns[0] : columns[-1] + 1], 31 - int(rows[0])


def small_glyph(char, font, box, base, fills, letters):
    """One-bit letter: a fill that changes a little downwards, a rim where the cell has room."""
    w, h = box[2] - box[0], box[3] - box[1]
    core, standing = letter_dots(char, font, letters)
    top = base - 1 - standing
    if core.shape[1] > w:
        core = core[:, :w]
    left = (w - core.shape[1]) // 2
    if top < 0 or top + core.shape[0] > h:
        raise SystemExit(f"{char!r} leaves its cell")
    mask = np.zeros((h, w), bool)
    mask[top : top + core.shape[0], left : left + core.shape[1]] = core
    framed = np.pad(mask, 1)
    rim = np.zeros_like(mask)
    for dy in range(3):
        for dx in range(3):
            rim |= framed[dy : dy + h, dx : dx + w]
    out = np.zeros((h, w, 3), np.uint8)
    out[rim] = RIM
    upper, lower = (np.array(f, float) for f in fills)
    for y in range(h):
        mix = min(1.0, max(0.0, (y - base + 9) / 9.0))
        out[y][mask[y]] = np.rint(upper * (1 - mix) + lower * mix).astype(np.uint8)
    return out


def outline(char, font, width, height, base):
    """Fine mask of a letter as wide as its ink, with SPARE more rows above the cell."""
    size = (width * SCALE, (height + SPARE) * SCALE)
    big = Image.new("L", size, 0)
    place = (size[0] // 2, (base + SPARE) * SCALE)
    ImageDraw.Draw(big).text(place, char, fill=255, font=font, anchor="ms")
    ink = big.getbbox()
    return big.crop((ink[0], 0, ink[2], size[1]))


def lowered(shape, base, room):
    """An outline without its spare rows; one that stands too high is pressed down to fit."""
    top = shape.getbbox()[1]
    cell = shape.crop((0, SPARE * SCALE, shape.width, shape.height))
    if top >= SPARE * SCALE + room:
        return cell
    line = (base + SPARE) * SCALE
    upper = shape.crop((0, top, shape.width, line))
    cell.paste(upper.resize((shape.width, base * SCALE - room), Image.LANCZOS), (0, room))
    cell.paste(0, (0, 0, shape.width, room))
    return cell


def large_glyph(char, font, box, base, centre, widest, stops, weight, rim_radius):
    """Smooth letter, squeezed until it fits, with gradient, lit upper edge and rim."""
    left, top, right, bottom = box
    w, h = right - left, bottom - top
    room = int((rim_radius + weight + 0.05) * SCALE)
    shape = lowered(outline(char, font, w * 4, h, base), base, room)
    wide = shape.width
    limit = int(widest * SCALE)
    if wide > limit:
        shape = shape.resize((limit, h * SCALE), Image.LANCZOS)
        wide = limit
    x0 = int(round(centre * SCALE - wide / 2))
    x0 = max(room, min(x0, w * SCALE - wide - room))
    canvas = Image.new("L", (w * SCALE, h * SCALE), 0)
    canvas.paste(shape, (x0, 0))
    solid = np.array(canvas) >= 128
    if weight:
        solid = grown(solid, weight * SCALE)
    cover = block_mean(solid.astype(float), SCALE)
    body = block_mean(grown(solid, rim_radius * SCALE).astype(float), SCALE)
    mask = body >= 0.5
    ys = (np.arange(h) + 0.5 - stops["top"]) / (base - stops["top"])
    fill = np.stack(
        [np.interp(ys, stops["at"], [c[i] for c in stops["colours"]]) for i in range(3)], axis=1
    )
    fill = (fill / 255.0) ** 2.2
    lit = np.clip(cover - np.roll(cover, 1, axis=0), 0, 1)[..., None] * stops["light"]
    dark = np.clip(cover - np.roll(cover, -1, axis=0), 0, 1)[..., None] * stops["dark"]
    colour = np.clip(fill[:, None, :] * (1 + lit) * (1 - dark) + lit * 0.25, 0, 1)
    rim = (np.array(stops["rim"]) / 255.0) ** 2.2
    mixed = rim * (1 - cover[..., None]) + colour * cover[..., None]
    out = np.rint(255 * np.clip(mixed, 0, 1) ** (1 / 2.2)).astype(np.uint8)
    out[~mask] = 0
    return out


def places(rows, first):
    """Each character of some rows with the column and row of its cell."""
    for row, characters in enumerate(rows, first[1]):
        for column, char in enumerate(characters, first[0]):
            if char != "\0":
                yield char, column, row


def sheet(name, size, width, height, further, glyph):
    """Fills a sheet of the given size with every character of the layout and writes it."""
    picture = np.zeros((size[1], size[0], 3), np.uint8)
    for char, column, row in [*places(ROWS, (0, 0)), *further]:
        left, top, right, bottom = cell(column, row, width, height)
        right = min(right, size[0])
        picture[top:bottom, left:right] = glyph(char, (left, top, right, bottom))
    Image.fromarray(picture, "RGB").save(os.path.join(TARGET, name), optimize=True)


def small_sheet(name, width, height, file, pixels, base, fills, letters):
    font = ImageFont.truetype(file, pixels)
    sheet(
        name,
        (499, 50),
        width,
        height,
        places(FURTHER, BESIDE),
        lambda char, box: small_glyph(char, font, box, base, fills, letters),
    )


def large_sheet(
    name, size, width, height, file, pixels, base, centre, widest, stops, weight, rim=1.2
):
    font = ImageFont.truetype(file, pixels * SCALE)
    # Letters whose cells the sheet's edge cuts off have whole cells after the others.
    cut = "".join(row[-1] for row in ROWS[:2]) if cell(25, 0, width, height)[2] > size[0] else ""
    sheet(
        name,
        size,
        width,
        height,
        places((FURTHER[0], FURTHER[1] + cut), BELOW),
        lambda char, box: large_glyph(char, font, box, base, centre, widest, stops, weight, rim),
    )


STATUS = {
    "top": 3,
    "at": (0, 0.45, 0.55, 1),
    "light": 0.5,
    "dark": 0.25,
    "rim": (40, 22, 8),
    "colours": ((255, 246, 170), (255, 214, 62), (246, 178, 28), (214, 112, 6)),
}
MATCH = {
    "top": 4,
    "at": (0, 0.48, 0.52, 1),
    "light": 0.5,
    "dark": 0.3,
    "rim": (34, 6, 6),
    "colours": ((255, 190, 160), (255, 86, 60), (226, 34, 22), (150, 8, 8)),
}
TITLE = {
    "top": 4,
    "at": (0, 0.5, 1),
    "light": 0.4,
    "dark": 0.2,
    "rim": (16, 30, 14),
    "colours": ((246, 255, 196), (186, 240, 92), (96, 190, 44)),
}


def main():
    os.makedirs(TARGET, exist_ok=True)
    small_sheet(
        "fnt_cour_8.png",
        7,
        14,
        LIBERATION + "Mono-Regular.ttf",
        11,
        10,
        ((255, 255, 255), (236, 236, 224)),
        redrawn(),
    )
    small_sheet(
        "fnt_cour_11.png",
        9.05,
        16.5,
        DEJAVU + "Mono-Bold.ttf",
        12,
        12,
        ((235, 255, 215), (180, 235, 150)),
        {},
    )
    small_sheet(
        "fnt_sys_8.png",
        8,
        15,
        DEJAVU + "Mono-Bold.ttf",
        11,
        11,
        ((255, 255, 255), (240, 236, 205)),
        {},
    )
    large_sheet("fnt_bl_16.png", (439, 133), 17, 23, COMIC, 19, 17, 9, 9.6, STATUS, 0.35)
    large_sheet("fnt_DM_16.png", (439, 133), 16.7, 24, SPARTAN, 21, 18, 8.5, 11.0, MATCH, 0)
    large_sheet(
        "fnt_cour_16.png",
        (439, 140),
        11,
        21,
        LIBERATION + "Mono-Bold.ttf",
        16,
        15,
        5,
        7.9,
        TITLE,
        0,
        1.0,
    )


if __name__ == "__main__":
    main()
