"""A workbook is written over an older one while the program is killed, the disk fails it, the file is open or read-only:
at every moment the old one or the new one is there, whole, and nothing else stays behind."""

import pathlib
import resource
import shutil
import tempfile
import unittest

from desk import SCENARIOS, Desk

EXPORT = """play "{scenarios}/reports/consolidation.steps"
pick Combo1 "{kind}"
click Command1
save-as "{file}"
click Command4
"""
READ_BACK = 'expect workbook "{file}" cell 1 2 "Lanvik Eye Institute"\n'
FAILED = ["75 Path/File access error"]

# Where between the first byte and the last the writing ends.
STEPS = 8


def export(file, kind, scenarios=SCENARIOS):
    return EXPORT.format(scenarios=scenarios, kind=kind, file=file)


def room_for(size):
    """What lets the program write files of that size and no more."""
    return {"preexec_fn": lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))}


class Workbooks(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(Desk())

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(dir=self.desk.root)))

    def export(self, file, kind="HOSPITAL", **options):
        return self.desk.play(export(file, kind), on_files=False, **options)

    def old_workbook(self, name):
        file = self.folder / name
        self.assertEqual(self.export(file, "VISION CENTER").errors, [])
        return file, file.read_bytes()

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())

    def require_next_write(self, file, old):
        seen = self.desk.play(export(file, "HOSPITAL") + READ_BACK.format(file=file), on_files=False)
        self.assertTrue(seen.output.endswith("1 passed, 0 failed\n"), seen.output)
        self.assertNotEqual(file.read_bytes(), old)
        self.assertEqual(self.names(), [file.name])
        file.write_bytes(old)

    def test_killed_and_failed_amid_the_writing(self):
        killed = failed = 0
        for name in ("report.xls", "report.xlsx"):
            file, old = self.old_workbook(name)
            self.export(self.folder / ("whole-" + name))
            whole = self.folder / ("whole-" + name)
            size = whole.stat().st_size
            whole.unlink()
            for room in range(0, size, size // STEPS + 1):
                with self.subTest(name=name, room=room):
                    # A program that passes the limit gets a signal that kills it, unless it is ignored.
                    seen = self.export(file, **room_for(room))
                    self.assertTrue(seen.killed, seen.output)
                    killed += 1
                    self.assertEqual(file.read_bytes(), old)
                    seen = self.export(file, restore_signals=False, **room_for(room))
                    failed += 1
                    self.assertEqual(seen.errors, FAILED, seen.output)
                    self.assertEqual(file.read_bytes(), old)
                    self.require_next_write(file, old)
            file.unlink()
        print(f"faults: {killed} kills and {failed} full disks amid the writing of a workbook")

    def test_killed_and_failed_as_the_new_one_takes_its_place(self):
        file, old = self.old_workbook("report.xls")
        watched = {"FAULT_FILES": str(self.folder)}
        calls = self.desk.calls_of(export(file, "VISION CENTER"), files=self.folder, on_files=False)
        self.assertGreaterEqual(calls, 2)
        for call in range(1, calls + 1):
            for kind in ("kill", "io", "full"):
                with self.subTest(kind=kind, call=call):
                    fault = watched | {"FAULT_KIND": kind, "FAULT_AT": str(call)}
                    seen = self.export(file, fault=fault)
                    self.assertTrue(seen.killed if kind == "kill" else seen.errors == FAILED, seen.output)
                    self.assertEqual(file.read_bytes(), old)
                    self.require_next_write(file, old)
        print(f"faults: {3 * calls} kills and failures as a workbook takes its place")

    def test_over_an_open_one(self):
        file, old = self.old_workbook("report.xls")
        with open(file, "rb") as reader:
            begun = reader.read(100)
            self.assertEqual(self.export(file).errors, [])
            self.assertEqual(begun + reader.read(), old)
        self.require_next_write(file, old)

    def test_over_a_read_only_one_and_in_a_read_only_folder(self):
        file, old = self.old_workbook("report.xls")
        self.desk.give_to_other(self.folder, file)
        # Where the tree is, another user may not look.
        scenarios = self.desk.root / "scenarios"
        shutil.copytree(SCENARIOS, scenarios)
        for path, closed, opened in ((file, 0o400, 0o600), (self.folder, 0o500, 0o700)):
            with self.subTest(path=path.name):
                path.chmod(closed)
                seen = self.desk.play_as_other(export(file, "HOSPITAL", scenarios), on_files=False)
                self.assertEqual(seen.errors, FAILED, seen.output)
                self.assertEqual(file.read_bytes(), old)
                path.chmod(opened)
        self.assertEqual(self.names(), [file.name])
        self.require_next_write(file, old)


if __name__ == "__main__":
    unittest.main()
