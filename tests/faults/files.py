"""Database files that can't be used: each is refused with its own words, stays as it is, and serves the next start once
the reason has gone."""

import contextlib
import shutil
import sqlite3
import time
import unittest

from desk import START, Desk, enrolling

REFUSED = r"^-2147467259 The database file \S*/{} {}\.$"
READ_ONLY = REFUSED.format(r"ZQR\.db", r"can't be written: the file or its folder is read-only for this user")
IN_USE = REFUSED.format(r"ZQR\.db", r"is in use by another program\. Try again in a moment")
NEWER = REFUSED.format(r"ZQR\.db", r"was made by a newer version of the program \(schema 999, this program knows \d+\)")
DAMAGED = REFUSED.format(r"ZQR\.db", r"is damaged: .*\. Restore the last saved copy")
NO_DATABASE = r"^-2147467259 The file \S*/ZQR\.db is not a database of this program\.$"
# SQLite takes a page that the disk no longer gives for a damaged one.
UNREADABLE = REFUSED.format(
    r"ward\.db", r"(can't be used: disk I/O error|is damaged: .*\. Restore the last saved copy)"
)
CLOSED = r"^3709 The connection cannot be used"

# Somewhat longer than the program waits for a file.
LONGEST_WAIT = 8

# The report of each child's diagnoses, which are asked from the hospital child by child.
HOSPITAL_REPORT = """user "MEENA"
open Form3
date DTPicker1 05/01/2016
date DTPicker2 05/31/2016
pick Combo1 "MOTIPUR"
click Command1
"""
HOSPITAL_ROWS = """hospital sql insert into icd_code_master values('H52','MYOPIA')
hospital sql insert into medical_record_dtl values('M-1','H52'),('M-2','H52'),('M-3','H52')
sql update Enroll_Master set Mr_No='M-1'
"""
WITH_DIAGNOSIS = 'expect cell 6 22 "MYOPIA"\n'


class Files(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())

    def require_refused(self, seen, text):
        self.assertEqual(len(seen.errors), 1, seen.output)
        self.assertRegex(seen.errors[0], text)

    def require_next_start(self, name="NEXT"):
        self.assertEqual(self.desk.play(START).errors, [])
        self.assertEqual(self.desk.play(enrolling([name])).saved, [name])
        self.assertEqual(self.desk.setup("check").stdout, "All is well.\n")
        self.assertLessEqual({Desk.FIRST, name}, set(self.desk.children().values()))

    def refuses(self, text):
        """A start that is refused and leaves the file byte for byte."""
        before = self.desk.screening.read_bytes()
        self.require_refused(self.desk.play(START), text)
        self.assertEqual(self.desk.screening.read_bytes(), before)

    def test_the_files_and_their_saved_copies_are_their_owners_alone(self):
        with Desk(umask=0) as desk:
            self.assertEqual(desk.setup("backup", desk.data / "copy.db", umask=0).returncode, 0)
            self.assertEqual(desk.setup("backup", desk.data / "ward-copy.db", "--hospital", umask=0).returncode, 0)
            self.assertEqual(desk.play(enrolling(["NEXT"]), umask=0).saved, ["NEXT"])
            rights = {path.name: oct(path.stat().st_mode & 0o777) for path in desk.data.iterdir()}
        self.assertLessEqual({"ZQR.db", "ZQR.db-journal", "ward.db", "copy.db", "ward-copy.db"}, set(rights))
        self.assertEqual(set(rights.values()), {"0o600"}, rights)

    def test_a_read_only_file_or_folder(self):
        desk = self.desk
        desk.give_to_other(desk.data, *desk.data.iterdir())
        for path, closed, opened in ((desk.screening, 0o400, 0o600), (desk.data, 0o500, 0o700)):
            with self.subTest(path=path.name):
                path.chmod(closed)
                before = desk.screening.read_bytes()
                self.require_refused(desk.play_as_other(START), READ_ONLY)
                self.assertEqual(desk.screening.read_bytes(), before)
                path.chmod(opened)
                self.assertEqual(desk.play_as_other(START).errors, [])
        self.require_next_start()

    def test_a_locked_file_is_waited_for_and_then_refused(self):
        desk = self.desk
        with contextlib.closing(sqlite3.connect(desk.screening, isolation_level=None)) as other:
            began = time.monotonic()
            for lock, lines in (("exclusive", START), ("immediate", enrolling(["LOCKED"]))):
                other.execute(f"begin {lock}")
                seen = desk.play(lines)
                other.execute("rollback")
                self.require_refused(seen, IN_USE)
                self.assertNotIn("LOCKED", seen.saved)
            self.assertLess(time.monotonic() - began, 2 * LONGEST_WAIT)
            other.execute("begin immediate")
            started = desk.start(enrolling(["WAITED"]))
            time.sleep(1)
            other.execute("rollback")
            self.assertEqual(desk.finish(started).saved, ["WAITED"])
        self.require_next_start()
        self.assertNotIn("LOCKED", desk.children().values())

    def test_a_file_of_a_newer_schema(self):
        with contextlib.closing(sqlite3.connect(self.desk.screening, isolation_level=None)) as file:
            known = file.execute("pragma user_version").fetchone()[0]
            file.execute("pragma user_version=999")
            self.refuses(NEWER)
            file.execute(f"pragma user_version={known}")
        self.require_next_start()

    def test_a_damaged_page_and_the_saved_copy(self):
        desk = self.desk
        copy = desk.root / "copy.db"
        self.assertEqual(desk.setup("backup", copy).returncode, 0)
        with contextlib.closing(sqlite3.connect(desk.screening)) as file:
            size = file.execute("pragma page_size").fetchone()[0]
            page = file.execute("select rootpage from sqlite_schema where name='Enroll_Master'").fetchone()[0]
        with open(desk.screening, "r+b") as file:
            file.seek((page - 1) * size)
            file.write(b"\x5a" * size)
        seen = desk.play(enrolling(["ON DAMAGED"]))
        self.assertEqual(seen.saved, [])
        self.assertTrue(seen.errors)
        for error in seen.errors:
            self.assertRegex(error, DAMAGED)
        check = desk.setup("check", "--repair")
        self.assertEqual(check.returncode, 1)
        self.assertIn("ZQR.db: The file is damaged. Restore a backup.\n", check.stdout)
        shutil.copy(copy, desk.screening)
        self.require_next_start()

    def test_a_file_that_is_torn_off_or_none(self):
        whole = self.desk.screening.read_bytes()
        for size, text in ((len(whole) // 2, DAMAGED), (10, NO_DATABASE), (0, NO_DATABASE)):
            with self.subTest(size=size):
                self.desk.screening.write_bytes(whole[:size])
                seen = self.desk.play(START)
                self.assertTrue(seen.errors)
                self.assertRegex(seen.errors[0], text)
                self.desk.screening.write_bytes(whole)
        self.require_next_start()

    def test_the_hospital_database_gone_in_the_middle_of_a_report(self):
        desk = self.desk
        self.assertEqual(desk.play(HOSPITAL_ROWS).errors, [])
        whole = HOSPITAL_REPORT + WITH_DIAGNOSIS
        watched = {"FAULT_FILES": str(desk.hospital)}
        calls = desk.calls_of(whole, "gone", desk.hospital)
        self.assertGreater(calls, 3)
        before = desk.hospital.read_bytes()
        for call in range(1, calls + 1):
            with self.subTest(call=call):
                fault = watched | {"FAULT_KIND": "gone", "FAULT_AT": str(call)}
                seen = desk.play(HOSPITAL_REPORT, fault)
                self.assertTrue(seen.errors, seen.output)
                self.assertRegex(seen.errors[0], UNREADABLE)
                for error in seen.errors[1:]:
                    self.assertRegex(error, CLOSED)
                self.assertEqual(desk.hospital.read_bytes(), before)
        again = desk.play(whole)
        self.assertTrue(again.output.endswith("1 passed, 0 failed\n"), again.output)
        self.require_next_start()
        print(f"faults: the hospital database gone at each of {calls} readings")


if __name__ == "__main__":
    unittest.main()
