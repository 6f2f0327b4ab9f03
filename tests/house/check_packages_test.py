"""Leaves packages out of the list and expects scripts/check_packages.sh to miss them."""

import os
import re
import subprocess
import tempfile
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))

BUILD = """
rule compile
  command = c++ -MD -MF $out.d -c $in -o $out
  depfile = $out.d
  deps = gcc
build a.o: compile a.cpp
"""


class MissingPackages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def check(self, *options, without=None):
        """Exit code and output of the check with a list that lacks one package."""
        with open(os.path.join(ROOT, "packages.txt"), encoding="utf-8") as file:
            packages = file.read()
        if without:
            packages, count = re.subn(rf"(?m)^{re.escape(without)}\s.*\n", "", packages)
            self.assertEqual(count, 1, f"{without} is not in packages.txt")
        result = subprocess.run(
            [os.path.join(ROOT, "scripts", "check_packages.sh"), "--packages",
             self.write("packages.txt", packages), *options],
            capture_output=True, text=True, check=False)
        return result.returncode, result.stdout + result.stderr

    def build(self):
        """A tiny tree that includes a header of libgif-dev, and its program."""
        self.write("build.ninja", BUILD)
        source = self.write("a.cpp", "#include <gif_lib.h>\nint main() { return 0; }\n")
        program = os.path.join(self.folder, "a.out")
        subprocess.run(["ninja", "-C", self.folder], check=True, capture_output=True)
        subprocess.run(["c++", source, "-o", program, "-Wl,--no-as-needed", "-lgif"], check=True)
        return ["--build", self.folder, "--program", program]

    def test_the_tools_of_the_scripts_are_on_the_list(self):
        code, output = self.check("--tools-only")
        self.assertEqual(code, 0, output)

    def test_a_tool_that_is_not_on_the_list(self):
        code, output = self.check("--tools-only", without="xvfb")
        self.assertEqual(code, 1)
        self.assertIn("/usr/bin/Xvfb (the scripts) belongs to xvfb, which packages.txt", output)

    def test_a_header_and_a_library_that_are_not_on_the_list(self):
        options = self.build()
        code, output = self.check(*options)
        self.assertEqual(code, 0, output)
        code, output = self.check(*options, without="libgif-dev")
        self.assertEqual(code, 1)
        self.assertIn("/usr/include/gif_lib.h (the sources) belongs to libgif-dev", output)
        self.assertRegex(output, r"libgif\.so\.\d \(a\.out\) belongs to libgif7")

    def test_a_package_of_the_program_that_is_marked_for_the_tests(self):
        options = self.build()
        with open(os.path.join(ROOT, "packages.txt"), encoding="utf-8") as file:
            packages = file.read()
        marked, count = re.subn(r"(?m)^(libgif-dev\s+#) ", r"\1 test: ", packages)
        self.assertEqual(count, 1)
        code, output = self.check(*options, "--packages", self.write("marked.txt", marked))
        self.assertEqual(code, 1)
        self.assertIn("/usr/include/gif_lib.h (the program) belongs to libgif-dev, which packages.txt "
                      "marks as not needed by it", output)
        self.assertNotIn("(the sources)", output)

    def test_a_plug_in_that_is_not_on_the_list(self):
        options = self.build()
        with open(os.path.join(ROOT, "packages.txt"), encoding="utf-8") as file:
            names = [line for line in file if not re.match(r"qt6-svg-dev|libqt6svg6", line)]
        code, output = self.check(*options, "--packages", self.write("few.txt", "".join(names)))
        self.assertEqual(code, 1)
        self.assertRegex(output, r"libqsvgicon\.so \(Qt\) belongs to libqt6svg6|"
                                 r"libqsvg\.so \(Qt\) belongs to libqt6svg6")

    def test_a_build_that_is_not_there(self):
        code, output = self.check("--build", os.path.join(self.folder, "none"))
        self.assertEqual(code, 1)
        self.assertIn("No header was found", output)

    def test_a_program_that_is_not_there(self):
        options = self.build()[:2]
        code, output = self.check(*options, "--program", os.path.join(self.folder, "none"))
        self.assertEqual(code, 1)
        self.assertIn("There is no ", output)


if __name__ == "__main__":
    unittest.main()
