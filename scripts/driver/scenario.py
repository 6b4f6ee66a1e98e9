"""Scenarios: user actions, one per line.

    # a note
    type <control> <text>           replaces what the field holds and leaves it by Tab
    number <control> <number>       the same with the locale's decimal sign instead of a point
    date <control> <yyyy-mm-dd>     the same in a date picker
    choose <control> <text>|@<n>    picks an entry of a list, by text or by the text's number
    check <control>, clear <control>
    press <control>                 clicks on a button
    sort <heading>                  clicks on the heading of a column and waits for the new order
    lender <control> <text>         edits a lender in its dialog; a bar means a new line
    menu <entry> <entry> ...        opens the menus and clicks on the last entry
    key <control> <key> ...         presses keys by their X names, such as Down or shift+Tab
    keystrokes <control> <text>     types without emptying or leaving the field
    meet <text>                     starts another program, "neighbour", that provides this text
    drag <from> <to>                drags with the mouse from one field to another, or to the neighbour
    dragescape <from> <to>          the same, and presses Escape before letting go
    dragon <from> <edge> <to>       drags to an edge of the rows, holds there until the last row has
                                    scrolled there, and drops on it
    dragnothing <from> <to>         the same, but no drag may begin
    dragright <from> <to>           the same with the right button
    dragin <to>                     drags the neighbour's text to a field; prints the action that is
                                    reported to the neighbour: copy, move or none
    got                             prints what has been dropped on the neighbour
    clip <name>                     starts the neighbour, which owns the clipboard and offers the copy of a
                                    spreadsheet's cells of that name (tests/data/spreadsheet)
    clipped <n>                     prints column n, from 0, of the table that the neighbour gets
    entries <menu> <n>              prints the first n entries of a menu
    dialog                          waits for a message box, prints its text and closes it
    answer <text>|@<n>              waits for a question, prints it and presses that button
    progress                        waits for a window that closes by itself, prints its text
    look                            prints the text of the open dialog
    push <text>|@<n>                clicks on a button, choice or tab of the dialog in front
    end <text>|@<n>                 clicks on a button that closes that dialog, and waits for that
    count <number> <text>|@<n>      types a number into the field of that name in the dialog
    page                            waits for the help, prints the first line of its page
    leave                           closes the window in front by Escape
    ask <control>                   asks What's this? of a control, follows the link in the answer
                                    and prints the first line of that page
    tool <name>                     installs a tool that records its start
    started                         waits until it was started
    printed                         waits for a printed document and prints its properties
    unprinted                       checks that nothing was printed
    expect <control> <text>         waits until the control shows the text
    read <control> ...              prints what each control shows
    name <control> ...              prints the accessible name of each control
    describe <control> ...          prints the accessible description of each control
    helped                          waits for the help window, prints its title and closes it
    components                      prints the language components in use: by name if they are beside
                                    the program, else by path
    platform                        prints the plugins by which the program uses the desktop
    class                           prints the window class by which desktops identify the program
    title                           prints the title of the window
    screenshot <file>               takes a screenshot of the window
    tree                            prints all controls
    damage                          damages the store under the running program
    quit                            closes the window and waits for exit code 0
    close                           closes the window; a question may follow
    ended                           waits for exit code 0
    compare                         opens the comparison window by Ctrl+K, or brings it to the front
    back                            activates the main window again
    show <n>                        shows the page of the comparison with that caption
    compared                        prints the title of the comparison and its first sentence
    figure <n> <loan>               prints a figure of a loan, by the text number of its heading
    costs <amount> <loan>           types costs into the table of costs
    years                           prints the years that the loan is kept
    dragyears <years>               drags the horizon of the chart until it is there
    chart <key> ...                 reads the chart by keys, prints its role, name and sentence
    nameless                        prints the roles of controls that have no name
    export <file>                   exports the page to a file, prints what was written
    file <file>                     names a file of the session's folder in the dialog that asks for it
    same <file> <file>              prints whether two files of that folder have the same content
    kill                            kills the program at once
    terminate                       ends the program by SIGTERM, waits for exit code 0
    start <locale> [file]           starts the program again, with its saved data, to open that file

Prints one line per result: the control, a tab, the text.
"""

from __future__ import annotations

import signal
from collections.abc import Callable, Iterable, Iterator
from dataclasses import dataclass
from pathlib import Path

from window import Refused, Window


class Malformed(Exception):
    """A line is not a valid step."""


@dataclass(frozen=True)
class Reading:
    """The text of one control."""

    control: str
    text: str


@dataclass(frozen=True)
class Step:
    """One line of a scenario."""

    number: int
    command: str
    rest: str


Handler = Callable[[Window, str], list[Reading]]


def parse(lines: Iterable[str]) -> list[Step]:
    """The steps of a scenario. Raises Malformed for an unknown command."""
    steps = []
    for number, line in enumerate(lines, start=1):
        command, _, rest = line.strip().partition(" ")
        if not command or command.startswith("#"):
            continue
        if command not in _HANDLERS:
            raise Malformed(f"line {number}: there is no {command!r}")
        steps.append(Step(number, command, rest.strip()))
    return steps


def prints(steps: Iterable[Step]) -> bool:
    """Whether a printer is needed."""
    return any(step.command in ("printed", "unprinted") for step in steps)


def play(window: Window, steps: Iterable[Step]) -> Iterator[Reading]:
    """Executes the steps and yields each reading. Raises Refused."""
    for step in steps:
        try:
            yield from _HANDLERS[step.command](window, step.rest)
        except KeyError as error:
            raise Refused(f"line {step.number}: there is no control {error}") from error
        except Exception as error:
            raise Refused(f"line {step.number}: {step.command} {step.rest}: {error}") from error


def _two(rest: str) -> tuple[str, str]:
    control, _, text = rest.partition(" ")
    return control, text.strip()


def _figure(window: Window, heading: str, loan: str) -> str:
    return window.comparison.figure(int(heading), loan)


def _same(window: Window, one: str, other: str) -> str:
    folder = window.session.folder
    return "yes" if (folder / one).read_bytes() == (folder / other).read_bytes() else "no"


def _deed(act: Callable[[Window, str, str], None]) -> Handler:
    def handle(window: Window, rest: str) -> list[Reading]:
        act(window, *_two(rest))
        return []
    return handle


def _look(read: Callable[[Window, str], str]) -> Handler:
    def handle(window: Window, rest: str) -> list[Reading]:
        return [Reading(control, read(window, control)) for control in rest.split()]
    return handle


def _note(what: str, read: Callable[[Window], str]) -> Handler:
    def handle(window: Window, _rest: str) -> list[Reading]:
        return [Reading(what, read(window))]
    return handle


def _terminate(window: Window) -> list[Reading]:
    window.end_by(signal.SIGTERM)
    window.ended()
    return []


_HANDLERS: dict[str, Handler] = {
    "type": _deed(Window.type),
    "number": _deed(Window.number),
    "date": _deed(Window.date),
    "choose": _deed(Window.choose),
    "check": _deed(lambda window, control, _: window.check(control)),
    "clear": _deed(lambda window, control, _: window.check(control, wanted=False)),
    "press": _deed(lambda window, control, _: window.press(control)),
    "sort": _deed(lambda window, control, _: window.sort(control)),
    "lender": _deed(Window.lender),
    "menu": _deed(lambda window, first, rest: window.menu([first, *rest.split()])),
    "key": _deed(lambda window, control, keys: window.key(control, keys.split())),
    "keystrokes": _deed(Window.keystrokes),
    "expect": _deed(Window.expect),
    "screenshot": _deed(lambda window, file, _: window.screenshot(Path(file))),
    "damage": _deed(lambda window, *_: window.damage()),
    "quit": _deed(lambda window, *_: window.quit()),
    "close": _deed(lambda window, *_: window.close()),
    "ended": _deed(lambda window, *_: window.ended()),
    "kill": _deed(lambda window, *_: window.end_by(signal.SIGKILL)),
    "terminate": lambda window, _: _terminate(window),
    "start": _deed(Window.start),
    "file": _deed(lambda window, file, _: window.dialogs.name_file(
        str(window.session.folder / file))),
    "same": lambda window, files: [Reading("same", _same(window, *_two(files)))],
    "meet": _deed(lambda window, *text: window.meet(" ".join(text).strip())),
    "drag": _deed(Window.drag),
    "dragescape": _deed(lambda window, *ends: window.drag(*ends, escape=True)),
    "dragon": _deed(lambda window, start, ends: window.drag_on(start, *ends.split())),
    "dragnothing": _deed(Window.drag_nothing),
    "dragright": _deed(lambda window, *ends: window.drag_nothing(*ends, button=3)),
    "dragin": lambda window, field: [Reading("drag", window.drag_in(field))],
    "got": _note("got", Window.got),
    "clip": _deed(lambda window, name, _: window.meet(name, name)),
    "clipped": lambda window, column: [Reading("clipped", window.clipped(int(column)))],
    "entries": lambda window, rest: [
        Reading("entries", window.entries(_two(rest)[0], int(_two(rest)[1])))],
    "compare": _deed(lambda window, *_: window.comparison.open()),
    "back": _deed(lambda window, *_: window.comparison.back()),
    "show": _deed(lambda window, page, _: window.comparison.show(int(page))),
    "compared": lambda window, _: [
        Reading("title", window.comparison.title()),
        Reading("answer", window.comparison.answer().partition("\n")[0])],
    "figure": lambda window, rest: [Reading(rest, _figure(window, *_two(rest)))],
    "costs": _deed(lambda window, amount, loan: window.comparison.costs(amount, loan)),
    "years": _note("years", lambda window: window.comparison.years()),
    "dragyears": _deed(lambda window, years, _: window.comparison.drag_years(years)),
    "chart": lambda window, keys: [
        Reading("chart", text) for text in window.comparison.chart(keys.split())],
    "nameless": _note("nameless", lambda window: " ".join(window.comparison.nameless())),
    "export": lambda window, file: [Reading("export", window.comparison.export(
        window.session.folder / file))],
    "answer": lambda window, rest: [Reading("answer", window.answer(rest))],
    "look": _note("look", lambda window: window.dialogs.look()),
    "push": _deed(lambda window, *text: window.dialogs.push(" ".join(text).strip())),
    "end": _deed(lambda window, *text: window.dialogs.end(" ".join(text).strip())),
    "count": _deed(lambda window, number, name: window.dialogs.count(name, number)),
    "page": _note("page", lambda window: window.dialogs.page()),
    "leave": _deed(lambda window, *_: window.dialogs.leave()),
    "ask": lambda window, control: [Reading("ask", window.ask(control))],
    "tool": _deed(lambda window, name, _: window.session.install(name)),
    "started": _note("started", Window.started),
    "printed": _note("printed", lambda window: window.lab.printed()),
    "unprinted": _deed(lambda window, *_: window.lab.must_be_empty()),
    "read": _look(Window.read),
    "name": _look(lambda window, control: window.find(control).name()),
    "describe": _look(Window.describe),
    "dialog": _note("dialog", Window.dialog),
    "progress": _note("progress", Window.progress),
    "helped": _note("help", lambda window: window.dialogs.helped()),
    "components": lambda window, _: [
        Reading("component", name) for name in window.session.components(window.process())],
    "platform": _note("platform",
                      lambda window: window.session.platform_of(window.process())),
    "class": _note("class", Window.desktop_class),
    "title": _note("title", Window.title),
    "tree": _note("tree", Window.tree),
}
