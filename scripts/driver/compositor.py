"""A Wayland desktop for one run of the program: a compositor whose screen is a window of the X server.

So the program has no X server but a real seat, and keys and mouse reach it as from a user. The compositor shows
the main window alone and as large as the screen, so that places in it are places on the screen.
"""

from __future__ import annotations

import re
import subprocess
from collections.abc import Mapping, Sequence
from pathlib import Path

from session import Session
from waiting import wait_for

_NAME = "wayland-driver"
_WIDTH, _HEIGHT = 1400, 900  # the screen of a Session
_NEW_NAMES = 12  # the first version that names modules without their file


class WaylandSession(Session):
    """The desktop of a Session, and the compositor on it; the program sees only the compositor.

    A client does not know where its dialogs are, so their buttons are pressed by their accessible actions. When a
    dialog has closed, the compositor may leave the focus nowhere until the next click.
    """

    places_known = False

    def platform(self) -> Mapping[str, str]:
        return {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": _NAME, "DISPLAY": "", "XAUTHORITY": ""}

    def screenshot(self, file: Path) -> None:
        """Takes a screenshot of the screen."""
        self._photograph(str(file))

    def _start_window_manager(self) -> None:
        """None: the compositor is the only program of the X server."""
        self.start(["weston", *_modules(), f"--width={_WIDTH}", f"--height={_HEIGHT}", f"--socket={_NAME}",
                    "--no-config", "--idle-time=0"])
        runtime = Path(self.environment["XDG_RUNTIME_DIR"])
        wait_for("the compositor", (runtime / _NAME).exists, 10)
        wait_for("its window to fill the screen", self._fills_screen, 10)

    def _fills_screen(self) -> bool:
        """Before that the main window would move under the mouse."""
        said = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "weston", "getwindowgeometry",
                               "--shell"], check=False, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True)
        return {"X=0", "Y=0", f"WIDTH={_WIDTH}", f"HEIGHT={_HEIGHT}"} <= set(said.stdout.split())


def _modules() -> Sequence[str]:
    version = subprocess.run(["weston", "--version"], check=True, capture_output=True, text=True).stdout
    number = re.search(r"\d+", version)
    if number and int(number[0]) < _NEW_NAMES:
        return ["--backend=x11-backend.so", "--shell=kiosk-shell.so", "--use-pixman"]
    return ["--backend=x11", "--shell=kiosk", "--renderer=pixman"]
