"""Runs the benchmarks of bench/ and reads their results."""

from __future__ import annotations

import json
import os
import pathlib
import subprocess
from dataclasses import dataclass

_TO_MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


@dataclass(frozen=True)
class Figure:
    """The time of one benchmark in milliseconds: the median of its rounds, and the difference between the
    longest and the shortest, in percent of the median."""

    median: float
    spread: float
    counters: dict[str, float]


def run(program: pathlib.Path, pattern: str = ".", rounds: int = 7, seconds: float = 0.05,
        clock: str = "real_time", **environment: str) -> dict[str, Figure]:
    """All benchmarks that match the pattern, by name. Their rounds alternate, so that load on the machine
    affects all of them alike. The clock is "real_time" or, for pure computation, "cpu_time"."""
    answer = subprocess.run(
        [program, f"--benchmark_filter={pattern}", f"--benchmark_repetitions={rounds}",
         f"--benchmark_min_time={seconds}", "--benchmark_enable_random_interleaving=true",
         "--benchmark_format=json"],
        env={**os.environ, "LC_ALL": "C.UTF-8", **environment}, check=True, capture_output=True,
        text=True)
    found: dict[str, list[dict]] = {}
    for one in json.loads(answer.stdout)["benchmarks"]:
        if one.get("run_type") == "iteration" and not one.get("error_occurred"):
            found.setdefault(_name(one["run_name"]), []).append(one)
    return {name: _figure(ones, clock) for name, ones in found.items()}


def _name(name: str) -> str:
    """The name without the parts that describe the measurement."""
    return "/".join(part for part in name.split("/")
                    if not part.startswith("iterations:") and part not in ("manual_time", "real_time"))


def _figure(ones: list[dict], clock: str) -> Figure:
    times = sorted(one[clock] * _TO_MILLISECONDS[one["time_unit"]] for one in ones)
    median = times[len(times) // 2]
    return Figure(median, 100 * (times[-1] - times[0]) / median,
                  {name: value for name, value in ones[0].items() if isinstance(value, float)})
