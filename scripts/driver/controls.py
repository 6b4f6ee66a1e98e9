"""The accessible names of the window's controls.

The accessibility bus reports a control's name in the current language, not its name in the source. So
controls are identified here by the numbers of their possible names, and the texts are read from the
language components: one of the names matches in any language.
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
    """The roles that a control may have on the bus, and the text numbers of its possible names."""

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
    "mnuEdit":              (_MENU,   1300),
    "mnuFileOpen":          (_MENU,   1311),
    "mnuFileSaveAs":        (_MENU,   1312),
    "mnuFileRename":        (_MENU,   1313),
    "mnuFilePrintPreview":  (_MENU,   1315),
    "mnuFileExportPdf":     (_MENU,   1316),
    "mnuEditClearOffer":    (_MENU,   1305),
    "mnuEditDuplicateOffer":(_MENU,   1306),
    "mnuEditMoveUp":        (_MENU,   1307),
    "mnuEditMoveDown":      (_MENU,   1308),
    "mnuEditCopyTable":     (_MENU,   1309),
    "mnuEditPasteCells":    (_MENU,   1310),
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

# The controls of an offer row; "%1" in their texts is the number of the offer, from 1.
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

# The description of a heading while the offers are sorted by it.
_ACTIVE = {"cmdPayoffDate": 346, "cmdInterest": 347}

_MOST_ROWS = 16
_ROW_CONTROL = re.compile(r"(\w+)\((\d+)\)")
_TEXT_LINE = re.compile(r"(\d+)\s*=\s?(.*)")


def kind_of(control: str) -> tuple[Kind, int | None]:
    """The kind of the control, and its row if it has one. Raises KeyError."""
    if control in _SINGLE:
        roles, *texts = _SINGLE[control]
        return Kind(roles, tuple(texts)), None
    parts = _ROW_CONTROL.fullmatch(control)
    if parts and parts[1] in _ROW:
        roles, text = _ROW[parts[1]]
        return Kind(roles, (text,)), int(parts[2])
    raise KeyError(control)


def active_text_of(control: str) -> int:
    """The text number of an active heading's description. Raises KeyError."""
    return _ACTIVE[control]


class Texts:
    """The names of the controls in every language, read from the components' source files."""

    def __init__(self, components: Path) -> None:
        """`components` contains one folder per language. Raises OSError."""
        files = sorted(components.glob("*/texts.txt"))
        if not files:
            raise FileNotFoundError(f"no texts.txt below {components}")
        self._languages = [_read(file) for file in files]
        self._controls = {(role, name): control for control in _all_controls()
                          for name in self.names(control) for role in kind_of(control)[0].roles}

    def names(self, control: str) -> frozenset[str]:
        """The possible names of the control in all languages. Raises KeyError."""
        kind, row = kind_of(control)
        offer = "%1" if row is None else str(row + 1)
        return frozenset(text.replace("%1", offer)
                         for number in kind.texts for text in self.shown(number))

    def shown(self, number: int) -> frozenset[str]:
        """The text as shown on the screen, in every language."""
        return frozenset(_shown(language[number]) for language in self._languages
                         if number in language)

    def control_of(self, role: str, name: str) -> str | None:
        """The control with that name, if there is one."""
        return self._controls.get((role, name))


def _all_controls() -> list[str]:
    return [*_SINGLE, *(f"{control}({row})" for row in range(_MOST_ROWS) for control in _ROW)]


def _read(file: Path) -> dict[int, str]:
    lines = (_TEXT_LINE.match(line) for line in file.read_text(encoding="utf-8").splitlines())
    return {int(line[1]): line[2].strip() for line in lines if line}


def _shown(text: str) -> str:
    """A caption as screen readers get it: without the access key marks."""
    return text.replace("&&", "\0").replace("&", "").replace("\0", "&")
