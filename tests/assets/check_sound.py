#!/usr/bin/python3
"""Checks the committed sounds: format, levels, silence, loop seams and loudness.

    check_sound.py [ASSETS]      one line per fault, exit status 1 when there is any

Music is decoded by oggdec (vorbis-tools) or sox; without either it is skipped, and a line says so.
"""

import io
import shutil
import subprocess
import sys
import wave
from pathlib import Path

import numpy as np

EFFECTS = ("collect", "explode", "live", "wall")
EFFECT_RATE = 22050
EFFECT_SECONDS = (0.15, 1.2)
MUSIC_RATES = (22050, 44100)
MUSIC_SECONDS = (45, 180)
LEAST_TRACKS = 8
MOST_BYTES = 7_000_000
PEAK = (0.7, 0.95)
OFFSET = 0.001  # of full scale
SILENCE_SECONDS, SILENCE = 0.05, 10 ** (-60 / 20)
SEAM_PERCENTILE = 99.9
LOUDNESS_SPREAD_DB = 2
MUSIC_BELOW_EFFECTS_DB = 3
LOUDEST_SECONDS = 0.1


def decibels(power):
    return 10 * np.log10(power + 1e-20)


def parse_wave(data):
    """Channels, rate, sample width in bytes, and the frames of a PCM wave file as -1 .. 1."""
    with wave.open(io.BytesIO(data)) as file:
        channels, width, rate = file.getnchannels(), file.getsampwidth(), file.getframerate()
        if width != 2:
            raise wave.Error(f"{8 * width} bits per sample, not 16")
        # A decoder that writes to a pipe cannot know the length beforehand and states a huge one.
        raw = file.readframes(min(file.getnframes(), len(data)))
    raw = raw[: len(raw) // (2 * channels) * (2 * channels)]
    if not raw:
        raise wave.Error("holds no samples")
    return channels, rate, np.frombuffer(raw, "<i2").reshape(-1, channels) / 32768


def decoder():
    """The command that decodes an Ogg file into a wave file on its output; None when there is none."""
    if shutil.which("oggdec"):
        return ["oggdec", "-Q", "-o", "-"]
    if shutil.which("sox"):
        return ["sox", "-V1", "-D", "{}", "-t", "wav", "-b", "16", "-"]
    return None


def decode(command, path):
    words = [w.replace("{}", str(path)) for w in command]
    if words == command:
        words.append(str(path))
    return subprocess.run(words, check=True, capture_output=True).stdout


def loudness(samples, rate):
    """Mean power of both channels in decibels; what lies below 40 Hz, and is hardly heard, counts less."""
    s = 1j * np.fft.rfftfreq(len(samples), 1 / rate) / 40
    spectrum = np.fft.rfft(samples, axis=0) * (s / (1 + s))[:, None]
    return decibels(2 * (np.abs(spectrum) ** 2).sum() / len(samples) ** 2)


def loudest(samples, rate):
    """Power of the loudest tenth of a second: how loud a short sound seems."""
    size = min(int(LOUDEST_SECONDS * rate), len(samples))
    total = np.concatenate([[0], np.cumsum((samples**2).sum(axis=1))])
    return decibels((total[size:] - total[:-size]).max() / size)


def level_faults(samples):
    peak, offset = np.abs(samples).max(), np.abs(samples.mean(axis=0)).max()
    if not PEAK[0] <= peak <= PEAK[1]:
        yield f"peak {peak:.3f}, not {PEAK[0]} to {PEAK[1]}"
    if offset > OFFSET:
        yield f"offset {offset:.4f} of full scale"


def length_fault(samples, rate, limits):
    seconds = len(samples) / rate
    if not limits[0] <= seconds <= limits[1]:
        yield f"lasts {seconds:.2f} s, not {limits[0]} to {limits[1]}"


def silence_fault(samples, rate):
    """A loop must not be silent anywhere, not even across its seam."""
    size = int(SILENCE_SECONDS * rate)
    looped = np.concatenate([samples, samples[:size]])
    loud = np.flatnonzero(np.abs(looped).max(axis=1) > SILENCE)
    gaps = np.diff(np.concatenate([[-1], loud, [len(looped)]])) - 1
    if gaps.max() >= size:
        at = np.concatenate([[0], loud + 1])[gaps.argmax()]
        yield f"silent for {gaps.max() / rate:.3f} s at {at / rate:.2f} s"


def seam_fault(samples):
    for channel in samples.T:
        most = np.percentile(np.abs(np.diff(channel)), SEAM_PERCENTILE)
        step = abs(channel[0] - channel[-1])
        if step > most:
            yield f"steps by {step:.4f} over the loop's seam, more than {most:.4f}"


def check_effect(path):
    """The faults, and the loudest moment in decibels (None when it cannot be read)."""
    try:
        channels, rate, samples = parse_wave(path.read_bytes())
    except (OSError, EOFError, wave.Error) as error:
        return [f"cannot be read: {error!r}"], None
    if (channels, rate) != (2, EFFECT_RATE):
        return [f"{channels} channels at {rate} Hz, not 2 at {EFFECT_RATE}"], None
    return [*level_faults(samples), *length_fault(samples, rate, EFFECT_SECONDS)], loudest(samples, rate)


def check_track(path, command):
    """The faults, and the loudness in decibels (None when it cannot be read)."""
    try:
        channels, rate, samples = parse_wave(decode(command, path))
    except (OSError, EOFError, wave.Error, subprocess.CalledProcessError) as error:
        return [f"cannot be decoded: {error!r}"], None
    if channels != 2 or rate not in MUSIC_RATES:
        return [f"{channels} channels at {rate} Hz, not 2 at one of {MUSIC_RATES}"], None
    faults = [*level_faults(samples), *length_fault(samples, rate, MUSIC_SECONDS)]
    faults += [*silence_fault(samples, rate), *seam_fault(samples)]
    return faults, loudness(samples, rate)


def check_balance(effects, tracks):
    """Tracks must be alike in loudness, and the effects must be heard over the loudest."""
    if not tracks:
        return
    loud, soft = max(tracks, key=tracks.get), min(tracks, key=tracks.get)
    if tracks[loud] - tracks[soft] > LOUDNESS_SPREAD_DB:
        yield loud, f"{tracks[loud] - tracks[soft]:.1f} dB louder than {soft.name}"
    for path, level in effects.items():
        if level < tracks[loud] + MUSIC_BELOW_EFFECTS_DB:
            yield path, f"only {level - tracks[loud]:.1f} dB above {loud.name}"


def check_all(assets):
    """Every (path, fault)."""
    effects, tracks = {}, {}
    for path in (assets / "snd" / f"{name}.wav" for name in EFFECTS):
        faults, level = check_effect(path)
        yield from ((path, fault) for fault in faults)
        if level is not None:
            effects[path] = level
    files = sorted((assets / "music").glob("*.ogg"))
    if len(files) < LEAST_TRACKS:
        yield assets / "music", f"holds {len(files)} tracks, not at least {LEAST_TRACKS}"
    size = sum(p.stat().st_size for p in [*effects, *files])
    if size > MOST_BYTES:
        yield assets, f"{size} bytes of sound, more than {MOST_BYTES}"
    command = decoder()
    if command is None:
        print("music not checked: neither oggdec (vorbis-tools) nor sox is installed")
        return
    for path in files:
        faults, level = check_track(path, command)
        yield from ((path, fault) for fault in faults)
        if level is not None:
            tracks[path] = level
    yield from check_balance(effects, tracks)


def main():
    assets = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parents[2] / "assets"
    faults = [f"{path.relative_to(assets)}: {fault}" for path, fault in check_all(assets)]
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
