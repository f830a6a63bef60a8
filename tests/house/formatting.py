"""Fails when a source file is not laid out as .clang-format says."""

import pathlib
import shutil
import subprocess
import sys

FOLDERS = ["app", "base", "bench", "core", "masters", "platform", "reports", "tests", "tools", "workflow"]


def main(root):
    program = shutil.which("clang-format-14") or shutil.which("clang-format")
    files = [str(p) for f in FOLDERS for p in sorted((root / f).rglob("*")) if p.suffix in (".h", ".cpp")]
    return subprocess.run([program, "--dry-run", "-Werror", *files], check=False).returncode


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
