"""Reads what the house rules are about out of the files of a tree. Paths are relative to its top
and have forward slashes."""

import os
import posixpath
import re
import xml.etree.ElementTree

_SKIPPED = {".git", "build"}
_INCLUDE = re.compile(r'\s*#\s*include\s*(["<])([^">]+)[">]')
_RESOURCE = re.compile(r'"(?:qrc)?:(/[^"%\s]*\.\w+)"')
# The two routines of src/forms/look.h that make such a name from a short one.
_SHORT_NAME = re.compile(r'\b(icon|stockPicture)\((?:QStringLiteral\()?u?"([\w-]+)"')
_SHORT_NAME_FOLDERS = {"icon": "/icons/", "stockPicture": "/stock/"}
_LINK = re.compile(r'(?:src|href)="([^"#:]+)(?:#[^"]*)?"')
_FLOOR = re.compile(r"quorvel_floor\s*\(\s*(\w+)([^)]*)\)")
# Floors that are no part of the editor and so stand beside src.
BESIDE = ("player",)


class Tree:
    def __init__(self, root):
        self.root = os.path.realpath(root)
        self._paths = []
        for folder, folders, files in os.walk(self.root):
            folders[:] = sorted(set(folders) - _SKIPPED)
            inside = os.path.relpath(folder, self.root).replace(os.sep, "/")
            for name in sorted(files):
                self._paths.append(name if inside == "." else f"{inside}/{name}")
        self._known = set(self._paths)

    def exists(self, path):
        return posixpath.normpath(path) in self._known

    def files(self, top, endings):
        start = "" if top == "." else top + "/"
        return [path for path in self._paths if path.startswith(start) and path.endswith(endings)]

    def sources(self, top):
        return self.files(top, (".cpp", ".h", ".def"))

    def folders(self, top):
        """Folders directly below `top` that have files in them."""
        return {path.split("/")[1] for path in self._paths
                if path.startswith(top + "/") and path.count("/") > 1}

    def text(self, path):
        with open(os.path.join(self.root, path), encoding="utf-8") as file:
            return file.read()

    def lines(self, path):
        return self.text(path).splitlines()

    def includes(self, path):
        """(line, whether in quotes, name) of each include."""
        for number, line in enumerate(self.lines(path), 1):
            match = _INCLUDE.match(line)
            if match:
                yield number, match[1] == '"', match[2]

    def resource_names(self, path):
        """(line, name without the colon) of each whole name of a compiled-in resource."""
        for number, line in enumerate(self.lines(path), 1):
            for match in _RESOURCE.finditer(line):
                yield number, match[1]
            for match in _SHORT_NAME.finditer(line):
                yield number, f"{_SHORT_NAME_FOLDERS[match[1]]}{match[2]}.svg"

    def links(self, path):
        """(line, target) of each link and picture that stays on this disk."""
        for number, line in enumerate(self.lines(path), 1):
            for match in _LINK.finditer(line):
                yield number, match[1]

    # -- CMake -------------------------------------------------------------------------------

    def cmake_lists(self):
        return [path for path in self._paths
                if posixpath.basename(path) == "CMakeLists.txt" or path.endswith(".cmake")]

    def cmake_text(self, path):
        """Without comments; empty when there is no such file."""
        return re.sub(r"#.*", "", self.text(path)) if self.exists(path) else ""

    def cmake_words(self, path):
        """(line, word), a file name made relative to the top as far as its variables are known."""
        here = posixpath.dirname(path)
        tops = ("${PROJECT_SOURCE_DIR}/", "${CMAKE_SOURCE_DIR}/")
        for number, line in enumerate(self.cmake_text(path).splitlines(), 1):
            for word in re.findall(r'[^\s()"]+', line):
                for top in tops:
                    if word.startswith(top):
                        break
                else:
                    top = "${CMAKE_CURRENT_SOURCE_DIR}/"
                    word = posixpath.join(here, word[len(top):] if word.startswith(top) else word)
                    top = ""
                yield number, posixpath.normpath(word[len(top):])

    def built_sources(self, top):
        return {word for path in self.cmake_lists() if path.startswith(top + "/")
                for _, word in self.cmake_words(path)}

    def floor_folder(self, floor):
        return floor if floor in BESIDE else f"src/{floor}"

    def floor_of(self, path):
        """The floor that a source lies in; "main" for one right below src."""
        steps = path.split("/")
        if steps[0] in BESIDE:
            return steps[0]
        return steps[1] if len(steps) > 2 else "main"

    def floor_links(self):
        """Floor -> floors of its link list, from the CMakeLists.txt of each floor."""
        links = {}
        beside = "|".join(BESIDE)
        for path in self._paths:
            if re.fullmatch(rf"(src/\w+|{beside})/CMakeLists\.txt", path):
                for match in _FLOOR.finditer(self.cmake_text(path)):
                    links[match[1]] = _stands_on(match[2])
        return links

    # -- tables and lists --------------------------------------------------------------------

    def floor_table(self, path):
        """Floor -> floors it stands on, from the rows "| 3 | `src/forms/` | ... | store, media |"
        of a Markdown file. "nothing" is none, "all" is every other floor below src."""
        table = {}
        for cells in self._rows(path):
            folder = re.fullmatch(r"`(src/)?(\w+)/`", cells[1]) if len(cells) >= 4 else None
            if folder and (folder[1] or folder[2] in BESIDE):
                table[folder[2]] = re.findall(r"\w+", cells[-1])
        for floor, names in table.items():
            if names == ["all"]:
                table[floor] = [name for name in table if name not in (floor, *BESIDE)]
            elif names == ["nothing"]:
                table[floor] = []
        return table

    def system_units(self, path):
        """File -> line, from the rows "| `src/x/y.cpp` | headers | reason |"."""
        units = {}
        if self.exists(path):
            for number, line in enumerate(self.lines(path), 1):
                match = re.match(r"\|\s*`((?:src|examples)/[\w/.]+\.(?:cpp|h))`\s*\|", line)
                if match:
                    units[match[1]] = number
        return units

    def excuses(self, path):
        """File -> (line, reason), from lines "file  # reason"."""
        found = {}
        if self.exists(path):
            for number, line in enumerate(self.lines(path), 1):
                name, _, reason = line.partition("#")
                if name.strip():
                    found[name.strip()] = (number, reason.strip())
        return found

    def resources(self, path):
        """(line, name in the program, file) of each entry of a resource collection."""
        here = posixpath.dirname(path)
        lines = self.lines(path)
        for group in xml.etree.ElementTree.fromstring(self.text(path)).iter("qresource"):
            for entry in group.iter("file"):
                name = entry.text.strip()
                number = next((n for n, line in enumerate(lines, 1) if name + "<" in line), 1)
                inside = posixpath.join("/", group.get("prefix", "/"), entry.get("alias", name))
                yield number, inside, posixpath.normpath(posixpath.join(here, name))

    def _rows(self, path):
        if self.exists(path):
            for line in self.lines(path):
                if line.startswith("|"):
                    yield [cell.strip() for cell in line.strip().strip("|").split("|")]


def _stands_on(arguments):
    """The floors behind STANDS_ON in the arguments of quorvel_floor."""
    floors, inside = [], False
    for word in arguments.split():
        if re.fullmatch(r"[A-Z][A-Z_]+", word):
            inside = word == "STANDS_ON"
        elif inside and word.startswith("quorvel_"):
            floors.append(word[len("quorvel_"):])
    return floors
