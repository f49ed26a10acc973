#!/usr/bin/env python3
"""Holds every source file to 500 lines: check_lengths.py TOP"""
import pathlib
import sys

LONGEST = 500
FOLDERS = ("src", "tests", "bench", "fuzz", "cmake")
KINDS = {".cpp", ".h", ".lua", ".py", ".cmake"}


def too_long(top):
    """The files of more than LONGEST lines, as pairs of path and number of lines."""
    for folder in FOLDERS:
        for path in sorted((top / folder).rglob("*")):
            if path.suffix in KINDS and path.is_file():
                lines = len(path.read_bytes().splitlines())
                if lines > LONGEST:
                    yield path, lines


def main(arguments):
    found = list(too_long(pathlib.Path(arguments[0])))
    for path, lines in found:
        print(f"{path}: {lines} lines, {LONGEST} are the end")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
