"""The four sound effects: synthesised by csound at 88.2 kHz, finished by sox.

Each is NAME.csd. csound leaves headroom (floating point); sox adds the room, removes what is too low
to hear, fades the end and converts to the game's format with dither.
"""

import subprocess
import tempfile
from pathlib import Path

HERE = Path(__file__).parent
SND = HERE.parents[1] / "assets" / "snd"
RATE = 22050
PEAK_DB = -1.0

# name: (length in seconds, reverberance in percent, room in percent)
EFFECTS = {
    "collect": (0.38, 12, 15),
    "explode": (1.15, 25, 45),
    "live": (1.05, 25, 40),
    "wall": (0.85, 10, 15),
}


def make(name, length, reverberance, room, folder):
    raw, dry = Path(folder) / f"{name}_raw.wav", HERE / f"{name}.csd"
    subprocess.run(["csound", "-d", "-m0", "-W", "-f", "-o", str(raw), str(dry)], check=True, capture_output=True)
    # Padded first; otherwise the reverberation would end with its source.
    effects = f"pad 0 0.6 reverb {reverberance} 60 {room} highpass 25 trim 0 {length} fade t 0 {length} {length / 4}"
    finish = f"gain -n {PEAK_DB} rate -v {RATE} gain -n {PEAK_DB} dither"
    command = ["sox", "-R", "-V1", str(raw), "-b", "16", "-e", "signed-integer", str(SND / f"{name}.wav")]
    subprocess.run(command + effects.split() + finish.split(), check=True)


def main():
    SND.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        for name, recipe in EFFECTS.items():
            make(name, *recipe, folder)


if __name__ == "__main__":
    main()
