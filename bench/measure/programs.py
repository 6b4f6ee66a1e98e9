"""The measured programs: this one, an empty window, and its peers: general calculators and a finance program as packaged by
Debian, with default settings."""

from __future__ import annotations

import os
import pathlib
import subprocess
from dataclasses import dataclass, field

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


@dataclass(frozen=True)
class Program:
    """A program, and a key that it responds to at once."""

    name: str
    command: tuple[str, ...]
    package: str = ""
    keys: tuple[str, ...] = ("7",)
    settings: dict[str, str] = field(default_factory=dict)  # files below the home folder

    def version(self) -> str:
        if not self.package:
            return ""
        return subprocess.run(["dpkg-query", "-W", "-f", "${Version}", self.package], check=True,
                              capture_output=True, text=True).stdout

    def prepare(self, home: pathlib.Path) -> None:
        for folder in (".config", ".local/share", ".cache", "run"):
            (home / folder).mkdir(parents=True, exist_ok=True)
        (home / "run").chmod(0o700)
        for name, text in self.settings.items():
            (home / name).parent.mkdir(parents=True, exist_ok=True)
            (home / name).write_text(text, encoding="utf-8")


def environment(home: pathlib.Path, screen: str) -> dict[str, str]:
    """The same for all: a separate home folder, no message bus, and nothing of the caller's desktop."""
    kept = {name: value for name, value in os.environ.items() if name in ("PATH", "USER", "LOGNAME")}
    return {**kept, "DISPLAY": screen, "LC_ALL": "C.UTF-8", "HOME": str(home),
            "XDG_CONFIG_HOME": str(home / ".config"), "XDG_DATA_HOME": str(home / ".local/share"),
            "XDG_CACHE_HOME": str(home / ".cache"), "XDG_RUNTIME_DIR": str(home / "run"),
            "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent", "GSETTINGS_BACKEND": "keyfile"}


# Disables the questions and tips at first start.
_GNUCASH_SETTINGS = {".config/glib-2.0/settings/keyfile": """\
[org/gnucash/GnuCash/dialogs/new-user]
first-startup=false
[org/gnucash/GnuCash/dialogs/totd]
show-at-startup=false
[org/gnucash/dialogs/new-user]
first-startup=false
[org/gnucash/dialogs/totd]
show-at-startup=false
"""}


def own(folder: pathlib.Path) -> Program:
    return Program("Quend Loan", (str(folder / "Loan"),))


def empty_window(folder: pathlib.Path) -> Program:
    """What any Qt window with as many entry fields costs."""
    return Program("an empty window of 300 fields", (str(folder / "empty_window"),))


PEERS = (
    Program("SpeedCrunch", ("speedcrunch",), "speedcrunch"),
    Program("KCalc", ("kcalc",), "kcalc"),
    Program("galculator", ("galculator",), "galculator"),
    Program("Qalculate!", ("qalculate-gtk",), "qalculate-gtk"),
    # Its main window has no field: the key opens a menu.
    Program("GnuCash", ("gnucash", "--nofile"), "gnucash", ("F10",), _GNUCASH_SETTINGS),
)
