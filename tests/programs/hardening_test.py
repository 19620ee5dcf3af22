"""The program was built and linked so that a memory error ends it. Its path is the argument."""

import os
import platform
import subprocess
import sys

PROGRAM = sys.argv[1]
X86 = platform.machine() == "x86_64"

# A command, what it must print of the program, and how often at least.
EXPECTED = [
    (["readelf", "-hW"], "DYN (Position-Independent Executable file)", 1),
    (["readelf", "-lW"], "GNU_RELRO", 1),
    (["readelf", "-dW"], "NOW PIE", 1),
    (["readelf", "-sW"], "__stack_chk_fail", 1),
    (["readelf", "-sW"], "_chk@GLIBC", 2),  # of fortified calls; the first is the one above
    # Where a function may be jumped to; the system's start-up objects have two.
    *([(["objdump", "-d"], "endbr64", 100)] if X86 else []),
]


def output(command):
    english = os.environ | {"LC_ALL": "C"}
    return subprocess.run(
        command + [PROGRAM], capture_output=True, text=True, check=True, env=english
    ).stdout


missing = [text for command, text, least in EXPECTED if output(command).count(text) < least]
sys.exit(f"{PROGRAM} lacks: {', '.join(missing)}" if missing else 0)
