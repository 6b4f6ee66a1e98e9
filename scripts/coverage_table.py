"""Covered lines and branches, one row per folder; started by scripts/coverage.

Branches are the two sides of each condition in the source. The compiler counts none for exceptions thrown
by called functions."""

import collections
import json
import os
import pathlib
import sys

import quality_table

ROOT = pathlib.Path(__file__).resolve().parent.parent
HELD = ("calc", "worksheet/model", "storage")  # the minimum applies to these
LEAST = 95.0
FOLDERS = HELD + ("foundation", "language", "worksheet/window", "printing", "exchange", "extras")


def folder_of(path):
    return next((folder for folder in FOLDERS if path.is_relative_to(ROOT / folder)), None)


def add_lines(lines, segments):
    """The lines of a file that contain code, each with whether it was executed."""
    for (line, _, count, counted, _, gap), following in zip(segments, segments[1:]):
        if counted and not gap:
            for number in range(line, following[0] + 1):
                lines[number] = lines.get(number, False) or count > 0


def add_branches(sides, branches, source):
    """Each side of each condition, with whether it was taken. Template instances count as one, and constant
    true is not a condition."""
    for line, column, _, end, taken, not_taken, *_ in branches:
        if source[line - 1][column - 1:end - 1] == "true":
            continue
        for side, count in (("true", taken), ("false", not_taken)):
            place = (line, column, side)
            sides[place] = sides.get(place, False) or count > 0


def percent(reached, all_of_them):
    return 100.0 * reached / all_of_them if all_of_them else 100.0


def main(report, missed_file, *arguments):
    reached = {}
    for file in json.loads(pathlib.Path(report).read_text())["data"][0]["files"]:
        # A header has a different path for each folder that includes it.
        path = pathlib.Path(os.path.normpath(file["filename"]))
        if folder_of(path) is None:
            continue
        lines, branches = reached.setdefault(path, ({}, {}))
        add_lines(lines, file["segments"])
        add_branches(branches, file["branches"], path.read_text().splitlines())
    counts = {folder: collections.Counter() for folder in FOLDERS}
    missed = []
    for path, (lines, branches) in sorted(reached.items()):
        folder = folder_of(path)
        counts[folder].update(lines=len(lines), run=sum(lines.values()),
                              branches=len(branches), taken=sum(branches.values()))
        name = path.relative_to(ROOT)
        missed += [f"{name}:{line}" for line, run in sorted(lines.items()) if not run]
        missed += [f"{name}:{line}:{column}: never {side}"
                   for (line, column, side), taken in sorted(branches.items()) if not taken]
    table = ["| folder | lines | reached | branches | reached |", "| --- | --: | --: | --: | --: |"]
    low = []
    for folder, count in counts.items():
        lines, branches = percent(count["run"], count["lines"]), percent(count["taken"], count["branches"])
        table.append(f"| `{folder}/` | {count['lines']} | {lines:.1f} % | {count['branches']} | {branches:.1f} % |")
        if folder in HELD and min(lines, branches) < LEAST:
            low.append(folder)
    print("\n".join(table))
    pathlib.Path(missed_file).write_text("\n".join(missed) + "\n")
    if "--keep" in arguments:
        quality_table.keep("coverage", table)
    if low:
        print(f"below {LEAST} %: {', '.join(low)}; see {missed_file}")
    return 1 if low else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
