"""Dragging with the mouse, within the window and to and from another program (neighbour.py), which also shares
the clipboard."""

from __future__ import annotations

import re
import signal
import subprocess
import sys
from collections.abc import Callable
from html import escape
from pathlib import Path

from pointer import Hands
from session import Session
from waiting import wait_for

_NEIGHBOUR = Path(__file__).with_name("neighbour.py")
_COPIES = Path(__file__).resolve().parents[2] / "tests/data/spreadsheet"
_ROUNDS = 10  # round trips, after which a program has processed all earlier events
_BESIDE = 8   # pixels: a press at this distance from the previous one is not a double click
_START = 24   # pixels, more than the drag distance of any GUI library


class Neighbour:
    """The other program, started next to the window; the session ends it."""

    def __init__(self, session: Session, text: str, seconds: float, copy: str = "") -> None:
        """With the name of a spreadsheet's real `copy` it owns the clipboard."""
        self._seconds = seconds
        self._heard = 0
        self._said = session.folder / "neighbour.log"
        with self._said.open("wb") as said:
            self._process: subprocess.Popen[bytes] = session.start(
                [sys.executable, str(_NEIGHBOUR), text, *([str(_COPIES / copy)] if copy else [])],
                {"GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1"}, output=said.fileno())
        self.place("gives")
        if copy:
            self.wait_for("owns")

    def lines(self) -> list[str]:
        """The output so far, without an incomplete last line."""
        said = self._said.read_text(encoding="utf-8", errors="replace")
        return said[:said.rfind("\n") + 1].splitlines()

    def listen(self) -> None:
        """Ignores the output so far."""
        self._heard = len(self.lines())

    def last(self, word: str) -> str | None:
        """The text after the last occurrence of that word."""
        found = [line[len(word) + 1:] for line in self.lines()[self._heard:]
                 if line.split(" ")[0] == word]
        return found[-1] if found else None

    def wait_for(self, word: str) -> str:
        wait_for(f"the neighbour to say {word!r}", lambda: self.last(word) is not None,
                 self._seconds)
        return self.last(word) or ""

    def catch_up(self) -> None:
        """Waits until it has processed all events."""
        for _ in range(2):
            before = self.lines().count("here")
            self._process.send_signal(signal.SIGUSR1)
            wait_for("the neighbour to answer", lambda: self.lines().count("here") > before,
                     self._seconds)

    def copied(self, column: int) -> list[str]:
        """A column of the table on the clipboard. Raises ValueError unless it is the same in HTML."""
        self.listen()
        self._process.send_signal(signal.SIGUSR2)
        rows = self.wait_for("html").split("<tr>")[1:]
        cells = [line.split("\t")[column] for line in (self.last("text") or "").split("\\n") if line]
        shown = [re.findall("<t[hd][^>]*>(.*?)</t[hd]>", row)[column] for row in rows]
        if [escape(cell, quote=False) for cell in cells] != shown:
            raise ValueError(f"the text has {cells}, but the HTML {shown}")
        return cells

    def place(self, what: str) -> tuple[int, int]:
        """The centre of the widget that "gives" or "takes"."""
        wait_for(f"the place that {what}", lambda: self._places().get(what), self._seconds)
        return self._places()[what]

    def _places(self) -> dict[str, tuple[int, int]]:
        words = [line.split(" ") for line in self.lines() if line.startswith("at ")]
        return {what: (int(x), int(y)) for _, what, x, y in words}


class Drag:
    """One drag, step by step. Each step waits until the window has processed it."""

    _side = 1

    def __init__(self, hands: Hands, answer: Callable[[], object], seconds: float) -> None:
        """`answer` makes any query to the window."""
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
        """Whether the drag image that follows the mouse is visible."""
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
