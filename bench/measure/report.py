"""The results as the tables of docs/performance.md."""

from __future__ import annotations

import datetime
import os
import platform
import statistics
from collections.abc import Sequence
from pathlib import Path

from .benches import Figure
from .programs import Program
from .start_up import Start, median
from .tables import number, table

Starts = dict[str, list[Start]]


def machine() -> str:
    def line_of(file: str, name: str) -> str:
        lines = Path(file).read_text(encoding="utf-8").splitlines()
        return next((line.split(":", 1)[1].strip() for line in lines if line.startswith(name)), "?")

    memory = int(line_of("/proc/meminfo", "MemTotal").split()[0]) / 2**20
    return (f"{datetime.date.today().isoformat()}: {os.cpu_count()} processors "
            f"({line_of('/proc/cpuinfo', 'model name')}), {memory:.0f} GB, {_system()}, "
            f"Linux {platform.release()}; load when it began {os.getloadavg()[0]:.1f}.")


def _system() -> str:
    for line in Path("/etc/os-release").read_text(encoding="utf-8").splitlines():
        if line.startswith("PRETTY_NAME="):
            return line.split("=", 1)[1].strip('"')
    return "?"


def spread(values: Sequence[float]) -> str:
    """The middle half."""
    ordered = sorted(values)
    quarter = len(ordered) // 4
    return f"{number(ordered[quarter])}–{number(ordered[-1 - quarter])}"


def starts(programs: Sequence[Program], measured: Starts) -> str:
    own = measured[programs[0].name]
    rows = []
    for program in programs:
        all_of = measured[program.name]
        usable = [start.usable for start in all_of]
        if program is programs[0]:
            against = ["", ""]
        else:
            pairs = [(their.usable / our.usable) for their, our in zip(all_of, own)]
            slower = sum(ratio > 1 for ratio in pairs)
            against = [f"{statistics.median(pairs):.2f}", f"{slower} of {len(pairs)}"]
        rows.append([f"{program.name} {program.version()}".strip(),
                     *(number(median(all_of, what)) for what in ("window", "main", "usable")),
                     spread(usable), number(median(all_of, "finished")),
                     number(median(all_of, "processor")), *against])
    return table(["", "first window", "main window", "usable", "middle half", "finished",
                  "processor", "times ours", "slower in"], rows)


def memory(programs: Sequence[Program], measured: Starts) -> str:
    return table(
        ["MB", "peak", "resident", "shared in part", "its own"],
        [[program.name, *(number(median(measured[program.name], what))
                          for what in ("peak", "resident", "share", "own"))]
         for program in programs])


def growth(sizes: Sequence[int], unit: str, rows: dict[str, dict[int, Figure]],
           scale: float = 1.0) -> str:
    return table([unit, *(f"{size:,}" for size in sizes), "spread"],
                 [[name, *(number(figures[size].median * scale) if size in figures else ""
                           for size in sizes),
                   f"{max(figure.spread for figure in figures.values()):.0f} %"]
                  for name, figures in rows.items() if figures])


def by_size(figures: dict[str, Figure], name: str) -> dict[int, Figure]:
    """The figures by the first argument: 16 for "name/16" or "name/16/2"."""
    found = {}
    for key, figure in figures.items():
        rest = key.removeprefix(name + "/")
        if rest != key and rest.split("/")[0].isdigit():
            found.setdefault(int(rest.split("/")[0]), figure)
    return found
