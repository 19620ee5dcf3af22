"""The guard of the layers notices what it is there for."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

GUARD = Path(__file__).resolve().parents[2] / "scripts" / "check_layers.py"

SOUND = {
    "platform/frame_clock.h": "",
    "platform/windows.cpp": '#include "platform/frame_clock.h"\n',
    "platform/x11/refresh_period.h": '#include "platform/frame_clock.h"\n#include <X11/Xlib.h>\n',
    "platform/x11/port.cpp": '#include "platform/x11/refresh_period.h"\n',
    "surface/field.h": "",
    "surface/balls.h": "",
    "surface/field.cpp": '#include "surface/field.h"\n#include "surface/balls.h"\n',
}


class CheckLayers(unittest.TestCase):
    def faults(self, **changes):
        """What the guard says of the sound tree with these files changed; empty for no fault."""
        with tempfile.TemporaryDirectory() as root:
            for path, text in (SOUND | changes).items():
                (Path(root) / path).parent.mkdir(parents=True, exist_ok=True)
                (Path(root) / path).write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, GUARD, root], capture_output=True, text=True)
        return run.stdout if run.returncode else ""

    def test_a_sound_tree_has_no_fault(self):
        self.assertEqual(self.faults(), "")

    def test_each_planted_fault_is_named(self):
        for path, include, said in [
            ("platform/windows.cpp", "platform/x11/refresh_period.h", "may not include x11 records"),
            ("platform/x11/refresh_period.h", "platform/x11/events.h", "may not include x11 top"),
            ("surface/balls.cpp", "surface/field.h", "surface/balls -> surface/field"),
        ]:
            with self.subTest(path):
                self.assertIn(said, self.faults(**{path: f'#include "{include}"\n'}))


if __name__ == "__main__":
    unittest.main()
