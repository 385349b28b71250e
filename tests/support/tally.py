#!/usr/bin/python3
"""Counts what a run of the tests has shown, over all programs and scripts.

    tally.py RESULTS gtest SUITE JSON LOG STATUS        a GoogleTest program has ended
    tally.py RESULTS lines SUITE LOG STATUS             a script that prints "ok - ..." lines has ended
    tally.py RESULTS note OUTCOME SUITE NAME [LOG]      one test that is no program: passed, failed, skipped
    tally.py RESULTS report SKIPS [--strict]            prints the contracts' counts, what failed, what was
                                                        skipped, and the sums

RESULTS is a file of one JSON object a line. STATUS is how the program ended: a program that fails
without a failed test, or that shows no test at all, counts as one failed test.
"""

import collections
import fnmatch
import json
import re
import sys

LONGEST_OUTPUT = 60  # lines shown of each failed test

Result = collections.namedtuple("Result", "suite name outcome text")


def read(path):
    try:
        with open(path, encoding="utf-8", errors="replace") as file:
            return file.read()
    except FileNotFoundError:
        return ""


def with_ending(suite, results, log, status):
    """The results, and one more if the program's end says that they are not the whole truth."""
    if status != 0 and not any(result.outcome == "failed" for result in results):
        how = "took too long" if status == 124 else f"ended with status {status}"
        return results + [Result(suite, f"(the program) {how}", "failed", log)]
    if not results:
        return [Result(suite, "(the program) showed no test", "failed", log)]
    return results


def gtest_outputs(log):
    """What each test printed, by its full name."""
    outputs = {}
    name = None
    for line in log.splitlines():
        started = re.match(r"\[ RUN      \] (\S+)", line)
        if started:
            name = started.group(1)
            outputs[name] = []
        elif re.match(r"\[(       OK |  FAILED  |  SKIPPED )\] ", line):
            name = None
        elif name:
            outputs[name].append(line)
    return {name: "\n".join(lines) for name, lines in outputs.items()}


def skip_reason(output):
    """The message below GoogleTest's "file:line: Skipped"."""
    lines = output.split("\n")
    marks = [i for i, line in enumerate(lines) if re.search(r": Skipped$", line)]
    reason = " ".join(lines[marks[-1] + 1:]).strip() if marks else ""
    return reason or "no reason given"


def gtest_results(suite, report, log, status):
    outputs = gtest_outputs(log)
    results = []
    for case in json.loads(report)["testsuites"] if report else []:
        for test in case["testsuite"]:
            name = f"{case['name']}.{test['name']}"
            output = outputs.get(name, "")
            if test["status"] == "NOTRUN":
                results.append(Result(suite, name, "skipped", "disabled in the source"))
            elif test.get("failures"):
                results.append(Result(suite, name, "failed", output))
            elif test["result"] == "SKIPPED":
                results.append(Result(suite, name, "skipped", skip_reason(output)))
            else:
                results.append(Result(suite, name, "passed", ""))
    return with_ending(suite, results, log, status)


def line_results(suite, log, status):
    """A failed line is shown with what was printed since the result before it and up to the next."""
    results = []
    since_last = []
    for line in log.splitlines():
        match = re.match(r"(ok|not ok|skip) - (.*)", line)
        if not match:
            since_last.append(line)
            if results and results[-1].outcome == "failed":
                results[-1] = results[-1]._replace(text=results[-1].text + "\n" + line)
            continue
        kind, name = match.groups()
        if kind == "ok":
            results.append(Result(suite, name, "passed", ""))
        elif kind == "not ok":
            results.append(Result(suite, name, "failed", "\n".join(since_last)))
        else:
            name, _, reason = name.partition(": ")
            results.append(Result(suite, name, "skipped", reason or "no reason given"))
        since_last = []
    return with_ending(suite, results, log, status)


def allowed_skips(text):
    """The patterns of "suite: name # why" lines."""
    lines = (line.split("#")[0].strip() for line in text.splitlines())
    return [line for line in lines if line]


def judge(result, patterns):
    """Under strict counting a skip that nobody has listed is a failure."""
    full_name = f"{result.suite}: {result.name}"
    if result.outcome == "skipped" and not any(fnmatch.fnmatchcase(full_name, p) for p in patterns):
        return result._replace(outcome="failed",
                               text=f"skipped, which tests/skips.txt does not allow: {result.text}")
    return result


def report_lines(results):
    by_outcome = collections.defaultdict(list)
    for result in results:
        by_outcome[result.outcome].append(result)
    for result in by_outcome["failed"]:
        yield f"FAILED {result.suite}: {result.name}"
        lines = result.text.strip("\n").splitlines()
        if len(lines) > LONGEST_OUTPUT:
            yield f"    ... {len(lines) - LONGEST_OUTPUT} lines before these"
        yield from (f"    {line}" for line in lines[-LONGEST_OUTPUT:])
    for result in by_outcome["skipped"]:
        yield f"skipped {result.suite}: {result.name}: {result.text}"
    yield f"{len(by_outcome['skipped'])} skipped"
    yield f"{len(by_outcome['passed'])} passed, {len(by_outcome['failed'])} failed"


def contract_table(results):
    """How many tests of each port's contract passed on each of its tenants: the programs that hold
    contracts, without those that run them once more under other conditions."""
    counts = collections.Counter()
    for result in results:
        program = re.fullmatch(r"contract_(\w+?)(\.exe \(windows\))?", result.suite)
        contract = re.search(r"(\w+)Contract\.", result.name)
        if program and contract and result.outcome == "passed":
            on_windows = " on Windows" if program[2] and program[1] != "windows" else ""
            counts[contract[1], program[1] + on_windows] += 1
    contracts, tenants = (sorted({key[which] for key in counts}) for which in (0, 1))
    if not contracts:
        return
    rows = [["contract", *tenants]]
    rows += [[name, *(str(counts[name, tenant] or "-") for tenant in tenants)] for name in contracts]
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        yield "  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip()


def append(path, results):
    with open(path, "a", encoding="utf-8") as file:
        for result in results:
            file.write(json.dumps(result._asdict()) + "\n")


def load(path):
    return [Result(**json.loads(line)) for line in read(path).splitlines()]


def summary(suite, results):
    counts = collections.Counter(result.outcome for result in results)
    skipped = f", {counts['skipped']} skipped" if counts["skipped"] else ""
    return f"{suite}: {counts['passed']} passed, {counts['failed']} failed{skipped}"


def main(arguments):
    path, command, *rest = arguments
    if command == "report":
        results = load(path)
        if "--strict" in rest:
            patterns = allowed_skips(read(rest[0]))
            results = [judge(result, patterns) for result in results]
        print("\n".join([*contract_table(results), *report_lines(results)]))
        return any(result.outcome == "failed" for result in results)
    if command == "gtest":
        suite, report, log, status = rest
        results = gtest_results(suite, read(report), read(log), int(status))
    elif command == "lines":
        suite, log, status = rest
        results = line_results(suite, read(log), int(status))
    elif command == "note":
        outcome, suite, name, *log = rest
        results = [Result(suite, name, outcome, read(log[0]) if log else "")]
    else:
        sys.exit(__doc__)
    append(path, results)
    print(summary(results[0].suite, results), flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
