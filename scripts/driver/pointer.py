"""Mouse and keyboard of one X server, used like a user does. Does not read the controls."""

from __future__ import annotations

import subprocess
from collections.abc import Mapping, Sequence

# Some programs lose key events without a pause between them.
_KEY_PAUSE_MS = "8"
_POPUP_MARGIN = 24  # pixels from the edge of a pop-up, including its shadow, into its text


class Hands:
    """Clicks and types through the X server named in the environment."""

    def __init__(self, environment: Mapping[str, str]) -> None:
        self._environment = dict(environment)

    def _run(self, words: Sequence[str]) -> None:
        subprocess.run(["xdotool", *words], env=self._environment, check=True, timeout=60,
                       stdin=subprocess.DEVNULL)

    def window_in_hand(self) -> bool:
        """Whether any window has the keyboard focus."""
        return subprocess.run(["xdotool", "getactivewindow"], env=self._environment, check=False,
                              timeout=60, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0

    def class_in_hand(self) -> str:
        """The WM_CLASS of the window with the keyboard focus."""
        window = self._answer("xdotool", "getactivewindow")
        return self._answer("xprop", "-id", window.strip(), "WM_CLASS").split('"')[-2]

    def _answer(self, *words: str) -> str:
        return subprocess.run(words, env=self._environment, check=True, timeout=60, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE).stdout

    def click(self, x: int, y: int) -> None:
        self._run(["mousemove", str(x), str(y), "click", "1"])

    def double_click(self, x: int, y: int) -> None:
        self._run(["mousemove", str(x), str(y),
                   "click", "--repeat", "2", "--delay", "40", "1"])

    def windows(self) -> frozenset[str]:
        """All visible top-level windows, including tooltips."""
        return frozenset(subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--maxdepth", "1", "--name", ".*"],
            env=self._environment, check=False, timeout=60, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout.split())

    def last_line(self, window: str) -> tuple[int, int]:
        """The start of the last line of a pop-up."""
        said = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window],
                              env=self._environment, check=True, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True).stdout
        place = dict(line.split("=") for line in said.split())
        return (int(place["X"]) + _POPUP_MARGIN,
                int(place["Y"]) + int(place["HEIGHT"]) - _POPUP_MARGIN)

    def move(self, x: int, y: int) -> None:
        self._run(["mousemove", str(x), str(y)])

    def hold(self, button: int) -> None:
        self._run(["mousedown", str(button)])

    def let_go(self, button: int) -> None:
        self._run(["mouseup", str(button)])

    def rest(self) -> None:
        """Moves the mouse away, so that no tooltip covers the window."""
        self._run(["mousemove", "1", "1"])

    def keys(self, *names: str) -> None:
        """Presses keys by their X names ("Tab", "ctrl+a", "Return"), one after another."""
        if names:
            self._run(["key", "--delay", _KEY_PAUSE_MS, *names])

    def text(self, text: str) -> None:
        if text:
            self._run(["type", "--delay", _KEY_PAUSE_MS, "--", text])
