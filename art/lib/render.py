"""Runs POV-Ray and rsvg-convert: two single-threaded processes side by side, cached by content.

A render lies in the work folder under a hash of everything that goes into it, so that remaking a
class renders only what has changed. The work folder is build/art, or $COILRUN_ART_WORK.
"""

import hashlib
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
GFX = ROOT / "assets" / "gfx"
WORK = Path(os.environ.get("COILRUN_ART_WORK", ROOT / "build" / "art"))
SIDE_BY_SIDE = 2
FRAMES = 45


@dataclass
class Scene:
    """One POV-Ray picture, or with frames > 0 an animation whose clock runs 0 .. 1 - 1/frames."""

    scene: Path
    width: int
    height: int
    declare: dict = field(default_factory=dict)
    frames: int = 0
    alpha: bool = True
    antialias: float = 0.0  # threshold; 0 is off
    depth: int = 3  # antialias rays per side

    def command(self, target):
        options = [f"+I{self.scene}", f"+O{target}", f"+W{self.width}", f"+H{self.height}"]
        options += ["+FN", "-D", "-GD", "-GR", "-GS", "-V", "Work_Threads=1", f"+L{Path(__file__).parent}"]
        options += [f"+L{self.scene.parent}", "+UA" if self.alpha else "-UA"]
        options += [f"+AM2 +A{self.antialias} +R{self.depth}"] if self.antialias else ["-A"]
        options += [f"Declare={name}={value}" for name, value in self.declare.items()]
        if self.frames:
            options += ["+KFI1", f"+KFF{self.frames}", "+KI0", "+KF1", "+KC"]
        return ["povray"] + " ".join(options).split(" ")

    def key(self):
        digest = hashlib.sha1(" ".join(self.command("")).encode())
        for source in sorted(_sources(self.scene)):
            digest.update(source.read_bytes())
        return f"{self.scene.stem}-{digest.hexdigest()[:16]}"

    def outputs(self):
        if not self.frames:
            return [WORK / f"{self.key()}.png"]
        digits = len(str(self.frames + 1))  # a cyclic run counts one more
        return [WORK / f"{self.key()}-{n:0{digits}d}.png" for n in range(1, self.frames + 1)]

    def target(self):
        return WORK / (f"{self.key()}-.png" if self.frames else f"{self.key()}.png")


@dataclass
class Drawing:
    """One SVG picture at zoom times its own size."""

    svg: Path
    zoom: int = 8

    def command(self, target):
        return ["rsvg-convert", "-z", str(self.zoom), "-o", str(target), str(self.svg)]

    def outputs(self):
        digest = hashlib.sha1(self.svg.read_bytes() + str(self.zoom).encode()).hexdigest()[:16]
        return [WORK / f"{self.svg.stem}-{digest}.png"]

    def target(self):
        return self.outputs()[0]


def _sources(scene, seen=None):
    """The scene file and every own file it includes."""
    seen = set() if seen is None else seen
    if scene in seen:
        return seen
    seen.add(scene)
    for name in re.findall(r'#include\s+"([^"]+)"', scene.read_text()):
        for folder in (scene.parent, Path(__file__).parent):
            if (folder / name).exists():
                _sources(folder / name, seen)
                break
    return seen


def _run(job):
    outputs = job.outputs()
    if all(path.exists() for path in outputs):
        return outputs
    done = subprocess.run(
        ["nice", "-n", "15"] + job.command(job.target()),
        stdout=subprocess.DEVNULL,
        stderr=subprocess.PIPE,
        text=True,
        check=False,
    )
    if done.returncode != 0:
        complaint = done.stderr[max(done.stderr.find("File '"), len(done.stderr) - 600) :]
        sys.exit(f"{' '.join(job.command(job.target()))}\n{complaint}")
    return outputs


def render_all(jobs):
    """Renders the jobs; returns for each the list of its picture files (one, or one per frame)."""
    WORK.mkdir(parents=True, exist_ok=True)
    with ThreadPoolExecutor(SIDE_BY_SIDE) as pool:
        return list(pool.map(_run, jobs))
