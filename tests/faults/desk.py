"""A desk for the fault tests: a folder with both databases, the real program played on it by a scenario, and what its
user saw. The programs and the preloaded shim are named by the environment."""

import dataclasses
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import tempfile

DRIVE = os.environ["OVINDRA_DRIVE"]
SETUP = os.environ["OVINDRA_SETUP"]
SHIM = os.environ["OVINDRA_SHIM"]
SCENARIOS = pathlib.Path(__file__).resolve().parent.parent / "scenarios"

# Nobody's number.
OTHER = 65534

MESSAGE = re.compile(r'^  message "(?P<text>.*)" title "(?P<title>.*)" (?P<icon>\w+) -> \w+$')
TYPED_NAME = re.compile(r'^> type Text1 "(.*)"$')
ENDED = re.compile(r": expected the program running, found it has ended with (.*)$")

# The form of enrollments, ready for children of one school.
READY = """user "MEENA"
open frmenroll
click Command1
pick Combo8 "GRANT 2016"
pick Combo6 "ANGANWADI CENTER"
pick Combo7 "MOTIPUR CENTER"
pick Combo1 "MOTIPUR SCHOOL"
"""

# The splash window goes, the connections are opened, the login window comes up.
START = """start
tick-timer Timer1 52
"""

CHILD = """clear Text1
type Text1 "{name}"
clear Text2
type Text2 "RAM"
clear Text3
type Text3 "9"
clear Text4
type Text4 "4"
pick Combo2 "MOTIPUR"
answer yes
click Command2
"""


def enrolling(names):
    return READY + "".join(CHILD.format(name=name) for name in names)


@dataclasses.dataclass
class Seen:
    """What a session has shown."""

    killed: bool
    errors: list
    saved: list
    refused: list
    output: str


def seen_in(output, killed):
    seen = Seen(killed, [], [], [], output)
    name = None
    for line in output.splitlines():
        if typed := TYPED_NAME.match(line):
            name = typed[1]
        elif ended := ENDED.search(line):
            seen.errors.append(ended[1])
        elif message := MESSAGE.match(line):
            if message["text"] == "This Record Saved":
                seen.saved.append(name)
            elif message["icon"] == "critical":
                seen.errors.append(message["text"])
                seen.refused.append(name)
    return seen


class Desk:
    """A folder with databases that goes with the block. The save of its first child was confirmed."""

    FIRST = "FIRST"

    def __init__(self, like=None, umask=-1):
        self.scratch = tempfile.TemporaryDirectory(prefix="ovindra-faults-")
        self.root = pathlib.Path(self.scratch.name)
        self.data = self.root / "data"
        self.screening = self.data / "ZQR.db"
        self.hospital = self.data / "ward.db"
        if like:
            shutil.copytree(like.data, self.data)
        else:
            self.fill(umask)

    def fill(self, umask):
        self.setup("create", "--user", "BOSS", "--password", "secret", umask=umask)
        self.play(f'play "{SCENARIOS}/workflow/places.steps"')
        self.setup("check", "--repair")
        assert self.play(enrolling([self.FIRST])).saved == [self.FIRST]

    def setup(self, command, *arguments, **options):
        return subprocess.run(
            [SETUP, command, self.data, *arguments], capture_output=True, encoding="utf-8", **options
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.scratch.cleanup()

    def start(self, lines, fault=None, on_files=True, drive=DRIVE, **options):
        """Starts the program on the lines, on the files or on fresh databases in memory; `fault` are the settings of
        the shim."""
        scenario = pathlib.Path(tempfile.mkstemp(dir=self.root, suffix=".scenario")[1])
        scenario.write_text(lines, encoding="utf-8")
        scenario.chmod(0o644)
        environment = dict(os.environ)
        if fault:
            environment |= {"LD_PRELOAD": SHIM, "FAULT_FILES": str(self.data)} | fault
        return subprocess.Popen(
            [drive, "--trace", *(["--database", self.data] if on_files else []), scenario],
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            env=environment,
            encoding="utf-8",
            **options,
        )

    def play(self, *arguments, **options):
        return self.finish(self.start(*arguments, **options))

    def play_as_other(self, lines, **options):
        """Plays without the rights of root, for whom nothing is read-only."""
        self.root.chmod(0o755)
        drive = shutil.copy(DRIVE, self.root)
        if os.geteuid() == 0:
            options |= {"user": OTHER, "group": OTHER, "extra_groups": []}
        return self.play(lines, drive=drive, **options)

    def give_to_other(self, *paths):
        if os.geteuid() == 0:
            for path in paths:
                os.chown(path, OTHER, OTHER)

    @staticmethod
    def finish(process):
        output, _ = process.communicate()
        return seen_in(output, process.returncode < 0)

    def calls_of(self, lines, kind="", files=None, **options):
        """How many calls the shim counts while the lines are played."""
        count = self.root / "count"
        fault = {"FAULT_COUNT": str(count), "FAULT_KIND": kind, "FAULT_AT": str(2**31)}
        self.play(lines, fault | {"FAULT_FILES": str(files or self.data)}, **options)
        return int(count.read_text())

    def children(self):
        """The stored children: the name of each number."""
        with sqlite3.connect(f"file:{self.screening}?mode=ro", uri=True) as database:
            return dict(database.execute("select Enroll_No,Child_Name from Enroll_Master"))
