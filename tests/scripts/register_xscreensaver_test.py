"""Registering with XScreenSaver changes the saver's own entry and nothing else."""

import os
import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "register_xscreensaver.sh"
LIST = 'mode: one\nselected: 1\nprograms: \\\n  GL: "Other" other \\n\\\n%s\ntimeout: 5\n'
ENTRY = '  GL: "Quazo"  quazo -s  \\n\\\n'


class RegisterXscreensaver(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.settings = Path(folder.name) / "settings"

    def start(self, action):
        return subprocess.Popen([SCRIPT, action], text=True, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE,
                                env=os.environ | {"XSCREENSAVER_SETTINGS": str(self.settings)})

    def run_script(self, action):
        """Standard error, then the status."""
        process = self.start(action)
        return process.communicate()[1], process.returncode

    def test_runs_at_the_same_time_add_one_entry_at_the_end_of_the_list(self):
        self.settings.write_text(LIST % "")
        self.settings.chmod(0o640)
        if os.geteuid() == 0:
            os.chown(self.settings, 1234, 1234)
        before = self.settings.stat()
        for process in [self.start("add") for _ in range(8)]:
            self.assertEqual(process.wait(), 0)
            process.communicate()
        self.assertEqual(self.settings.read_text(), LIST % ENTRY)
        after = self.settings.stat()
        self.assertEqual((after.st_uid, after.st_gid, stat.S_IMODE(after.st_mode)),
                         (before.st_uid, before.st_gid, 0o640))

    def test_only_our_own_entry_is_taken_out_however_it_is_spaced(self):
        users = '  GL: "Quazo" /home/me/bin/quazo -s --window-id 1 \\n\\\n# "Quazo"\n'
        for entry in [ENTRY, '- GL:\t\t\t\t"Quazo"  quazo /s\t\t\t    \\n\\\n']:
            self.settings.write_text(LIST % (entry + users))
            self.assertEqual(self.run_script("remove"), ("", 0))
            self.assertEqual(self.settings.read_text(), LIST % users)

    def test_what_is_no_file_is_refused_with_a_line(self):
        for make, clear, said in [
            (self.settings.mkdir, self.settings.rmdir, "is not a file"),
            (lambda: self.settings.symlink_to("nowhere"), self.settings.unlink, "a link to nothing"),
        ]:
            make()
            self.assertRegex(str(self.run_script("add")), rf"^\('[^\n]*{said}\\n', 1\)$")
            clear()
        self.assertEqual(self.run_script("add"), ("", 0))
        self.assertIn(ENTRY, self.settings.read_text())


if __name__ == "__main__":
    unittest.main()
