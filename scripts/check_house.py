#!/usr/bin/env python3
"""The house rules that a compiler does not know.

Prints one line for each fault, "file:line: what is wrong", and ends with 1 when there was one.
What the rules are for stands in docs/architecture.md; the table of floors and the table of units
that call the operating system are read from there.
"""

import argparse
import os
import posixpath
import re
import sys

import house_tree

LONGEST = 450
LENGTH_LIST = "scripts/long_files.txt"
ARCHITECTURE = "docs/architecture.md"

POSIX_HEADERS = {
    "aio.h", "dirent.h", "dlfcn.h", "fcntl.h", "fnmatch.h", "ftw.h", "glob.h", "grp.h", "iconv.h",
    "langinfo.h", "libgen.h", "netdb.h", "poll.h", "pthread.h", "pwd.h", "regex.h", "sched.h",
    "semaphore.h", "signal.h", "spawn.h", "strings.h", "syslog.h", "termios.h", "ucontext.h",
    "unistd.h", "utime.h", "wordexp.h",
}
POSIX_FOLDERS = ("arpa/", "linux/", "net/", "netinet/", "sys/")
# How an include of a floor beside src begins.
BESIDE = tuple(f"{name}/" for name in house_tree.BESIDE)
ASSETS = (".gif", ".ico", ".jpg", ".png", ".qrc", ".svg")


class House:
    def __init__(self, root):
        self.tree = house_tree.Tree(root)
        self.faults = []
        self.links = self.tree.floor_links()
        self.table = self.tree.floor_table(ARCHITECTURE)

    def fault(self, path, line, text):
        self.faults.append((path, line, text))

    def check(self):
        self.floors_match_table()
        self.includes()
        self.circles()
        self.operating_system()
        self.sources_are_built()
        self.lengths()
        self.assets()
        return sorted(set(self.faults))

    # -- floors ------------------------------------------------------------------------------

    def below(self, edges, floor):
        """All floors that `floor` stands on, directly or through another."""
        found, waiting = set(), [floor]
        while waiting:
            for name in edges.get(waiting.pop(), ()):
                if name not in found:
                    found.add(name)
                    waiting.append(name)
        return found

    def floors_match_table(self):
        if not self.table:
            self.fault(ARCHITECTURE, 1, "there is no table of floors")
        if not self.links:
            self.fault("src/CMakeLists.txt", 1, "there is no floor")
        # A floor that is planned stands in the table before it stands in the tree.
        table = {name: [below for below in row if below in self.links]
                 for name, row in self.table.items() if name in self.links}
        for floor in self.links:
            path = f"{self.tree.floor_folder(floor)}/CMakeLists.txt"
            if floor not in self.table:
                self.fault(path, 1, f"floor {floor} is not in the table of {ARCHITECTURE}")
                continue
            built, told = self.below(self.links, floor), self.below(table, floor)
            if floor in built:
                self.fault(path, 1, f"floor {floor} stands on itself")
            for name in sorted(built - told):
                self.fault(path, 1, f"{floor} is linked to {name}, but not in {ARCHITECTURE}")
            for name in sorted(told - built):
                self.fault(path, 1, f"{floor} stands on {name} in {ARCHITECTURE}, but is not "
                                    "linked to it")
        if "Qt" in self.tree.cmake_text("src/store/CMakeLists.txt"):
            self.fault("src/store/CMakeLists.txt", 1, "store is linked to Qt")
        for name in sorted(self.tree.folders("src")):
            if name not in self.links:
                self.fault(f"src/{name}", 1, "a folder below src that is not a floor")

    def floor_sources(self):
        return [path for top in ("src", *house_tree.BESIDE) for path in self.tree.sources(top)]

    def includes(self):
        for path in self.floor_sources():
            floor = self.tree.floor_of(path)
            allowed = {floor} | self.below(self.links, floor)
            if floor == "main":
                allowed = {"shell"}
            for line, quoted, name in self.tree.includes(path):
                if quoted:
                    self.quoted_include(path, line, name)
                folder = name.split("/")[0]
                if folder in self.links and "/" in name:
                    if not quoted:
                        self.fault(path, line, f"<{name}> is ours: it belongs in quotes")
                    if folder not in allowed:
                        self.fault(path, line, f"{floor} does not stand on {folder}: {name}")
                if floor == "store" and re.match(r"Q[A-Z]|Qt", name):
                    self.fault(path, line, f"store knows no Qt: {name}")
        for top in ("tests", "bench", "examples"):
            for path in self.tree.sources(top):
                for line, quoted, name in self.tree.includes(path):
                    if quoted:
                        self.quoted_include(path, line, name)

    def quoted_include(self, path, line, name):
        """A quoted include names folder and file, from src or, outside it, from the tests' helpers
        or the top folder of `path`."""
        stem = posixpath.splitext(posixpath.basename(path))[0]
        if name in (f"{stem}.moc", f"moc_{stem}.cpp"):
            return
        if "/" not in name:
            self.fault(path, line, f'"{name}" does not carry its folder')
        elif ".." in name.split("/") or name.startswith("/"):
            self.fault(path, line, f'"{name}" is not a path from the top')
        elif not (any(self.tree.exists(f"{top}/{name}") for top in self.include_tops(path)) or
                  (name.startswith(BESIDE) and self.tree.exists(name))):
            self.fault(path, line, f'"{name}" is not there')

    @staticmethod
    def include_tops(path):
        top = path.split("/")[0]
        return ("src",) if top in ("src", *house_tree.BESIDE) else ("src", "tests", top)

    # -- units -------------------------------------------------------------------------------

    def circles(self):
        """Header and source of one name are one unit; units must not include each other."""
        edges, where = {}, {}
        for path in self.floor_sources():
            unit = posixpath.splitext(path)[0]
            for line, quoted, name in self.tree.includes(path):
                file = name if name.startswith(BESIDE) else "src/" + name
                other = posixpath.splitext(file)[0]
                if quoted and other != unit and self.tree.exists(file):
                    edges.setdefault(unit, set()).add(other)
                    where.setdefault((unit, other), (path, line))
        for unit in sorted(edges):
            for other in sorted(edges[unit]):
                # Told once, at the unit that comes first in the alphabet.
                if unit in self.below(edges, other) and unit == min(self.ring(edges, unit)):
                    path, line = where[unit, other]
                    ring = ", ".join(sorted(self.ring(edges, unit)))
                    self.fault(path, line, f"units include each other in a circle: {ring}")

    def ring(self, edges, unit):
        return {unit} | {name for name in self.below(edges, unit)
                         if unit in self.below(edges, name)}

    def operating_system(self):
        allowed = self.tree.system_units(ARCHITECTURE)
        used = set()
        for top in ("src", "examples", "player"):
            for path in self.tree.sources(top):
                for line, quoted, name in self.tree.includes(path):
                    if quoted or not (name in POSIX_HEADERS or name.startswith(POSIX_FOLDERS)):
                        continue
                    if path in allowed:
                        used.add(path)
                    else:
                        self.fault(path, line, f"<{name}> is not portable, and {ARCHITECTURE} "
                                               "does not list this unit")
        for path in sorted(set(allowed) - used):
            self.fault(ARCHITECTURE, allowed[path], f"{path} includes no system header any more")

    def sources_are_built(self):
        for top in ("src", "tests", "bench", "examples", "player"):
            built = self.tree.built_sources(top)
            for path in self.tree.sources(top):
                if path.endswith(".cpp") and path not in built:
                    self.fault(path, 1, "no CMakeLists.txt builds this file")

    def lengths(self):
        excused = self.tree.excuses(LENGTH_LIST)
        for path, (line, reason) in excused.items():
            if not reason:
                self.fault(LENGTH_LIST, line, f"{path} is listed without a reason")
            if not self.tree.exists(path):
                self.fault(LENGTH_LIST, line, f"{path} is not there")
            elif len(self.tree.lines(path)) <= LONGEST:
                self.fault(LENGTH_LIST, line, f"{path} is not too long any more")
        for top in ("src", "tests", "bench", "examples", "player", "scripts"):
            for path in self.tree.files(top, (".cpp", ".h", ".def", ".py", ".sh")):
                count = len(self.tree.lines(path))
                if count > LONGEST and path not in excused:
                    self.fault(path, count, f"{count} lines, more than {LONGEST}: split it")

    # -- assets ------------------------------------------------------------------------------

    def assets(self):
        resources = set()
        for path in self.tree.files(".", (".qrc",)):
            for line, resource, file in self.tree.resources(path):
                resources.add(resource)
                if not self.tree.exists(file):
                    self.fault(path, line, f"{file} is not there")
        for path in self.tree.cmake_lists():
            for line, word in self.tree.cmake_words(path):
                if word.endswith(ASSETS) and "*" not in word and "${" not in word:
                    if not self.tree.exists(word):
                        self.fault(path, line, f"{word} is not there")
        for top in ("src", "tests", "bench", "player"):
            for path in self.tree.sources(top):
                for line, name in self.tree.resource_names(path):
                    if name not in resources:
                        self.fault(path, line, f'":{name}" is in no resource file')
        for path in self.tree.files("help", (".html",)):
            for line, link in self.tree.links(path):
                target = posixpath.normpath(posixpath.join(posixpath.dirname(path), link))
                if not self.tree.exists(target):
                    self.fault(path, line, f"{link} is not there")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", default=os.path.join(os.path.dirname(__file__), ".."))
    options = parser.parse_args()
    faults = House(options.root).check()
    for path, line, text in faults:
        print(f"{path}:{line}: {text}")
    if faults:
        print(f"{len(faults)} house rule(s) broken")
        return 1
    print("    The house is in order.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
