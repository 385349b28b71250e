#!/usr/bin/python3
"""The counting itself, tested: no failure may get lost between a program and the closing line."""

import json
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import lines  # noqa: E402
import tally  # noqa: E402


def report_of(*tests):
    return json.dumps({"testsuites": [{"name": "Suite", "testsuite": list(tests)}]})


def one_test(name, result="COMPLETED", **more):
    return {"name": name, "status": "RUN", "result": result, **more}


def outcomes(results):
    return [(result.name, result.outcome) for result in results]


class GTestPrograms(unittest.TestCase):
    def test_each_test_is_counted_by_its_full_name(self):
        report = report_of(one_test("A"), one_test("B", failures=[{"failure": "no"}]))

        results = tally.gtest_results("unit", report, "", 1)

        self.assertEqual(outcomes(results), [("Suite.A", "passed"), ("Suite.B", "failed")])

    def test_a_failed_test_keeps_its_own_output(self):
        log = ("[ RUN      ] Suite.A\nof a\n[       OK ] Suite.A (0 ms)\n"
               "[ RUN      ] Suite.B\nof b\n[  FAILED  ] Suite.B (0 ms)\n")
        report = report_of(one_test("A"), one_test("B", failures=[{"failure": "no"}]))

        results = tally.gtest_results("unit", report, log, 1)

        self.assertEqual(results[1].text, "of b")

    def test_a_skip_keeps_its_reason(self):
        log = ("[ RUN      ] Suite.A\nfile.cpp:12: Skipped\nno mounts here\n\n"
               "[  SKIPPED ] Suite.A (0 ms)\n")

        results = tally.gtest_results("unit", report_of(one_test("A", "SKIPPED")), log, 0)

        self.assertEqual((results[0].outcome, results[0].text), ("skipped", "no mounts here"))

    def test_a_disabled_test_is_a_skip(self):
        disabled = {"name": "A", "status": "NOTRUN", "result": "SUPPRESSED"}

        self.assertEqual(tally.gtest_results("unit", report_of(disabled), "", 0)[0].outcome, "skipped")

    def test_a_program_that_dies_without_a_report_is_a_failure(self):
        results = tally.gtest_results("unit", "", "[ RUN      ] Suite.A\n", 139)

        self.assertEqual(outcomes(results), [("(the program) ended with status 139", "failed")])

    def test_a_program_that_fails_after_its_tests_is_a_failure(self):
        results = tally.gtest_results("unit", report_of(one_test("A")), "leak\n", 23)

        self.assertEqual([result.outcome for result in results], ["passed", "failed"])

    def test_a_program_without_tests_is_a_failure(self):
        results = tally.gtest_results("unit", json.dumps({"testsuites": []}), "", 0)

        self.assertEqual(outcomes(results), [("(the program) showed no test", "failed")])


class Scripts(unittest.TestCase):
    def test_each_line_is_counted(self):
        log = "ok - opens\nnoise\nnot ok - closes\nskip - flies: no wings\n"

        self.assertEqual(outcomes(tally.line_results("desktop", log, 1)),
                         [("opens", "passed"), ("closes", "failed"), ("flies", "skipped")])

    def test_a_failed_line_keeps_what_was_printed_around_it(self):
        log = "ok - opens\nbefore\nnot ok - closes\nafter\nok - ends\nlater\n"

        self.assertEqual(tally.line_results("desktop", log, 1)[1].text, "before\nafter")

    def test_a_skip_keeps_its_reason(self):
        self.assertEqual(tally.line_results("desktop", "skip - flies: no wings", 0)[0].text, "no wings")

    def test_a_script_that_dies_after_its_first_line_is_a_failure(self):
        results = tally.line_results("desktop", "ok - opens\n", 1)

        self.assertEqual([result.outcome for result in results], ["passed", "failed"])

    def test_a_script_that_takes_too_long_is_a_failure(self):
        results = tally.line_results("desktop", "ok - opens\n", 124)

        self.assertEqual(results[1].name, "(the program) took too long")

    def test_a_script_without_lines_is_a_failure(self):
        self.assertEqual(tally.line_results("desktop", "hello\n", 0)[0].outcome, "failed")


class Reports(unittest.TestCase):
    def test_the_last_lines_are_skips_then_sums(self):
        results = [tally.Result("s", "a", "passed", ""), tally.Result("s", "b", "skipped", "why"),
                   tally.Result("s", "c", "failed", "text")]

        self.assertEqual(list(tally.report_lines(results)),
                         ["FAILED s: c", "    text", "skipped s: b: why", "1 skipped",
                          "1 passed, 1 failed"])

    def test_nothing_is_zero_of_each(self):
        self.assertEqual(list(tally.report_lines([])), ["0 skipped", "0 passed, 0 failed"])

    def test_a_skip_that_is_listed_stays_a_skip(self):
        patterns = tally.allowed_skips("# heading\ncontract_linux: *Mount*  # containers refuse\n")
        skip = tally.Result("contract_linux", "Tree.MountStays", "skipped", "refused")

        self.assertEqual(tally.judge(skip, patterns).outcome, "skipped")

    def test_a_skip_that_is_not_listed_is_a_failure(self):
        skip = tally.Result("unit_tests", "Tree.Grows", "skipped", "tired")

        self.assertEqual(tally.judge(skip, ["contract_linux: *Mount*"]).outcome, "failed")

    def test_the_contracts_are_counted_by_port_and_tenant(self):
        results = [tally.Result("contract_linux", "Linux/FilesContract.A/0", "passed", ""),
                   tally.Result("contract_linux", "Linux/FilesContract.B/0", "passed", ""),
                   tally.Result("contract_windows.exe (windows)", "Windows/FilesContract.A/0", "passed", ""),
                   tally.Result("contract_windows.exe (windows)", "Windows/ClockContract.A/0", "skipped", ""),
                   tally.Result("contract_linux (asan)", "Linux/FilesContract.A/0", "passed", ""),
                   tally.Result("unit_tests", "Unit.A", "passed", "")]

        self.assertEqual(list(tally.contract_table(results)),
                         ["contract  linux  windows", "Files     2      1"])


if __name__ == "__main__":
    lines.main()
