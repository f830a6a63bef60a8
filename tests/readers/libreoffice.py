"""LibreOffice converts the workbooks to text tables and the document to plain text."""

import csv
import pathlib
import shutil
import subprocess
import sys
import tempfile

from comparison import Comparison, samples, skip

COMPARED_AT_LEAST = 28_000
TABLE = "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,false,false,false,-1"


def convert(program, file, target, extension, folder):
    """Converts with a profile of its own, so that a LibreOffice that is open does not take the work over. An older
    one names a table after its file, a newer one after file and sheet."""
    subprocess.run(
        [program, "--headless", f"-env:UserInstallation=file://{folder}/profile", "--convert-to", target]
        + ["--outdir", folder, file],
        check=True,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
        timeout=300,
    )
    found = sorted(pathlib.Path(folder).glob(f"{file.stem}*.{extension}"))
    content = found[0].read_text(encoding="utf-8-sig") if found else None
    for path in found:
        path.unlink()
    return content


def compare_tables(comparison, program, folder):
    # an outer tab or line end of a text is as it is in the table
    for extension in (".xls", ".xlsx"):
        for path, model in samples(extension):
            table = convert(program, path, TABLE, "csv", folder)
            comparison.same(f"{path.name} opened", table is not None, True)
            rows = list(csv.reader((table or "").splitlines(keepends=True)))
            expected = {(row, column): text for row, column, text, _ in model["cells"] if text}
            found = {
                (i, j): text for i, row in enumerate(rows, 1) for j, text in enumerate(row, 1) if text
            }
            for place in expected.keys() | found.keys():
                comparison.same(f"{path.name} cell {place}", found.get(place), expected.get(place))


def compare_letter(comparison, program, folder):
    letter = pathlib.Path(sys.argv[1]) / "letter.doc"
    found = convert(program, letter, "txt:Text (encoded):UTF8", "txt", folder)
    expected = letter.with_suffix(".txt").read_text(encoding="utf-8")
    comparison.same("letter", (found or "").splitlines(), expected.splitlines())


def main():
    program = shutil.which("soffice")
    if program is None:
        skip("LibreOffice is not installed")
    comparison = Comparison()
    with tempfile.TemporaryDirectory() as folder:
        compare_tables(comparison, program, folder)
        compare_letter(comparison, program, folder)
    comparison.finish(COMPARED_AT_LEAST)


if __name__ == "__main__":
    main()
