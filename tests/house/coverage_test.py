"""What ./test --coverage prints is added up here from a summary of known numbers."""

import os
import sys
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path.insert(0, os.path.join(ROOT, "scripts"))

import coverage  # noqa: E402  (the path above has to come first)


class Coverage(unittest.TestCase):
    def test_a_floor_is_the_folder_below_src(self):
        self.assertEqual(coverage.floor_of("src/store/records.cpp"), "src/store")
        self.assertEqual(coverage.floor_of("src/shell/help/window.cpp"), "src/shell")
        self.assertEqual(coverage.floor_of("src/main.cpp"), "src")
        self.assertEqual(coverage.floor_of("player/game.cpp"), "player")

    def test_lines_are_added_up_by_floor(self):
        floors = coverage.lines_by_floor({"files": [
            {"filename": "src/store/a.cpp", "line_covered": 3, "line_total": 4},
            {"filename": "src/store/deep/b.cpp", "line_covered": 1, "line_total": 6},
            {"filename": "player/c.cpp", "line_covered": 0, "line_total": 5}]})
        self.assertEqual(dict(floors), {"src/store": [4, 10], "player": [0, 5]})


if __name__ == "__main__":
    unittest.main()
