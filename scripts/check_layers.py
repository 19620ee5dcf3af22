#!/usr/bin/env python3
"""Fails on any include that the house does not allow: see docs/architecture.md."""

import re
import sys
from pathlib import Path

# Each room: where it lives, and the rooms it may include besides itself. The first match counts.
ROOMS = {
    "platform": (r"platform/", []),
    "zrk textures": (r"zrk/textures/", ["zrk base"]),
    "zrk shaders": (r"zrk/shaders/", ["zrk textures", "zrk base"]),
    "zrk top": (r"zrk/library_data\.", ["zrk shaders", "zrk textures", "zrk base"]),
    "zrk base": (r"zrk/", []),
    "surface": (r"surface/", ["zrk shaders", "zrk base"]),
    "app": (r"app/", ["surface", "zrk top", "zrk shaders", "zrk textures", "zrk base", "platform"]),
    "caustics": (r"tools/caustics/", []),
    "tests": (r"tests/", None),  # None: anything
    "bench": (r"bench/", None),
}

# Headers of other makers that have one way in.
GATES = {
    r"GL/(gl|glu|glext)\.h": r"zrk/gl\.h|platform/gl_entry_points\.h|platform/x11/|tests/|bench/",
    r"X11/|GL/glx|FL/": r"platform/x11/|tests/|bench/",
    r"windows\.h": r"zrk/gl\.h|platform/win32\.h",
}


def room_of(path):
    return next((name for name, (place, _) in ROOMS.items() if re.match(place, path)), None)


def faults_of(path):
    room = room_of(path)
    allowed = ROOMS[room][1] if room else None
    for number, line in enumerate(Path(path).read_text(encoding="utf-8").splitlines(), 1):
        include = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', line)
        if not include:
            continue
        quote, target = include.groups()
        if quote == '"':
            wanted = room_of(target)
            if wanted is None:
                yield f"{path}:{number}: \"{target}\" is not a path from the root"
            elif allowed is not None and wanted != room and wanted not in allowed:
                yield f"{path}:{number}: {room} may not include {wanted} ({target})"
        for header, door in GATES.items():
            if re.match(header, target) and not re.match(door, path):
                yield f"{path}:{number}: <{target}> comes in elsewhere: {door}"


def main():
    roots = sorted({place.split("/")[0] for place, _ in ROOMS.values()})
    files = [str(path) for root in roots for path in sorted(Path(root).rglob("*.[ch]*"))
             if path.suffix in (".h", ".cpp")]
    faults = [fault for path in files for fault in faults_of(path)]
    print("\n".join(faults) if faults else f"layers: {len(files)} files, every include allowed")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
