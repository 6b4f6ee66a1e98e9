"""Which accessible name each control of the window goes by.

The window tells a screen reader a control's name in the language shown, never the name it has in
the source. So a control is looked up here by the numbers of the texts it may be called by, and the
texts are read from the language components themselves: whatever language the window shows, one of
the names fits.
"""

from __future__ import annotations

import re
from dataclasses import dataclass
from pathlib import Path

_ENTRY = frozenset({"text"})
_LIST = frozenset({"combo box"})
_CHECK = frozenset({"check box"})
_BUTTON = frozenset({"push button", "button"})
_DATE = frozenset({"spin box", "spin button", "text"})
_BAR = frozenset({"scroll bar"})
_MENU = frozenset({"menu item", "menu", "check menu item", "radio menu item"})


@dataclass(frozen=True)
class Kind:
    """Roles that a control may have on the bus, and the numbers of the texts it may be called."""

    roles: frozenset[str]
    texts: tuple[int, ...]


_SINGLE = {
    # control               roles    texts (two where months and years differ)
    "cboLoanName":          (_LIST,   201),
    "cboLoanType":          (_LIST,   202),
    "txtLoanAmount":        (_ENTRY,  203),
    "txtLoanTerm":          (_ENTRY,  204, 205),
    "txtAnnualTaxes":       (_ENTRY,  206),
    "txtAnnualInsurance":   (_ENTRY,  207),
    "txtMonthlyEscrow":     (_ENTRY,  208),
    "cmdShare":             (_BUTTON, 240),
    "cmdWhatsThis":         (_BUTTON, 344),
    "txtCurLoanAmount":     (_ENTRY,  400),
    "txtCurLoanTerm":       (_ENTRY,  401),
    "txtCurInterestRate":   (_ENTRY,  402),
    "cboCurPaymentFrequency": (_LIST, 403),
    "txtCurPayment":        (_ENTRY,  404),
    "txtCurrentBalance":    (_ENTRY,  405),
    "txtCurActualPayment":  (_ENTRY,  406),
    "cboActPaymentFrequency": (_LIST, 407),
    "dtNextPayment":        (_DATE,   408),
    "txtCurAmountLeft":     (_ENTRY,  409),
    "txtCurInterestLeft":   (_ENTRY,  410),
    "txtCurPayoffDate":     (_ENTRY,  411),
    "vsbLoans":             (_BAR,    345),
    "cmdPayoffDate":        (_BUTTON, 237),
    "cmdInterest":          (_BUTTON, 238),
    "mnuFile":              (_MENU,   250),
    "mnuFileNew":           (_MENU,   251),
    "mnuFileSave":          (_MENU,   252),
    "mnuFileDelete":        (_MENU,   253),
    "mnuFilePrintSetup":    (_MENU,   254),
    "mnuFilePrint":         (_MENU,   255),
    "mnuFileExit":          (_MENU,   256),
    "mnuTools":             (_MENU,   257),
    "mnuToolsOptions":      (_MENU,   258),
    "mnuToolsLanguage":     (_MENU,   259),
    "mnuToolsLanguageOpt(1)": (_MENU, 260),
    "mnuToolsLanguageOpt(2)": (_MENU, 261),
    "mnuHelp":              (_MENU,   262),
    "mnuHelpContents":      (_MENU,   263),
    "mnuHelpSearch":        (_MENU,   264),
    "mnuHelpAbout":         (_MENU,   64),
}

# The controls of an offer row; their texts take the number of the offer, counted from one.
_ROW = {
    "chkPoints":        (_CHECK, 420),
    "txtPoints":        (_ENTRY, 421),
    "txtInterestRate":  (_ENTRY, 422),
    "txtTerm":          (_ENTRY, 423),
    "cboFrequency":     (_LIST,  424),
    "txtPandI":         (_ENTRY, 425),
    "txtPayment":       (_ENTRY, 426),
    "txtActualPayment": (_ENTRY, 427),
    "txtPayoffDate":    (_ENTRY, 428),
    "txtInterest":      (_ENTRY, 429),
    "txtWho":           (_ENTRY, 430),
}

# What a heading is described by while the offers are sorted by it.
_ACTIVE = {"cmdPayoffDate": 346, "cmdInterest": 347}

_MOST_ROWS = 16
_ROW_CONTROL = re.compile(r"(\w+)\((\d+)\)")
_TEXT_LINE = re.compile(r"(\d+)\s*=\s?(.*)")


def kind_of(control: str) -> tuple[Kind, int | None]:
    """What the control is, and the row it stands in where it has one. Raises KeyError."""
    if control in _SINGLE:
        roles, *texts = _SINGLE[control]
        return Kind(roles, tuple(texts)), None
    parts = _ROW_CONTROL.fullmatch(control)
    if parts and parts[1] in _ROW:
        roles, text = _ROW[parts[1]]
        return Kind(roles, (text,)), int(parts[2])
    raise KeyError(control)


def active_text_of(control: str) -> int:
    """The number of the text that describes a heading that is active. Raises KeyError."""
    return _ACTIVE[control]


class Texts:
    """The names of the controls in every language, read from the components' own files."""

    def __init__(self, components: Path) -> None:
        """The folder that holds one folder for each language. Raises OSError."""
        files = sorted(components.glob("*/texts.txt"))
        if not files:
            raise FileNotFoundError(f"no texts.txt below {components}")
        self._languages = [_read(file) for file in files]
        self._controls = {(role, name): control for control in _all_controls()
                          for name in self.names(control) for role in kind_of(control)[0].roles}

    def names(self, control: str) -> frozenset[str]:
        """The names that the control may go by, in any language. Raises KeyError."""
        kind, row = kind_of(control)
        offer = "%1" if row is None else str(row + 1)
        return frozenset(text.replace("%1", offer)
                         for number in kind.texts for text in self.shown(number))

    def shown(self, number: int) -> frozenset[str]:
        """What a text looks like on the screen, in every language."""
        return frozenset(_shown(language[number]) for language in self._languages
                         if number in language)

    def control_of(self, role: str, name: str) -> str | None:
        """The control that goes by that name, if there is one."""
        return self._controls.get((role, name))


def _all_controls() -> list[str]:
    return [*_SINGLE, *(f"{control}({row})" for row in range(_MOST_ROWS) for control in _ROW)]


def _read(file: Path) -> dict[int, str]:
    lines = (_TEXT_LINE.match(line) for line in file.read_text(encoding="utf-8").splitlines())
    return {int(line[1]): line[2].strip() for line in lines if line}


def _shown(text: str) -> str:
    """A caption as a screen reader says it: without the marks of its access key."""
    return text.replace("&&", "\0").replace("&", "").replace("\0", "&")
