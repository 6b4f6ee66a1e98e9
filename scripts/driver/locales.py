"""Number and date formats of the locales that scenarios use.

Defined independently, so that the driver takes nothing from the program that it tests.
"""

from __future__ import annotations

_POINT = ("C", "POSIX", "en_", "es_MX", "es_US")
_MONTH_FIRST = ("en_US", "es_US")


def decimal_sign(locale: str) -> str:
    return "." if locale.startswith(_POINT) else ","


def typed_date(locale: str, day: str) -> str:
    """Formats a date given as year-month-day in the locale's order."""
    year, month, date = (str(int(part)) for part in day.split("-"))
    return "/".join([month, date, year] if locale.startswith(_MONTH_FIRST) else [date, month, year])
