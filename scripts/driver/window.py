"""The running program's window, operated like a user does.

A control is found by its accessible name, focused by a click at its position on the screen, and typed into;
its text is read through the accessibility bus. No method sets a value by another way.
"""

from __future__ import annotations

import signal
from collections.abc import Callable
from functools import partial
from pathlib import Path

from accessibility import (ACTIVE, CHECKED, EXPANDED, FOCUSED, SHOWING, Bus, BusError, Node, field_of,
                           has_focus, is_shown, is_there, open_items)
from comparison import Comparison
from controls import Texts, active_text_of, kind_of
from dialogs import Dialogs, words_of
from dragging import Drag, Neighbour
from locales import decimal_sign, typed_date
from pointer import Hands
from printlab import PrintLab
from session import Session
from waiting import Expired, Found, wait_for

_EDGE = 5  # pixels below the middle of a row's field: nearer to the edge, but still in the field
_DIALOG_ROLES = frozenset({"alert", "alert message", "dialog"})
_WINDOW_ROLES = frozenset({"frame", "window"})


class Refused(Exception):
    """The window did something that a user would not expect."""


class Window:
    """The main window of one run of the program; starts and stops nothing else."""

    def __init__(self, session: Session, program: Path, texts: Texts, seconds: float,
                 lab: PrintLab | None = None) -> None:
        self.session = session
        self.lab = lab
        self._program = program
        self._texts = texts
        self._seconds = seconds
        self._hands = Hands(session.environment)
        self.dialogs = Dialogs(self._hands, texts, self._active, seconds, session.places_known)
        self.comparison = Comparison(self._hands, texts, lambda: self._frame, self._active, seconds)
        self._log = session.folder / "program.log"
        self._bus = Bus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.start(session.environment["LC_ALL"])

    def start(self, locale: str, file: str = "") -> None:
        """Starts the program with the data of earlier runs, and with a file of the session's folder."""
        self._locale = locale
        self._known: dict[str, Node] = {}
        with self._log.open("ab") as log:
            self._process = self.session.start(
                [str(self._program), *([str(self.session.folder / file)] if file else [])],
                {"LC_ALL": locale, **self.session.platform(), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"},
                output=log.fileno())
        self._frame = wait_for("the window to become active",
                               lambda: self._top(_WINDOW_ROLES, SHOWING if file else ACTIVE),
                               3 * self._seconds)  # a file in error is reported at once
        if self.session.places_known:
            self._wait("the window manager to know that", self._hands.window_in_hand)
        self._look_around()

    # What is on the screen

    def _alive(self) -> None:
        code = self._process.poll()
        if code is not None:
            raise Refused(f"the program ended by itself (exit code {code})")

    def _top(self, roles: frozenset[str] | None, state: int) -> Node | None:
        """A window with one of those roles, or any role, and that state; None if there is none."""
        self._alive()
        try:
            tops = [top for program in self._bus.programs() for top in program.children()]
            return next((top for top in tops
                         if (roles is None or top.role() in roles) and top.has(state)), None)
        except BusError:
            return None

    def _active(self) -> Node | None:
        return self._top(None, ACTIVE)

    def _dialog_now(self) -> Node | None:
        """The dialog in front, if there are several."""
        dialog = self._top(_DIALOG_ROLES, SHOWING)
        return dialog and (self._top(_DIALOG_ROLES, ACTIVE) or dialog)

    def _must_be_free(self) -> None:
        dialog = self._dialog_now()
        if dialog:
            raise Refused(f"a message box is in the way: {words_of(dialog)!r}")

    def _look_around(self) -> list[str]:
        """Records each control with a known name, and returns all names.

        A list with a value reports that value instead of its name, so controls are recorded when first
        seen.
        """
        seen = []
        for node in self._frame.walk():
            try:
                role, name = node.role(), node.name()
            except BusError:
                continue
            seen.append(f"{role} {name!r}")
            control = self._texts.control_of(role, name)
            if control and not (control in self._known and is_there(self._known[control])):
                self._known[control] = node
        return seen

    def find(self, control: str) -> Node:
        """The control with that name. Raises Refused with the existing names."""
        kind_of(control)
        self._alive()
        if not (control in self._known and is_there(self._known[control])):
            self._known.pop(control, None)
            seen = self._look_around()
            if control not in self._known:
                raise Refused(f"found no {control} among {', '.join(seen)}")
        return self._known[control]

    # What the user does

    def focus(self, control: str) -> Node:
        """Clicks on the control and waits until it has the focus."""
        node = self.find(control)
        if not has_focus(node):
            self._must_be_free()
            self._hands.click(*node.box().middle())
            self._wait(f"{control} to take the focus", lambda: has_focus(node))
        return node

    def type(self, control: str, text: str) -> None:
        """Replaces the text of the field and leaves it by Tab."""
        node = field_of(self.focus(control))
        self._hands.keys("ctrl+a", "Delete")
        self._hands.text(text)
        self._wait(f"{control} to show {text!r}", lambda: node.text() == text)
        self._hands.keys("Tab")
        self._wait(f"{control} to be left or a message",
                   lambda: self._dialog_now() or not has_focus(node))

    def number(self, control: str, text: str) -> None:
        """Types a number, given with a decimal point, in the locale's format."""
        self.type(control, text.replace(".", decimal_sign(self._locale)))

    def key(self, control: str, names: list[str]) -> None:
        """Presses keys in the control, by their X names."""
        self.focus(control)
        self._hands.keys(*names)

    def keystrokes(self, control: str, text: str) -> None:
        """Types into the control without clearing, checking or leaving it."""
        self.focus(control)
        self._hands.text(text)

    def choose(self, control: str, wanted: str) -> None:
        """Opens a list and selects an entry by keys: by its text, or by @ and the number of its text in any
        language."""
        node = self.find(control)
        items = self._open_list(control)
        index = self._index_of(wanted, [item.name() for item in items])
        self._hands.keys("Home", *["Down"] * index)
        self._wait(f"{control} to offer {wanted!r}", lambda: items[index].has(FOCUSED))
        self._hands.keys("Return")
        self._wait(f"the list of {control} to close", lambda: not node.has(EXPANDED))

    def meet(self, text: str, copy: str = "") -> None:
        """Starts another program next to the window that provides this text to drag, and perhaps a copy of cells."""
        self._neighbour = Neighbour(self.session, text, self._seconds, copy)

    def clipped(self, column: int) -> str:
        """What the other program gets from the clipboard: a column of a table."""
        return "; ".join(self._neighbour.copied(column))

    def entries(self, menu: str, count: int) -> str:
        """Opens a menu, returns the names of its first entries, and closes it."""
        self._must_be_free()
        node = self.find(menu)
        self._hands.click(*node.box().middle())
        shown = self._wait(f"{menu} to open",
                           lambda: [entry.name() for entry in list(node.walk())[1:]
                                    if is_shown(entry) and entry.name()])
        self._hands.keys("Escape")
        self._wait(f"{menu} to close", lambda: not any(map(is_shown, node.children())))
        return "; ".join(shown[:count])

    def drag(self, start: str, end: str, escape: bool = False) -> None:
        """Drags from one field to another or to the "neighbour"."""
        drag = self._begin(start)
        if self.session.places_known:  # else the compositor draws the drag image
            drag.must_begin()
        if end == "neighbour":
            self._neighbour.listen()
        drag.over(self._place(end, "takes"))
        if end == "neighbour":
            self._neighbour.wait_for("over")
            self._neighbour.catch_up()
        if escape:
            self._hands.keys("Escape")
        drag.end()

    def drag_on(self, start: str, edge: str, end: str) -> None:
        """Drags to a field at an edge of the rows, holds there until scrolling has moved the last field
        under the mouse, and drops on that."""
        drag = self._begin(start)
        drag.must_begin()
        x, y = self._place(edge, "takes")
        drag.over((x, y + _EDGE))
        self._wait(f"{end} to come under the mouse", lambda: self.find(end).box().has(x, y + _EDGE))
        drag.end()

    def drag_nothing(self, start: str, end: str, button: int = 1) -> None:
        """The same where no drag may begin. The right button opens a menu, which is then closed."""
        drag = self._begin(start, button)
        drag.over(self._place(end, "takes"))
        begun = button == 1 and drag.has_begun()
        drag.end(button)
        if button != 1:
            self._hands.keys("Escape")
        if begun:
            raise Refused(f"{start} can be dragged")

    def drag_in(self, end: str) -> str:
        """Drags the neighbour's text to a field, and returns the action that was reported to the
        neighbour."""
        self._neighbour.listen()
        drag = wait_for("the neighbour to drag", self._begin_at_neighbour, self._seconds)
        # Only changes are reported, so first move over a field that accepts any text.
        drag.over(self._place("txtWho(0)", "takes"))
        self._neighbour.wait_for("action")
        drag.over(self._place(end, "takes"))
        self._neighbour.catch_up()
        answer = self._neighbour.wait_for("action")
        drag.end()
        self._neighbour.wait_for("end")
        return answer

    def _begin_at_neighbour(self) -> Drag | None:
        """A press while the neighbour still finishes its last drag starts no drag; returns None then."""
        drag = self._begin("neighbour")
        self._neighbour.catch_up()
        if self._neighbour.last("begin") is None:
            drag.end()
            return None
        return drag

    def _begin(self, start: str, button: int = 1) -> Drag:
        self._must_be_free()
        drag = Drag(self._hands, self._frame.name, self._seconds)
        drag.begin(self._place(start, "gives"), button)
        return drag

    def got(self) -> str:
        """The text dropped on the neighbour."""
        return self._neighbour.wait_for("got")

    def _place(self, control: str, what: str) -> tuple[int, int]:
        return (self._neighbour.place(what) if control == "neighbour"
                else self.find(control).box().middle())

    def check(self, control: str, wanted: bool = True) -> None:
        """Clicks on a check box unless it has the wanted state."""
        node = self.find(control)
        if node.has(CHECKED) != wanted:
            self._must_be_free()
            box = node.box()
            self._hands.click(box.x + min(8, box.width // 2), box.middle()[1])
            self._wait(f"{control} to be {'checked' if wanted else 'clear'}",
                       lambda: node.has(CHECKED) == wanted)

    def press(self, control: str) -> None:
        """Clicks on a button."""
        self._must_be_free()
        self._hands.click(*self.find(control).box().middle())

    def ask(self, control: str) -> str:
        """Asks for a control's help with the What's-this button, follows the link in the answer and returns
        the first line of the linked page."""
        self.press("cmdWhatsThis")
        before = self._hands.windows()
        self._hands.click(*self.find(control).box().middle())
        answer = self._wait("the answer", lambda: self._hands.windows() - before)
        self._hands.click(*self._hands.last_line(next(iter(answer))))
        return self.dialogs.page()

    def sort(self, control: str) -> None:
        """Clicks on the heading of a column and waits until its description says that the offers are
        sorted."""
        self.press(control)
        sorted_by = self._texts.shown(active_text_of(control))
        self._wait(f"{control} to say {sorted_by}",
                   lambda: self.find(control).description() in sorted_by)

    def lender(self, control: str, text: str) -> None:
        """Double-clicks on a lender, replaces the text in the dialog and presses its OK button. A bar in
        the text means a new line, typed as Shift+Return."""
        self._must_be_free()
        self._hands.double_click(*self.find(control).box().middle())
        box = self._wait("the dialog of the lender", self._dialog_now)
        self._wait("the dialog of the lender to become active", lambda: box.has(ACTIVE))
        self._hands.keys("ctrl+a", "Delete")
        for number, line in enumerate(text.split("|")):
            self._hands.keys(*["shift+Return"] * min(number, 1))
            self._hands.text(line)
        self._hands.keys("Return")
        self._wait_gone(box)

    def menu(self, path: list[str]) -> None:
        """Opens the menus in turn and clicks on the last entry."""
        self._must_be_free()
        for entry in path:
            node = self.find(entry)
            self._wait(f"{entry} to be shown", partial(is_shown, node))
            self._hands.click(*node.box().middle())
        if len(path) > 1:
            last = self.find(path[-1])
            self._wait("the menu to close", lambda: not last.has(SHOWING))

    def date(self, control: str, day: str) -> None:
        """Types a date given as year-month-day, in the locale's order; leaves by Tab."""
        node = self.focus(control)
        self._hands.keys("ctrl+a")  # it may have been entered before
        self._hands.text(typed_date(self._locale, day))
        self._hands.keys("Tab")
        self._wait(f"{control} to be left", lambda: not has_focus(node))

    def dialog(self, seconds: float | None = None) -> str:
        """Waits for a message box, closes it by Return and returns its text, with paths relative to the
        session's folder."""
        box = wait_for("a message box", self._dialog_now, seconds or self._seconds)
        wait_for("the message box to become active", lambda: box.has(ACTIVE), self._seconds)
        words = words_of(box)
        self._hands.keys("Return")
        self._wait_gone(box)
        return words.replace(f"{self.session.folder}/", "")

    def answer(self, wanted: str) -> str:
        """Waits for a question, clicks on the button with that text, and returns the question's text."""
        box = wait_for("a question", self._dialog_now, self._seconds)
        wait_for("the question to become active", lambda: box.has(ACTIVE), self._seconds)
        words = words_of(box)
        names = self._texts.shown(int(wanted[1:])) if wanted.startswith("@") else {wanted}
        buttons = [part for part in box.walk() if part.role() in ("push button", "button")]
        button = next((part for part in buttons if part.name() in names), None)
        if button is None:
            raise Refused(f"no {wanted!r} among {[part.name() for part in buttons]}")
        self.dialogs.press(button)
        self._wait_gone(box)
        return words

    def started(self) -> str:
        """Waits until a tool was started, and returns which."""
        return self._wait("a tool to be started", self.session.started)

    def progress(self) -> str:
        """Waits for a window that closes by itself, waits until it has closed, and returns its text."""
        box = wait_for("a window to open", self._dialog_now, self._seconds)
        words = words_of(box)
        self._wait_gone(box)
        return words

    def _wait_gone(self, box: Node) -> None:
        """Waits until a dialog is closed or the program has ended."""
        wait_for("the dialog to close",
                 lambda: self._process.poll() is not None or self._dialog_now() != box,
                 self._seconds)

    # What the user reads

    def read(self, control: str) -> str:
        """The value of the control: its text, the entry of a list, "yes" or "no" for a check box."""
        node = self.find(control)
        roles = kind_of(control)[0].roles
        if "check box" in roles:
            return "yes" if node.has(CHECKED) else "no"
        if "combo box" in roles:
            return self._read_list(control, node)
        return node.text() if "text" in roles else node.name()

    def _read_list(self, control: str, node: Node) -> str:
        """The value of a list: its field's text, or the entry that it reports instead of its name."""
        field = field_of(node)
        if field is not node:
            return field.text()
        name = node.name()
        return "" if name in self._texts.names(control) else name

    def describe(self, control: str) -> str:
        """The accessible description of the control."""
        return self.find(control).description()

    def expect(self, control: str, text: str) -> None:
        """Waits until the control shows the text."""
        last = ""

        def shown() -> bool:
            nonlocal last
            last = self.read(control)
            return last == text

        try:
            self._wait(f"{control} to show {text!r}", shown)
        except Expired as error:
            raise Refused(f"{error}; it shows {last!r}") from error

    def title(self) -> str:
        return self._frame.name()

    def desktop_class(self) -> str:
        """The window class by which desktops identify the program."""
        return self._hands.class_in_hand()

    def tree(self) -> str:
        """Every control with its role, name and position, to debug a failing search."""
        lines = []
        for node in self._frame.walk():
            try:
                lines.append(f"{node.role()}\t{node.name()}\t{node.box()}")
            except BusError as error:
                lines.append(str(error))
        return "\n".join(lines)

    def screenshot(self, file: Path) -> None:
        """Takes a screenshot of the window with its frame; moves the mouse away first."""
        file.parent.mkdir(parents=True, exist_ok=True)
        self._hands.rest()
        self.session.screenshot(file)

    def close(self) -> None:
        """Closes the window by Alt+F4, in a compositor by its menu. A question may follow."""
        if self.session.places_known:
            self._hands.keys("alt+F4")
        else:
            self.find("mnuFileExit").act()

    def ended(self) -> None:
        """Waits for the program to end with exit code 0."""
        wait_for("the program to end", lambda: self._process.poll() is not None, self._seconds)
        if self._process.returncode != 0:
            raise Refused(f"the program ended with exit code {self._process.returncode}")

    def quit(self) -> None:
        """Closes the window when no question is expected, and waits for exit code 0."""
        self.close()
        self.ended()

    def damage(self) -> None:
        """Damages the store after the program has processed all input."""
        self.title()
        self.session.damage()

    def process(self) -> int:
        return self._process.pid

    def end_by(self, number: signal.Signals) -> None:
        """Sends the program a signal after it has processed all input, and waits for its end."""
        self.title()
        self._process.send_signal(number)
        self._process.wait()

    # Lists

    def _open_list(self, control: str) -> list[Node]:
        """Clicks on the arrow at the right end of a list and returns the entries that it shows."""
        node = self.find(control)
        self._must_be_free()
        box = node.box()
        self._hands.click(box.x + box.width - 8, box.middle()[1])
        return self._wait(f"the list of {control} to open", lambda: open_items(node))

    def _index_of(self, wanted: str, entries: list[str]) -> int:
        named = {wanted}
        if wanted.startswith("@"):
            named = self._texts.shown(int(wanted[1:]))
        found = next((index for index, entry in enumerate(entries) if entry in named), None)
        if found is None:
            raise Refused(f"the list has no {wanted!r}, but {entries}")
        return found

    def _wait(self, what: str, condition: Callable[[], Found]) -> Found:
        try:
            return wait_for(what, condition, self._seconds)
        except Expired:
            self._must_be_free()
            raise
