"""A separate screen without a window manager, and what happens on it: when windows appear, when anything is
painted, and when a key has an effect."""

from __future__ import annotations

import os
import select
import subprocess
import time
from typing import NamedTuple

from Xlib import X, XK, display, error
from Xlib.ext import damage, xtest

_SIZE = (1280, 1024)
_SMALLEST = (150, 80)
_OTHERS = ("_NET_WM_WINDOW_TYPE_SPLASH", "_NET_WM_WINDOW_TYPE_DIALOG",
           "_NET_WM_WINDOW_TYPE_TOOLTIP")


class Box(NamedTuple):
    """A part of the screen."""

    x: int
    y: int
    width: int
    height: int


class Screen:
    """An X server in memory."""

    def __init__(self) -> None:
        reading, writing = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{_SIZE[0]}x{_SIZE[1]}x24",
             "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            self.name = ":" + answer.readline().strip()
        self._display = display.Display(self.name)
        self._display.set_error_handler(lambda *_: None)  # windows come and go
        self._display.damage_query_version()
        self._root = self._display.screen().root
        self._root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self._root.damage_create(damage.DamageReportRawRectangles)
        self._display.sync()

    def close(self) -> None:
        self._display.close()
        self._server.terminate()
        self._server.wait()

    def forget(self) -> None:
        """Discards the events so far."""
        self._display.sync()
        while self._display.pending_events():
            self._display.next_event()

    def events(self, quiet: float, enough=lambda: True, patience: float = 20.0):
        """Yields the time and the list of new events until enough has happened and then nothing for that
        many seconds, or until patience ends."""
        end = time.perf_counter() + patience
        while True:
            if not self._display.pending_events():
                ready, _, _ = select.select([self._display.fileno()], [], [], quiet)
                now = time.perf_counter()
                if (not ready and enough()) or now > end:
                    return
            moment = time.perf_counter()
            happened = [self._display.next_event() for _ in range(self._display.pending_events())]
            if happened:
                yield moment, happened

    def is_main_window(self, event) -> bool:
        """Whether it is a main window: not a splash screen, a dialog or a small internal window of a
        GUI library."""
        if event.type != X.MapNotify or event.override:
            return False
        try:
            size = event.window.get_geometry()
            kind = event.window.get_full_property(
                self._display.get_atom("_NET_WM_WINDOW_TYPE"), X.AnyPropertyType)
        except error.XError:
            return False
        names = [self._display.get_atom_name(atom) for atom in kind.value] if kind else []
        return (size.width >= _SMALLEST[0] and size.height >= _SMALLEST[1]
                and not any(name in _OTHERS for name in names[:1]))

    def is_window(self, event) -> bool:
        return event.type == X.MapNotify

    def is_paint(self, event) -> bool:
        return event.type == self._display.extension_event.DamageNotify

    def give_keyboard(self, window) -> None:
        window.set_input_focus(X.RevertToParent, X.CurrentTime)

    def press(self, *keys: str) -> float:
        """Presses the keys together; returns the time when they were sent."""
        codes = [self._display.keysym_to_keycode(XK.string_to_keysym(key)) for key in keys]
        begin = time.perf_counter()
        for code in codes:
            xtest.fake_input(self._display, X.KeyPress, code)
        for code in reversed(codes):
            xtest.fake_input(self._display, X.KeyRelease, code)
        self._display.flush()
        return begin

    def last_paint(self, quiet: float) -> float | None:
        """The time of the last paint, once nothing was painted for so long."""
        last = None
        for moment, happened in self.events(quiet):
            last = moment if any(self.is_paint(event) for event in happened) else last
        return last

    def pixels(self, box: Box = Box(0, 0, *_SIZE)) -> bytes:
        return self._root.get_image(*box, X.ZPixmap, 0xFFFFFFFF).data


def difference(one: bytes, other: bytes) -> Box | None:
    """The smallest box outside which two pictures of the whole screen are the same."""
    row = _SIZE[0] * 4
    rows = [y for y in range(_SIZE[1]) if one[y * row:(y + 1) * row] != other[y * row:(y + 1) * row]]
    if not rows:
        return None
    left, right = _SIZE[0], 0
    for y in rows:
        first, second = one[y * row:(y + 1) * row], other[y * row:(y + 1) * row]
        columns = [x for x in range(_SIZE[0]) if first[4 * x:4 * x + 4] != second[4 * x:4 * x + 4]]
        left, right = min(left, columns[0]), max(right, columns[-1])
    return Box(left, rows[0], right - left + 1, rows[-1] - rows[0] + 1)
