"""Waiting for a condition with a deadline: the driver's only way to synchronise with the program."""

from __future__ import annotations

import time
from collections.abc import Callable
from typing import TypeVar

Found = TypeVar("Found")

_PAUSE_SECONDS = 0.02


class Expired(Exception):
    """A condition was not met in time."""


def wait_for(what: str, condition: Callable[[], Found], seconds: float) -> Found:
    """The first truthy result of the condition. Raises Expired with `what`."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Expired(f"waited {seconds:g} s in vain for {what}")
        time.sleep(_PAUSE_SECONDS)
