"""Mouse and keyboard of one X server, as a user's hands would work them. Reads nothing back."""

from __future__ import annotations

import subprocess
from collections.abc import Mapping, Sequence

# Some programs lose key events that follow one another without any pause.
_KEY_PAUSE_MS = "8"
_POPUP_MARGIN = 24  # pixels from the edge of a pop-up, shadow and all, into its text


class Hands:
    """Clicks and types through the X server named in the environment."""

    def __init__(self, environment: Mapping[str, str]) -> None:
        self._environment = dict(environment)

    def _run(self, words: Sequence[str]) -> None:
        subprocess.run(["xdotool", *words], env=self._environment, check=True, timeout=60,
                       stdin=subprocess.DEVNULL)

    def window_in_hand(self) -> bool:
        """Whether the window manager has given some window the keyboard."""
        return subprocess.run(["xdotool", "getactivewindow"], env=self._environment, check=False,
                              timeout=60, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0

    def class_in_hand(self) -> str:
        """The class that the window with the keyboard gives itself."""
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
        """All that stands on the desktop, tooltips and the like among it."""
        return frozenset(subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--maxdepth", "1", "--name", ".*"],
            env=self._environment, check=False, timeout=60, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout.split())

    def last_line(self, window: str) -> tuple[int, int]:
        """Where the last line of a pop-up begins."""
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
        """Takes the mouse out of the way, so that no tooltip covers the window."""
        self._run(["mousemove", "1", "1"])

    def keys(self, *names: str) -> None:
        """Presses keys by their X names ("Tab", "ctrl+a", "Return"), one after another."""
        if names:
            self._run(["key", "--delay", _KEY_PAUSE_MS, *names])

    def text(self, text: str) -> None:
        if text:
            self._run(["type", "--delay", _KEY_PAUSE_MS, "--", text])
