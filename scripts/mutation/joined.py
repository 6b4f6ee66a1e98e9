"""One source that contains all its changes: the environment variable QUEND_MUTANT selects one.

A function's body is repeated once per change; a value outside functions is selected at initialisation. So
the tests are compiled once, not once per change."""

import bisect

# Included before everything else. Constant expressions are not changed.
CHOICE = """\
#pragma once
#include <cstdlib>
inline int ChosenMutant() {
    static const int chosen = std::getenv("QUEND_MUTANT") ? std::atoi(std::getenv("QUEND_MUTANT")) : 0;
    return chosen;
}
constexpr int Mutant() { return __builtin_is_constant_evaluated() ? 0 : ChosenMutant(); }
"""


class Joined:
    """The text, and which change each line belongs to."""

    def __init__(self, text, changes):
        self._starts, self._owners = [], []
        self._text, self._lines = [], 1
        pieces = [(change.body or (change.start, change.end), change) for change in changes]
        spans = {}
        for span, change in pieces:
            spans.setdefault(span, []).append(change)
        at = 0
        for (start, end), owners in sorted(spans.items()):
            self._write(text[at:start])
            if owners[0].body:
                self._write_body(text[start:end], start, owners)
            else:
                self._write_value(text[start:end], owners)
            at = end
        self._write(text[at:])

    @property
    def text(self):
        return "".join(self._text)

    def owner(self, line):
        """The change that this line belongs to, or None."""
        return self._owners[bisect.bisect_right(self._starts, line) - 1]

    def _write(self, text, owner=None):
        self._starts.append(self._lines)
        self._owners.append(owner)
        self._text.append(text)
        self._lines += text.count("\n")

    def _write_body(self, body, start, owners):
        first, last = owners[0].number, owners[-1].number
        self._write(f"{{\nif (Mutant() < {first} || Mutant() > {last})\n{body}\n")
        for change in owners:
            changed = (body[:change.start - start] + (change.new or _nothing(change)) +
                       body[change.end - start:])
            self._write(f"else if (Mutant() == {change.number})\n{changed}\n", change)
        self._write("}\n")

    def _write_value(self, value, owners):
        # The compiler would evaluate objects with static lifetime at compile time.
        choice = "ChosenMutant()" if self._undo_constexpr() else "Mutant()"
        text = value
        for change in owners:
            text = f"({choice} == {change.number} ? {change.new} : {text})"
        self._write("\n")
        self._write(text + "\n", owners[0])

    def _undo_constexpr(self):
        """Makes the current declaration initialise at run time. False if it does so anyway."""
        undone = "const /* at run time */ "
        for at in range(len(self._text) - 1, -1, -1):
            part = self._text[at]
            place = part.rfind("constexpr ")
            end = max(part.rfind(";"), part.rfind(" {\n"))
            if place > max(end, part.rfind(undone)):
                self._text[at] = part[:place] + undone + part[place + len("constexpr "):]
                return True
            if part.rfind(undone) > end:
                return True
            if end >= 0:
                return False
        return False


def _nothing(change):
    return ";" if change.old.endswith(";") else ""
