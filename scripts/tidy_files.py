"""Writes the files that clang-tidy reads: each includes many of the sources that a build compiles, because clang-tidy
needs most of its time for the headers of the libraries. Their compile commands are in <build>/tidy.

Arguments: the build folder, the number of files, a pattern of the sources' paths. Sources whose names may clash are in
different files: those of one target, main functions, plugins."""

import json
import re
import sys
from pathlib import Path

PRECOMPILED = re.compile(r" -Xclang -include(-pch)? -Xclang \S+| -Winvalid-pch")
EXPORTS = re.compile(r" -D\S+_EXPORTS")
SEARCHED = re.compile(r" -(?:I|isystem )\S+| -D\S+")
OUTPUT = re.compile(r" -o (\S+).*")


class TidyFile:
    def __init__(self):
        self.sources = []
        self.kinds = set()
        self.searched = {}  # options in the order of their appearance


def kind_of(source, command):
    """A file contains at most one source of each kind."""
    if EXPORTS.search(command):
        return "plugin"
    included = re.findall(r'^#include "(/.*)"', Path(source).read_text(), re.M)
    if any(Path(name).name == "Main.cpp" or name.endswith("CompileTexts.cpp") for name in [source, *included]):
        return "main"
    return re.search(r"([^/]+)\.dir/", OUTPUT.search(command).group(1)).group(1)


def size_of(source):
    text = Path(source).read_text()
    return len(text) + sum(Path(name).stat().st_size for name in re.findall(r'^#include "(/.*)"', text, re.M))


def distribute(entries, count):
    files = [TidyFile() for _ in range(count)]
    for entry in sorted(entries, key=lambda entry: -size_of(entry["file"])):
        command = EXPORTS.sub("", PRECOMPILED.sub("", entry["command"]))
        kind = kind_of(entry["file"], entry["command"])
        free = [file for file in files if kind not in file.kinds]
        if not free:
            files.append(TidyFile())
            free = files[-1:]
        file = min(free, key=lambda file: sum(map(size_of, file.sources)))
        file.sources.append(entry["file"])
        file.kinds.add(kind)
        file.searched.update(dict.fromkeys(SEARCHED.findall(command)))
    return [file for file in files if file.sources]


def main():
    build, count, pattern = Path(sys.argv[1]).resolve(), int(sys.argv[2]), re.compile(sys.argv[3])
    entries = json.loads((build / "compile_commands.json").read_text())
    entries = [entry for entry in entries if pattern.search(entry["file"])]
    if not entries:
        sys.exit("no source matches " + sys.argv[3])
    common = OUTPUT.sub("", SEARCHED.sub("", PRECOMPILED.sub("", entries[0]["command"])))
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    commands = []
    for number, file in enumerate(distribute(entries, count)):
        name = folder / f"tidy_{number}.cpp"
        name.write_text("".join(f'#include "{source}"\n' for source in file.sources))
        command = f"{common}{''.join(file.searched)} -o {name}.o -c {name}"
        commands.append({"directory": str(build), "command": command, "file": str(name)})
    (folder / "compile_commands.json").write_text(json.dumps(commands, indent=1))


main()
