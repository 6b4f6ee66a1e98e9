"""User actions in dialogs and other windows in front of the main one.

Many of their controls are Qt's, so they are identified by what they show: a text, or @ and the number of a
text of the program in any language.
"""

from __future__ import annotations

from collections.abc import Callable

from accessibility import SHOWING, Node
from controls import Texts
from pointer import Hands
from waiting import wait_for

_PRESSED = frozenset({"push button", "button", "radio button", "page tab", "check box"})
PARTS_WITHOUT_CELLS = frozenset({"table", "tree table"})  # long tables have thousands of cells
_COUNTS = frozenset({"spin button", "spin box"})
_MAIN = "frame"  # the role of the main window
_HELP_PAGE = 597  # the accessible name of a help page


class Dialogs:
    """Operates the active dialog or window; `active` returns it, or None."""

    def __init__(self, hands: Hands, texts: Texts, active: Callable[[], Node | None],
                 seconds: float, places_known: bool) -> None:
        self._places_known = places_known
        self._hands = hands
        self._texts = texts
        self._active = active
        self._seconds = seconds

    def push(self, wanted: str) -> None:
        """Clicks on a button, a choice or a tab, without waiting."""
        self.press(self._find(wanted, _PRESSED))

    def press(self, button: Node) -> None:
        """Clicks on a control of a dialog; where that has no known place, performs its action."""
        if self._places_known:
            self._hands.click(*button.box().middle())
        else:
            button.act()

    def end(self, wanted: str) -> None:
        """Clicks on a button and waits until its dialog is no longer in front."""
        button = self._find(wanted, _PRESSED)
        dialog = self._active()
        self.press(button)
        wait_for("the dialog to close", lambda: self._left(dialog), self._seconds)

    def _left(self, dialog: Node | None) -> bool:
        now = self._active()
        return now != dialog and (now is not None or not self._places_known)

    def leave(self) -> None:
        """Closes the window in front (not the main one) by Escape."""
        window = self._active()
        self._hands.keys("Escape")
        wait_for("the window in front to close", lambda: self._left(window), self._seconds)

    def look(self) -> str:
        """The text of the dialog in front."""
        def dialog() -> Node | None:
            front = self._active()
            return front if front and front.role() != _MAIN else None

        return words_of(wait_for("a dialog", dialog, self._seconds))

    def helped(self) -> str:
        """Waits for the help window, closes it and returns its title."""
        self.page()
        window = self._active()
        title = window.name() if window else ""
        self.leave()
        return title

    def count(self, wanted: str, number: str) -> None:
        """Replaces the number in a field of the dialog."""
        field = self._find(wanted, _COUNTS)
        self._hands.click(*field.box().middle())
        self._hands.keys("ctrl+a")
        self._hands.text(number)
        wait_for(f"{wanted!r} to show {number}", lambda: field.text() == number, self._seconds)

    def name_file(self, file: str) -> None:
        """Types the name into the dialog that asks for a file, and waits until the dialog is gone."""
        titles = self._names("@1410") | self._names("@1411")
        dialog = wait_for("the dialog of the file", lambda: self._titled(titles), self._seconds)
        self._hands.keys("ctrl+a")
        self._hands.text(file)
        self._hands.keys("Return")
        wait_for("the dialog to close", lambda: self._active() not in (None, dialog), self._seconds)

    def _titled(self, names: frozenset[str]) -> Node | None:
        front = self._active()
        return front if front and front.name() in names else None

    def page(self) -> str:
        """Waits until the help is in front, and returns the first line of its page."""
        def first_line() -> str:
            window = self._active()
            names = self._texts.shown(_HELP_PAGE)
            pages = [part for part in window.walk() if part.name() in names] if window else []
            return pages[0].text().strip().partition("\n")[0] if pages else ""

        return wait_for("a page of the help", first_line, self._seconds)

    def _names(self, wanted: str) -> frozenset[str]:
        return self._texts.shown(int(wanted[1:])) if wanted.startswith("@") else frozenset({wanted})

    def _find(self, wanted: str, roles: frozenset[str]) -> Node:
        names = self._names(wanted)

        def found() -> Node | None:
            dialog = self._active()
            parts = dialog.walk(PARTS_WITHOUT_CELLS) if dialog else iter(())
            return next((part for part in parts if part.role() in roles and part.has(SHOWING)
                         and part.name().replace("&", "") in names), None)

        return wait_for(f"{wanted!r} in the dialog", found, self._seconds)


def words_of(dialog: Node) -> str:
    """The text of a message box."""
    return "\n".join(part.name() for part in dialog.walk()
                     if part.role() == "label" and part.name())
