"""Checks that only the listed interfaces call the platform.

Arguments: source files, by path from the root of the tree. Prints one finding per line; the exit code is 1
if there are any.
"""

from __future__ import annotations

import re
import sys
from collections.abc import Iterator
from pathlib import Path

# Another platform needs its own implementation of each of these; see docs/porting.md.
_DOORS = frozenset({
    "extras/DesktopMail.cpp",
    "extras/InstalledSystemInfo.cpp",
    "language/ComponentFile.cpp",
    "language/LanguageIdentifier.cpp",
    "printing/PrintQueue.cpp",
    "storage/registry/StoreFile.cpp",
    "storage/registry/StoreTrouble.cpp",
    "storage/registry/UserStore.cpp",
    "storage/registry/WindowsRegistry.cpp",
    "worksheet/window/ProgramPart.cpp",
})

_GUIDE = Path("docs/porting.md")

# Folders outside the program may use the platform.
_OUTSIDE = ("tests", "bench")

_PLATFORM = re.compile(
    # headers of the operating system, the window system, the printing system and the locale tables
    r"#\s*include\s*[<\"](sys/|netinet/|arpa/|linux/|X11/|xcb/|cups/|unicode/|qpa/|QtDBus|QDBus|QX11|QNative"
    r"|(unistd|fcntl|pwd|grp|dirent|dlfcn|signal|poll|termios|spawn|pthread|windows|win\w+|io|direct)\.h[>\"])"
    # platform macros
    r"|\bQ_OS_\w+|\b_WIN32\b|\b__(linux|APPLE|unix)__\b"
    # other programs, loaded libraries, the environment
    r"|\bQProcess\b|\bQPluginLoader\b|\bQLibrary\b|\bstd::system\b|\bpopen\b|\bdlopen\b"
    r"|\bgetenv\b|\bqgetenv\b|\bqEnvironmentVariable|\bQProcessEnvironment\b|\bxdg-\w"
    # paths
    r"|\"/(proc|etc|usr|tmp|var|dev|home)\b|\bXDG_\w+")


def _speech(file: Path) -> Iterator[tuple[int, str]]:
    """Line number and word of each use of the platform."""
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), start=1):
        found = _PLATFORM.search(line)
        if found and not line.lstrip().startswith("//"):
            yield number, found[0]


def _faults(files: list[Path]) -> Iterator[str]:
    guide = _GUIDE.read_text(encoding="utf-8")
    used = set()
    for file in files:
        if file.parts[0] in _OUTSIDE:
            continue
        for number, word in _speech(file):
            used.add(file.as_posix())
            if file.as_posix() not in _DOORS:
                yield f"{file}:{number}: {word} belongs behind one of the doors of {_GUIDE}"
    for door in sorted(_DOORS):
        if door not in used:
            yield f"{door}: is no door, for nothing passes through it"
        if Path(door).stem not in guide:
            yield f"{door}: {_GUIDE} does not tell of this door"


def main() -> int:
    faults = list(_faults([Path(name) for name in sys.argv[1:]]))
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
