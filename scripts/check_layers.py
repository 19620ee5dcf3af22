#!/usr/bin/env python3
"""Fails on any include that the house does not allow, and on components that include each other in
a ring: see docs/architecture.md. check_layers.py [ROOT] looks at the tree under ROOT."""

import re
import sys
from pathlib import Path

PORT_GROUND = "platform ground"
X11_GROUND = ["x11 ground", PORT_GROUND]
ZRK_BASE = ["zrk base"]
ZRK_TEXTURES = ["zrk textures"] + ZRK_BASE
ZRK_SHADERS = ["zrk shaders"] + ZRK_TEXTURES
ANYTHING = None

# Each room: its name, its files, and the rooms that it may include besides itself. The first match
# counts. A port is a folder under platform/, and includes of platform/ only the ground.
ROOMS = [
    ("x11 ground", r"platform/x11/(connection_watch|display|enlargement|glx_config|glx_extension"
     r"|keys|monitor_power|randr|render_scale|server_image|software_renderer|window_manager|xwayland)\.",
     [PORT_GROUND]),
    ("x11 top", r"platform/x11/(curtains|events|host_window|message_dialog|monitor_layout|port)\.",
     ["x11 records"] + X11_GROUND),
    ("x11 records", r"platform/x11/", X11_GROUND),
    ("windows calls", r"platform/windows/shell_calls\.", []),
    ("windows", r"platform/windows/", [PORT_GROUND]),
    (PORT_GROUND,
     r"platform/(back_buffer|desktop|frame_clock|gl_entry_points|held_releases|win32(_names)?)\.",
     ["windows calls"]),
    ("platform", r"platform/[^/]+$", [PORT_GROUND]),
    ("zrk textures", r"zrk/textures/", ZRK_BASE),
    ("zrk shaders", r"zrk/shaders/", ZRK_TEXTURES),
    ("zrk top", r"zrk/library_data\.", ZRK_SHADERS),
    ("zrk base", r"zrk/", []),
    ("surface", r"surface/", ["zrk shaders"] + ZRK_BASE),
    ("app", r"app/", ["surface", "zrk top", PORT_GROUND] + ZRK_SHADERS),
    ("caustics", r"tools/caustics/", []),
    ("tests", r"tests/", ANYTHING),
    ("bench", r"bench/", ANYTHING),
    ("fuzz", r"fuzz/", ANYTHING),
]

# Headers of other makers that have one way in.
GATES = {
    r"GL/(gl|glu|glext)\.h": r"zrk/gl\.h|platform/gl_entry_points\.h|platform/x11/|tests/|bench/",
    r"platform/windows/shell_calls\.h": r"platform/win32\.h",
    r"X11/|GL/glx|FL/": r"platform/x11/|tests/|bench/",
    r"windows\.h": r"zrk/gl\.h|platform/win32\.h",
}


def room_of(path):
    return next((room for room in ROOMS if re.match(room[1], path)), None)


def includes_of(root, path):
    """Line number, quote and target of each include."""
    lines = (root / path).read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        include = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', line)
        if include:
            yield number, *include.groups()


def forbidden(root, path):
    """The faults of a file: includes of rooms that it may not include, and of gated headers."""
    room = room_of(path)
    if room is None:
        yield f"{path}: is in no room"
        return
    name, _, allowed = room
    for number, quote, target in includes_of(root, path):
        wanted = room_of(target)
        if quote == '"' and wanted is None:
            yield f"{path}:{number}: \"{target}\" is not a path from the root"
        elif quote == '"' and allowed is not ANYTHING and wanted[0] not in [name] + allowed:
            yield f"{path}:{number}: {name} may not include {wanted[0]} ({target})"
        for header, door in GATES.items():
            if re.match(header, target) and not re.match(door, path):
                yield f"{path}:{number}: <{target}> comes in elsewhere: {door}"


def component_of(path):
    """A header and its source are one."""
    return re.sub(r"\.(h|cpp)$", "", path)


def ring_in(root, files):
    """One ring of components that include each other, as a list that ends where it begins; empty
    when there is none."""
    edges = {}
    for path in files:
        targets = {component_of(target) for _, quote, target in includes_of(root, path)
                   if quote == '"'}
        edges.setdefault(component_of(path), set()).update(targets - {component_of(path)})
    done = set()

    def search(component, way):
        if component in way:
            return way[way.index(component):] + [component]
        if component in done:
            return []
        for target in sorted(edges.get(component, ())):
            ring = search(target, way + [component])
            if ring:
                return ring
        done.add(component)
        return []

    return next(filter(None, (search(component, []) for component in sorted(edges))), [])


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    folders = ["app", "bench", "fuzz", "platform", "surface", "tests", "tools", "zrk"]
    files = [path.relative_to(root).as_posix() for folder in folders
             for path in sorted((root / folder).rglob("*")) if path.suffix in (".h", ".cpp")]
    faults = [fault for path in files for fault in forbidden(root, path)]
    ring = ring_in(root, [path for path in files if room_of(path)[2] is not ANYTHING])
    if ring:
        faults.append("a ring of includes: " + " -> ".join(ring))
    print("\n".join(faults) if faults else
          f"layers: {len(files)} files, every include allowed, no ring")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
