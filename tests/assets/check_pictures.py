#!/usr/bin/python3
"""Checks the committed pictures: sizes, colour keys, animations, joints, seams, contrast and fonts.

    check_pictures.py [ASSETS]      one line per fault, exit status 1 when there is any

A picture is keyed by one exact colour, so its opaque pixels must keep clear of that colour and must
not have been mixed with it.
"""

import sys
from pathlib import Path

import numpy as np
from PIL import Image

BLACK, GREY_128, GREY_131 = (0, 0, 0), (128, 128, 128), (131, 131, 131)
GROUND = 0.2  # how much of a moving user item's border may be of one colour: it has no plain square behind it
GREY_CLEARANCE = 6
INTERFACE, FIELD = 18, 28  # least value of the brightest channel over a black key
FRAMES = 45
CONTRAST = 70  # of 441, from black to white
RIM = 20  # the width of a field's border, where contrast is not measured

WALLS = ("brik", "brik_h", "brik_h_b", "brik_h_t", "brik_v", "brik_v_l", "brik_v_r")
FLAT_ITEMS = ("banana", "red_banana", "blue_banana", "black_banana", "tnt")
BUTTONS = [f"menu/{b}_{s}" for b in ("Exit", "HiScore", "NewGame", "Options") for s in "hn"]

# Still pictures over a black key: (names, size, least brightness).
KEYED = (
    (WALLS, (20, 20), FIELD),
    (FLAT_ITEMS, (16, 16), FIELD),
    (("pause", "gover"), (174, 44), INTERFACE),
    (("hitwall",), (203, 24), INTERFACE),
    (("statistics",), (315, 201), INTERFACE),
    (BUTTONS, (250, 30), INTERFACE),
    ([f"LED_{c}" for c in ("Yellow", "Red", "Blue", "Green")], (6, 5), INTERFACE),
    (("dm",), (54, 21), INTERFACE),
    (("dm_red", "dm_blue"), (250, 70), INTERFACE),
)
MENU_SCREENS = ("menu/bkg", "menu/bkg_o", "menu/bkg_hs")
ANIMATED_ITEMS = {
    "Yellow_animated": ((16, 24), GREY_131),
    "red_animated": ((16, 24), GREY_131),
    "blue_animated": ((16, 24), GREY_131),
    "black_animated": ((16, 24), GREY_131),
    "tnt_animated": ((16, 24), GREY_128),
    "atomic_animated": ((22, 21), GREY_131),
}

# Font sheets: size and cell (width, height).
FONTS = {
    "fnt_cour_8": ((499, 50), (7, 14)),
    "fnt_cour_11": ((499, 50), (9.05, 16.5)),
    "fnt_bl_16": ((439, 133), (17, 23)),
    "fnt_sys_8": ((499, 50), (8, 15)),
    "fnt_DM_16": ((439, 133), (16.7, 24)),
    "fnt_cour_16": ((439, 140), (11, 21)),
}
OTHERS = "\0"  # the empty cell that stands for every other character
GLYPH_ROWS = ("ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz", f"0123456789{OTHERS}.:-+*/()=\\_!?")
# Further cells, where the sheets have room: first column and row.
FURTHER_ROWS = ("',;\"#$%&@<>[]{}^|~`´§", "ÄÖÜäöüß")
FURTHER = {"fnt_cour_8": (26, 0), "fnt_cour_11": (26, 0), "fnt_sys_8": (26, 0)}
FURTHER |= {"fnt_bl_16": (0, 3), "fnt_DM_16": (0, 3), "fnt_cour_16": (0, 3)}
CUT_OFF = {"fnt_bl_16": "Zz"}  # letters that the sheet's edge cuts off: drawn whole after the umlauts

# Snake pictures by the direction of travel on entering and on leaving the cell.
WAYS = {"F": "forw", "B": "back", "L": "left", "R": "right"}
RIGHT_TURNS = {"RB": "b_l", "FR": "b_r", "BL": "f_l", "LF": "f_r"}
LEFT_TURNS = {"FL": "b_l", "LB": "b_r", "RF": "f_l", "BR": "f_r"}
TAIL_TURNS = {"FL": "b_l", "LB": "b_r", "RF": "f_l", "BR": "f_r", "BL": "f_l_2", "LF": "r_f", "RB": "l_b", "FR": "b_r_2"}
LEAVING = {"F": np.s_[0, :], "B": np.s_[-1, :], "L": np.s_[:, 0], "R": np.s_[:, -1]}
ENTERING = {"F": np.s_[-1, :], "B": np.s_[0, :], "L": np.s_[:, -1], "R": np.s_[:, 0]}

# Pairs of wall pieces that stand side by side, and one above the other.
LEVEL_SEAMS = (("brik_v_l", "brik_v"), ("brik_v", "brik_v"), ("brik_v", "brik_v_r"), ("brik_v_l", "brik_v_r"))
UPRIGHT_SEAMS = (("brik_h_t", "brik_h"), ("brik_h", "brik_h"), ("brik_h", "brik_h_b"), ("brik_h_t", "brik_h_b"))

# Shading alone may put edge pixels between the inner colours and the key. On clean edges that is at most a fifth of
# them, on edges blended with the key a third and more.
FRINGE_SHARE = 0.28


class Checker:
    """Reads pictures under one assets folder and collects faults."""

    def __init__(self, assets):
        self.gfx = assets / "gfx"
        self.models = assets / "models"
        self.faults = []

    def fault(self, name, text):
        self.faults.append(f"{name}: {text}")

    def load(self, path, size):
        """Pixels as integers, or None (and a fault) when missing, of another mode or another size."""
        if not path.is_file():
            self.fault(path, "missing")
            return None
        with Image.open(path) as image:
            if image.mode != "RGB" or image.size != size:
                self.fault(path, f"is {image.mode} {image.size}, not RGB {size}")
                return None
            return np.asarray(image).astype(int)

    def keyed(self, path, size, key=BLACK, brightest=FIELD):
        """A picture and its mask; a fault when opaque pixels come near the key, or none is keyed or opaque."""
        pixels = self.load(path, size)
        if pixels is None:
            return None, None
        mask = (pixels != key).any(axis=2)
        if not mask.any():
            self.fault(path, "is empty")
        opaque = pixels[mask]
        if key == BLACK:
            near = opaque.max(axis=1, initial=0) < brightest
        else:
            near = np.abs(opaque - key).max(axis=1, initial=0) <= GREY_CLEARANCE
        if near.any():
            self.fault(path, f"{near.sum()} opaque pixels too near the key")
        return pixels, mask


def shifted(array, dy, dx):
    """The array moved by one pixel, zero where nothing comes in."""
    padded = np.pad(array, ((1, 1), (1, 1)) + ((0, 0),) * (array.ndim - 2))
    return padded[1 - dy : 1 - dy + array.shape[0], 1 - dx : 1 - dx + array.shape[1]]


STEPS = ((0, 1), (1, 0), (0, -1), (-1, 0))


def fringe_share(pixels, mask, key):
    """Share of edge pixels that lie between the key and every inner colour near them."""
    inner = np.logical_and.reduce([shifted(mask, *s) for s in STEPS]) & mask
    lying = 0
    edges = np.argwhere(mask & ~inner)
    for y, x in edges:
        around = np.s_[max(y - 2, 0) : y + 3, max(x - 2, 0) : x + 3]
        inside = pixels[around][inner[around]]
        if not len(inside):
            continue
        towards = np.array(key) - inside
        way = np.maximum(np.linalg.norm(towards, axis=1), 1)
        moved = pixels[y, x] - inside
        part = (moved * towards).sum(axis=1) / way**2
        lying += ((part > 0.12) & (part < 0.95)).all()
    return lying / max(len(edges), 1)


def check_still(checker):
    for names, size, brightest in KEYED:
        for name in names:
            checker.keyed(checker.gfx / f"{name}.png", size, BLACK, brightest)
    for name in FLAT_ITEMS:
        _, mask = checker.keyed(checker.gfx / f"{name}.png", (16, 16))
        if mask is not None and mask.all():
            checker.fault(name, "has no transparent pixel")
    for name in MENU_SCREENS:
        checker.load(checker.gfx / f"{name}.png", (640, 480))
    for path in checker.gfx.glob("ui_*.png"):
        checker.keyed(path, (20, 20))


def check_animation(checker, folder, size, key):
    """45 different frames, clear of the key, and no jump from the last to the first."""
    files = sorted(p.name for p in folder.glob("*"))
    if files != sorted(f"{n}.png" for n in range(1, FRAMES + 1)):
        checker.fault(folder, f"does not hold exactly 1.png to {FRAMES}.png")
        return []
    loaded = [checker.keyed(folder / f"{n}.png", size, key) for n in range(1, FRAMES + 1)]
    if any(pixels is None for pixels, _ in loaded):
        return []
    if len({pixels.tobytes() for pixels, _ in loaded}) < FRAMES:
        checker.fault(folder, "has equal frames")
    steps = [np.abs(a[0] - b[0]).mean() for a, b in zip(loaded, loaded[1:] + loaded[:1])]
    if steps[-1] > max(steps[:-1]):
        checker.fault(folder, f"jumps from the last frame to the first: {steps[-1]:.1f} > {max(steps[:-1]):.1f}")
    # Beside a dark key, an edge in shade looks like a fringe.
    fringe = 0 if key == BLACK else np.mean([fringe_share(pixels, mask, key) for pixels, mask in loaded])
    if fringe > FRINGE_SHARE:
        checker.fault(folder, f"fringe: {fringe:.0%} of the edge is mixed with the key")
    return loaded


def check_moving_user_item(checker, folder, frames):
    """Its key is first black and later grey, so it must fill its cell: with a picture, not with a plain ground."""
    for pixels, mask in frames:
        if not mask.all() or (pixels == GREY_131).all(axis=2).any():
            checker.fault(folder, "leaves pixels to a key")
        border = np.concatenate([pixels[0], pixels[-1], pixels[:, 0], pixels[:, -1]])
        if np.unique(border, axis=0, return_counts=True)[1].max() > GROUND * len(border):
            checker.fault(folder, "stands on a plain square")


def check_walls(checker):
    """Pieces join: equal masks along a seam, and no greater step across it than inside a straight wall."""
    for seams, axis in ((LEVEL_SEAMS, 1), (UPRIGHT_SEAMS, 0)):
        for names in seams:
            (a, mask_a), (b, mask_b) = (checker.keyed(checker.gfx / f"{n}.png", (20, 20)) for n in names)
            if a is None or b is None:
                continue
            last, first = (np.s_[:, -1], np.s_[:, 0]) if axis else (np.s_[-1], np.s_[0])
            if (mask_a[last] != mask_b[first]).any():
                checker.fault(" + ".join(names), "outlines differ along the seam")
            over = np.abs(a[last] - b[first]).mean()
            within = max(np.abs(np.diff(p, axis=axis)).mean(axis=(1 - axis, 2)).max() for p in (a, b))
            if over > within:
                checker.fault(" + ".join(names), f"step over the seam {over:.1f} > {within:.1f} within")


def model_names(turned):
    """(pieces by entering direction, pieces by leaving direction), each a list of picture names."""
    turns = {code: f"Snake_{name}" for code, name in RIGHT_TURNS.items()}
    turns |= {code: f"Snake_{name}{'_i' if turned else ''}" for code, name in LEFT_TURNS.items()}
    enter = {way: [f"head_{name}", f"Snake_{name}"] for way, name in WAYS.items()}
    leave = {way: [f"Snake_{name}", f"tail_{name}"] for way, name in WAYS.items()}
    for code, name in turns.items():
        enter[code[0]].append(name)
        leave[code[1]].append(name)
    for code, name in TAIL_TURNS.items():
        leave[code[1]].append(f"Tail_{name}")
    return enter, leave


def check_model(checker, folder):
    """All pictures of a model, and equal masks along each of the 96 joints of two pieces."""
    ini = folder / "model.ini"
    lines = ini.read_bytes().decode("cp1252").splitlines() if ini.is_file() else []
    if not ini.is_file():
        checker.fault(ini, "missing")
    turned = "EDGES_INVERS=1" in lines
    enter, leave = model_names(turned)
    names = {n for table in (enter, leave) for pieces in table.values() for n in pieces} | {"start"}
    pictures = {n: checker.keyed(folder / f"{n}.png", (20, 20)) for n in sorted(names)}
    if any(pixels is None for pixels, _ in pictures.values()):
        return []
    for way in WAYS:
        for behind in leave[way]:
            for ahead in enter[way]:
                if (pictures[behind][1][LEAVING[way]] != pictures[ahead][1][ENTERING[way]]).any():
                    checker.fault(folder.name, f"{behind} and {ahead} do not meet")
    return [pictures[n] for n in sorted(names) if n.startswith("Snake_")]


def font_cells(name):
    """(character, column, row) of every cell of a sheet whose letter is drawn whole."""
    cut_off = CUT_OFF.get(name, "")
    further = (FURTHER_ROWS[0], FURTHER_ROWS[1] + cut_off)
    for rows, (left, top) in ((GLYPH_ROWS, (0, 0)), (further, FURTHER[name])):
        for row, characters in enumerate(rows, top):
            for column, char in enumerate(characters, left):
                if rows is further or char not in cut_off:
                    yield char, column, row


def check_fonts(checker):
    for name, (size, (width, height)) in FONTS.items():
        path = checker.gfx / "fonts" / f"{name}.png"
        pixels, mask = checker.keyed(path, size, BLACK, INTERFACE)
        if mask is None:
            continue
        inked, glyphs = np.zeros_like(mask), {}
        for char in CUT_OFF.get(name, ""):
            row = next(r for r, characters in enumerate(GLYPH_ROWS) if char in characters)
            inked[round(row * height) : round((row + 1) * height), round(25 * width) :] = True
        for char, column, row in font_cells(name):
            rows = slice(round(row * height), round((row + 1) * height))
            columns = slice(round(column * width), round((column + 1) * width - 1))
            if rows.stop > size[1] or columns.stop > size[0]:
                checker.fault(path, f"ends inside the cell of {char!r}")
            inked[rows, columns] = True
            glyph = pixels[rows, columns]
            if (char == OTHERS) == bool(mask[rows, columns].any()):
                checker.fault(path, f"cell of {char!r} should be {'empty' if char == OTHERS else 'drawn'}")
            twin = glyphs.setdefault((glyph.shape, glyph.tobytes()), char)
            if twin != char:
                checker.fault(path, f"{char!r} looks like {twin!r}")
        if (mask & ~inked).any():
            checker.fault(path, f"{(mask & ~inked).sum()} pixels outside the cells")


def check_contrast(checker, things):
    """Mean colour distance of each thing's opaque pixels from the mean colour of every field."""
    fields = sorted(checker.gfx.glob("bkg_*.png"))
    if len(fields) < 7:
        checker.fault(checker.gfx, f"holds {len(fields)} fields, not at least 7")
    for path in fields:
        field = checker.load(path, (640, 480))
        if field is None:
            continue
        mean = field[RIM:-RIM, RIM:-RIM].reshape(-1, 3).mean(axis=0)
        for name, pictures in things.items():
            distance = min(np.linalg.norm(p[m] - mean, axis=1).mean() for p, m in pictures)
            if distance < CONTRAST:
                checker.fault(name, f"too like {path.name}: {distance:.0f} < {CONTRAST}")


def field_things(checker):
    """Everything that must stand out on a field, by name: lists of (pixels, mask)."""
    things = {}
    for name, (size, key) in ANIMATED_ITEMS.items():
        things[name] = check_animation(checker, checker.gfx / name, size, key)
        for number, (_, mask) in enumerate(things[name], 1):
            if mask[[0, -1]].any() or mask[:, [0, -1]].any():
                checker.fault(checker.gfx / name / f"{number}.png", "touches the border")
    for folder in sorted(p for p in checker.gfx.glob("ui_*") if p.is_dir()):
        things[folder.name] = check_animation(checker, folder, (20, 20), BLACK)
        check_moving_user_item(checker, folder, things[folder.name])
    still = [(checker.gfx / f"{n}.png", (16, 16)) for n in FLAT_ITEMS]
    still += [(checker.gfx / f"{n}.png", (20, 20)) for n in WALLS]
    still += [(p, (20, 20)) for p in sorted(checker.gfx.glob("ui_*.png"))]
    for path, size in still:
        things[path.name] = [checker.keyed(path, size)]
    models = sorted(p for p in checker.models.glob("*") if p.is_dir())
    if len(models) < 8:
        checker.fault(checker.models, f"holds {len(models)} snake models, not at least 8")
    for folder in models:
        bodies = check_model(checker, folder)
        if bodies:
            everything = [np.concatenate([p[m] for p, m in bodies])[None]]
            things[folder.name] = [(everything[0], np.ones(everything[0].shape[:2], bool))]
    return {name: parts for name, parts in things.items() if parts and parts[0][0] is not None}


def main():
    assets = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parents[2] / "assets"
    checker = Checker(assets)
    check_still(checker)
    check_walls(checker)
    check_fonts(checker)
    check_contrast(checker, field_things(checker))
    faults = list(dict.fromkeys(checker.faults))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
