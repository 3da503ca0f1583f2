#!/usr/bin/python3
"""An evening by ear: the program played by assistive interfaces alone, without a place of the mouse
or a picture, and what it says held against what a player should hear."""

import re
import sys

from assistive import Ear, on_own_bus
from desktop import Desktop, expect, wait_for
from game import Game
from positions import PUZZLE


class Evening:
    """The program and its parts, as they are found by role and name."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.ear = Ear(desktop)
        self.game = Game(desktop, program)
        self.ear.meet("kelvarine")
        self.board = self.ear.find("table", "Sudoku board")
        self.table = self.board.queryTable()

    def cell(self, column, row):
        return self.table.getAccessibleAt(row - 1, column - 1)

    def go(self, column, row):
        self.cell(column, row).queryComponent().grabFocus()

    def tool(self, name):
        self.ear.do(self.ear.find("push button", name), "Press")

    def menu(self, name):
        self.ear.do(self.ear.find("menu item", name), "Press")

    def box(self, title, words=""):
        """Waits for a box that says some words, and gives it."""
        def there():
            self.ear.pump()
            try:
                return next((window for window in self.ear.application
                             if window and window.name == title and window.getRoleName() != "frame"
                             and words in self.words_of(window)), None)
            except Exception:  # a box that closes meanwhile, told by an error of the bindings
                return None
        return wait_for(there, f"a box called {title} that says {words}")

    def press(self, box, name):
        self.ear.do(self.ear.find("push button", name, box), "Press")

    def close(self, title):
        """Closes a screen beside the board."""
        window = self.desktop.windows(f"^{title}$")[0]
        self.desktop.close(window)
        self.desktop.gone(window)

    def name_file(self, path):
        """Answers the file dialog."""
        name = self.ear.find("text", "File name")
        name.queryEditableText().setTextContents(str(path))
        self.press(None, "OK")

    def words_of(self, box):
        labels = self.ear.tools.findAllDescendants(box, lambda item: item.getRoleName() == "label")
        return " ".join(label.name for label in labels if label.name)


def finds_the_board(evening):
    table = evening.table
    expect((table.nRows, table.nColumns) == (9, 9), "the board is a table of nine by nine")
    expect([table.getColumnDescription(n) for n in range(9)] == list("ABCDEFGHJ"),
           "its columns bear the player's names")
    expect([table.getRowDescription(n) for n in range(9)] == list("123456789"), "and its rows")
    header = table.getColumnHeader(3)
    expect((header.getRoleName(), header.name) == ("table column header", "D"),
           "and headers of their own")


def has_a_game_made(evening):
    """A game of the program's own, told once it is found, and before that, if it takes a while, that
    it is looked for."""
    ear = evening.ear
    made = re.compile(r"game with (\d+) givens, (easy|medium|hard|very hard|extreme)")
    ear.at_rest()
    ear.events.clear()
    evening.menu("Random")
    told = wait_for(lambda: ear.pump() and next(filter(made.fullmatch, ear.spoken()), None),
                    "a game to be made")
    ear.at_rest()
    heard = [words for words in ear.spoken()
             if not re.fullmatch(r"searching for a game|searching, \d+ games screened", words)
             and words not in ("window Kelvarine", "table Sudoku board")]
    expect(heard == [told], f"the game is told once: {heard}")
    names = [evening.cell(column, row).name for row in range(1, 10) for column in range(1, 10)]
    expect(sum(name.endswith(", given") for name in names) == int(made.fullmatch(told)[1]),
           "and the board has the givens that were told")
    ear.transcript += heard


def makes_a_game(evening):
    evening.menu("From text string")
    evening.press(evening.box("Kelvarine", "Would you like to save this game first?"), "No")
    box = evening.box("Kelvarine", "Enter desired text:")
    field = evening.ear.tools.findDescendant(box, lambda item: item.getRoleName() == "text")
    field.queryEditableText().setTextContents(PUZZLE)
    evening.ear.expect(lambda: evening.press(box, "OK"), "window Kelvarine",
                       "table Sudoku board; game with 30 givens, easy")


def walks(evening):
    for column, row, words in ((1, 1, "5, given"), (2, 1, "3, given"), (3, 1, "empty")):
        evening.ear.expect(lambda: evening.go(column, row), f"table cell {words}")
    evening.ear.expect(lambda: evening.ear.do(evening.cell(3, 1), "Tell where this is"),
                       "[C1], row 1 of 9, column 3 of 9, upper-left box")


def enters_by_the_toolbar(evening):
    evening.ear.expect(lambda: evening.tool("4"), "4", events=3)
    expect(evening.cell(3, 1).name == "4", "the cell shows the number")
    evening.ear.expect(lambda: evening.menu("UnDo (Page Up)"), "undone: [C1] was 4; no cells selected")
    evening.ear.expect(lambda: evening.menu("ReDo (Page Dn)"), "redone: 4")
    evening.ear.expect(lambda: evening.menu("Select column"), "9 cells selected, column C")
    expect(evening.table.getSelectedColumns() == [2], "the column is selected")


def changes_the_mode(evening):
    ear = evening.ear
    ear.expect(lambda: evening.tool("Edit"), "mode: Highlight", events=3)
    use = ear.find("push button", "All").description
    expect(use == "Clear all highlights from selected cells", f"a button tells its use: {use}")
    ear.expect(lambda: evening.tool("Highlight"), "mode: Edit", events=3)


def asks_for_a_hint(evening):
    ear = evening.ear
    behind = "window Kelvarine", "table cell 4"
    ear.expect(lambda: evening.menu("Hint"), "window Hint", "push button No", between=behind)
    first = evening.box("Hint", "There's an unplaced naked single.")
    ear.expect(lambda: evening.press(first, "Yes"), "window Hint", "push button No", between=behind)
    second = evening.box("Hint", "It's in")
    ear.expect(lambda: evening.press(second, "Yes"), "[E5] selected; pattern: [E5]",
               "window Unplaced naked single", "push button OK", between=behind)
    reason = evening.box("Unplaced naked single",
                         "Cell [E5] must contain a 5 because it's the \nonly unused number in its domain.")
    ear.expect(lambda: evening.press(reason, "OK"), "window Kelvarine", "table cell 4")
    ear.expect(lambda: ear.do(evening.board, "Next cell of the pattern"), "table cell empty, hint; cell 1 of 1 of the pattern")
    ear.expect(lambda: evening.tool("5"), "5")


def keeps_a_snapshot(evening):
    evening.ear.expect(lambda: evening.menu("Take snapshot"), "snapshot taken")
    evening.ear.expect(lambda: evening.go(1, 1), "table cell 5, given")
    evening.ear.expect(lambda: evening.go(6, 5), "table cell 3, given")
    evening.ear.expect(lambda: evening.go(4, 1), "table cell empty")
    evening.ear.expect(lambda: evening.tool("2"), "2")
    evening.ear.expect(lambda: evening.menu("Use snapshot"), "empty; [E5] selected; pattern: [E5]")


def is_warned(evening):
    ear = evening.ear
    evening.menu("Alerts ...")
    screen = evening.box("Configure")
    ear.do(ear.find("check box", "Alert: Naked singles", screen), "Toggle")
    wait_for(lambda: ear.state(ear.find("check box", "Alert: Naked singles", screen), "CHECKED"),
             "the alerts of naked singles to be on")
    ear.at_rest()
    evening.go(4, 1)
    wait_for(lambda: ear.pump() and ear.state(evening.cell(4, 1), "FOCUSED"), "the cell to be reached")
    ear.expect(lambda: evening.tool("5"), "5; alert: conflict with naked single", events=3)
    expect(evening.cell(4, 1).name == "5, alert", "the cell tells its alert")
    ear.expect(lambda: evening.menu("Show reason for alert in selected cell"),
               "window Conflict with naked single", "push button OK", "pattern: [A1]",
               between=("window Kelvarine", "table cell 5, alert"))
    reason = evening.box("Conflict with naked single")
    print(evening.words_of(reason))
    ear.expect(lambda: evening.press(reason, "OK"), "window Kelvarine",
               "table cell 5, alert, hint area")
    ear.expect(lambda: evening.menu("UnDo (Page Up)"), "undone: [D1] was 5; [E5] selected; pattern: [E5]")


def saves_and_reopens(evening):
    ear = evening.ear
    path = evening.desktop.home / "evening.sdk"
    titled = f"window Kelvarine ({path.name})"
    ear.expect(lambda: evening.menu("Save As"), "window Save Game As", "text File name")
    ear.expect(lambda: evening.name_file(path), titled, "table cell empty")
    expect(path.exists(), "the game is saved")
    ear.expect(lambda: evening.menu("Open"), "window Open Game", "text File name")
    ear.expect(lambda: evening.name_file(path), titled,
               "table cell 5, hint; cell 1 of 1 of the pattern; game with 30 givens, easy")
    expect(evening.cell(3, 1).name.startswith("4"), "the game is as it was saved")


def prints(evening):
    ear = evening.ear
    path = evening.desktop.home / "evening.pdf"
    ear.expect(lambda: evening.menu("Print"), "window Configure", "page tab list Tabs")
    screen = evening.box("Configure")
    ear.expect(lambda: evening.press(screen, "Print"), "window Print",
               "combo box Print to File (PDF)")
    dialog = ear.find("dialog", "Print")
    field = ear.find("text", "Output file:", dialog)
    field.queryEditableText().setTextContents(str(path))
    ear.expect(lambda: evening.press(dialog, "Print"), "window Configure", "page tab list Tabs", "printed")
    expect(path.read_bytes().rstrip().endswith(b"%%EOF"), "the game is on paper")
    ear.expect(lambda: evening.close("Configure"), "window Kelvarine (evening.sdk)",
               "table cell 5, hint; cell 1 of 1 of the pattern")


def reads_the_statistics(evening):
    """The tables by their headings, and a walk in one of them."""
    ear = evening.ear
    evening.menu("Statistics")
    table = ear.find("table", "Solved games by level", ear.find("panel", "All Sessions"))
    cells = table.queryTable()
    expect([cells.getRowDescription(row) for row in range(cells.nRows)]
           == ["Easy", "Medium", "Hard", "Very Hard", "Extreme", "Total"], "a row for each level")
    expect([cells.getColumnDescription(column) for column in range(cells.nColumns)]
           == ["Solved", "Best Time", "Avg Time"], "with what is counted")
    ear.at_rest()
    ear.expect(lambda: cells.getAccessibleAt(2, 0).queryComponent().grabFocus(), "table cell 0",
               between=("window Statistics", "table Solved games by level"))
    evening.close("Statistics")


def reads_the_solution(evening):
    """Line by line, as a screen reader does."""
    ear = evening.ear
    evening.menu("Show solution(s)")
    screen = evening.box("Solutions")
    text = ear.find("text", "Solutions", screen).queryText()
    lines, place = [], 0
    while place < text.characterCount:
        line, _, end = text.getTextAtOffset(place, ear.tools.TEXT_BOUNDARY_LINE_START)
        lines.append(line.strip())
        place = max(end, place) + (not line.endswith("\n"))  # over the break where it is left out
    expect(lines[1] == "| 5 3 4 | 6 7 8 | 9 1 2 |", f"the first row of the solution: {lines[1]}")
    expect(len([line for line in lines if line.startswith("|")]) == 9, "and nine of them")
    evening.close("Solutions")


def pauses(evening):
    evening.ear.expect(lambda: evening.menu("Pause"), "paused")
    expect(evening.cell(1, 1).name == "hidden while the clock is paused, given", "nothing is told")
    evening.ear.expect(lambda: evening.menu("Resume"), "resumed")


def main(program):
    with Desktop() as desktop:
        evening = Evening(desktop, program)
        finds_the_board(evening)
        has_a_game_made(evening)
        makes_a_game(evening)
        walks(evening)
        enters_by_the_toolbar(evening)
        changes_the_mode(evening)
        asks_for_a_hint(evening)
        keeps_a_snapshot(evening)
        is_warned(evening)
        saves_and_reopens(evening)
        pauses(evening)
        reads_the_statistics(evening)
        reads_the_solution(evening)
        prints(evening)
        print("\n".join(["what was heard:", *evening.ear.transcript]))


if __name__ == "__main__":
    on_own_bus()
    main(sys.argv[1])
