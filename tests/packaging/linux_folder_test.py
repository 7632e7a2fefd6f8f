"""Holds what the scripts of the delivery do by themselves: their tables, the licences and the bytes of an archive."""

import os
import pathlib
import subprocess
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]


def ended_script(*lines, **surroundings):
    """The end of a shell that has read the functions of packaging/linux."""
    words = "\n".join([f". {TOP}/packaging/linux", *lines])
    return subprocess.run(["bash", "-c", words], capture_output=True, text=True, env=os.environ | surroundings)


class Scripts(unittest.TestCase):
    def test_are_read_without_a_word(self):
        for script in "run", "test", "bench/run", "packaging/common.sh", "packaging/linux":
            with self.subTest(script):
                ended = subprocess.run(["bash", "-n", TOP / script], capture_output=True, text=True)
                self.assertEqual((ended.returncode, ended.stderr), (0, ""))


class LeftToTheSystem(unittest.TestCase):
    def is_left(self, library):
        return ended_script(f"is_left_to_system {library}").returncode == 0

    def test_is_what_fits_its_c_library_and_its_display(self):
        for name in "libc.so.6", "ld-linux-x86-64.so.2", "libm.so.6", "libstdc++.so.6", "libX11.so.6", "libxcb.so.1":
            self.assertTrue(self.is_left(f"/lib/x86_64-linux-gnu/{name}"), name)

    def test_is_not_what_a_bare_system_lacks(self):
        for name in ("libQt6Core.so.6", "libxcb-icccm.so.4", "libxcb-util.so.1", "libcap.so.2", "libmd.so.0",
                     "libsqlite3.so.0", "libOpenGL.so.0", "libX11-extra.so.1", "libcrypt.so.1"):
            self.assertFalse(self.is_left(f"/lib/x86_64-linux-gnu/{name}"), name)


class Licences(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.place = pathlib.Path(directory.name)

    def test_come_with_the_texts_that_they_name(self):
        ended = ended_script(f"take_licence bash {self.place}")
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertEqual((self.place / "bash.txt").read_bytes(), pathlib.Path("/usr/share/doc/bash/copyright").read_bytes())
        self.assertEqual((self.place / "texts/GPL-3").read_bytes(),
                         pathlib.Path("/usr/share/common-licenses/GPL-3").read_bytes())

    def test_are_demanded_of_every_package(self):
        ended = ended_script(f"take_licence no-such-package {self.place}")
        self.assertNotEqual(ended.returncode, 0)
        self.assertIn("no-such-package has no licence", ended.stderr)

    def test_are_demanded_of_a_library_that_no_package_brought(self):
        library = self.place / "libown.so.1"
        library.touch()
        ended = ended_script(f"origin=$(package_of {library})", "echo taken")
        self.assertEqual((ended.returncode != 0, ended.stdout), (True, ""))
        self.assertIn("comes from no package", ended.stderr)

    def test_belong_to_the_package_of_a_library(self):
        library = next(pathlib.Path("/usr/lib").glob("*/libsqlite3.so.0"))
        self.assertEqual(ended_script(f"package_of {library}").stdout, "libsqlite3-0\n")


class Archive(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.place = pathlib.Path(directory.name)

    def packed(self, names, time, mask):
        """An archive of small files that were made in this order, then and by such a person."""
        archive = self.place / f"{time}.tar.xz"
        folder = self.place / str(time) / "quelar"
        (folder / "results").mkdir(parents=True)
        for name in names:
            (folder / name).write_text(name, encoding="utf-8")
            (folder / name).chmod(0o777 & ~mask)
            os.utime(folder / name, (time, time))
            if os.geteuid() == 0:  # anybody else makes files of another owner than root as it is
                os.chown(folder / name, time % 1000 + 1000, 1000)
        ended = ended_script(f"pack {folder} {archive}", SOURCE_DATE_EPOCH="1000000000")
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        return archive

    def test_is_the_same_whoever_packs_it_and_when(self):
        first = self.packed(["quelar", "b.txt", "a.txt"], 1_100_000_000, 0o022).read_bytes()
        self.assertEqual(self.packed(["a.txt", "b.txt", "quelar"], 1_200_000_002, 0o077).read_bytes(), first)
        self.assertNotEqual(self.packed(["a.txt", "c.txt", "quelar"], 1_300_000_000, 0o077).read_bytes(), first)

    def test_lists_its_files_by_name_not_as_they_lie(self):
        names = [f"{number * 37 % 50:02}.txt" for number in range(50)]
        archive = self.packed(names, 1_100_000_000, 0o022)
        listed = subprocess.run(["tar", "-tf", archive], capture_output=True, text=True, check=True).stdout.splitlines()
        self.assertEqual(listed, ["quelar/", *(f"quelar/{name}" for name in sorted(names)), "quelar/results/"])


if __name__ == "__main__":
    unittest.main()
