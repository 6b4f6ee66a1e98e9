"""The accessibility bus as the driver sees it: a tree of controls with roles, names and texts.

Nothing is cached: every query goes to the running program, so that results match what the window shows at
that moment. Knows nothing about loans and does not move the mouse.
"""

from __future__ import annotations

from collections.abc import Iterator
from dataclasses import dataclass
from typing import Any

from gi.repository import Gio, GLib

_PREFIX = "org.a11y.atspi."
_ROOT = "/org/a11y/atspi/accessible/root"
_SCREEN = 0  # coordinates relative to the screen
_TIMEOUT_MS = 10_000

# Bits of a control's state in the accessibility protocol.
ACTIVE = 1
CHECKED = 4
EXPANDED = 10
FOCUSED = 12
SHOWING = 25


class BusError(Exception):
    """The bus or the program did not respond."""


@dataclass(frozen=True)
class Box:
    """The geometry of a control on the screen, in pixels."""

    x: int
    y: int
    width: int
    height: int

    def middle(self) -> tuple[int, int]:
        return self.x + self.width // 2, self.y + self.height // 2

    def has(self, x: int, y: int) -> bool:
        return self.x <= x < self.x + self.width and self.y <= y < self.y + self.height


class Bus:
    """A connection to the accessibility bus of one session."""

    def __init__(self, session_address: str) -> None:
        answer = _connect(session_address).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
            None, None, Gio.DBusCallFlags.NONE, _TIMEOUT_MS, None)
        self._connection = _connect(answer.unpack()[0])

    def call(self, owner: str, path: str, interface: str, method: str,
             arguments: GLib.Variant | None = None) -> Any:
        """Returns the first value of the reply. Raises BusError."""
        try:
            answer = self._connection.call_sync(
                owner, path, interface, method, arguments, None,
                Gio.DBusCallFlags.NONE, _TIMEOUT_MS, None)
        except GLib.Error as error:
            raise BusError(f"{method} on {path}: {error.message}") from error
        return answer.unpack()[0]

    def send(self, owner: str, path: str, interface: str, method: str, arguments: GLib.Variant) -> None:
        """Calls without waiting for a reply. Raises BusError."""
        message = Gio.DBusMessage.new_method_call(owner, path, interface, method)
        message.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
        message.set_body(arguments)
        try:
            self._connection.send_message(message, Gio.DBusSendMessageFlags.NONE)
            self._connection.flush_sync(None)
        except GLib.Error as error:
            raise BusError(f"{method} on {path}: {error.message}") from error

    def programs(self) -> list[Node]:
        """The registered accessible programs, the newest last."""
        children = self.call(_PREFIX + "Registry", _ROOT, _PREFIX + "Accessible", "GetChildren")
        return [Node(self, owner, path) for owner, path in children]


class Node:
    """One control, menu or window of a running program."""

    def __init__(self, bus: Bus, owner: str, path: str) -> None:
        self._bus = bus
        self._owner = owner
        self.path = path

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Node) and (self._owner, self.path) == (other._owner, other.path)

    def __hash__(self) -> int:
        return hash((self._owner, self.path))

    def _ask(self, interface: str, method: str, arguments: GLib.Variant | None = None) -> Any:
        return self._bus.call(self._owner, self.path, interface, method, arguments)

    def _property(self, interface: str, name: str) -> Any:
        return self._ask("org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (_PREFIX + interface, name)))

    def role(self) -> str:
        return str(self._ask(_PREFIX + "Accessible", "GetRoleName"))

    def name(self) -> str:
        return str(self._property("Accessible", "Name"))

    def description(self) -> str:
        return str(self._property("Accessible", "Description"))

    def children(self) -> list[Node]:
        found = self._ask(_PREFIX + "Accessible", "GetChildren")
        return [Node(self._bus, owner, path) for owner, path in found]

    def has(self, state: int) -> bool:
        words = self._ask(_PREFIX + "Accessible", "GetState")
        return bool(words[state // 32] >> (state % 32) & 1)

    def box(self) -> Box:
        x, y, width, height = self._ask(
            _PREFIX + "Component", "GetExtents", GLib.Variant("(u)", (_SCREEN,)))
        return Box(x, y, width, height)

    def text(self) -> str:
        """The text of an entry field. Raises BusError for a control without text."""
        return str(self._ask(_PREFIX + "Text", "GetText", GLib.Variant("(ii)", (0, -1))))

    def act(self) -> None:
        """Performs its first action. Does not wait, because a dialog may open."""
        self._bus.send(self._owner, self.path, _PREFIX + "Action", "DoAction", GLib.Variant("(i)", (0,)))

    # Of tables

    def rows(self) -> int:
        return int(self._property("Table", "NRows"))

    def columns(self) -> int:
        return int(self._property("Table", "NColumns"))

    def heading(self, column: int) -> str:
        return str(self._ask(_PREFIX + "Table", "GetColumnDescription", GLib.Variant("(i)", (column,))))

    def cell(self, row: int, column: int) -> Node:
        owner, path = self._ask(_PREFIX + "Table", "GetAccessibleAt", GLib.Variant("(ii)", (row, column)))
        return Node(self._bus, owner, path)

    def walk(self, closed: frozenset[str] = frozenset()) -> Iterator[Node]:
        """This node and all its descendants, parents first; nodes that disappear meanwhile are skipped,
        and so is the inside of nodes with a closed role."""
        yield self
        try:
            below = [] if closed and self.role() in closed else self.children()
        except BusError:
            return
        for child in below:
            yield from child.walk(closed)


def _connect(address: str) -> Gio.DBusConnection:
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
             | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    try:
        return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    except GLib.Error as error:
        raise BusError(f"cannot reach the bus {address}: {error.message}") from error


def is_there(node: Node) -> bool:
    try:
        return bool(node.role())
    except BusError:
        return False


def is_shown(node: Node) -> bool:
    return node.has(SHOWING) and node.box().width > 0


def field_of(node: Node) -> Node:
    """The entry field inside an editable list; otherwise the control itself."""
    return next((child for child in node.children() if child.role() == "text"), node)


def has_focus(node: Node) -> bool:
    return node.has(FOCUSED) or field_of(node).has(FOCUSED)


def open_items(node: Node) -> list[Node]:
    """The entries of an open list; none while it is closed or has no current entry."""
    if not node.has(EXPANDED):
        return []
    return [item for part in node.children() if part.role() == "list" for item in part.children()]
