"""The program is killed, and the disk fails it, at every call that changes a file of the database while children are
saved. What was confirmed stays, what was not is said, and the next start works. With --long every kind of fault comes
at every call of two saves; else the kinds of failing disk take turns over the calls of one."""

import itertools
import sys
import unittest

from desk import Desk, enrolling

LONG = "--long" in sys.argv
NAMES = ["SECOND", "THIRD"] if LONG else ["SECOND"]
NEXT = "NEXT"

KEY_REFUSED = r"^-2147217873 Violation of PRIMARY KEY constraint"
TOLD = (
    r"^-2147467259 The database file \S*/ZQR\.db can't be used: disk I/O error\.$"
    r"|^-2147467259 The disk of the database file \S*/ZQR\.db is full\. Nothing of this statement was stored\.$"
    rf"|{KEY_REFUSED}"
)
COUNTER_BEHIND = "ZQR.db: The counter ENROLL_NO stands at "


class Saves(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.base = cls.enterClassContext(Desk())

    def calls(self, kind=""):
        with Desk(self.base) as desk:
            calls = desk.calls_of(enrolling(NAMES), kind)
        self.assertGreater(calls, 20)
        return range(1, calls + 1)

    def require_sound(self, desk, seen):
        """The next start saves at once, or is told of the number in use and saves once the counter is mended."""
        again = desk.play(enrolling([NEXT]))
        check = desk.setup("check")
        if again.saved != [NEXT]:
            self.assertEqual(len(again.errors), 1, again.output)
            self.assertRegex(again.errors[0], KEY_REFUSED)
            self.assertIn(COUNTER_BEHIND, check.stdout)
            desk.setup("check", "--repair")
            check = desk.setup("check")
            self.assertEqual(desk.play(enrolling([NEXT])).saved, [NEXT])
        self.assertEqual((check.stdout, check.returncode), ("All is well.\n", 0))
        stored = sorted(desk.children().values())
        confirmed = {Desk.FIRST, NEXT, *seen.saved}
        self.assertEqual(len(stored), len(set(stored)), "a child stands twice")
        self.assertLessEqual(confirmed, set(stored))
        # Of one save at a time it can be that nobody was told how it ended.
        self.assertLessEqual(set(stored) - confirmed, set(NAMES))
        self.assertLessEqual(len(set(stored) - confirmed), 1)

    def inject(self, kind, call, require):
        with self.subTest(kind=kind, call=call), Desk(self.base) as desk:
            seen = desk.play(enrolling(NAMES), {"FAULT_KIND": kind, "FAULT_AT": str(call)})
            require(seen)
            self.require_sound(desk, seen)

    def test_killed_at_every_call(self):
        calls, writes = self.calls(), self.calls("tear")
        for call in calls:
            self.inject("kill", call, lambda seen: self.assertTrue(seen.killed))
        for call in writes:
            self.inject("tear", call, lambda seen: self.assertTrue(seen.killed))
        print(f"faults: {len(calls) + len(writes)} kills survived, {len(writes)} of them amid a write")

    def require_told(self, seen):
        self.assertFalse(seen.killed, seen.output)
        if seen.saved != NAMES:
            self.assertTrue(seen.errors, seen.output)
        for error in seen.errors:
            self.assertRegex(error, TOLD)

    def test_a_disk_that_fails_at_every_call(self):
        kinds = ("io", "full", "short")
        calls = self.calls()
        faults = list(itertools.product(kinds, calls) if LONG else zip(itertools.cycle(kinds), calls))
        for kind, call in faults:
            self.inject(kind, call, self.require_told)
        with Desk(self.base) as desk:
            seen = desk.play(enrolling(NAMES), {"FAULT_KIND": "io", "FAULT_AT": str(len(calls) + 1)})
            self.assertEqual(seen.saved, NAMES)
        print(f"faults: {len(faults)} calls failed by a full disk, a short write, an I/O error")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
