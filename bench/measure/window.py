"""The time from a key to the painted result, in the real window."""

from __future__ import annotations

import pathlib
import statistics
import subprocess
import time

from .programs import Program, environment
from .screen import Screen

_OFFERS = 16
_TABS_TO_RATE = 17  # from the default term to the rate of the first offer
_QUIET = 0.15
_NAMES = {".": "period"}


class Sitting:
    """The running program with a typed worksheet of sixteen offers. The focus is in the loan amount."""

    def __init__(self, screen: Screen, program: Program, folder: pathlib.Path) -> None:
        self._screen = screen
        home = folder / "sitting"
        program.prepare(home)
        screen.forget()
        self._process = subprocess.Popen(program.command, env=environment(home, screen.name),
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._window = self._next_window(screen.is_main_window)
        self._fill()

    def close(self) -> None:
        self._process.kill()  # closing would ask whether to save
        self._process.wait()

    def type(self, text: str) -> None:
        for character in text:
            self._screen.press(_NAMES.get(character, character))

    def _next_window(self, fits):
        shown = []
        for _, happened in self._screen.events(0.3, lambda: bool(shown)):
            shown += [event.window for event in happened if fits(event)]
        self._screen.give_keyboard(shown[0])
        return shown[0]

    def _fill(self) -> None:
        for _ in range(2):
            self._screen.press("Tab")
        self.type("250000")
        self._screen.press("Tab")
        self.type("30")
        for _ in range(_TABS_TO_RATE):
            self._screen.press("Tab")
        for offer in range(_OFFERS):
            self.type(f"{5 + offer / 8:.3f}")
            for keys in (("Tab",), ("Tab",), ("m",), ("Shift_L", "Tab"), ("Shift_L", "Tab"), ("Down",)):
                self._screen.press(*keys)
            if offer == 0:
                self._close_notice()
            self._screen.last_paint(0.05)
        self._to_amount()

    def _close_notice(self) -> None:
        """The program reports the first payment that it fills in; closes that message."""
        self._next_window(self._screen.is_window)
        self._screen.press("Return")
        self._screen.last_paint(0.3)
        self._screen.give_keyboard(self._window)

    def _to_amount(self) -> None:
        self._screen.press("Alt_L", "a")
        self._screen.last_paint(_QUIET)

    def milliseconds_to_paint(self, *keys: str) -> float:
        begin = self._screen.press(*keys)
        last = self._screen.last_paint(_QUIET)
        if last is None:
            raise RuntimeError("nothing was painted")
        return 1000 * (last - begin)

    def store_amount(self, amount: int) -> float:
        """From Return to the end of the paint that shows sixteen recalculated offers."""
        self.type(str(amount))
        self._screen.last_paint(_QUIET)
        time.sleep(0.01)
        taken = self.milliseconds_to_paint("Return")
        self._to_amount()
        return taken

    def key(self) -> float:
        """From a digit key to its paint in the field."""
        return self.milliseconds_to_paint("1")


def median_and_range(values: list[float]) -> tuple[float, float, float]:
    return statistics.median(values), min(values), max(values)
