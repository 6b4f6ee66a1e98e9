"""A copy of the tree with changed sources, and the runs of its tests."""

import json
import os
import pathlib
import re
import resource
import shlex
import shutil
import subprocess
import sys

from joined import CHOICE, Joined

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WORK = ROOT / "build/mutation"
COPY, BUILD = WORK / "tree", WORK / "build"
CHOICE_FILE = WORK / "Mutant.h"

# By folder, the lowest first. The tests of a layer are named after it.
LAYERS = {"calc/": "calc", "comparison/": "comparison", "worksheet/model/": "worksheet_model"}
# Quick tests first: they detect most changes.
ORDER = ("-HostileLoans.*:*Properties.*", "HostileLoans.*:*Properties.*")
MEMORY = 4 << 30


class Tree:
    def __init__(self):
        shutil.rmtree(COPY, ignore_errors=True)
        files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                               cwd=ROOT, check=True, capture_output=True, text=True).stdout
        for name in files.split("\0"):
            source = ROOT / name
            if name and source.is_file() and not name.startswith("docs/"):
                (COPY / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy2(source, COPY / name)
        CHOICE_FILE.write_text(CHOICE)
        self._sources = {}  # the original text, even if the tree changes meanwhile
        self._seconds = {}
        self._joined = {}
        environment = dict(os.environ)
        environment.pop("CMAKE_CXX_COMPILER_LAUNCHER", None)  # nothing is compiled twice here
        # Warnings about a changed source are irrelevant.
        subprocess.run(
            ["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_CXX_COMPILER=clang++",
             f"-DCMAKE_CXX_FLAGS=-O1 -w -ferror-limit=0 -include {CHOICE_FILE}",
             "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld", "-DCMAKE_UNITY_BUILD=ON",
             "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
             "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"],
            check=True, stdout=subprocess.DEVNULL, env=environment)

    def source(self, file):
        if file not in self._sources:
            self._sources[file] = (COPY / file).read_text()
        return self._sources[file]

    def build_joined(self, changes):
        """Builds the tests with all changes. Returns the changes that do not compile."""
        changed = {change.file for change in changes}
        folders = [folder for folder in LAYERS if any(file.startswith(folder) for file in changed)]
        rejected = []
        # Without optimising first: that reveals nearly all of those, and takes a tenth of the time.
        for folder in folders:
            self._reject(changes, rejected, lambda folder=folder: self._check(folder))
        output = self._reject(changes, rejected,
                              lambda: self._build(*(f"{LAYERS[folder]}_tests" for folder in folders)))
        if output is not None:
            raise SystemExit(output[-8000:] + "\nThe changed sources cannot be built.")
        return rejected

    def _reject(self, changes, rejected, compiled):
        """Compiles until no change is at fault; adds those that are to `rejected`. Returns what is left
        of the compiler's output."""
        while True:
            self._write(change for change in changes if change not in rejected)
            output = compiled()
            found = {change.number: change for change in self._owners(output or "")
                     if change not in rejected}
            if not found:
                return output
            rejected += found.values()

    def measure(self, target):
        """Runs the tests without a change: they must pass, and their time sets the timeout."""
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        if self._run(target, 0, 1200) != "survived":
            raise SystemExit(f"{target} fails without any change.")
        self._seconds[target] = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before
        print(f"{target} takes {self._seconds[target]:.1f} s", file=sys.stderr)

    def run(self, target, number):
        return self._run(target, number, int(self._seconds[target] * 5) + 5)

    def _write(self, changes):
        by_file = {}
        for change in changes:
            by_file.setdefault(change.file, []).append(change)
        for file, own in by_file.items():
            joined = Joined(self.source(file), own)
            self._joined[str(COPY / file)] = joined
            if (COPY / file).read_text() != joined.text:
                (COPY / file).write_text(joined.text)

    def _owners(self, output):
        for place in re.finditer(r"^(/[^:\n]+):(\d+):\d+: (?:fatal )?(?:error|note)", output, re.MULTILINE):
            joined = self._joined.get(place.group(1))
            owner = joined.owner(int(place.group(2))) if joined else None
            if owner:
                yield owner

    @staticmethod
    def _check(folder):
        """What the compiler finds in the sources of a layer, or None."""
        output = ""
        for one in json.loads((BUILD / "compile_commands.json").read_text()):
            if one["file"].startswith(f"{BUILD / folder}/CMakeFiles/"):
                command = shlex.split(one["command"].split(" -o ")[0])
                output += subprocess.run([*command, "-fsyntax-only", one["file"]], cwd=one["directory"],
                                         capture_output=True, text=True, check=False).stderr
        return output or None

    @staticmethod
    def _build(*targets):
        """None, or the compiler's output."""
        built = subprocess.run(["ninja", "-C", BUILD, "-j2", "-k0", *targets], capture_output=True,
                               text=True, check=False)
        return None if built.returncode == 0 else built.stdout + built.stderr

    @staticmethod
    def _run(target, number, seconds):
        """Runs until the first failure. The limit is CPU time, so that load on the machine does not
        matter."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        program = next(BUILD.glob(f"tests/**/{target}"))
        environment = dict(os.environ, QUEND_MUTANT=str(number), QT_QPA_PLATFORM="offscreen",
                           LC_ALL="C.UTF-8", GTEST_FAIL_FAST="1", GTEST_BRIEF="1")
        for tests in ORDER:
            code = subprocess.run([program], env=dict(environment, GTEST_FILTER=tests), check=False,
                                  preexec_fn=limit, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL).returncode
            if code in (-24, -9):  # SIGXCPU, SIGKILL
                return "timeout"
            if code != 0:
                return "killed"
        return "survived"
