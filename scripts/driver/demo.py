"""Demonstrates the program: fills its window with a sample, takes screenshots, prints what it reads, and
prints the worksheet on a printer that writes files, and opens the comparison window.

Nothing is computed here: every printed figure is read from the window.
"""

from __future__ import annotations

import argparse
import shutil
import subprocess
import sys
from contextlib import ExitStack
from pathlib import Path

from accessibility import BusError
from comparison import COSTS, OVER_TIME, SCHEDULE
from controls import Texts
from printlab import PrintLab
from scenario import parse, play
from session import Session, run
from waiting import Expired
from window import Refused, Window

_ROOT = Path(__file__).resolve().parents[2]
_SAMPLE = Path(__file__).with_name("sample.scenario")
_OFFERS = 6

_COLUMNS = {
    # heading     control of the row   align right
    "F?":         ("chkPoints", False),
    "Points":     ("txtPoints", True),
    "Rate":       ("txtInterestRate", True),
    "Term":       ("txtTerm", True),
    "Frequency":  ("cboFrequency", False),
    "P & I":      ("txtPandI", True),
    "Payment":    ("txtPayment", True),
    "Actual":     ("txtActualPayment", True),
    "Payoff":     ("txtPayoffDate", True),
    "Interest":   ("txtInterest", True),
    "Lender":     ("txtWho", False),
}

_CURRENT = {
    "Loan amount":      "txtCurLoanAmount",
    "Term":             "txtCurLoanTerm",
    "Rate":             "txtCurInterestRate",
    "Payment":          "txtCurPayment",
    "Balance":          "txtCurrentBalance",
    "Actual payment":   "txtCurActualPayment",
    "Next payment":     "dtNextPayment",
    "Amount left":      "txtCurAmountLeft",
    "Interest left":    "txtCurInterestLeft",
    "Payoff":           "txtCurPayoffDate",
}


def _arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="scripts/demo", description=__doc__)
    parser.add_argument("--locale", default="en_US.UTF-8")
    parser.add_argument("--pictures", type=Path, default=_ROOT / "demo", metavar="FOLDER")
    parser.add_argument("--program", type=Path, default=_ROOT / "build/release/bin/Loan")
    return parser.parse_args()


def _speak(window: Window, language: int, file: Path) -> None:
    """Chooses a language in the menu and takes a screenshot of the window."""
    window.menu(["mnuTools", "mnuToolsLanguage", f"mnuToolsLanguageOpt({language})"])
    window.screenshot(file)
    print(f"picture: {file}")


def _offers(window: Window) -> list[list[str]]:
    """The texts of the offer rows."""
    return [[window.read(f"{control}({row})") for control, _ in _COLUMNS.values()]
            for row in range(_OFFERS)]


def _current(window: Window) -> dict[str, str]:
    """The texts of the current loan, and the escrow."""
    controls = {**_CURRENT, "Monthly escrow": "txtMonthlyEscrow"}
    return {heading: window.read(control) for heading, control in controls.items()}


def _print_offers(offers: list[list[str]]) -> None:
    rows = [list(_COLUMNS), *offers]
    widths = [max(len(row[column]) for row in rows) for column in range(len(_COLUMNS))]
    for row in rows:
        cells = [cell.rjust(width) if right else cell.ljust(width)
                 for cell, width, (_, right) in zip(row, widths, _COLUMNS.values())]
        print("  ".join(cells).rstrip())


def _print_current(shown: dict[str, str]) -> None:
    print("\nThe loan held today")
    for heading, text in shown.items():
        print(f"  {heading:<15}{text:>14}")
    print()


def _open_again(window: Window, locale: str) -> None:
    """Ends the program and opens the saved worksheet in a new process."""
    name = window.read("cboLoanName")
    window.menu(["mnuFile", "mnuFileSave"])
    before = (_offers(window), _current(window))
    window.quit()
    window.start(locale)
    window.choose("cboLoanName", name)
    if (_offers(window), _current(window)) != before:
        raise Refused("the saved worksheet shows other figures than before")
    print(f"Saved as {name!r} and opened again: the same figures.")


def _print(window: Window, lab: PrintLab, file: Path) -> None:
    """Prints the worksheet like a user, and saves the printed document."""
    window.menu(["mnuFile", "mnuFilePrint"])
    window.answer("Print")
    window.progress()
    shutil.copyfile(lab.document(), file)
    print(f"report: {file}")


def _print_lab(session: Session, ending: ExitStack) -> PrintLab | str:
    """A printer for this run, or the reason why there is none."""
    try:
        return ending.enter_context(PrintLab(session))
    except subprocess.CalledProcessError as error:
        return error.stderr.strip()
    except (OSError, subprocess.SubprocessError) as error:
        return str(error)


def _sort(window: Window, heading: str, file: Path) -> None:
    """Sorts the offers by a column, prints them and takes a screenshot with the first row visible."""
    window.sort(heading)
    window.focus("txtWho(0)")
    print(f"\n{window.describe(heading)}:")
    _print_offers(_offers(window))
    window.screenshot(file)
    print(f"picture: {file}")


def _compare(window: Window, language: int, pictures: Path, name: str) -> None:
    """Opens the comparison window in a language and takes a screenshot of each of its pages."""
    window.comparison.back()
    window.menu(["mnuTools", "mnuToolsLanguage", f"mnuToolsLanguageOpt({language})"])
    window.comparison.open()
    print(f"\n{window.comparison.title()}\n{window.comparison.answer()}")
    for page, part in ((COSTS, "costs"), (OVER_TIME, "over-time"), (SCHEDULE, "schedule")):
        window.comparison.show(page)
        file = pictures / f"compare-{part}-{name}.png"
        window.screenshot(file)
        print(f"picture: {file}")


def _show(window: Window, pictures: Path, locale: str) -> None:
    window.menu(["mnuTools", "mnuToolsLanguage", "mnuToolsLanguageOpt(1)"])
    for reading in play(window, parse(_SAMPLE.read_text(encoding="utf-8").splitlines())):
        print(f"{reading.control}: {reading.text}\n")
    _print_offers(_offers(window))
    _print_current(_current(window))
    _open_again(window, locale)
    _speak(window, 1, pictures / "window-english.png")
    _sort(window, "cmdPayoffDate", pictures / "sorted-by-payoff.png")
    _sort(window, "cmdInterest", pictures / "sorted-by-interest.png")
    _speak(window, 2, pictures / "window-spanish.png")


def main() -> int:
    given = _arguments()
    with Session(given.locale) as session, ExitStack() as ending:
        try:
            lab = _print_lab(session, ending)
            window = Window(session, given.program, Texts(_ROOT / "language/components"), 10.0)
            pictures = given.pictures.resolve()
            _show(window, pictures, given.locale)
            if isinstance(lab, str):
                print(f"demo: the report was not printed, because no print server runs: {lab}",
                      file=sys.stderr)
                return 1
            window.menu(["mnuTools", "mnuToolsLanguage", "mnuToolsLanguageOpt(1)"])
            _print(window, lab, pictures / "report.pdf")
            _compare(window, 1, pictures, "english")
            _compare(window, 2, pictures, "spanish")
        except (Refused, Expired, BusError, OSError) as error:
            print(f"demo: {error}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    run(main)
