"""Writes a result into docs/quality.md, between two comments with the result's name."""

import pathlib

QUALITY = pathlib.Path(__file__).resolve().parent.parent / "docs/quality.md"


def keep(name, lines):
    begin, end = f"<!-- {name} -->\n", f"<!-- end of {name} -->\n"
    text = QUALITY.read_text()
    before, found, rest = text.partition(begin)
    _, found_end, after = rest.partition(end)
    if not (found and found_end):
        raise SystemExit(f"{QUALITY} has no place for {name}")
    QUALITY.write_text(before + begin + "\n" + "\n".join(lines) + "\n\n" + end + after)
