"""Tables of figures in a hand-written document."""

from __future__ import annotations

import pathlib
import re
from collections.abc import Iterable, Sequence


def number(value: float) -> str:
    """Three significant digits."""
    if value == 0:
        return "0"
    if abs(value) >= 100:
        return f"{value:,.0f}"
    return f"{value:.1f}" if abs(value) >= 10 else f"{value:.2f}" if abs(value) >= 1 else f"{value:.3f}"


def table(head: Sequence[str], rows: Iterable[Sequence[str]]) -> str:
    lines = ["| " + " | ".join(head) + " |", "| --- |" + " ---: |" * (len(head) - 1)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines)


def write(file: pathlib.Path, parts: dict[str, str]) -> None:
    """Writes each part between the markers of its name, "<!-- name -->" and "<!-- end -->"."""
    text = file.read_text(encoding="utf-8")
    for name, part in parts.items():
        place = re.compile(rf"(<!-- {re.escape(name)} -->\n).*?(<!-- end -->)", re.DOTALL)
        text, count = place.subn(lambda found, part=part: f"{found[1]}{part}\n{found[2]}", text)
        if count != 1:
            raise ValueError(f"{file} has {count} places for {name}")
    file.write_text(text, encoding="utf-8")
