"""A print server with a printer for the programs of a session (scripts/printlab)."""

from __future__ import annotations

import subprocess
import tempfile
from pathlib import Path
from types import TracebackType

from session import Session
from waiting import wait_for

_SCRIPT = Path(__file__).resolve().parents[1] / "printlab"
_START_SECONDS = 60
_PRINT_SECONDS = 30


class PrintLab:
    """Programs that the session starts meanwhile print there.

    Not below the session's folder, which is its user's alone: a print server reads what it prints as
    another one.
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

    def document(self) -> Path:
        """The one document that has been printed; waits until the printer is done with it."""
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
