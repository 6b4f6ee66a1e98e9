"""Checks the direction of the includes: a layer may use only the public headers of the layers below it.

Arguments: source files, by path from the root of the tree. Prints one finding per line; the exit code is 1
if there are any.
"""

from __future__ import annotations

import re
import sys
from collections import defaultdict
from collections.abc import Iterator
from pathlib import Path

# The layers, lowest first, and the folders whose headers each may include besides its own. Folders not
# listed here, like tests or bench, are outside the program and may use all.
_LAYERS: dict[str, tuple[str, ...]] = {
    "foundation":       (),
    "language":         ("foundation",),
    "storage/registry": ("foundation",),
    "printing/pages":   (),
    "calc":             ("foundation", "language"),
    "comparison":       ("foundation", "language", "calc"),
    "worksheet/model":  ("foundation", "language", "calc", "comparison"),
    "worksheet/window": ("foundation", "language", "calc", "comparison", "worksheet/model"),
    "comparison/window": ("foundation", "language", "calc", "comparison", "worksheet/model",
                          "worksheet/window", "printing/pages"),
    "comparison/tool":  ("foundation", "language", "calc", "comparison", "worksheet/model",
                         "comparison/window"),
    "printing":         ("foundation", "language", "calc", "worksheet/model", "worksheet/window",
                         "printing/pages"),
    "language/help":    ("foundation", "language", "calc", "worksheet/model", "worksheet/window"),
    "extras":           ("foundation", "language", "calc", "worksheet/model", "worksheet/window",
                         "storage/registry"),
    "exchange":         ("foundation", "language", "calc", "comparison", "worksheet/model",
                         "worksheet/window"),
    "storage":          ("foundation", "language", "calc", "comparison", "worksheet/model",
                         "worksheet/window", "storage/registry"),
}

# Creates and connects everything, so it may use all.
_COMPOSITION_ROOT = Path("storage/Main.cpp")

# Layers without a window system.
_WITHOUT_WIDGETS = ("foundation", "language", "storage/registry", "calc", "comparison",
                    "worksheet/model", "printing/pages", "comparison/tool")

# The private headers of a layer, as its CMakeLists.txt names them.
_PRIVATE = re.compile(r"PRIVATE_HEADERS\s+([^)]*?)\s+SOURCES")

_INCLUDE = re.compile(r'\s*#\s*include\s+([<"])([^>"]+)[>"]')


def _layer_of(file: Path) -> str | None:
    if file == _COMPOSITION_ROOT:
        return None
    folder = file.parent.as_posix()
    found = [layer for layer in _LAYERS if folder == layer or folder.startswith(layer + "/")]
    return max(found, key=len, default=None)


def _widget_headers() -> frozenset[str]:
    folders = Path("/usr/include").glob("**/qt6/QtWidgets")
    return frozenset(header.name for folder in folders for header in folder.iterdir()
                     if header.is_file())


def _private_headers() -> frozenset[str]:
    lists = [Path(layer, "CMakeLists.txt").read_text(encoding="utf-8") for layer in _LAYERS]
    return frozenset(Path(header).name for text in lists for found in _PRIVATE.findall(text)
                     for header in found.split())


def _includes(file: Path) -> Iterator[tuple[int, bool, str]]:
    """Line number, whether it is in quotes, and name of each include."""
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), start=1):
        found = _INCLUDE.match(line)
        if found:
            yield number, found[1] == '"', found[2]


def _faults(file: Path, homes: dict[str, set[str]], private: frozenset[str],
            widgets: frozenset[str]) -> Iterator[str]:
    layer = _layer_of(file)
    for number, quoted, name in _includes(file):
        place = f"{file}:{number}:"
        if ".." in Path(name).parts:
            yield f"{place} {name}: no include climbs out of its folder"
        if layer is None:
            continue
        above = homes[name] - {layer, *_LAYERS[layer]} if quoted else set()
        if above:
            yield f"{place} {name} belongs to {', '.join(sorted(above))}, which {layer} may not know"
        elif quoted and name in private and layer not in homes[name]:
            yield f"{place} {name} is private to {', '.join(homes[name])}"
        if layer in _WITHOUT_WIDGETS and (name in widgets or name.startswith("QtWidgets")):
            yield f"{place} {name}: {layer} knows no widget"


def main() -> int:
    files = [Path(name) for name in sys.argv[1:]]
    homes: dict[str, set[str]] = defaultdict(set)
    for file in files:
        layer = _layer_of(file)
        if file.suffix == ".h" and layer:
            homes[file.name].add(layer)
    widgets = _widget_headers()
    faults = [fault for file in files for fault in _faults(file, homes, _private_headers(), widgets)]
    faults += [f"{name}: one name for headers of {', '.join(sorted(layers))}"
               for name, layers in homes.items() if len(layers) > 1]
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
