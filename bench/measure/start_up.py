"""The time from the start of a program to a usable window, and its memory use then."""

from __future__ import annotations

import pathlib
import statistics
import subprocess
import time
from dataclasses import dataclass

from .programs import Program, environment
from .screen import Box, Screen, difference

# A caret blinks every half second: a window that is not painted for this time is finished.
_QUIET = 0.3
_QUIET_TO_LEARN = 0.45
_PATIENCE = 20.0
_ATTEMPTS = 3  # for starts disturbed by other load
DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")


@dataclass(frozen=True)
class Start:
    """Milliseconds since the start, and MB."""

    window: float  # the first window of any kind appears
    main: float  # the main window appears
    usable: float  # the key sent when the main window appeared has its effect on the screen
    finished: float  # the last paint
    processor: float  # CPU time of all threads
    peak: float
    resident: float
    share: float  # proportional set size: memory shared with other programs counts in part
    own: float  # resident and not shared


@dataclass(frozen=True)
class Answer:
    """Where on the screen the effect of the key appears, and what it looks like."""

    box: Box
    pixels: bytes


def _megabytes(file: pathlib.Path, name: str) -> float:
    for line in file.read_text(encoding="utf-8").splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1]) / 1024
    raise ValueError(f"no {name} in {file}")


def _processor(process: pathlib.Path) -> float:
    return sum(int((task / "schedstat").read_text(encoding="utf-8").split()[0])
               for task in (process / "task").iterdir()) / 1e6


class Starter:
    """Starts programs on a screen, each with a separate home folder."""

    def __init__(self, screen: Screen, folder: pathlib.Path) -> None:
        self._screen = screen
        self._folder = folder
        self._answers: dict[str, Answer] = {}

    def learn(self, program: Program) -> None:
        """Learns what the effect of the program's key looks like: the difference between a start with the
        key and one without."""
        self._answers.pop(program.name, None)
        self._run(program, (), lambda *_: None)  # the first start in this home folder
        for _ in range(_ATTEMPTS):
            without, answered, again = (
                self._run(program, keys, lambda *_: self._screen.pixels())
                for keys in ((), program.keys, program.keys))
            box = difference(without, answered)
            if box and difference(answered, again) is None:
                self._run(program, program.keys,
                          lambda *_: self._keep(program, Answer(box, self._screen.pixels(box))))
                return
        raise RuntimeError(f"{program.name} does not answer its key, or not always alike")

    def home(self, program: Program) -> pathlib.Path:
        return self._folder / program.name

    def start(self, program: Program) -> Start:
        for _ in range(_ATTEMPTS):
            start = self._run(program, program.keys, self._measure)
            if start:
                return start
            self.learn(program)
        raise RuntimeError(f"{program.name} did not answer its key")

    def start_unanswered(self, program: Program) -> Start:
        """Sends the key, but does not check its effect."""
        for _ in range(_ATTEMPTS):
            start = self._run(program, program.keys, lambda seen, process: self._measure(
                {"usable": seen.get("finished"), **seen} if "finished" in seen else {}, process))
            if start:
                return start
        raise RuntimeError(f"{program.name} did not show its window")

    def _keep(self, program: Program, answer: Answer) -> None:
        self._answers[program.name] = answer

    @staticmethod
    def _measure(seen: dict[str, float], process: int) -> Start | None:
        folder = pathlib.Path("/proc") / str(process)
        if "usable" not in seen:
            return None
        return Start(seen["window"], seen["main"], seen["usable"], seen["finished"],
                     _processor(folder), _megabytes(folder / "status", "VmHWM"),
                     _megabytes(folder / "status", "VmRSS"),
                     _megabytes(folder / "smaps_rollup", "Pss"),
                     _megabytes(folder / "smaps_rollup", "Private_Clean")
                     + _megabytes(folder / "smaps_rollup", "Private_Dirty"))

    def _run(self, program: Program, keys: tuple[str, ...], see):
        home = self.home(program)
        program.prepare(home)
        self._screen.forget()
        begin = time.perf_counter()
        process = subprocess.Popen(program.command, env=environment(home, self._screen.name),
                                   cwd=home, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            return see(self._watch(program, keys, begin), process.pid)
        finally:
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
            self._screen.last_paint(0.05)

    def _watch(self, program: Program, keys: tuple[str, ...], begin: float) -> dict[str, float]:
        """The events of a start, in milliseconds since it. The keys are sent when the main window appears
        and wait for the program like those of an impatient user."""
        seen: dict[str, float] = {}
        answer = self._answers.get(program.name) if keys else None
        quiet = _QUIET if answer else _QUIET_TO_LEARN
        wanted = "usable" if answer else "finished"
        for moment, happened in self._screen.events(quiet, lambda: wanted in seen, _PATIENCE):
            since = 1000 * (moment - begin)
            for event in happened:
                if self._screen.is_window(event):
                    seen.setdefault("window", since)
                    if "main" not in seen and self._screen.is_main_window(event):
                        seen["main"] = since
                        self._screen.give_keyboard(event.window)
                        if keys:
                            self._screen.press(*keys)
            if "main" in seen and any(self._screen.is_paint(event) for event in happened):
                seen["finished"] = since
                if answer and "usable" not in seen and (
                        self._screen.pixels(answer.box) == answer.pixels):
                    seen["usable"] = since
        return seen


def drop_caches() -> None:
    """Drops all cached files from memory."""
    subprocess.run(["sync"], check=True)
    DROP_CACHES.write_text("3", encoding="ascii")


def measure(starter: Starter, programs: list[Program], rounds: int,
            cold: bool = False) -> dict[str, list[Start]]:
    """The programs alternate, so that other load on the machine affects all of them alike."""
    starts: dict[str, list[Start]] = {program.name: [] for program in programs}
    for _ in range(rounds):
        for program in programs:
            if cold:
                drop_caches()
            starts[program.name].append(starter.start(program))
    return starts


def median(starts: list[Start], what: str) -> float:
    return statistics.median(getattr(start, what) for start in starts)
