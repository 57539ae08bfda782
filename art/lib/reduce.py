"""Reduces large renders to game pictures with clean edges against a colour key.

The game keys pictures by one exact colour, so a pixel is either drawn or not. A render several times
the final size, transparent outside, is averaged in linear light with premultiplied colour, so that
the background never mixes into an edge pixel.
"""

from pathlib import Path

import numpy as np
from PIL import Image

GREY_131 = (131, 131, 131)
GREY_128 = (128, 128, 128)
BLACK = (0, 0, 0)

GREY_KEY_DISTANCE = 6
BRIGHT_INTERFACE = 18
BRIGHT_FIELD = 28


def to_linear(srgb):
    """sRGB values 0..1 to linear light."""
    return np.where(srgb <= 0.04045, srgb / 12.92, ((srgb + 0.055) / 1.055) ** 2.4)


def to_srgb(linear):
    """Linear light 0..1 to sRGB values."""
    linear = np.clip(linear, 0.0, 1.0)
    return np.where(linear <= 0.0031308, linear * 12.92, 1.055 * linear ** (1 / 2.4) - 0.055)


def load_rgba(path):
    """Reads a picture as float RGBA 0..1, height x width x 4."""
    return np.asarray(Image.open(path).convert("RGBA"), dtype=np.float64) / 255.0


def block_average(rgba, factor):
    """Averages factor x factor blocks; returns (sRGB 0..1, coverage 0..1) at the small size."""
    height, width = rgba.shape[0] // factor, rgba.shape[1] // factor
    alpha = rgba[..., 3:4]
    premultiplied = np.concatenate([to_linear(rgba[..., :3]) * alpha, alpha], axis=2)
    premultiplied = premultiplied[: height * factor, : width * factor]
    total = premultiplied.reshape(height, factor, width, factor, 4).mean(axis=(1, 3))
    coverage = total[..., 3]
    colour = total[..., :3] / np.maximum(coverage, 1e-6)[..., None]
    return to_srgb(colour), coverage


def neighbour_count(mask):
    """Opaque pixels among the eight neighbours; the border is repeated outwards."""
    padded = np.pad(mask.astype(int), 1, mode="edge")
    height, width = mask.shape
    total = np.zeros(mask.shape, dtype=int)
    for dy in range(3):
        for dx in range(3):
            if (dy, dx) != (1, 1):
                total += padded[dy : dy + height, dx : dx + width]
    return total


def opaque_mask(coverage, spur_coverage=0.85):
    """Half covered pixels, without spurs (at most one neighbour and barely covered)."""
    mask = coverage >= 0.5
    spur = mask & (neighbour_count(mask) <= 1) & (coverage < spur_coverage)
    return mask & ~spur


def sharpen(srgb, mask, amount=0.22):
    """Unsharp mask over 3 x 3 that looks only at opaque pixels."""
    weight = np.pad(mask.astype(float), 1)
    values = np.pad(srgb * mask[..., None], ((1, 1), (1, 1), (0, 0)))
    height, width = mask.shape
    total = np.zeros_like(srgb)
    count = np.zeros(mask.shape)
    for dy in range(3):
        for dx in range(3):
            total += values[dy : dy + height, dx : dx + width]
            count += weight[dy : dy + height, dx : dx + width]
    mean = total / np.maximum(count, 1)[..., None]
    return np.clip(srgb + amount * (srgb - mean), 0.0, 1.0)


def _clear_of_grey(pixels, key):
    """Moves pixels that lie too near a grey key away from it, lighter or darker as they lean."""
    difference = pixels - np.array(key, dtype=float)
    near = np.abs(difference).max(axis=2) <= GREY_KEY_DISTANCE
    step = GREY_KEY_DISTANCE + 2
    lighter = difference.mean(axis=2) >= 0
    target = np.where(lighter[..., None], np.array(key) + step, np.array(key) - step)
    return np.where(near[..., None], target, pixels)


def _clear_of_black(pixels, brightest):
    """Lifts pixels whose brightest channel is too near black, keeping their hue."""
    peak = pixels.max(axis=2, keepdims=True)
    lifted = np.where(peak > 0, pixels * (brightest / np.maximum(peak, 1e-6)), float(brightest))
    return np.where(peak < brightest, lifted, pixels)


def keyed(srgb, mask, key, brightest=BRIGHT_FIELD):
    """The finished 8-bit RGB picture: opaque pixels clear of the key, all others exactly the key."""
    pixels = np.rint(srgb * 255.0)
    if key == BLACK:
        pixels = np.ceil(_clear_of_black(pixels, brightest))
    else:
        pixels = _clear_of_grey(pixels, key)
    pixels = np.clip(pixels, 0, 255)
    return np.where(mask[..., None], pixels, np.array(key, dtype=float)).astype(np.uint8)


def reduce_render(rgba, factor, key, brightest=BRIGHT_FIELD, amount=0.22):
    """A large float RGBA render to a finished small RGB picture with the given key."""
    srgb, coverage = block_average(rgba, factor)
    mask = opaque_mask(coverage)
    return keyed(sharpen(srgb, mask, amount), mask, key, brightest)


def save(pixels, path):
    """Writes 8-bit RGB pixels as PNG, making the folder."""
    path = Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    Image.fromarray(np.ascontiguousarray(pixels), "RGB").save(path, optimize=True)
