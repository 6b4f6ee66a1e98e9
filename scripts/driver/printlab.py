"""A print server and printer for the programs of a session (scripts/printlab)."""

from __future__ import annotations

import re
import subprocess
import tempfile
from pathlib import Path
from types import TracebackType

from session import Session
from waiting import Expired, wait_for

_SCRIPT = Path(__file__).resolve().parents[1] / "printlab"
_START_SECONDS = 60
_PRINT_SECONDS = 30


class PrintLab:
    """Programs that the session starts during its lifetime print there.

    Its folder is not below the session's private folder, because a print server reads documents as another
    user.
    """

    def __init__(self, session: Session) -> None:
        self._session = session
        self._temporary = tempfile.TemporaryDirectory(prefix="loan-print-")
        self._folder = Path(self._temporary.name)

    def __enter__(self) -> PrintLab:
        try:
            self._session.environment["CUPS_SERVER"] = self._run("start")
        except BaseException:
            self._end()
            raise
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 trace: TracebackType | None) -> None:
        self._end()

    def printed(self) -> str:
        """The printed job: copies, and the document's pages, their orientation and words.

        The printer receives upright pages; the server's copy has the original orientation. """
        document = self.document()
        job = wait_for("the server's note of the job", lambda: _only(self._jobs()), _PRINT_SECONDS)
        sent = wait_for("the document sent", lambda: _only(self._jobs("d")), _PRINT_SECONDS)
        pages, width, height = _pages(sent)
        side = "landscape" if width > height else "portrait"
        return f"{_copies(job)} copies, {pages} page, {side}: {_first_words(document)}"

    def must_be_empty(self) -> None:
        """Raises Expired if the server has a job, or the printer a document."""
        found = [file.name for file in [*self._jobs(), *(self._folder / "jobs").iterdir()]]
        if found:
            raise Expired(f"there are {found}")

    def _jobs(self, kind: str = "c") -> list[Path]:
        """The server's job files, one per job; "d" for their documents.

        The server rewrites a job's file beside the old one (c00001.N), and then renames it.
        """
        return sorted((self._folder / "spool").glob(f"{kind}[0-9]*[0-9]"))

    def document(self) -> Path:
        """The only printed document; waits until the printer has finished it."""
        return wait_for("the printed document", self._whole_document, _PRINT_SECONDS)

    def _whole_document(self) -> Path | None:
        documents = list((self._folder / "jobs").glob("*.pdf"))
        if len(documents) == 1 and documents[0].read_bytes().rstrip().endswith(b"%%EOF"):
            return documents[0]
        return None

    def _run(self, command: str) -> str:
        done = subprocess.run([str(_SCRIPT), command, str(self._folder)], check=True,
                              capture_output=True, text=True, timeout=_START_SECONDS,
                              env=self._session.environment)
        return done.stdout.strip()

    def _end(self) -> None:
        try:
            self._run("stop")
        finally:
            self._temporary.cleanup()


def _only(files: list[Path]) -> Path | None:
    return files[0] if len(files) == 1 else None


def _copies(job: Path) -> int:
    """Reads the protocol's encoding of a job attribute: a tag, the name, a number."""
    found = re.search(rb"\x21\x00\x06copies\x00\x04(.{4})", job.read_bytes(), re.DOTALL)
    return int.from_bytes(found[1], "big") if found else 1


def _ask(*words: str) -> str:
    return subprocess.run(words, check=True, capture_output=True, text=True, timeout=30).stdout


def _pages(document: Path) -> tuple[int, float, float]:
    """The number of pages, and the width and height of the first page as displayed."""
    said = _ask("pdfinfo", str(document))
    size = re.search(r"Page size:\s+([\d.]+) x ([\d.]+)", said)
    pages = re.search(r"Pages:\s+(\d+)", said)
    if not size or not pages:
        raise Expired(f"no sizes in {said!r}")
    return int(pages[1]), float(size[1]), float(size[2])


def _first_words(document: Path) -> str:
    return " ".join(_ask("pdftotext", "-layout", str(document), "-").split()[:6])
