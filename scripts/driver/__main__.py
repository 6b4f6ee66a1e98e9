"""Starts the program on a separate desktop and plays a scenario in its window.

Prints what the scenario reads as "control<TAB>text". The exit code is 0 if every step succeeded, 1 if the
window behaved wrongly, 2 if the scenario is invalid.
"""

from __future__ import annotations

import argparse
import re
import subprocess
import sys
from contextlib import ExitStack
from pathlib import Path

from accessibility import BusError
from compositor import WaylandSession
from controls import Texts
from printlab import PrintLab
from scenario import Malformed, Reading, parse, play, prints
from session import Session, run
from waiting import Expired
from window import Refused, Window

_ROOT = Path(__file__).resolve().parents[2]
_LOCALE_NOTE = re.compile(r'Detected locale "[^"]*" with character encoding.*?for more information\.\n',
                          re.DOTALL)


def _arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="driver", description=__doc__)
    parser.add_argument("scenario", nargs="?", type=Path,
                        help="file of steps (default: standard input); scenario.py lists them")
    parser.add_argument("--program", type=Path, default=_ROOT / "build/release/bin/Loan")
    parser.add_argument("--texts", type=Path, default=_ROOT / "language/components",
                        help="folder of the language components' texts")
    parser.add_argument("--locale", default="en_US.UTF-8")
    parser.add_argument("--deadline", type=float, default=10.0, metavar="SECONDS",
                        help="how long to wait for each thing to happen (default: %(default)s)")
    parser.add_argument("--wayland", action="store_true",
                        help="start the program in a Wayland compositor")
    parser.add_argument("--noisy", action="store_true",
                        help="let the X server, the window manager and the bus speak")
    return parser.parse_args()


def _show(reading: Reading) -> None:
    text = reading.text.replace("\n", "\\n") if reading.control != "tree" else reading.text
    print(f"{reading.control}\t{text}", flush=True)


def _complaints(log: Path) -> str:
    """The program's output, without the message of newer Qt versions that a locale is not installed."""
    said = log.read_text(errors="replace") if log.exists() else ""
    return _LOCALE_NOTE.sub("", said)


def main() -> int:
    given = _arguments()
    try:
        lines = (given.scenario.read_text(encoding="utf-8") if given.scenario
                 else sys.stdin.read()).splitlines()
        steps = parse(lines)
        texts = Texts(given.texts)
    except (OSError, Malformed) as error:
        print(f"driver: {error}", file=sys.stderr)
        return 2
    desktop = WaylandSession if given.wayland else Session
    with desktop(given.locale, noisy=given.noisy) as session, ExitStack() as ending:
        try:
            lab = ending.enter_context(PrintLab(session)) if prints(steps) else None
            window = Window(session, given.program, texts, given.deadline, lab)
            for reading in play(window, steps):
                _show(reading)
        except (Refused, Expired, BusError, OSError, subprocess.SubprocessError) as error:
            print(f"driver: {error}", file=sys.stderr)
            return 1
        finally:
            complaints = _complaints(session.folder / "program.log")
            if complaints:
                print(f"driver: the program said:\n{complaints}", file=sys.stderr)
    return 0


if __name__ == "__main__":
    run(main)
