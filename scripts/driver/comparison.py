"""The comparison window, operated like a user does: its pages, its table of costs and its chart.

Its controls are identified by the numbers of their texts, because access keys and captions differ by
language. Its buttons and numbers are operated like those of dialogs (dialogs.py).
"""

from __future__ import annotations

from collections.abc import Callable
from pathlib import Path

from accessibility import FOCUSED, SHOWING, Node
from controls import Texts
from dialogs import PARTS_WITHOUT_CELLS
from pointer import Hands
from waiting import Expired, wait_for

COSTS, OVER_TIME, SCHEDULE = 1200, 1201, 1202  # the captions of the pages
_ON_PAGE = {COSTS: 993, OVER_TIME: 1203, SCHEDULE: 999}  # the name of what only that page shows
_YEARS = 990
_EXPORT = 977
_COSTS_HEADING = 904
_REACH = 8  # pixels: narrower than the place at which the horizon can be taken
_STEP = 3   # pixels: less than a year in a window of the usual size
_ROUNDS = 5  # round trips, after which the window has processed all earlier events


class Comparison:
    """Operates the window that Ctrl+K opens; `active` returns the active window, or None."""

    def __init__(self, hands: Hands, texts: Texts, main: Callable[[], Node],
                 active: Callable[[], Node | None], seconds: float) -> None:
        self._hands = hands
        self._texts = texts
        self._main = main
        self._active = active
        self._seconds = seconds

    # Windows

    def open(self) -> None:
        """Opens the window, or brings it to the front."""
        self.back()
        self._hands.keys("ctrl+k")
        self._wait("the comparison to open", lambda: self._active() not in (None, self._main()))
        self._wait("the comparison to show its pages", lambda: self._part(_YEARS))

    def back(self) -> None:
        """Activates the main window by the window manager's key, if the comparison is active."""
        if self._active() != self._main():
            self._hands.keys("alt+Tab")
            self._wait("the main window to become active", lambda: self._active() == self._main())

    def title(self) -> str:
        return self._window().name()

    def show(self, page: int) -> None:
        """Clicks on the tab of a page."""
        tab = self._part(page, "page tab")
        self._hands.click(*tab.box().middle())
        self._part(_ON_PAGE[page])
        self.settle()

    def settle(self) -> None:
        for _ in range(_ROUNDS):
            self._window().name()

    # What the user reads

    def answer(self) -> str:
        """The sentences at the top: the longest text there."""
        labels = [part.name() for part in self._window().children() if part.role() == "label"]
        return max(labels, key=len, default="")

    def figure(self, heading: int, loan: str) -> str:
        """What the table of costs says of a loan in the column with that heading, as it is read aloud."""
        return self._cell(heading, loan).name()

    def chart(self, keys: list[str]) -> list[str]:
        """Reads the chart by keys: its role, its name and the new sentence."""
        chart = self._chart()
        before = chart.description()
        self._hands.click(*chart.box().middle())
        self._wait("the chart to take the focus", lambda: chart.has(FOCUSED))
        self._hands.keys(*keys)
        self._wait("the chart to read another value", lambda: chart.description() != before)
        self.settle()
        return [chart.role(), chart.name(), chart.description()]

    def nameless(self) -> list[str]:
        """The roles of controls that can have the focus and that no screen reader can name."""
        operated = {"push button", "button", "radio button", "check box", "spin button",
                    "spin box", "text", "page tab", "table", "combo box", "chart"}
        return [part.role() for part in self._window().walk(PARTS_WITHOUT_CELLS)
                if part.role() in operated and part.has(SHOWING) and not part.name()]

    # What the user does

    def costs(self, amount: str, loan: str) -> None:
        """Types what an offer's lender charges into the table."""
        cell = self._cell(_COSTS_HEADING, loan)
        before = cell.name()
        self._hands.click(*cell.box().middle())
        self._wait("the cell to be selected", lambda: self._cell(_COSTS_HEADING, loan).has(FOCUSED))
        self._hands.text(amount)
        self._hands.keys("Return")
        self._wait(f"the costs of {loan} to change",
                   lambda: self.figure(_COSTS_HEADING, loan) != before)

    def export(self, file: Path) -> str:
        """Names a new file in the dialog that asks for it, and returns what is written."""
        window = self._window()
        self._hands.click(*self._part(_EXPORT).box().middle())
        self._wait("the dialog of the file", lambda: self._active() not in (None, window))
        self._hands.keys("ctrl+a")
        self._hands.text(str(file))
        self._hands.keys("Return")
        self._wait("the dialog to close", lambda: self._active() == window)
        return file.read_text(encoding="utf-8-sig")

    def years(self) -> str:
        return self._part(_YEARS).text()

    def drag_years(self, wanted: str) -> None:
        """Drags the horizon of the chart until the window shows that number of years."""
        box = self._chart().box()
        y = box.middle()[1]
        end = box.x + box.width
        for x in range(box.x + _REACH, end, _REACH):
            if self._holds_horizon(x, y):
                break
        else:
            raise Expired("found no horizon in the chart")
        step = _STEP if int(wanted) > int(self.years()) else -_STEP
        while self.years() != wanted and box.x < x < end:
            x += step
            self._move(x, y)
        self._hands.let_go(1)
        self._wait(f"the years to be {wanted}", lambda: self.years() == wanted)

    def _holds_horizon(self, x: int, y: int) -> bool:
        """Presses there and moves; keeps the button down if that changed the years."""
        before = self.years()
        self._hands.move(x, y)
        self._hands.hold(1)
        self._move(x + self._chart().box().width // 4, y)
        if self.years() != before:
            self._move(x, y)
            return True
        self._hands.let_go(1)
        return False

    def _move(self, x: int, y: int) -> None:
        self._hands.move(x, y)
        self.settle()

    # Searching

    def _window(self) -> Node:
        def there() -> Node | None:
            window = self._active()
            return window if window != self._main() else None

        return self._wait("the comparison to be active", there)

    def _part(self, text: int, role: str | None = None) -> Node:
        """A visible part with that text as its name."""
        names = self._texts.shown(text)

        def found() -> Node | None:
            return next((part for part in self._window().walk(PARTS_WITHOUT_CELLS)
                         if part.name().replace("&", "") in names and part.has(SHOWING)
                         and role in (None, part.role())), None)

        return self._wait(f"a part named {sorted(names)}", found)

    def _chart(self) -> Node:
        def found() -> Node | None:
            return next((part for part in self._window().walk(PARTS_WITHOUT_CELLS)
                         if part.role() == "chart" and part.has(SHOWING)), None)

        return self._wait("the chart", found)

    def _cell(self, heading: int, loan: str) -> Node:
        table = self._part(_ON_PAGE[COSTS], "table")
        headings = [" ".join(table.heading(column).split()) for column in range(table.columns())]
        names = {name.replace("%1", self.years()) for name in self._texts.shown(heading)}
        column = next(at for at, name in enumerate(headings) if name in names)
        row = next((at for at in range(table.rows()) if table.cell(at, 0).name() == loan), None)
        if row is None:
            raise Expired(f"the table of costs has no {loan!r}")
        return table.cell(row, column)

    def _wait(self, what: str, condition: Callable[[], object]) -> Node:
        return wait_for(what, condition, self._seconds)  # type: ignore[return-value]
