"""What the readers share: the samples, the comparison of what was read with what the model held, the outcome."""

import json
import pathlib
import sys

SKIPPED = 77


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def samples(extension):
    """Each sample file with the description of its model."""
    folder = pathlib.Path(sys.argv[1])
    for description in sorted(folder.glob("*.json")):
        with open(description, encoding="utf-8") as file:
            yield description.with_suffix(extension), json.load(file)


class Comparison:
    """Collects what differs; a few differences are enough to see what is wrong."""

    SHOWN = 20

    def __init__(self):
        self.compared = 0
        self.differences = 0

    def same(self, what, found, expected):
        self.compared += 1
        if found == expected:
            return
        self.differences += 1
        if self.differences <= self.SHOWN:
            print(f"{what}: expected {expected!r:.200}, found {found!r:.200}")

    def finish(self, at_least):
        print(f"{self.compared} compared, {self.differences} different")
        sys.exit(1 if self.differences or self.compared < at_least else 0)
