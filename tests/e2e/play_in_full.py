#!/usr/bin/python3
"""The commands of play in the real window: hints in three stages that end with each kind of chain
on the board, an alert explained, pencilmarks struck out, the toolbar in every mode, the clock
paused."""

import pathlib
import sys

from board import GIVEN_FILL, SELECTED_FILL, UNKNOWN_FILL
from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from positions import PUZZLE

RED = (255, 0, 0)
HINT_CELL, HINT_DOMAIN = (204, 204, 0), (136, 136, 0)

LEVELS = pathlib.Path(__file__).parent.parent / "data" / "levels.txt"


class HardGame:
    """A game by its line in the table of games, and the pencilmarks that are left when all but its
    chain has been found; the chain runs through these cells."""

    def __init__(self, line, marks, title, target, chain, discs):
        self.line, self.marks, self.title = line, marks, title
        self.target, self.chain, self.discs = target, chain, discs


HARD_GAMES = [
    HardGame(182, "5 2 14 69 3 46 1489 7 18 67 67 14 2 59 8 59 34 13 3 9 8 57 1 47 45 6 2 1 58 3 4 "
             "89 59 6 2 7 9 48 6 38 7 2 148 5 138 2 458 7 1 6 35 48 34 9 4 1 9 67 2 67 3 8 5 78 37 "
             "5 389 4 39 2 1 6 68 36 2 358 58 1 7 9 4",
             "Conflict with XY-chain", (4, 9),
             [(4, 5), (5, 4), (5, 2), (5, 9), (1, 9), (2, 9)], True),
    HardGame(184, "8 127 125 6 4 79 1359 135 123 157 4 125 3 79 8 159 6 129 6 3 9 5 1 2 7 4 8 2 8 7 "
             "9 6 15 4 135 13 4 159 6 12 25 3 8 7 19 15 19 3 7 8 4 159 2 6 157 1267 125 12 39 59 "
             "1236 8 4 3 126 8 4 27 17 26 9 5 9 125 4 8 35 6 123 13 7",
             "Conflict with singles chain", (2, 5), [(2, 8), (6, 8), (6, 4), (4, 5)], True),
    HardGame(192, "1 5 3 9 4 68 2 68 7 68 4 9 2 7 68 5 3 1 678 67 2 1 3 5 9 4 68 9 2 8 3 6 1 7 5 4 "
             "67 1 467 5 2 49 3 689 68 5 3 46 7 8 49 16 169 2 4 67 5 8 9 2 16 167 3 3 8 1 6 5 7 4 "
             "2 9 2 9 67 4 1 3 8 67 5",
             "Conflict with remote pair", (1, 5),
             [(1, 2), (6, 2), (6, 1), (8, 1), (9, 3), (9, 5)], False),
]

# Mode, the presses of mode buttons that lead there from the mode before, colour of the numbers.
TOOLBAR_MODES = [
    ("edit", [], (50, 163, 255)),
    ("highlight", [13], (255, 128, 128)),
    ("singles", [12], (0, 255, 0)),
    ("domains", [12], (255, 255, 0)),
    ("count", [12], (192, 192, 0)),
    ("containing", [12], (255, 173, 90)),
    ("view", [14], (255, 64, 65)),
]

def paste(desktop, game, text):
    """A new game from the clipboard, the one in hand given up if it was changed."""
    desktop.set_clipboard(text)
    desktop.key("ctrl+v")
    if desktop.boxes():
        desktop.answer("alt+n", other_than=[game.window])
        game.focus()


def place(desktop, window):
    words = desktop.xdotool("getwindowgeometry", "--shell", window).split()
    values = dict(word.split("=") for word in words)
    return [int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")]


def expect_beside_the_board(desktop, game, box):
    """The box of a message leaves every cell of the board in view."""
    x, y, width, height = place(desktop, box)
    left, top, _, _ = place(desktop, game.window)
    board = game.board()
    first, last = board.origin(1, 1), board.origin(9, 9)
    apart = (x >= left + last[0] + board.cell_width or x + width <= left + first[0]
             or y >= top + last[1] + board.cell_height or y + height <= top + first[1])
    expect(apart, "the box covers no cell of the board")


# ---- Hints -------------------------------------------------------------------------------------

def gives_a_hint(desktop, game, hard):
    givens = LEVELS.read_text().splitlines()[hard.line - 1].split()[1]
    paste(desktop, game, givens)
    expect(game.copy_line() == givens, f"game {hard.line} is on the board")
    paste(desktop, game, hard.marks)
    before = game.board()
    expect(all(before.share(RED, *cell) == 0 for cell in hard.chain), "no chain is on the board")

    desktop.key("h")
    box = desktop.dialog("^Hint$")
    expect_beside_the_board(desktop, game, box)
    desktop.key("alt+y")
    desktop.gone(box)
    box = desktop.dialog("^Hint$")
    desktop.key("alt+y")
    desktop.gone(box)
    box = desktop.dialog(f"^{hard.title}$")
    expect_beside_the_board(desktop, game, box)
    save_picture(desktop.screen(), f"hint_{hard.line}")
    board = game.board()
    desktop.key("Return")
    desktop.gone(box)
    game.focus()

    expect(board.fill(*hard.target) == SELECTED_FILL, "the cell in question is selected")
    least = 0.02 if hard.discs else 0.005
    expect(all(board.share(RED, *cell) > least for cell in hard.chain),
           f"the chain runs through its cells: {hard.title}")
    save_picture(game.picture(), f"chain_{hard.line}")
    game.click(*hard.target)
    board = game.board()
    expect(all(board.share(RED, *cell) == 0 for cell in hard.chain), "a click takes it away")


def no_is_enough(desktop, game):
    desktop.key("h")
    box = desktop.dialog("^Hint$")
    desktop.key("Return")  # No is the default
    desktop.gone(box)
    expect(not desktop.windows("^Hint$"), "No ends the hint")
    game.focus()


# ---- Alerts and pencilmarks --------------------------------------------------------------------

def explains_an_alert(desktop, program):
    game = Game(desktop, program)
    game.resize(900, 980)
    paste(desktop, game, PUZZLE)
    game.click(3, 1)
    expect(game.board().share(RED, 3, 1) == 0, "an open cell carries no alert")
    desktop.key("5", "a")
    box = desktop.dialog("[Cc]onflict")
    expect_beside_the_board(desktop, game, box)
    save_picture(desktop.screen(), "alert")
    board = game.board()
    desktop.key("Return")
    desktop.gone(box)
    game.focus()
    expect(board.share(RED, 3, 1) > 0.01, "a wrong entry carries an alert")
    expect(any(board.fill(c, r) in (HINT_CELL, HINT_DOMAIN)
               for c in range(1, 10) for r in range(1, 10)), "the cells of the reason are marked")
    expect(game.end(save_first="alt+n") == 0, "the program ends")


def right_click(desktop, game, column, row, number):
    board = game.board()
    x, y = board.origin(column, row)
    x += board.cell_width * (2 * ((number - 1) % 3) + 1) // 6
    y += board.cell_height * (2 * ((number - 1) // 3) + 1) // 6
    desktop.xdotool("mousemove", "--window", game.window, x, y, "click", 3)


def strikes_pencilmarks_out(desktop, game):
    paste(desktop, game, PUZZLE)
    game.drag((3, 1), (4, 1))
    desktop.key("0")
    game.click(9, 1)
    desktop.key("0")
    game.drag((3, 1), (4, 1))
    right_click(desktop, game, 9, 1, 8)
    board = game.board()
    expect(not board.has_pencilmark(3, 1, 8) and not board.has_pencilmark(4, 1, 8),
           "a right click strikes the pencilmark out of the selection")
    expect(board.has_pencilmark(9, 1, 8) and board.has_pencilmark(3, 1, 7),
           "and out of nothing else")
    x, y = board.centre(9, 1)

    def keeps_one_alone():
        # Two clicks that a busy machine draws apart are no double click; then it is done again.
        desktop.xdotool("mousemove", "--window", game.window, x, y,
                        "click", "--repeat", 2, "--delay", 1, 1)
        board = game.board()
        return board.ink(9, 1) > 0.05 and not any(board.has_pencilmark(9, 1, n) for n in (1, 3, 7, 9))
    wait_for(keeps_one_alone, "a double click to keep one pencilmark alone")
    print("ok: a double click keeps one pencilmark alone", flush=True)


# ---- Toolbar -----------------------------------------------------------------------------------

def tool_point(game, index):
    """A point near the left end of a button of the toolbar."""
    board = game.board()
    width = board.picture.size[0] - 2
    button, gap = max(width // 12, 40), 0
    while button > 40 and gap < 6:
        button, gap = button - 1, gap + 1
    offset = (width - 12 * button - 11 * gap) // 2
    step = index if index < 12 else 4 * (index - 12)
    down = 16 if index < 12 else 41
    return 1 + offset + step * (button + gap) + 5, board.top - 54 + down


def press_tool(desktop, game, index):
    x, y = tool_point(game, index)
    desktop.xdotool("mousemove", "--window", game.window, x, y, "click", 1)
    desktop.xdotool("mousemove", "--window", game.window, 450, 600)


def toolbar(game):
    board = game.board()
    return board.picture.crop((0, 0, board.picture.size[0], board.top + 4))


def shows_every_mode(desktop, game):
    paste(desktop, game, PUZZLE)
    for name, presses, colour in TOOLBAR_MODES:
        for index in presses:
            press_tool(desktop, game, index)
        picture = game.picture()
        expect(picture.getpixel(tool_point(game, 1)) == colour, f"the toolbar in mode {name}")
        save_picture(toolbar(game), f"toolbar_{name}")
    press_tool(desktop, game, 7)
    board = game.board()
    expect(board.ink(5, 1) > 0.05 and board.ink(1, 1) == 0, "the view shows the sevens alone")
    press_tool(desktop, game, 0)
    board = game.board()
    expect(board.ink(1, 1) > 0.05 and board.fill(9, 9) == SELECTED_FILL,
           "Esc shows all and selects all")
    press_tool(desktop, game, 13)
    press_tool(desktop, game, 13)
    shows_signs(desktop, game)


def shows_signs(desktop, game):
    """The captions while a modifier is held, told by the ink of a button."""
    def face():
        x, y = tool_point(game, 4)
        return game.picture().crop((x, y - 10, x + 60, y + 10)).tobytes()
    plain = face()
    faces = {}
    for modifier in ("Shift_L", "Control_L"):
        desktop.xdotool("keydown", modifier)
        faces[modifier] = face()
        save_picture(toolbar(game), f"sign_{modifier}")
        desktop.xdotool("keyup", modifier)
        expect(face() == plain, f"{modifier} let go shows plain numbers")
    expect(len({plain, *faces.values()}) == 3, "Shift and Ctrl show signs of their own while held")


# ---- Clock -------------------------------------------------------------------------------------

def pauses(desktop, game):
    paste(desktop, game, PUZZLE)
    game.click(2, 2)
    desktop.key("F12")
    board = game.board()
    save_picture(board.picture, "paused")
    expect(all(board.ink(c, r) == 0 for c in range(1, 10) for r in range(1, 10)),
           "a paused game hides its numbers")
    expect(board.fill(2, 2) == SELECTED_FILL and board.fill(1, 1) == GIVEN_FILL
           and board.fill(3, 1) == UNKNOWN_FILL, "and shows its cells")
    desktop.key("F12")
    expect(game.board().ink(1, 1) > 0.05, "resumed, it shows them again")


def narrow(desktop, game):
    for width, height in ((420, 520), (300, 400)):
        game.resize(width, height)
        save_picture(game.picture(), f"narrow_{width}")
    game.resize(900, 980)


def main():
    with Desktop() as desktop:
        explains_an_alert(desktop, sys.argv[2])
    with Desktop() as desktop:  # with a home of its own, for that program has settings of its own
        game = Game(desktop, sys.argv[1])
        game.resize(900, 980)
        for hard in HARD_GAMES:
            gives_a_hint(desktop, game, hard)
        no_is_enough(desktop, game)
        strikes_pencilmarks_out(desktop, game)
        shows_every_mode(desktop, game)
        pauses(desktop, game)
        narrow(desktop, game)
    print("play in full: all as it should be")


if __name__ == "__main__":
    main()
