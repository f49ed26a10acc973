"""The sum of a test run counts single tests, and forgets no failure."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "cmake"))
import sum_results  # noqa: E402

PASSED = '<testcase name="a" result="completed"/>'
FAILED = '<testcase name="b" result="completed"><failure message="no"/></testcase>'
SKIPPED = '<testcase name="c" result="skipped"><skipped/></testcase>'


class SumResults(unittest.TestCase):
    def total(self, entries, reports=(), outcomes=()):
        """Sums a run of ctest entries (name, status) and GoogleTest reports (name, cases)."""
        with tempfile.TemporaryDirectory() as folder:
            top = pathlib.Path(folder)
            cases = "".join(f'<testcase name="{name}" status="{status}"/>' for name, status in entries)
            (top / "ctest.xml").write_text(f"<testsuite>{cases}</testsuite>", encoding="utf-8")
            for name, content in reports:
                (top / f"{name}.xml").write_text(f"<testsuites>{content}</testsuites>", encoding="utf-8")
            return sum_results.total(top, list(outcomes))

    def test_an_entry_without_a_report_is_one_test(self):
        self.assertEqual(self.total([("house.layers", "run"), ("script.a", "fail")]), (1, 1))

    def test_a_report_counts_its_single_tests(self):
        self.assertEqual(self.total([("engine.0", "fail")], [("engine.0", PASSED * 3 + FAILED)]), (3, 1))

    def test_a_skipped_test_is_neither(self):
        self.assertEqual(self.total([("engine.0", "run")], [("engine.0", PASSED + SKIPPED)]), (1, 0))

    def test_a_program_that_fails_after_its_tests_counts(self):
        self.assertEqual(self.total([("engine.0", "fail")], [("engine.0", PASSED)]), (1, 1))

    def test_a_program_that_crashed_leaves_no_report_and_counts(self):
        self.assertEqual(self.total([("engine.0", "fail")]), (0, 1))

    def test_an_entry_that_could_not_run_counts(self):
        self.assertEqual(self.total([("engine.0", "notrun")]), (0, 1))

    def test_checks_outside_ctest_count(self):
        self.assertEqual(self.total([("script.a", "run")], outcomes=["passed", "failed"]), (2, 1))

    def test_a_run_that_left_no_summary_failed(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(sum_results.total(pathlib.Path(folder), []), (0, 1))


if __name__ == "__main__":
    unittest.main()
