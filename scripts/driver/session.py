"""A separate desktop for one run of the program: X server, window manager, message bus.

Everything started here ends here, also after a failure or a signal: the driver adopts orphaned descendants
and ends them by process id. Knows nothing about the program's controls.
"""

from __future__ import annotations

import ctypes
import os
import re
import secrets
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from collections.abc import Callable, Mapping, Sequence
from contextlib import ExitStack, closing
from pathlib import Path
from types import FrameType, TracebackType
from typing import NoReturn

from waiting import wait_for

_LIBC = ctypes.CDLL(None, use_errno=True)
_PR_SET_PDEATHSIG = 1
_PR_SET_CHILD_SUBREAPER = 36
_GRACE_SECONDS = 3.0
_OPENBOX = Path("/etc/xdg/openbox/rc.xml")


def _die_with_parent() -> None:
    """Runs in a child before its program starts, so that no child outlives a killed driver."""
    _LIBC.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)


def _stop(_number: int, _frame: FrameType | None) -> None:
    raise KeyboardInterrupt


def _children() -> list[int]:
    """Process ids of the children of this process that were not waited for."""
    found: list[int] = []
    for task in Path("/proc/self/task").iterdir():
        try:
            found += [int(word) for word in (task / "children").read_text().split()]
        except OSError:
            continue
    return found


def run(main: Callable[[], int]) -> NoReturn:
    """Ends this process with the exit code of its main function, 130 after an interrupt."""
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)


def _reap() -> None:
    while True:
        try:
            if os.waitpid(-1, os.WNOHANG)[0] == 0:
                return
        except ChildProcessError:
            return


def _end_children() -> None:
    """Ends the children and their adopted descendants, first by SIGTERM and then by SIGKILL."""
    start = time.monotonic()
    asked: set[int] = set()
    while True:
        _reap()
        left = _children()
        if not left:
            return
        force = time.monotonic() - start > _GRACE_SECONDS
        for child in left:
            if force or child not in asked:
                asked.add(child)
                try:
                    os.kill(child, signal.SIGKILL if force else signal.SIGTERM)
                except ProcessLookupError:
                    pass
        time.sleep(0.01)


class Session:
    """Starts the desktop on entering and ends it on leaving."""

    places_known = True  # whether the places of dialogs are those on the screen

    def __init__(self, locale: str, screen: str = "1400x900x24", noisy: bool = False) -> None:
        self._locale = locale
        self._screen = screen
        self._output = None if noisy else subprocess.DEVNULL
        self._cleanup = ExitStack()
        self.environment: dict[str, str] = {}
        self.folder = Path()
        self.tools = Path()  # programs of this session, first in PATH

    def __enter__(self) -> Session:
        _LIBC.prctl(_PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        for number in (signal.SIGTERM, signal.SIGHUP):
            signal.signal(number, _stop)
        with ExitStack() as undo:
            self.folder = Path(undo.enter_context(tempfile.TemporaryDirectory(prefix="loan-")))
            undo.callback(_end_children)
            self.environment = self._fresh_environment()
            self._start_display()
            self._start_bus()
            self._start_window_manager()
            self._cleanup = undo.pop_all()
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 trace: TracebackType | None) -> None:
        self._cleanup.close()

    def platform(self) -> Mapping[str, str]:
        """What makes the program use this desktop."""
        return {"QT_QPA_PLATFORM": "xcb"}

    def start(self, command: Sequence[str], extra: Mapping[str, str] | None = None,
              output: int | None = None, pass_fds: Sequence[int] = ()) -> subprocess.Popen[bytes]:
        """Starts a child in this session's environment; the caller need not end it."""
        return subprocess.Popen(
            command, env={**self.environment, **(extra or {})}, stdin=subprocess.DEVNULL,
            stdout=self._output if output is None else output,
            stderr=self._output if output is None else output,
            pass_fds=pass_fds, preexec_fn=_die_with_parent)

    def screenshot(self, file: Path) -> None:
        """Takes a screenshot of the active window with its frame."""
        self._photograph("--focused", "--border", str(file))

    def _photograph(self, *how: str) -> None:
        subprocess.run(["scrot", "--overwrite", *how], check=True, timeout=60, env=self.environment,
                       stdin=subprocess.DEVNULL)

    def install(self, tool: str) -> None:
        """Installs a program of that name first in PATH; it records its start."""
        file = self.tools / tool
        file.write_text(f"#!/bin/sh\necho '{tool}' >>'{self.folder}/started'\n", encoding="utf-8")
        file.chmod(0o755)

    def started(self) -> str:
        """The names of the started tools; empty if there are none."""
        file = self.folder / "started"
        return file.read_text(encoding="utf-8").strip() if file.exists() else ""

    def damage(self) -> None:
        """Overwrites the first page of the program's store."""
        store = next(Path(self.environment["XDG_DATA_HOME"]).rglob("Loan.store"))
        with closing(sqlite3.connect(store)) as connection:
            connection.execute("PRAGMA wal_checkpoint(TRUNCATE)")
        with store.open("r+b") as file:
            file.write(b"?" * 4_096)

    @staticmethod
    def components(process: int) -> list[str]:
        """The language components that a process has loaded: by name if they are beside its program, else
        by path."""
        place = Path("/proc", str(process))
        folder = (place / "exe").resolve().parent
        used = {line.split(maxsplit=5)[-1] for line in (place / "maps").read_text().splitlines()}
        return sorted(Path(file).name if Path(file).parent == folder else file
                      for file in used if file.endswith(".Resources.so"))

    @staticmethod
    def platform_of(process: int) -> str:
        """The plugins by which a process uses a desktop, such as "xcb"."""
        used = (Path("/proc", str(process)) / "maps").read_text()
        return " ".join(sorted(set(re.findall(r"platforms/libq(\w+)", used))))

    def _fresh_environment(self) -> dict[str, str]:
        """The caller's environment with this locale and new, empty folders."""
        left_out = ("LC_", "LANG", "XDG_", "DBUS_", "WAYLAND_", "QT_", "AT_SPI")
        environment = {key: value for key, value in os.environ.items()
                       if not key.startswith(left_out)}
        for name in ("CONFIG_HOME", "DATA_HOME", "CACHE_HOME", "STATE_HOME", "RUNTIME_DIR"):
            folder = self.folder / name.lower()
            folder.mkdir(mode=0o700)
            environment["XDG_" + name] = str(folder)
        home = self.folder / "home"
        home.mkdir()
        self.tools = self.folder / "tools"
        self.tools.mkdir()
        environment.update(HOME=str(home), LC_ALL=self._locale,
                           PATH=f"{self.tools}:{environment['PATH']}",
                           XAUTHORITY=str(self.folder / "xauthority"),
                           # Newer versions of Qt warn when a screen reader asks for a control that
                           # has just gone.
                           QT_LOGGING_RULES="qt.accessibility.atspi.warning=false")
        return environment

    def _start_display(self) -> None:
        cookie = secrets.token_hex(16)
        server_cookies = str(self.folder / "server-cookies")
        self._add_cookie(server_cookies, ":0", cookie)
        reading, writing = os.pipe()
        server = self.start(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", self._screen,
             "-nolisten", "tcp", "-noreset", "-auth", server_cookies], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as answer:
            display = answer.readline().strip()
        if not display:
            sys.exit(f"Xvfb did not start (exit code {server.wait()})")
        self.environment["DISPLAY"] = f":{display}"
        self._add_cookie(self.environment["XAUTHORITY"], f":{display}", cookie)

    def _add_cookie(self, file: str, display: str, cookie: str) -> None:
        subprocess.run(["xauth", "-q", "-f", file, "add", display, ".", cookie],
                       check=True, env=self.environment, stderr=subprocess.DEVNULL)

    def _start_bus(self) -> None:
        address = f"unix:path={self.folder}/bus"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.start(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                    f"--address={address}"])
        wait_for("the message bus", (self.folder / "bus").exists, 10)

    def _start_window_manager(self) -> None:
        """A window that is mapped before the window manager runs would never become active.

        At the first key from a new keyboard the manager reloads its shortcuts and may miss that key, so
        send one without effect first. Its keys that send a window to another desktop would take those that move
        an offer.
        """
        settings = self.folder / "rc.xml"
        settings.write_text(_OPENBOX.read_text(encoding="utf-8").replace('"S-A-', '"W-S-A-'), encoding="utf-8")
        self.start(["openbox", "--config-file", str(settings)])

        def ready() -> bool:
            return subprocess.run(["xdotool", "get_num_desktops"], env=self.environment,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  check=False).returncode == 0

        wait_for("the window manager", ready, 10)
        subprocess.run(["xdotool", "key", "Shift_L"], env=self.environment, check=True)
