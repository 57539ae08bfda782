"""Loudness of a whole sound in decibels of full scale, weighted roughly as ears do."""

import numpy as np


def loudness(samples, rate):
    """samples: frames x channels in -1..1. What is too low to hear counts less, treble a little more."""
    s = 2j * np.pi * np.fft.rfftfreq(len(samples), 1 / rate)
    low, high, top = 2 * np.pi * 38, 2 * np.pi * 1682, 10 ** (4 / 20)
    weight = np.abs(s / (s + low)) ** 2
    weight *= np.abs((top * s**2 + top**0.5 * s * high / 0.707 + high**2) / (s**2 + s * high / 0.707 + high**2))
    power = (np.abs(np.fft.rfft(samples, axis=0)) * weight[:, None]) ** 2
    power[1:-1] *= 2
    return 10 * np.log10(power.sum() / len(samples) ** 2 + 1e-20)
