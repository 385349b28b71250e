"""Runs tests of Python's own framework and prints their results as ./check reads them."""

import os
import unittest


class Lines(unittest.TextTestResult):
    """"ok - ..." or "not ok - ..." for each test, and before the latter why."""

    def addSuccess(self, test):
        super().addSuccess(test)
        print("ok -", test.id().split(".", 1)[1], flush=True)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        print(self.failures[-1][1] + "not ok -", test.id().split(".", 1)[1], flush=True)

    def addError(self, test, err):
        super().addError(test, err)
        print(self.errors[-1][1] + "not ok -", test.id().split(".", 1)[1], flush=True)


def main():
    """Runs the tests of the script that calls this, and ends it: status 0 if nothing failed."""
    with open(os.devnull, "w", encoding="utf-8") as nowhere:
        unittest.main(testRunner=unittest.TextTestRunner(stream=nowhere, resultclass=Lines))
