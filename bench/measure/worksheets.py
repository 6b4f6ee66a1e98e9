"""Adds any number of worksheets to a store from outside."""

from __future__ import annotations

import pathlib
import sqlite3

_VALUES = 130  # in a worksheet with sixteen offers


def fill(home: pathlib.Path, count: int) -> None:
    """Adds to the store that the program created in this home folder."""
    store = sqlite3.connect(home / ".local/share/Quend Halverworks/Loan.store")
    with store:
        (base,) = store.execute("SELECT id FROM Keys WHERE name='Loan'").fetchone()
        for number in range(count):
            name = f"Loan {number}"
            key = store.execute("INSERT INTO Keys(parent, folded, name) VALUES(?, ?, ?)",
                                (base, name.upper().encode("utf-16-be"), name)).lastrowid
            values = ((key, f"VALUE {i}".encode("utf-16-be"), f"Value {i}", 1, b"123456.78")
                      for i in range(_VALUES))
            store.executemany("INSERT INTO KeyValues VALUES(?, ?, ?, ?, ?)", values)
    store.execute("PRAGMA wal_checkpoint(TRUNCATE)")
    store.close()
