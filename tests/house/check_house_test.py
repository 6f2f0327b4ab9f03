"""Plants each fault that the house checks look for and expects it to be told."""

import os
import sys
import tempfile
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path.insert(0, os.path.join(ROOT, "scripts"))

import check_house  # noqa: E402  (the path above has to come first)

ARCHITECTURE = """
| Floor | Folder | What lives there | Stands on |
| --- | --- | --- | --- |
| 1 | `src/store/` | records | nothing |
| 2 | `src/forms/` | windows | store |
| 3 | `src/canvas/` | the scene | forms |
| 4 | `src/shell/` | the rest | all |
| – | `player/` | the player | store |

| Unit | Headers | Why |
| --- | --- | --- |
| `src/store/disk.cpp` | unistd.h | free space |
"""

# A small tree without a fault.
HOUSE = {
    "docs/architecture.md": ARCHITECTURE,
    "src/CMakeLists.txt": "add_subdirectory(store)\nadd_executable(q main.cpp)\n",
    "src/main.cpp": '#include "shell/shell.h"\n',
    "src/store/CMakeLists.txt": "quorvel_floor(store\n    SOURCES disk.cpp file.cpp  # both\n)\n",
    "src/store/disk.h": "#include <string>\n",
    "src/store/disk.cpp": '#include "store/disk.h"\n\n#include <unistd.h>\n',
    "src/store/file.h": '#include "store/disk.h"\n',
    "src/store/file.cpp": '#include "store/file.h"\n',
    "src/forms/CMakeLists.txt":
        "quorvel_floor(forms\n    SOURCES form.cpp ${PROJECT_SOURCE_DIR}/assets/a.qrc\n"
        "    STANDS_ON quorvel_store Qt6::Widgets)\n",
    "src/forms/form.cpp":
        '#include <QWidget>\n#include "store/file.h"\nauto icon = ":/icons/open.svg";\n',
    "src/canvas/CMakeLists.txt":
        "quorvel_floor(canvas SOURCES view.cpp STANDS_ON quorvel_forms)\n",
    "src/canvas/view.cpp": '#include "store/file.h"\n',
    "src/shell/CMakeLists.txt":
        "quorvel_floor(shell SOURCES shell.cpp STANDS_ON quorvel_canvas)\n",
    "src/shell/shell.h": "",
    "src/shell/shell.cpp": '#include "shell/shell.h"\n#include "shell.moc"\n',
    "player/CMakeLists.txt":
        "quorvel_floor(player SOURCES game.cpp STANDS_ON quorvel_store)\n"
        "add_executable(game main.cpp)\n",
    "player/game.h": '#include "store/file.h"\n',
    "player/game.cpp": '#include "player/game.h"\n',
    "player/main.cpp": '#include "player/game.h"\n',
    "tests/CMakeLists.txt": "quorvel_test(store SOURCES file_test.cpp)\n",
    "tests/file_test.cpp": '#include "store/file.h"\n#include "support/folder.h"\n',
    "tests/support/folder.h": "#include <sys/stat.h>\n",
    "assets/a.qrc":
        '<RCC><qresource prefix="/">\n<file>icons/open.svg</file>\n</qresource></RCC>\n',
    "assets/icons/open.svg": "<svg/>",
    "help/index.html": '<a href="index.html#top">top</a> <a href="https://example.org/">web</a>\n',
    "scripts/long_files.txt": "# none\n",
}


class PlantedFaults(unittest.TestCase):
    def faults(self, files):
        """What is told of the tree with some files changed; None removes a file."""
        files = HOUSE | files
        with tempfile.TemporaryDirectory() as root:
            for path, text in files.items():
                if text is not None:
                    target = os.path.join(root, path)
                    os.makedirs(os.path.dirname(target), exist_ok=True)
                    with open(target, "w", encoding="utf-8") as file:
                        file.write(text)
            return [f"{path}: {text}" for path, _, text in check_house.House(root).check()]

    def expect(self, fault, files):
        """Exactly one fault is told, and it is this one."""
        self.assertEqual(self.faults(files), [fault])

    def test_a_house_in_order_has_no_fault(self):
        self.assertEqual(self.faults({}), [])

    def test_a_player_that_knows_the_editor(self):
        self.expect("player/main.cpp: player does not stand on shell: shell/shell.h",
                    {"player/main.cpp": '#include "shell/shell.h"\n'})
        self.expect("src/shell/shell.cpp: shell does not stand on player: player/game.h",
                    {"src/shell/shell.cpp": '#include "player/game.h"\n'})

    def test_a_player_that_is_linked_to_the_editor(self):
        self.expect("player/CMakeLists.txt: player is linked to forms, but not in "
                    "docs/architecture.md",
                    {"player/CMakeLists.txt":
                     "quorvel_floor(player SOURCES game.cpp STANDS_ON quorvel_forms)\n"
                     "add_executable(game main.cpp)\n"})

    def test_a_source_of_the_player_that_is_not_built(self):
        self.expect("player/game.cpp: no CMakeLists.txt builds this file",
                    {"player/CMakeLists.txt":
                     "quorvel_floor(player STANDS_ON quorvel_store)\n"
                     "add_executable(game main.cpp)\n"})

    def test_units_of_the_player_in_a_circle(self):
        self.expect("player/game.cpp: units include each other in a circle: "
                    "player/game, player/main",
                    {"player/game.cpp": '#include "player/main.h"\n',
                     "player/main.h": '#include "player/game.h"\n'})

    def test_an_include_that_climbs(self):
        self.expect("src/store/file.cpp: store does not stand on forms: forms/look.h",
                    {"src/store/file.cpp": '#include "forms/look.h"\n', "src/forms/look.h": ""})

    def test_main_knows_the_shell_alone(self):
        self.expect("src/main.cpp: main does not stand on store: store/file.h",
                    {"src/main.cpp": '#include "shell/shell.h"\n#include "store/file.h"\n'})

    def test_a_link_that_the_table_does_not_know(self):
        self.assertIn(
            "src/forms/CMakeLists.txt: forms is linked to media, but not in docs/architecture.md",
            self.faults({
                "docs/architecture.md": ARCHITECTURE + "| 2 | `src/media/` | sound | store |\n",
                "src/media/CMakeLists.txt": "quorvel_floor(media STANDS_ON quorvel_store)\n",
                "src/forms/CMakeLists.txt":
                    "quorvel_floor(forms SOURCES form.cpp STANDS_ON quorvel_media)\n"}))

    def test_a_row_of_the_table_that_is_not_linked(self):
        self.expect("src/canvas/CMakeLists.txt: canvas stands on forms in docs/architecture.md, "
                    "but is not linked to it",
                    {"src/canvas/CMakeLists.txt":
                         "quorvel_floor(canvas SOURCES view.cpp STANDS_ON quorvel_store)\n",
                     "src/shell/CMakeLists.txt": "quorvel_floor(shell SOURCES shell.cpp STANDS_ON "
                                                 "quorvel_canvas quorvel_forms)\n"})

    def test_a_floor_that_the_table_does_not_know(self):
        self.assertIn("src/cellar/CMakeLists.txt: floor cellar is not in the table of "
                      "docs/architecture.md",
                      self.faults({"src/cellar/CMakeLists.txt": "quorvel_floor(cellar)"}))

    def test_a_house_without_a_table(self):
        self.assertIn("docs/architecture.md: there is no table of floors",
                      self.faults({"docs/architecture.md": None}))

    def test_units_in_a_circle(self):
        self.expect("src/store/disk.cpp: units include each other in a circle: src/store/disk, "
                    "src/store/file",
                    {"src/store/disk.cpp":
                         '#include "store/disk.h"\n#include "store/file.h"\n#include <unistd.h>\n'})

    def test_an_include_without_its_folder(self):
        self.expect('src/store/file.cpp: "file.h" does not carry its folder',
                    {"src/store/file.cpp": '#include "file.h"\n'})

    def test_an_include_that_goes_up(self):
        self.expect('src/store/file.cpp: "store/../store/file.h" is not a path from the top',
                    {"src/store/file.cpp": '#include "store/../store/file.h"\n'})

    def test_an_include_of_nothing(self):
        self.expect('tests/file_test.cpp: "store/gone.h" is not there',
                    {"tests/file_test.cpp": '#include "store/gone.h"\n'})

    def test_our_header_in_angle_brackets(self):
        self.expect("src/canvas/view.cpp: <store/file.h> is ours: it belongs in quotes",
                    {"src/canvas/view.cpp": "#include <store/file.h>\n"})

    def test_qt_in_the_store(self):
        for header in ("QString", "QtCore/QString", "QtGlobal"):
            self.expect(f"src/store/file.cpp: store knows no Qt: {header}",
                        {"src/store/file.cpp": f"#include <{header}>\n"})

    def test_qt_in_the_links_of_the_store(self):
        self.expect("src/store/CMakeLists.txt: store is linked to Qt",
                    {"src/store/CMakeLists.txt":
                         "quorvel_floor(store SOURCES disk.cpp file.cpp STANDS_ON Qt6::Core)"})

    def test_a_system_header_in_a_unit_that_is_not_listed(self):
        for header in ("unistd.h", "sys/stat.h", "signal.h"):
            self.expect(f"src/store/file.cpp: <{header}> is not portable, and "
                        "docs/architecture.md does not list this unit",
                        {"src/store/file.cpp": f"#include <{header}>\n"})

    def test_a_listed_unit_that_is_portable_again(self):
        self.expect("docs/architecture.md: src/store/disk.cpp includes no system header any more",
                    {"src/store/disk.cpp": ""})

    def test_a_source_that_nobody_builds(self):
        for path in ("src/store/spare.cpp", "tests/spare_test.cpp"):
            self.expect(f"{path}: no CMakeLists.txt builds this file", {path: ""})

    def test_a_file_that_is_too_long(self):
        self.expect("src/forms/form.cpp: 451 lines, more than 450: split it",
                    {"src/forms/form.cpp": "//\n" * 451})

    def test_a_long_file_with_a_reason(self):
        listed = {"src/forms/form.cpp": "//\n" * 451}
        self.assertEqual([], self.faults(listed | {
            "scripts/long_files.txt": "src/forms/form.cpp  # one table\n"}))
        self.expect("scripts/long_files.txt: src/forms/form.cpp is listed without a reason",
                    listed | {"scripts/long_files.txt": "src/forms/form.cpp\n"})

    def test_a_listed_file_that_is_short_again(self):
        self.expect("scripts/long_files.txt: src/forms/form.cpp is not too long any more",
                    {"scripts/long_files.txt": "src/forms/form.cpp  # one table\n"})

    def test_a_resource_file_that_is_not_there(self):
        self.expect("assets/a.qrc: assets/icons/open.svg is not there",
                    {"assets/icons/open.svg": None})

    def test_a_resource_that_the_program_names_in_vain(self):
        self.expect('src/forms/form.cpp: ":/icons/close.svg" is in no resource file',
                    {"src/forms/form.cpp": 'auto icon = ":/icons/close.svg";\n'})

    def test_an_icon_that_is_named_in_vain(self):
        self.expect('src/forms/form.cpp: ":/icons/close.svg" is in no resource file',
                    {"src/forms/form.cpp":
                         'auto a = icon(QStringLiteral("open")), b = icon(u"close"_s);\n'})

    def test_a_resource_collection_that_is_not_there(self):
        self.expect("src/canvas/CMakeLists.txt: src/canvas/b.qrc is not there",
                    {"src/canvas/CMakeLists.txt":
                         "quorvel_floor(canvas SOURCES view.cpp b.qrc STANDS_ON quorvel_forms)\n"})

    def test_a_help_page_that_is_not_there(self):
        self.expect("help/index.html: links.html is not there",
                    {"help/index.html": '<a href="links.html">Links</a>\n'})


if __name__ == "__main__":
    unittest.main()
