#!/usr/bin/env python3
"""Adds up a test run: sum_results.py FOLDER [passed|failed ...]

FOLDER holds ctest.xml, the report of ctest, and for each GoogleTest program that ran the report NAME.xml of
its single tests. The further arguments are outcomes of checks outside ctest. The last line printed is
"N passed, N failed"; the exit status is 1 when anything failed or nothing ran.
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def single_tests(report):
    """Passed and failed single tests of one GoogleTest report; skipped ones are neither."""
    ran = [case for case in ElementTree.parse(report).iter("testcase") if case.get("result") == "completed"]
    failed = sum(1 for case in ran if case.find("failure") is not None)
    return len(ran) - failed, failed


def entry(case, folder):
    """Passed and failed tests behind one entry of ctest's report."""
    succeeded = case.get("status") == "run"
    report = folder / (case.get("name") + ".xml")
    if not report.exists():
        return (1, 0) if succeeded else (0, 1)
    passed, failed = single_tests(report)
    # A program can fail although each of its tests passed: a leak found at its end.
    if not succeeded and failed == 0:
        failed = 1
    return passed, failed


def total(folder, outcomes):
    """Passed and failed tests of the whole run."""
    passed, failed = outcomes.count("passed"), outcomes.count("failed")
    summary = folder / "ctest.xml"
    if not summary.exists():
        return passed, failed + 1
    for case in ElementTree.parse(summary).iter("testcase"):
        more_passed, more_failed = entry(case, folder)
        passed += more_passed
        failed += more_failed
    return passed, failed


def main(arguments):
    passed, failed = total(pathlib.Path(arguments[0]), arguments[1:])
    print(f"{passed} passed, {failed} failed")
    return 0 if failed == 0 and passed > 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
