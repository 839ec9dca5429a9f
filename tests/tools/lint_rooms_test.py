#!/usr/bin/python3
"""Small houses, each with one fault: lint_rooms_test.py SOURCE-FOLDER"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LINT = Path(sys.argv.pop(1)) / "scripts/lint-rooms"
TABLE = "vela/low:\nvela/high: vela/low\ncircle: vela/low/knot vela/low/tie\n"
FILES = {
    "vela/low/floor.h": "",
    "vela/low/floor_win32.cpp": '#include "vela/low/floor.h"\n#include <windows.h>\n',
    "vela/low/knot.h": '#include "vela/low/tie.h"\n',
    "vela/low/tie.cpp": '#include "vela/low/knot.h"\n',
    "vela/high/roof.cpp": '#include "vela/low/floor.h"\n',
}


class LintRooms(unittest.TestCase):
    def lint(self, changed=None, table=TABLE, redraw=True):
        with tempfile.TemporaryDirectory() as folder:
            files = FILES | {"scripts/rooms.txt": table, "docs/architecture.md": "```mermaid\n```\n"} | (changed or {})
            for name, text in files.items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            if redraw:
                subprocess.run([LINT, "--picture", folder], check=True)
            run = subprocess.run([LINT, folder], text=True, stdout=subprocess.PIPE, check=False)
            return run.returncode, run.stdout

    def assert_fault(self, expected, *arguments, **named):
        code, output = self.lint(*arguments, **named)
        self.assertEqual(code, 1)
        self.assertIn(expected, output)
        self.assertEqual(len(output.splitlines()), 1, output)

    def test_a_sound_house_passes(self):
        self.assertEqual(self.lint()[0], 0)

    def test_an_arrow_upward(self):
        self.assert_fault("vela/low may not use vela/high (vela/high/sky.h)",
                          {"vela/low/floor_win32.cpp": '#include "vela/high/sky.h"\n'})
        self.assert_fault("vela/high, which does not stand before it",
                          {"vela/low/floor_win32.cpp": '#include "vela/high/sky.h"\n'},
                          TABLE.replace("vela/low:", "vela/low: vela/high"))

    def test_a_room_without_a_row(self):
        self.assert_fault("vela/attic is not in the table", {"vela/attic/box.h": ""})

    def test_a_row_that_nothing_uses(self):
        self.assert_fault("vela/high: the table lets it use vela/low, and nothing there does",
                          {"vela/high/roof.cpp": ""})

    def test_a_circle_of_units_counts_a_header_with_its_windows_half(self):
        self.assert_fault("a circle of units: vela/low/floor, vela/low/wall",
                          {"vela/low/floor_win32.cpp": '#include "vela/low/wall.h"\n',
                           "vela/low/wall.h": '#include "vela/low/floor.h"\n'})

    def test_a_picture_of_another_table(self):
        self.assert_fault("the picture is not that of the table", redraw=False)


if __name__ == "__main__":
    unittest.main()
