"""Waiting for a condition with a deadline: the driver's only way to keep step with the program."""

from __future__ import annotations

import time
from collections.abc import Callable
from typing import TypeVar

Found = TypeVar("Found")

_PAUSE_SECONDS = 0.02


class Expired(Exception):
    """A condition did not come true in time."""


def wait_for(what: str, condition: Callable[[], Found], seconds: float) -> Found:
    """The first answer of the condition that counts as true. Raises Expired, naming what."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Expired(f"waited {seconds:g} s in vain for {what}")
        time.sleep(_PAUSE_SECONDS)
