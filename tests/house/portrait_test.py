"""Has scripts/portrait.py take pictures of small stand-ins for the program, good ones and bad."""

import os
import subprocess
import sys
import tempfile
import textwrap
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
PORTRAIT = os.path.join(ROOT, "scripts", "portrait.py")

# A window of ImageMagick's with the given title and drawing, which leaves with the given code when
# it is asked to end.
STAND_IN = """\
#!/bin/sh
trap 'kill "$window"; exit {code}' TERM
display -title '{title}' {drawing} &
window=$!
wait
"""

MANY_COLOURS = "-size 400x300 gradient:red-blue"


class Portraits(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.picture = os.path.join(self.folder, "picture.png")

    def take(self, title="Quorvel - Stand-in", drawing=MANY_COLOURS, code=0, source=None, more=()):
        program = os.path.join(self.folder, "program")
        with open(program, "w", encoding="utf-8") as file:
            file.write(textwrap.dedent(source) if source else
                       STAND_IN.format(title=title, drawing=drawing, code=code))
        os.chmod(program, 0o755)
        result = subprocess.run(
            [sys.executable, PORTRAIT, "--program", program, "--project", "a.qvl", "--screen",
             "500x400", "--picture", self.picture, "--timeout", "4", "--closing", "3", *more],
            capture_output=True, text=True, check=False)
        return result.returncode, result.stdout + result.stderr

    def expect_failure(self, text, **stand_in):
        code, output = self.take(**stand_in)
        self.assertEqual(code, 1, output)
        self.assertIn(text, output)

    def test_a_window_that_comes_up_and_closes(self):
        code, output = self.take()
        self.assertEqual((code, output), (0, ""))
        with open(self.picture, "rb") as file:
            self.assertEqual(file.read(8), b"\x89PNG\r\n\x1a\n")

    def test_a_program_that_holds_too_much_memory(self):
        code, output = self.take(more=["--memory", "200"])
        self.assertEqual(code, 0, output)
        self.assertIn("MB resident (limit 200 MB)", output)
        self.expect_failure("MB, the limit is 0.1 MB", more=["--memory", "0.1"])

    def test_the_same_window_again(self):
        pictures = []
        for _ in range(2):
            self.take()
            with open(self.picture, "rb") as file:
                pictures.append(file.read())
        self.assertEqual(*pictures)

    def test_a_window_beside_it(self):
        code, output = self.take(source="""\
            #!/bin/sh
            trap 'kill $windows; exit 0' TERM
            display -title 'Tip of the day' -size 100x100 xc:white &
            windows=$!
            sleep 1
            display -title 'Quorvel - Närrisch' -size 400x300 gradient:red-blue &
            windows="$windows $!"
            wait
            """)
        self.assertEqual((code, output), (0, "    also on the screen: ['Tip of the day']\n"))

    def test_a_window_without_the_project(self):
        self.expect_failure("windows on the screen: ['Quorvel']", title="Quorvel")
        self.assertTrue(os.path.exists(self.picture))

    def test_a_window_with_a_title_in_other_letters(self):
        self.expect_failure("windows on the screen: ['quorvel - Stand-in']",
                            title="quorvel - Stand-in")

    def test_a_program_without_a_window(self):
        self.expect_failure("windows on the screen: []", source="""\
            #!/bin/sh
            exec sleep 60
            """)

    def test_a_blank_picture(self):
        self.expect_failure("the picture is blank", drawing="-size 400x300 xc:gray25")

    def test_a_picture_of_few_colours(self):
        self.expect_failure("the picture is blank", drawing="-size 400x300 pattern:checkerboard")

    def test_a_picture_that_is_nearly_all_of_one_colour(self):
        self.expect_failure("the picture is blank", drawing="-size 30x300 gradient:red-blue")

    def test_a_picture_of_an_earlier_start(self):
        with open(self.picture, "w", encoding="utf-8") as file:
            file.write("old")
        self.expect_failure("No such file", source="#!/no/such/shell\n")
        self.assertFalse(os.path.exists(self.picture))

    def test_a_program_that_does_not_close(self):
        self.expect_failure("the program did not end within", source="""\
            #!/bin/sh
            trap '' TERM
            display -title 'Quorvel - Stand-in' -size 400x300 gradient:red-blue &
            exec sleep 60
            """)

    def test_a_program_that_does_not_know_how_to_close(self):
        self.expect_failure("the program ended with -15", source="""\
            #!/bin/sh
            display -title 'Quorvel - Stand-in' -size 400x300 gradient:red-blue &
            exec sleep 60
            """)

    def test_a_program_that_closes_with_an_error(self):
        self.expect_failure("the program ended with 3", code=3)

    def test_a_program_that_ends_at_once(self):
        self.expect_failure("the program ended with 7 before its window came up", source="""\
            #!/bin/sh
            exit 7
            """)


if __name__ == "__main__":
    unittest.main()
