"""Two desks and eight, each a copy of the program, save on one database file at once: whatever was told as saved is a
row of its own number, whatever was refused was told and is no row, and nothing else goes wrong. A few seconds each,
with --long a minute."""

import itertools
import re
import sys
import time
import unittest

from desk import Desk, enrolling

SECONDS = 60 if "--long" in sys.argv else 4
# What one start of the program saves before it is started again.
SAVES = 25

# Of two who have read the same number the second is told that it is in use.
NUMBER_IN_USE = re.compile(
    r"^-2147217873 Violation of PRIMARY KEY constraint 'PK_Enroll_Master'\. Cannot insert duplicate key in object "
    r"'dbo\.Enroll_Master'\. The duplicate key value is \(A\d+\)\.$"
)
# A file that stays busy longer than it is waited for. When it is the counter's turn the row stands already; when it is
# the turn of the blocks after a save, their list stays empty and the next child is asked for one.
FILE_IN_USE = re.compile(
    r"^-2147467259 The database file \S*/ZQR\.db is in use by another program\. Try again in a moment\.$"
)
NO_BLOCKS = "Please Select Block !!!"


class Desks(unittest.TestCase):
    def start(self, desk, number, turn):
        return desk.start(enrolling(f"D{number}T{turn}N{child}" for child in range(SAVES)))

    def save_at_once(self, count):
        with Desk() as desk:
            end = time.monotonic() + SECONDS
            running = [self.start(desk, number, 0) for number in range(count)]
            sessions = []
            for turn in itertools.count(1):
                sessions += [desk.finish(each) for each in running]
                if time.monotonic() > end:
                    break
                running = [self.start(desk, number, turn) for number in range(count)]
            self.require_all_kept(desk, sessions)
            saved = sum(len(seen.saved) for seen in sessions)
            refused = sum(len(set(seen.refused) - set(seen.saved)) for seen in sessions)
            self.assertEqual(saved + refused, SAVES * len(sessions), "a save of which nothing was told")
            self.assertGreater(saved, SAVES)
            waits = sum(1 for seen in sessions for error in seen.errors if FILE_IN_USE.match(error))
            print(f"desks: {count} desks, {saved} saves, {refused} refused and told so, {waits} waits in vain")

    def require_all_kept(self, desk, sessions):
        saved = {Desk.FIRST}
        unsure = set()
        for seen in sessions:
            saved |= set(seen.saved)
            was_in_use = False
            for name, error in zip(seen.refused, seen.errors, strict=True):
                if FILE_IN_USE.match(error):
                    unsure.add(name)
                    was_in_use = True
                elif error != NO_BLOCKS or not was_in_use:
                    self.assertRegex(error, NUMBER_IN_USE)
        # The numbers are the keys of what is read here, so a row is one of its own number.
        stored = list(desk.children().values())
        self.assertEqual(len(stored), len(set(stored)), "a child stands twice")
        self.assertLessEqual(saved, set(stored))
        self.assertLessEqual(set(stored), saved | unsure)
        if not unsure:
            self.assertEqual(desk.setup("check").stdout, "All is well.\n")

    def test_two_desks(self):
        self.save_at_once(2)

    def test_eight_desks(self):
        self.save_at_once(8)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
