"""Dragging by the mouse, within the window and to and from another program (neighbour.py)."""

from __future__ import annotations

import signal
import subprocess
import sys
from collections.abc import Callable
from pathlib import Path

from pointer import Hands
from session import Session
from waiting import wait_for

_NEIGHBOUR = Path(__file__).with_name("neighbour.py")
_ROUNDS = 10  # of question and answer, after which a program has seen what came before them
_BESIDE = 8   # pixels: a press so far from the one before is no double click
_START = 24   # pixels, more than any toolkit wants before a press becomes a drag


class Neighbour:
    """The other program, started beside the window; the session ends it."""

    def __init__(self, session: Session, text: str, seconds: float) -> None:
        self._seconds = seconds
        self._heard = 0
        self._said = session.folder / "neighbour.log"
        with self._said.open("wb") as said:
            self._process: subprocess.Popen[bytes] = session.start(
                [sys.executable, str(_NEIGHBOUR), text], {"GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1"},
                output=said.fileno())
        self.place("gives")

    def lines(self) -> list[str]:
        """What has been said so far, but for a line that is still being written."""
        said = self._said.read_text(encoding="utf-8", errors="replace")
        return said[:said.rfind("\n") + 1].splitlines()

    def listen(self) -> None:
        """What has been said so far does not count any more."""
        self._heard = len(self.lines())

    def last(self, word: str) -> str | None:
        """What followed that word the last time it was said."""
        found = [line[len(word) + 1:] for line in self.lines()[self._heard:]
                 if line.split(" ")[0] == word]
        return found[-1] if found else None

    def wait_for(self, word: str) -> str:
        wait_for(f"the neighbour to say {word!r}", lambda: self.last(word) is not None,
                 self._seconds)
        return self.last(word) or ""

    def catch_up(self) -> None:
        """Waits until it has seen all that has happened."""
        for _ in range(2):
            before = self.lines().count("here")
            self._process.send_signal(signal.SIGUSR1)
            wait_for("the neighbour to answer", lambda: self.lines().count("here") > before,
                     self._seconds)

    def place(self, what: str) -> tuple[int, int]:
        """The middle of what "gives" or "takes"."""
        wait_for(f"the place that {what}", lambda: self._places().get(what), self._seconds)
        return self._places()[what]

    def _places(self) -> dict[str, tuple[int, int]]:
        words = [line.split(" ") for line in self.lines() if line.startswith("at ")]
        return {what: (int(x), int(y)) for _, what, x, y in words}


class Drag:
    """One drag, step by step. Each step waits until the window has seen it."""

    _side = 1

    def __init__(self, hands: Hands, answer: Callable[[], object], seconds: float) -> None:
        """`answer` asks the window something, whatever it is."""
        self._hands = hands
        self._answer = answer
        self._seconds = seconds

    def begin(self, start: tuple[int, int], button: int = 1) -> None:
        Drag._side = -Drag._side
        x, y = start[0] + Drag._side * _BESIDE, start[1]
        self._hands.move(x, y)
        self._settle()
        self._before = self._hands.windows()
        self._hands.hold(button)
        self._settle()
        for step in range(1, 4):
            self._hands.move(x + step * _START // 3, y)
            self._settle()

    def has_begun(self) -> bool:
        """Whether the slip that goes along with the mouse is there."""
        return bool(self._hands.windows() - self._before)

    def must_begin(self) -> None:
        wait_for("the drag to begin", self.has_begun, self._seconds)

    def over(self, place: tuple[int, int]) -> None:
        for nudge in (-2, 0):
            self._hands.move(place[0] + nudge, place[1])
            self._settle()

    def end(self, button: int = 1) -> None:
        self._hands.let_go(button)
        self._settle()

    def _settle(self) -> None:
        for _ in range(_ROUNDS):
            self._answer()
