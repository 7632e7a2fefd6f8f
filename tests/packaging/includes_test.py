"""Plants includes in a copy of the program's sources and looks at what the check of the drawing says."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]


def ended_check(src):
    return subprocess.run([sys.executable, TOP / "packaging/includes.py", src], capture_output=True, text=True)


class Includes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        directory = tempfile.TemporaryDirectory()
        cls.addClassCleanup(directory.cleanup)
        cls.src = pathlib.Path(directory.name) / "src"
        shutil.copytree(TOP / "src", cls.src)

    def change(self, file, changed):
        """Changes the text of a file in the copy for one test."""
        path = self.src / file
        text = path.read_text(encoding="utf-8")
        self.addCleanup(path.write_text, text, encoding="utf-8")
        self.assertNotEqual(changed(text), text)
        path.write_text(changed(text), encoding="utf-8")

    def plant(self, file, *lines):
        self.change(file, lambda text: "\n".join(lines) + "\n" + text)

    def assert_said(self, *lines):
        ended = ended_check(self.src)
        said = ended.stdout.replace(str(self.src), "src")
        expected = (1 if lines else 0, "".join(line + "\n" for line in lines), "")
        self.assertEqual((ended.returncode, said, ended.stderr), expected)

    def assert_refused(self, rule, file, *lines):
        self.plant(file, *lines)
        self.assert_said(*(f"src/{file}:{number}: {line.strip()}: {rule}" for number, line in enumerate(lines, 1)))

    def test_says_nothing_about_the_sources_as_they_are(self):
        self.assert_said()

    def test_refuses_a_room_above_however_the_include_is_written(self):
        self.assert_refused("the room files does not link the room runtime_forms", "runtime/files/files.h",
                            '#include "runtime/forms/desktop.h"', '  #  include   "runtime/forms/boxes.h"  // why',
                            "#include <runtime/forms/control.h>", '#include "../forms/design.h"')

    def test_refuses_a_room_beside(self):
        self.assert_refused("the room commuter does not link the room commercial",
                            "commuter/chain.cpp", '#include "commercial/form3.h"')

    def test_refuses_the_list_of_events_to_a_screen(self):
        self.assert_refused("the room shell does not link the room event_table",
                            "shell/module1.cpp", '#include "event_table.h"')

    def test_refuses_what_lies_behind_a_face(self):
        self.assert_refused("the room engine is used by its face alone: database.h, recordset.h, workspace.h",
                            "runtime/forms/grid/cell_text.cpp", '#include "runtime/engine/connection.h"',
                            '#include "runtime/engine/dialect/like.h"',
                            '#include "runtime/engine/text_driver/text_reader.h"')

    def test_allows_what_is_linked_through_others_a_face_and_what_lies_in_the_own_room(self):
        self.plant("commuter/chain.cpp", '#include "runtime/text/numbers.h"', '#include "runtime/engine/database.h"')
        self.plant("runtime/engine/text_driver/text_layout.cpp", '#include "runtime/engine/dialect/like.h"')
        self.plant("commuter/market.cpp", '#include "form3.h"')
        self.plant("main.cpp", '#include "commercial/form3.h"')
        self.assert_said()

    def test_passes_over_what_is_no_file_of_the_program(self):
        self.plant("runtime/files/files.cpp", "#include <sqlite3.h>", '#include "gone.h"',
                   '// #include "shell/module1.h"')
        self.assert_said()

    def test_goes_by_the_lists(self):
        self.change("runtime/files/CMakeLists.txt", lambda text: text.replace("quelar_fault quelar_text", "quelar_fault"))
        ended = ended_check(self.src)
        self.assertEqual(ended.returncode, 1)
        rules = {line.rpartition(": ")[2] for line in ended.stdout.splitlines()}
        self.assertEqual(rules, {"the room files does not link the room text"})

    def test_refuses_rooms_that_link_each_other(self):
        self.change("database/CMakeLists.txt", lambda text: text.replace("LINKS ", "LINKS quelar_forms "))
        self.assert_said(*(f"src/{room}/CMakeLists.txt: the room {room} links itself through others"
                           for room in ("database", "forms")))

    def test_refuses_a_file_of_no_room(self):
        stray = self.src / "stray.cpp"
        self.addCleanup(stray.unlink)
        stray.write_text('#include "shell/module1.h"\n', encoding="utf-8")
        self.assert_said("src/stray.cpp: it belongs to no room")

    def test_does_not_take_a_directory_without_rooms_for_a_good_one(self):
        ended = ended_check(self.src / "runtime" / "engine" / "dialect")
        self.assertEqual((ended.returncode, ended.stdout), (1, ""))


if __name__ == "__main__":
    unittest.main()
