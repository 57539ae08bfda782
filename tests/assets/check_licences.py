#!/usr/bin/python3
"""Checks that REUSE.toml gives every committed file a licence, and that every licence's text is there and in use."""

import pathlib
import re
import subprocess
import sys
import tomllib

ROOT = pathlib.Path(__file__).resolve().parents[2]


def pattern(path):
    """A path in REUSE.toml as a regular expression: `**` crosses folders, `*` does not."""
    parts = re.split(r"(\*\*|\*)", path)
    return re.compile("".join({"**": ".*", "*": "[^/]*"}.get(part, re.escape(part)) for part in parts) + r"\Z")


def licence_of(file, annotations):
    found = None
    for paths, licence in annotations:
        if any(path.match(file) for path in paths):
            found = licence
    return found


def main():
    annotations = []
    for entry in tomllib.loads((ROOT / "REUSE.toml").read_text())["annotations"]:
        paths = entry["path"] if isinstance(entry["path"], list) else [entry["path"]]
        if not entry["SPDX-FileCopyrightText"]:
            sys.exit(f"{paths}: nobody owns it")
        annotations.append(([pattern(path) for path in paths], entry["SPDX-License-Identifier"]))
    listed = subprocess.run(["git", "-C", ROOT, "ls-files"], check=True, capture_output=True, text=True).stdout.split("\n")
    files = [file for file in listed if file and not file.startswith("LICENSES/")]
    licences = {file: licence_of(file, annotations) for file in files}
    faults = [f"{file}: no licence" for file, licence in licences.items() if licence is None]
    texts = {text.stem for text in (ROOT / "LICENSES").iterdir()}
    used = set(licences.values()) - {None}
    faults += [f"{licence}: no text in LICENSES" for licence in used - texts]
    faults += [f"{licence}: a text without use" for licence in texts - used]
    expected = {"src/main.cpp": "MIT", "assets/lvl/lvl1.dat": "CC-BY-4.0", "assets/music/jungle.ogg": "CC-BY-4.0",
                "assets/gfx/fonts/fnt_cour_8.png": "OFL-1.1", "art/fonts/make.py": "MIT"}
    faults += [f"{file}: {licences.get(file)}, not {licence}" for file, licence in expected.items()
               if licences.get(file) != licence]
    print("\n".join(faults) or f"{len(files)} files under {', '.join(sorted(used))}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
