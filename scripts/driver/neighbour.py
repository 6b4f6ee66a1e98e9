"""Another program on the same desktop, which uses GTK: it provides a text to drag, and shows what is dropped
on it. It can own the clipboard, as a spreadsheet does.

Arguments: the text to provide; and, to own the clipboard, the path of the copy of a spreadsheet's cells without
the endings .txt and .html. Prints one line per event:

    at <what> <x> <y>       the centre of "gives" and "takes" on the screen
    action <none|copy|move> what the target field would do with its text
    over                    a drag has entered it
    got <text>              what was dropped on it
    begin, end              its drag has begun, has ended
    here                    the reply to the signal USR1, once all earlier events are processed
    owns                    the clipboard is its own
    text, html <text>       the reply to the signal USR2: the clipboard in these formats, with \\n for line ends
"""

from __future__ import annotations

import signal
import sys
from pathlib import Path

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402

_WIDTH = 200
_HEIGHT = 60
_TEXT = ("UTF8_STRING", "text/plain;charset=utf-8", "TEXT", "STRING")
_HTML = ("text/html",)


def _say(*words: object) -> None:
    print(*words, flush=True)


def _say_action(context: Gdk.DragContext, action: Gdk.DragAction) -> None:
    names = {Gdk.DragAction.COPY: "copy", Gdk.DragAction.MOVE: "move"}
    _say("action", names.get(context.get_selected_action() or action, "none"))


def _begin(_giver: Gtk.Widget, context: Gdk.DragContext) -> None:
    context.connect("action-changed", _say_action)
    _say("begin")


def _answer() -> bool:
    _say("here")
    return True


def _own_clipboard(window: Gtk.Window, copy: str) -> None:
    """Offers the cells in the formats of a spreadsheet."""
    offered = [(Path(copy + ending).read_bytes(), formats)
               for ending, formats in ((".txt", _TEXT), (".html", _HTML))]

    def give(_window: Gtk.Window, data: Gtk.SelectionData, info: int, _time: int) -> None:
        data.set(data.get_target(), 8, offered[info][0])

    for info, (_, formats) in enumerate(offered):
        for name in formats:
            Gtk.selection_add_target(window, Gdk.SELECTION_CLIPBOARD, Gdk.Atom.intern(name, False), info)
    window.connect("selection-get", give)
    if Gtk.selection_owner_set(window, Gdk.SELECTION_CLIPBOARD, Gdk.CURRENT_TIME):
        _say("owns")


def _tell_clipboard() -> bool:
    clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
    for word, formats in (("text", _TEXT), ("html", _HTML)):
        held = clipboard.wait_for_contents(Gdk.Atom.intern(formats[0], False))
        _say(word, (held.get_data().decode() if held else "").replace("\n", "\\n"))
    return True


def _giver(text: str) -> Gtk.Widget:
    """A label to drag from."""
    giver = Gtk.EventBox()
    giver.add(Gtk.Label(label=text))
    giver.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
    giver.drag_source_add_text_targets()
    giver.connect("drag-data-get", lambda _widget, _context, data, _info, _time: data.set_text(text, -1))
    giver.connect("drag-begin", _begin)
    giver.connect("drag-end", lambda *_: _say("end"))
    return giver


def _taker() -> Gtk.Widget:
    """A field to drop on, with GTK's standard behaviour."""
    taker = Gtk.Entry()
    taker.connect("drag-motion", lambda *_: _say("over"))
    taker.connect("changed", lambda entry: _say("got", entry.get_text()))
    return taker


def _corner(window: Gtk.Window) -> tuple[int, int]:
    """The position of the window: in the corner of the screen, out of the way."""
    screen = window.get_screen()
    return screen.get_width() - _WIDTH, screen.get_height() - _HEIGHT


def _tell_places(window: Gtk.Window, giver: Gtk.Widget, taker: Gtk.Widget) -> bool:
    _, left, top = window.get_window().get_origin()
    if (left, top) != _corner(window):
        return False  # still moving
    for name, widget in (("gives", giver), ("takes", taker)):
        place = widget.get_allocation()
        _say("at", name, left + place.x + place.width // 2, top + place.y + place.height // 2)
    return False


def main() -> None:
    # No focus, so that the program under test stays active.
    window = Gtk.Window(title="Neighbour", decorated=False, accept_focus=False,
                        focus_on_map=False, default_width=_WIDTH, default_height=_HEIGHT)
    window.set_keep_above(True)
    giver, taker = _giver(sys.argv[1]), _taker()
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL, homogeneous=True)
    box.add(giver)
    box.add(taker)
    window.add(box)
    window.connect("destroy", Gtk.main_quit)
    window.connect("configure-event", lambda *_: _tell_places(window, giver, taker))
    window.show_all()
    for copy in sys.argv[2:]:
        _own_clipboard(window, copy)
    GLib.unix_signal_add(GLib.PRIORITY_LOW, signal.SIGUSR2, _tell_clipboard)
    GLib.unix_signal_add(GLib.PRIORITY_LOW, signal.SIGUSR1, _answer)
    window.move(*_corner(window))
    Gtk.main()


if __name__ == "__main__":
    main()
