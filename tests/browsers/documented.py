"""What docs/traces.md says of where traces lie in a profile."""

import fnmatch
import pathlib
import re

_PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "traces.md"
_SECTIONS = {"firefox": "## Firefox", "chromium": "## Chromium"}


def patterns(family, *but):
    """Of the files, and of those in folders, that the tables of a family name; `but`: the options
    whose tables do not count."""
    section = re.split(r"^(?=## )", _PAGE.read_text("utf-8"), flags=re.MULTILINE)
    mine = next(text for text in section if text.startswith(_SECTIONS[family]))
    found = []
    for table in mine.split("\n### ")[1:]:
        if not table.startswith(tuple(f'"{option}"' for option in but)):
            for row in re.findall(r"^\| (?!what|---)[^|]* \| ([^|]*) \|$", table, re.MULTILINE):
                found += _of_row(row)
    return found


def covers(names, path):
    """Whether a file, by its path in the profile, is among them; what belongs to a database is."""
    path = re.sub(r"-(wal|shm|journal)$", "", path)
    return any(fnmatch.fnmatchcase(path, name) for name in names)


def _of_row(row):
    """`a`, `b`: files. `a`: `t`, `u`: tables of a file. `a/`: a folder; `a/`: `b*`: parts of one."""
    place, colon, parts = row.partition(": ")
    for name in re.findall(r"`([^`]+)`", place):
        if not name.endswith("/"):
            yield from (name, f"{name}/*")
        elif colon:
            yield from (f"{name}{part}/*" for part in re.findall(r"`([^`]+)`", parts))
        else:
            yield f"{name}*"
