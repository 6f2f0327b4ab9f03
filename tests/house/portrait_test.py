"""Has scripts/portrait.py take pictures of small stand-ins for the program, good ones and bad."""

import os
import subprocess
import sys
import tempfile
import textwrap
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
PORTRAIT = os.path.join(ROOT, "scripts", "portrait.py")

# A window without any toolkit: scripts/x11.py knows how to talk to the server. It has the given
# title, stripes or nothing in it, and leaves with the given code when it is asked to close.
STAND_IN = """\
#!/usr/bin/env python3
import os, struct, sys
sys.path.insert(0, {scripts!r})
import x11
display = x11.Display(os.environ["DISPLAY"].lstrip(":"))
window, context = display.id_base + 1, display.id_base + 2
display._send(1, struct.pack("<IIhhHHHHII", window, display.root, 0, 0, 400, 300, 0, 1, 0, 2)
              + struct.pack("<I", 0x404040))
def set_property(name, kind, bits, data):
    body = struct.pack("<IIIBxxxI", window, display._atom(name), kind, bits, len(data) * 8 // bits)
    display._send(18, body + data + bytes(-len(data) % 4))
set_property("WM_NAME", 31, 8, {title!r}.encode())
set_property("WM_PROTOCOLS", 4, 32, struct.pack("<I", display._atom("WM_DELETE_WINDOW")))
display._send(8, struct.pack("<I", window))
for x in range({stripes}):
    display._send(55, struct.pack("<IIII", context + x, window, 4, x * 0x10305))
    display._send(70, struct.pack("<IIhhHH", window, context + x, x, 0, 1, 300))
display._atom("drawn")
display._socket.settimeout(None)
while display._receive(32)[0] & 127 != 33:
    pass
if {obeys}:
    sys.exit({code})
while True:
    display._receive(32)
"""


class Portraits(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.picture = os.path.join(self.folder, "picture.png")

    def take(self, title="Quorvel - Stand-in", stripes=400, obeys=True, code=0, source=None):
        program = os.path.join(self.folder, "program")
        with open(program, "w", encoding="utf-8") as file:
            file.write(source or STAND_IN.format(scripts=os.path.join(ROOT, "scripts"), title=title,
                                                 stripes=stripes, obeys=obeys, code=code))
        os.chmod(program, 0o755)
        result = subprocess.run(
            [sys.executable, PORTRAIT, "--program", program, "--project", "a.qvl", "--screen",
             "500x400", "--picture", self.picture, "--timeout", "4", "--closing", "3"],
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

    def test_a_window_without_the_project(self):
        self.expect_failure("windows on the screen: ['Quorvel']", title="Quorvel")

    def test_a_blank_picture(self):
        self.expect_failure("the picture is blank", stripes=0)

    def test_a_program_that_does_not_close(self):
        self.expect_failure("the program did not end within", obeys=False)

    def test_a_program_that_closes_with_an_error(self):
        self.expect_failure("the program ended with 3", code=3)

    def test_a_program_that_ends_at_once(self):
        self.expect_failure("the program ended with 7 before its window came up",
                            source=textwrap.dedent("""\
                                #!/bin/sh
                                exit 7
                                """))


if __name__ == "__main__":
    unittest.main()
