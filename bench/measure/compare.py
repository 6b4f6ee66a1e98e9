"""The comparison without a window: the start of quend-compare, and the lines it compares a second."""

from __future__ import annotations

import os
import pathlib
import statistics
import time
from collections.abc import Sequence
from dataclasses import dataclass

from .programs import ROOT

_SAMPLE = ROOT / "docs/sample.quendloan"
_REFERENCE = ROOT / "tests/data/comparison/comparisons.jsonl"
_ENVIRONMENT = {"LC_ALL": "C.UTF-8", "PATH": os.environ["PATH"]}


@dataclass(frozen=True)
class _Run:
    """Milliseconds of one process, from its start to its end, and of the processor."""

    whole: float
    processor: float


def _run(command: Sequence[str], given: pathlib.Path) -> _Run:
    """Its output is discarded."""
    opened = [(os.POSIX_SPAWN_OPEN, 0, str(given), os.O_RDONLY, 0),
              (os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)]
    start = time.perf_counter()
    process = os.posix_spawn(command[0], command, _ENVIRONMENT, file_actions=opened)
    _, status, used = os.wait4(process, 0)
    if status != 0:
        raise RuntimeError(f"{' '.join(command)} failed")
    return _Run((time.perf_counter() - start) * 1000, (used.ru_utime + used.ru_stime) * 1000)


def starts(programs: pathlib.Path, benches: pathlib.Path, rounds: int) -> dict[str, list[float]]:
    """The programs take turns. The first round is not counted."""
    compare = str(programs / "quend-compare")
    commands = {"an empty program with Qt Core": [str(benches / "empty_core")],
                "a worksheet compared, as text": [compare, "-"],
                "the same as JSON": [compare, "--format", "json", "-"]}
    measured: dict[str, list[float]] = {name: [] for name in commands}
    for _ in range(rounds + 1):
        for name, command in commands.items():
            measured[name].append(_run(command, _SAMPLE).whole)
    return {name: times[1:] for name, times in measured.items()}


def lines_a_second(programs: pathlib.Path, folder: pathlib.Path, times: int, rounds: int) -> list[float]:
    """Of the reference worksheets, repeated in one file, by the time of the processor."""
    reference = _REFERENCE.read_text(encoding="utf-8")
    file = folder / "worksheets.jsonl"
    file.write_text(reference * times, encoding="utf-8")
    count = len(reference.splitlines()) * times
    command = [str(programs / "quend-compare"), "--lines", "-"]
    return [count * 1000 / _run(command, file).processor for _ in range(rounds)]


def middle(values: Sequence[float]) -> tuple[float, float]:
    """The median, and the difference between the longest and the shortest in percent of it."""
    median = statistics.median(values)
    return median, 100 * (max(values) - min(values)) / median
