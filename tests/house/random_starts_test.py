"""Has scripts/random_starts.py start and end small stand-ins for the program, good ones and bad."""

import os
import subprocess
import sys
import tempfile
import textwrap
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
SCRIPT = os.path.join(ROOT, "scripts", "random_starts.py")


class RandomStarts(unittest.TestCase):
    def play(self, source, *more):
        """Two starts of the stand-in `source`; the script's exit code and what it wrote."""
        with tempfile.TemporaryDirectory() as folder:
            program = os.path.join(folder, "program")
            with open(program, "w", encoding="utf-8") as file:
                file.write("#!/bin/sh\n" + textwrap.dedent(source))
            os.chmod(program, 0o755)
            result = subprocess.run(
                [sys.executable, SCRIPT, "--program", program, "--count", "2", "--seed", "1",
                 "--load", "0", "--latest", "2", "--closing", "2", "--deaf", "2", *more],
                capture_output=True, text=True, check=False)
            return result.returncode, result.stdout + result.stderr

    def expect_failure(self, text, source, *more):
        code, output = self.play(source, *more)
        self.assertEqual(code, 1, output)
        self.assertIn(text, output)
        self.assertIn("2 starts (seed 1): ", output)
        self.assertIn("2 failed", output)

    def test_one_that_ends_when_it_is_asked_to(self):
        code, output = self.play("exec sleep 60\n", "--ways", "signal", "kill")
        self.assertEqual(code, 0, output)
        self.assertIn("0 failed", output)

    def test_one_whose_window_is_closed(self):
        # The window takes the request by itself and ends with 0.
        code, output = self.play("exec display -title Quorvel -size 300x200 xc:gray\n",
                                 "--ways", "close")
        self.assertEqual(code, 0, output)

    def test_one_that_does_not_hear_a_signal(self):
        self.expect_failure("did not end within 2 s", """\
            trap '' TERM
            while :; do sleep 1; done
            """, "--ways", "signal")

    def test_one_without_a_window_to_close(self):
        self.expect_failure("did not end within 2 s", "exec sleep 60\n", "--ways", "close")

    def test_one_that_ends_by_itself(self):
        self.expect_failure("ended by itself with 3", "exit 3\n")

    def test_one_that_ends_with_a_failure(self):
        self.expect_failure("ended with 4", """\
            trap 'exit 4' TERM
            while :; do sleep 0.1; done
            """, "--ways", "signal")

    def test_one_that_shows_a_box(self):
        self.expect_failure("windows: ['Warning']",
                            "exec display -title Warning -size 300x200 xc:gray\n",
                            "--ways", "close")

    def test_one_that_complains(self):
        self.expect_failure("said: ['quorvel: Oh.']", """\
            trap 'echo quorvel: Oh. >&2; exit 0' TERM
            while :; do sleep 0.1; done
            """, "--ways", "signal")


if __name__ == "__main__":
    unittest.main()
