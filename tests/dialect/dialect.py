"""Reads every statement that the program, its tools, its scenarios and the tests of its reports send, and the server's
scripts, with a Transact-SQL parser that knows nothing of this program.

usage: dialect.py DRIVE TOOL_STATEMENTS REPORTS_TEST SOURCE_FOLDER [--long]

The statements are collected from all scenarios, played on the controls, from TOOL_STATEMENTS and from REPORTS_TEST.
Their structures are parsed, with every name once; with --long each statement is parsed as it stands, but for its
literals. What the parser's grammar can't take is known below, by a rule that says what to put in its place: a statement
that no rule mends is a failure, and so is a rule that is needed no more.
"""

import multiprocessing
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from shapes import shape, structure

from sqlfluff.core import Linter

linter = Linter(dialect="tsql")

# Why a server takes it, what it looks like, what is parsed in its place. docs/dialect.md tells more.
KNOWN = [
    ("a number ends where a word begins", re.compile(r"(?<=\d)(?=and\b)", re.I), " "),
    ("several columns in one add", re.compile(r"(alter table \S+ add [^,(]*(?:\([^)]*\))?),.*", re.I | re.S), r"\1"),
    ("a session's date format", re.compile(r"^set dateformat mdy$"), "set nocount on"),
    ("a computed column", re.compile(r"\n\s*\S+ as convert\([^)]*\),[^)]*\) persisted,"), ""),
]


def refusals(text):
    return [violation.desc() for violation in linter.parse_string(text).violations]


def judge(text):
    """The rules that the text needed, and what the parser still says of it."""
    found = refusals(text)
    needed = []
    for reason, pattern, replacement in KNOWN:
        if not found:
            break
        text, count = pattern.subn(replacement, text)
        if count:
            needed.append(reason)
            found = refusals(text)
    return text, needed, found


def batches(script):
    return [batch for batch in re.split(r"^GO$\n?", script, flags=re.M) if batch.strip()]


def collect(drive, tool_statements, reports_test, source):
    scenarios = source / "tests/scenarios"
    files = sorted(str(file.relative_to(scenarios)) for file in scenarios.rglob("*.scenario"))
    with tempfile.TemporaryDirectory() as folder:
        log = pathlib.Path(folder) / "statements.sql"
        subprocess.run([drive, "--statements", log, *files], cwd=scenarios, check=True, stdout=subprocess.DEVNULL)
        subprocess.run([reports_test], env={**os.environ, "OVINDRA_STATEMENTS": str(log)}, check=True,
                       stdout=subprocess.DEVNULL)
        sent = log.read_text(encoding="utf-8")
    return batches(sent + subprocess.run([tool_statements], check=True, capture_output=True, text=True).stdout)


def schema_batches(source):
    """The scripts as they stand; of an insert of many rows the first two."""
    rows = re.compile(r"(\([^()]*\),\s*\([^()]*\))(?:,\s*\([^()]*\))+")
    for name in ("screening", "hospital"):
        for batch in batches((source / f"core/schema/{name}.sql").read_text(encoding="utf-8")):
            yield rows.sub(r"\1", batch) if "insert into" in batch else batch


def self_test():
    """The parser is seen refusing, also what has been reduced."""
    for wrong in ("selct 1", "select No from", "insert into T values('A',,1)", "update T set where No=1",
                  "delete T where No=", "select a.No from T a where a.No in('1','2'"):
        names = set()
        assert refusals(wrong) and refusals(structure(shape(wrong), names)), wrong
    names = set()
    assert structure(shape("Select a.No,Name from T a  where a.No='7' and Age=5And x='o''n'"), names) == (
        "select c.c,c from c c where c.c='x' and c=1And c='x'".replace("1And", "1and")), names
    assert names == {"a", "no", "name", "t", "age", "x"}, names


def main(drive, tool_statements, reports_test, source, *options):
    self_test()
    statements = collect(drive, tool_statements, reports_test, pathlib.Path(source))
    shapes = {shape(statement) for statement in statements}
    names = set()
    # What a setting sets is a word of the language, not a name.
    structures = {text if text.startswith("set ") else structure(text, names) for text in shapes}
    texts = sorted(shapes if "--long" in options else structures)
    texts += schema_batches(pathlib.Path(source))
    texts.append("select " + ",".join(sorted(names)) + " from T")
    with multiprocessing.Pool(2) as pool:
        judged = pool.map(judge, texts, chunksize=8)
    wrong = [(text, found) for text, _, found in judged if found]
    for text, found in wrong:
        print(f"not Transact-SQL: {text}\n  {found}")
    needed = {reason: sum(reason in rules for _, rules, _ in judged) for reason, _, _ in KNOWN}
    print(f"dialect: {len(statements)} statements, {len(shapes)} shapes, {len(structures)} structures, {len(names)} names; "
          f"{len(texts)} texts parsed, {len(wrong)} refused")
    for reason, count in needed.items():
        print(f"dialect: beyond the parser's grammar: {reason}: {count}")
    return 1 if wrong or not all(needed.values()) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
