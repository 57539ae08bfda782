"""The music: each NAME.abc is played by the instruments of band.orc and becomes assets/music/NAME.ogg.

abc2midi reads the score, and this file turns its notes into a csound score. The score is played
twice and the second pass is kept, so that what still rings at the end rings on at the loop's start.

In a score, %%MIDI program chooses the instrument by the numbers of BAND; a voice with program
DRUMS plays the drums of KIT. Controls: 7 loudness, 10 pan, 91 share sent to the room, 94 to the echo.
"""

import hashlib
import math
import subprocess
import tempfile
import wave
from dataclasses import dataclass
from pathlib import Path

import numpy as np

from lib import render

from loudness import loudness

HERE = Path(__file__).parent
MUSIC = HERE.parents[1] / "assets" / "music"
ORCHESTRA = HERE / "band.orc"
RATE = 44100
BLOCK = 64  # csound's ksmps
QUALITY = 2
LOUDNESS_DB = -15.5
CEILING = 0.84  # the encoder may overshoot a little
ECHO_BEATS = 0.75

BAND = {
    9: "Bell", 12: "Marimba", 15: "Dulcimer", 16: "Organ", 21: "Accordion", 30: "Guitar", 32: "DeepBass",
    38: "Bass", 45: "Pizzicato", 46: "Harp", 48: "Strings", 61: "Horn", 68: "Reed", 73: "Flute", 80: "Lead",
    81: "Chip", 89: "Pad", 108: "Kalimba", 114: "SteelPan",
}  # fmt: skip
DRUMS = 118
KIT = {
    59: "Clap", 60: "Kick", 62: "Snare", 64: "Rim", 65: "ClosedHat", 67: "OpenHat", 69: "Shaker",
    71: "HandDrum", 72: "HandDrum", 74: "HandDrum", 76: "Clank", 77: "Tom", 79: "FrameDrum",
    81: "FrameEdge", 83: "Cymbal", 84: "Tick", 86: "Tick",
}  # fmt: skip
CONTROLS = {7: 100, 10: 64, 91: 30, 94: 0}  # with the values at which they start


@dataclass
class Note:
    start: int  # ticks
    ticks: int
    program: int
    pitch: int
    velocity: int
    controls: dict


class Track:
    """Reads the events of one track of a MIDI file."""

    def __init__(self, data):
        self.data, self.at = data, 0

    def byte(self):
        self.at += 1
        return self.data[self.at - 1]

    def number(self):
        value = 0
        while True:
            byte = self.byte()
            value = value << 7 | byte & 127
            if byte < 128:
                return value

    def skip(self, count):
        self.at += count
        return self.data[self.at - count : self.at]

    def events(self):
        """(tick, status, data bytes) of every event; a meta event's status is 0xFF00 + its type."""
        tick = status = 0
        while self.at < len(self.data):
            tick += self.number()
            if self.data[self.at] >= 128:
                status = self.byte()
            if status == 0xFF:
                kind = self.byte()
                yield tick, 0xFF00 + kind, self.skip(self.number())
            elif status >= 0xF0:
                self.skip(self.number())
            else:
                yield tick, status, self.skip(1 if status >> 4 in (0xC, 0xD) else 2)


def read_midi(path):
    """The notes of a MIDI file, its length in ticks (whole beats), and seconds per beat and per tick."""
    data = path.read_bytes()
    division = int.from_bytes(data[12:14], "big")
    notes, length, beat, at = [], 0, 0.5, 14
    while at < len(data):
        size = int.from_bytes(data[at + 4 : at + 8], "big")
        sounding, programs, controls = {}, {}, {}
        for tick, status, values in Track(data[at + 8 : at + 8 + size]).events():
            length = max(length, tick)
            kind, channel = status >> 4, status & 15
            if status == 0xFF51:
                beat = int.from_bytes(values, "big") / 1e6
            elif kind == 0xC:
                programs[channel] = values[0]
            elif kind == 0xB:
                controls.setdefault(channel, dict(CONTROLS))[values[0]] = values[1]
            elif kind == 0x9 and values[1]:
                sounding[channel, values[0]] = tick, values[1]
            elif kind in (0x8, 0x9) and (channel, values[0]) in sounding:
                start, velocity = sounding.pop((channel, values[0]))
                state = dict(controls.get(channel, CONTROLS))
                notes.append(Note(start, tick - start, programs.get(channel, 0), values[0], velocity, state))
        at += 8 + size
    # abc2midi ends a track a little after the last bar.
    length = round(length / division) * division
    return sorted(notes, key=lambda n: (n.start, n.program, n.pitch)), length, beat, beat / division


def instrument(note):
    names, key = (KIT, note.pitch) if note.program == DRUMS else (BAND, note.program)
    if key not in names:
        raise SystemExit(f"no instrument for program {note.program}, note {note.pitch}")
    return names[key]


def csound_score(notes, length, beat, tick):
    """The score played twice, and the blocks in one pass. Notes begin on blocks, so that both passes are alike."""
    blocks = math.ceil(length * tick * RATE / BLOCK)
    second = RATE / BLOCK
    lines = [f'i "Surroundings" 0 {2 * blocks / second:.6f} {beat * ECHO_BEATS:.6f}']
    for turn in (0, blocks):
        for note in notes:
            start = (round(note.start * tick * second) + turn + 0.01) / second
            loud = note.velocity / 127 * note.controls[7] / 127
            pan, room, echo = (note.controls[c] / 127 for c in (10, 91, 94))
            lines.append(
                f'i "{instrument(note)}" {start:.7f} {max(note.ticks * tick, 0.02):.5f} '
                f"{note.pitch} {loud:.4f} {pan:.3f} {room:.3f} {echo:.3f}"
            )
    return "\n".join(lines) + "\n", blocks


def play(name):
    """The second pass of a score as floating-point samples, cached in the work folder by content."""
    abc = HERE / f"{name}.abc"
    digest = hashlib.sha1(b"".join(p.read_bytes() for p in (abc, ORCHESTRA, Path(__file__)))).hexdigest()[:16]
    kept = render.WORK / f"{name}-{digest}.npy"
    if kept.exists():
        return np.load(kept)
    with tempfile.TemporaryDirectory() as folder:
        midi, score, raw = (Path(folder) / f"{name}.{e}" for e in ("mid", "sco", "raw"))
        subprocess.run(["abc2midi", str(abc), "-o", str(midi), "-silent"], check=True)
        text, blocks = csound_score(*read_midi(midi))
        score.write_text(text)
        command = ["csound", "-d", "-m0", "-h", "-f", "-o", str(raw), str(ORCHESTRA), str(score)]
        subprocess.run(command, check=True, capture_output=True)
        samples = np.fromfile(raw, "<f4").reshape(-1, 2)[blocks * BLOCK : 2 * blocks * BLOCK]
    render.WORK.mkdir(parents=True, exist_ok=True)
    np.save(kept, samples)
    return samples


def limit(samples, ceiling, reach=0.012):
    """Holds the peaks below the ceiling without a click, even across the loop's seam."""
    width = int(reach * RATE)
    gain = np.minimum(1, ceiling / np.maximum(np.abs(samples).max(axis=1), 1e-9))
    lowest = gain.copy()
    for shift in range(1, width + 1):
        np.minimum(lowest, np.roll(gain, shift), out=lowest)
        np.minimum(lowest, np.roll(gain, -shift), out=lowest)
    window = np.hanning(2 * width + 3)[1:-1]
    kernel = np.zeros(len(gain))
    kernel[: 2 * width + 1] = window / window.sum()
    kernel = np.roll(kernel, -width)
    smooth = np.fft.irfft(np.fft.rfft(lowest) * np.fft.rfft(kernel), len(gain))
    return samples * smooth[:, None]


def master(samples):
    """Brings samples to the common loudness, without offset and with the peaks below the ceiling."""
    samples = samples - samples.mean(axis=0)
    for _ in range(3):
        samples = samples * 10 ** ((LOUDNESS_DB - loudness(samples, RATE)) / 20)
        samples = limit(samples, CEILING)
    return samples


def encode(samples, target):
    with tempfile.TemporaryDirectory() as folder:
        plain = Path(folder) / "loop.wav"
        with wave.open(str(plain), "wb") as file:
            file.setparams((2, 2, RATE, 0, "NONE", ""))
            file.writeframes(np.round(samples * 32767).astype("<i2").tobytes())
        command = ["oggenc", "-Q", "-q", str(QUALITY), "--serial", "1", "-o", str(target), str(plain)]
        subprocess.run(command, check=True)


def main():
    MUSIC.mkdir(parents=True, exist_ok=True)
    for abc in sorted(HERE.glob("*.abc")):
        encode(master(play(abc.stem)), MUSIC / f"{abc.stem}.ogg")


if __name__ == "__main__":
    main()
