"""Measures the program and its peers, and writes the results into docs/performance.md (or another such
file). scripts/bench runs it."""

from __future__ import annotations

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import traceback
from dataclasses import replace

from . import benches, compare, report, start_up, tables, window, worksheets
from .programs import PEERS, ROOT, Program, empty_window, own
from .screen import Screen

_BUILD = ROOT / "build/release"
_BENCH = _BUILD / "bench"
_OFFERS = (1, 2, 4, 8, 16)
_COMPARED_OFFERS = (1, 2, 4, 6, 8, 16)
_MONTHS = (12, 60, 120, 360, 1200)
_WARM_ROUNDS = 11
_COLD_ROUNDS = 3
_NEW_SCREENS = 3
_KEYS = 21
_COMPARE_STARTS = 41
_LINES = 20  # times the reference worksheets


def _say(what: str) -> None:
    print(f"{time.strftime('%H:%M:%S')} {what}", flush=True)


def _starts(folder: pathlib.Path) -> dict[str, str]:
    programs = [own(_BUILD / "bin"), empty_window(_BENCH), *PEERS]
    screen = Screen()
    try:
        starter = start_up.Starter(screen, folder)
        for program in programs:
            starter.learn(program)
        _say("warm starts")
        warm = start_up.measure(starter, programs, _WARM_ROUNDS)
        parts = {"starts": report.starts(programs, warm), "memory": report.memory(programs, warm)}
        if os.access(start_up.DROP_CACHES, os.W_OK):
            _say("cold starts")
            cold = start_up.measure(starter, programs, _COLD_ROUNDS, cold=True)
            parts["cold starts"] = report.starts(programs, cold)
        else:
            parts["cold starts"] = "Not measured: this user cannot empty the disk's cache."
        _say("starts with worksheets")
        parts["starts with worksheets"] = _starts_with_worksheets(starter, programs[0])
    finally:
        screen.close()
    return parts


def _starts_with_worksheets(starter: start_up.Starter, program: Program) -> str:
    programs = []
    for count in (0, 100, 1000):
        programs.append(replace(program, name=f"{count:,} worksheets"))
        starter.learn(programs[-1])
        worksheets.fill(starter.home(programs[-1]), count)
    return report.starts(programs, start_up.measure(starter, programs, _WARM_ROUNDS))


def _screens(folder: pathlib.Path) -> dict[str, str]:
    """New screens, because a GUI library may leave data on a screen for the next program."""
    _say("starts on new screens")
    programs = [own(_BUILD / "bin"), empty_window(_BENCH), *PEERS]
    measured: dict[str, list[start_up.Start]] = {program.name: [] for program in programs}
    for program in programs:
        for _ in range(1 + _NEW_SCREENS):
            screen = Screen()
            try:
                measured[program.name].append(
                    start_up.Starter(screen, folder).start_unanswered(program))
            finally:
                screen.close()
        del measured[program.name][0]  # the first in this home folder
    return {"first starts": report.memory(programs, measured)}


def _window(folder: pathlib.Path) -> dict[str, str]:
    _say("keys in the window")
    screen = Screen()
    sitting = window.Sitting(screen, own(_BUILD / "bin"), folder)
    try:
        rows = {"Return that stores the loan amount, sixteen offers calculated and shown":
                [sitting.store_amount(200_000 - turn) for turn in range(_KEYS)],
                "a digit in a field": [sitting.key() for _ in range(_KEYS)]}
    finally:
        sitting.close()
        screen.close()
    return {"window": tables.table(
        ["ms, from the key to the end of the paint", "median", "least", "most"],
        [[name, *map(tables.number, window.median_and_range(values))]
         for name, values in rows.items()])}


def _arithmetic(_: pathlib.Path) -> dict[str, str]:
    _say("arithmetic")
    found = benches.run(_BENCH / "loan_bench_library", clock="cpu_time")
    schedule, bare, bond = (report.by_size(found, name)
                            for name in ("Schedule", "BareLoop", "LibraryBond"))
    rows = report.growth(_MONTHS, "µs by months", {
        "the schedule": schedule, "a bare loop of the same arithmetic": bare,
        "a bond of QuantLib": bond}, 1000)
    ratios = tables.table(["times ours", *(f"{months:,}" for months in _MONTHS)],
                          [[name, *(f"{other[months].median / schedule[months].median:.2f}"
                                    for months in _MONTHS if months in other)]
                           for name, other in (("a bare loop", bare), ("a bond of QuantLib", bond))])
    return {"arithmetic": rows + "\n\n" + ratios}


def _offers(_: pathlib.Path) -> dict[str, str]:
    _say("offers")
    calc = benches.run(_BENCH / "loan_bench_calc", "RecalculateOffers/Monthly", clock="cpu_time")
    sheet = benches.run(_BENCH / "loan_bench_worksheet", "Everything", clock="cpu_time")
    shown = benches.run(_BENCH / "loan_bench_window")
    kept = benches.run(_BENCH / "loan_bench_worksheets", "Worksheet/", 5)
    printed = benches.run(_BENCH / "loan_bench_print", "PrintedReport/.*/2$", 5)
    rows = {
        "five results each": report.by_size(calc, "RecalculateOffers/Monthly"),
        "one edit: results and texts": report.by_size(sheet, "EverythingTheWindowShows"),
        "key to painted result, offscreen": report.by_size(shown, "KeyToPaintedResult"),
        "save": report.by_size(kept, "SaveOfAWorksheet"),
        "load": report.by_size(kept, "LoadOfAWorksheet"),
        "report drawn": report.by_size(printed, "PrintedReport"),
    }
    return {"offers": report.growth(_OFFERS, "ms by offers", rows)}


def _comparison(folder: pathlib.Path) -> dict[str, str]:
    _say("comparison")
    found = benches.run(_BENCH / "loan_bench_comparison", clock="cpu_time")
    usual = report.by_size(found, "CompareUsualOffers")
    most = found["CompareEndlessOffers"]
    rows = [["ms for the worksheet that costs most", tables.number(most.median), f"{most.spread:.0f} %"]]
    lines, spread = compare.middle(compare.lines_a_second(_BUILD / "bin", folder, _LINES, _WARM_ROUNDS))
    rows += [["worksheets a second by `quend-compare --lines`", tables.number(lines), f"{spread:.0f} %"]]
    opened = report.by_size(benches.run(_BENCH / "loan_bench_compare_window"), "OpenComparison")
    return {"comparison": report.growth(_COMPARED_OFFERS, "ms by offers",
                                        {"all figures of a usual worksheet": usual,
                                         "the window opened and painted, offscreen": opened}),
            "comparison limits": tables.table(["", "", "spread"], rows),
            "comparison starts": _starts_of_compare()}


def _starts_of_compare() -> str:
    starts = compare.starts(_BUILD / "bin", _BENCH, _COMPARE_STARTS)
    empty = next(iter(starts.values()))
    rows = [[name, tables.number(compare.middle(times)[0]), report.spread(times),
             f"{compare.middle([time / bare for time, bare in zip(times, empty)])[0]:.2f}"]
            for name, times in starts.items()]
    return tables.table(["ms from the start of the process to its end", "median", "middle half",
                         "times the empty one"], rows)


def _worksheets(_: pathlib.Path) -> dict[str, str]:
    _say("worksheets")
    found = benches.run(_BENCH / "loan_bench_worksheets", "TenThousand", 3)
    names = {"SaveAmongTenThousandWorksheets": "one of sixteen offers saved among them",
             "LoadAmongTenThousandWorksheets": "the same loaded",
             "ListOfTenThousandWorksheets": "their names listed",
             "DropDownOfTenThousandWorksheets": "their list dropped down and painted, offscreen"}
    return {"worksheets": tables.table(
        ["ten thousand worksheets", "ms", "spread"],
        [[title, tables.number(found[name].median), f"{found[name].spread:.0f} %"]
         for name, title in names.items()])}


def _printing(_: pathlib.Path) -> dict[str, str]:
    _say("printing")
    drawn = benches.run(_BENCH / "loan_bench_print", "PrintedReport/16/", 5)
    rows = [[f"drawn, pages: {figure.counters['pages']:.0f}", tables.number(figure.median),
             f"{figure.spread:.0f} %"] for figure in drawn.values()]
    with tempfile.TemporaryDirectory(prefix="loan-print-") as folder:
        server = subprocess.run([ROOT / "scripts/printlab", "start", folder], check=True,
                                capture_output=True, text=True).stdout.strip()
        try:
            handed = benches.run(_BENCH / "loan_bench_print", "HandOver", 3, CUPS_SERVER=server,
                                 HOME=folder)
        finally:
            subprocess.run([ROOT / "scripts/printlab", "stop", folder], check=True)
    rows += [["handed over to the print server", tables.number(figure.median),
              f"{figure.spread:.0f} %"] for figure in handed.values()]
    return {"printing": tables.table(["a report of sixteen offers", "ms", "spread"], rows)}


_SECTIONS = {"starts": _starts, "screens": _screens, "window": _window,
             "arithmetic": _arithmetic, "offers": _offers, "comparison": _comparison,
             "worksheets": _worksheets, "printing": _printing}


def _arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="scripts/bench")
    parser.add_argument("sections", nargs="*", metavar="section", default=[],
                        help=f"of {', '.join(_SECTIONS)}; without any, all of them")
    parser.add_argument("--file", type=pathlib.Path, default=ROOT / "docs/performance.md",
                        help="whose tables are written")
    arguments = parser.parse_args()
    if unknown := set(arguments.sections) - set(_SECTIONS):
        parser.error(f"there is no section {', '.join(sorted(unknown))}")
    return arguments


def main() -> int:
    """If a section fails, its old tables stay and the others are still measured."""
    arguments = _arguments()
    failed = []
    tables.write(arguments.file, {"machine": report.machine()})
    with tempfile.TemporaryDirectory(prefix="loan-bench-") as folder:
        for name in arguments.sections or _SECTIONS:
            try:
                tables.write(arguments.file, _SECTIONS[name](pathlib.Path(folder)))
            except Exception:  # any failure is reported
                traceback.print_exc()
                failed.append(name)
    _say(f"failed: {', '.join(failed)}" if failed else f"written to {arguments.file}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
