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
_FILES = frozenset({
    "extras/DesktopMail.cpp",
    "extras/InstalledSystemInfo.cpp",
    "language/ComponentFile.cpp",
    "language/LanguageIdentifier.cpp",
    "printing/PrintQueue.cpp",
    "storage/EndSignals.cpp",
    "storage/registry/sqlite/StoreFile.cpp",
    "storage/registry/sqlite/StoreTrouble.cpp",
    "storage/registry/sqlite/UserStore.cpp",
    "storage/registry/windows/WindowsRegistry.cpp",
    "storage/registry/windows/WindowsTexts.cpp",
    "foundation/plugins/Plugin.cpp",
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
            if file.as_posix() not in _FILES:
                yield f"{file}:{number}: {word} is for the files of {_GUIDE}"
    for listed in sorted(_FILES):
        if listed not in used:
            yield f"{listed}: does not call the operating system: take it out of the list"
        if Path(listed).stem not in guide:
            yield f"{listed}: {_GUIDE} does not name this file"


def main() -> int:
    faults = list(_faults([Path(name) for name in sys.argv[1:]]))
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
