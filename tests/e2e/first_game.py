#!/usr/bin/python3
"""A first game in the real window: pasted, played by mouse and keyboard, undone, solved."""

import signal
import sys

from board import GIVEN_FILL, SELECTED_FILL, UNKNOWN_FILL
from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from positions import PUZZLE, SOLUTION


def paste(desktop, game, text):
    desktop.set_clipboard(text)
    desktop.key("ctrl+v")


def answer_save_question(desktop, game, key):
    desktop.answer(key, other_than=[game.window])
    game.focus()


def open_puzzle(desktop, game):
    paste(desktop, game, PUZZLE)
    board = wait_for(lambda: next((b for b in [game.board()] if b.fill(1, 1) == GIVEN_FILL), None),
                     "the pasted puzzle on the board")
    expect(board.fill(3, 1) == UNKNOWN_FILL, "an open cell has the colour of unknown cells")
    expect(board.ink(1, 1) > 0.05, "a given shows its number")
    expect(board.ink(3, 1) == 0, "an open cell is empty")
    expect(game.copy_line() == PUZZLE, "the clipboard gets the same puzzle back")


def play_by_mouse_and_keys(desktop, game):
    game.click(3, 1)
    expect(game.board().fill(3, 1) == SELECTED_FILL, "a click selects a cell")
    desktop.key("1", "ctrl+2", "ctrl+4")
    wait_for(lambda: game.board().has_pencilmark(3, 1, 4), "the pencilmark 4")
    board = game.board()
    marks = [n for n in range(1, 10) if board.has_pencilmark(3, 1, n)]
    expect(marks == [1, 2, 4], "digits with Ctrl add pencilmarks at their places")
    desktop.key("shift+1")
    board = game.board()
    expect([n for n in range(1, 10) if board.has_pencilmark(3, 1, n)] == [2, 4],
           "a digit with Shift takes one away")
    expect(game.copy_line().startswith("5 3 24.7."), "the clipboard tells the pencilmarks")
    desktop.key("4")
    expect(game.copy_line().startswith("534.7"), "a plain digit places a number")
    desktop.key("Prior", "Prior")
    expect(game.copy_line().startswith("5 3 124.7."), "two steps back")
    desktop.key("Next")
    expect(game.copy_line().startswith("5 3 24.7."), "one step forward")
    desktop.key("ctrl+y")
    expect(game.copy_line().startswith("534.7"), "forward to the end by the other key")
    desktop.key("Right")
    board = game.board()
    expect(board.fill(4, 1) == SELECTED_FILL and board.fill(3, 1) == UNKNOWN_FILL,
           "an arrow walks on")
    game.click(9, 9, ["Control_L"])
    expect(game.board().fill(9, 9) == SELECTED_FILL and game.board().fill(4, 1) == SELECTED_FILL,
           "a click with Ctrl adds a cell")
    game.click(9, 9, ["Shift_L"])
    expect(game.board().fill(9, 9) == GIVEN_FILL, "a click with Shift takes it out")
    game.drag((1, 5), (3, 6))
    board = game.board()
    expect(all(board.fill(c, r) == SELECTED_FILL for c in (1, 2, 3) for r in (5, 6)),
           "a drag selects a rectangle")
    expect(board.fill(4, 5) != SELECTED_FILL, "and nothing beside it")
    desktop.key("0")
    expect("123456789" in game.copy_line(), "0 fills all pencilmarks in")
    desktop.key("Delete")
    expect("123456789" not in game.copy_line(), "Delete takes them out")


def solve_and_win(desktop, game):
    desktop.key("shift+z")
    wait_for(lambda: not at_rest(game), "the win display to run")
    desktop.key("Down")
    expect(at_rest(game), "a key stops the win display")
    expect(game.copy_line() == SOLUTION, "the engine found the solution")


def at_rest(game):
    """Whether every cell has a colour of the board at rest; the win display paints all of them in
    colours of its own."""
    board = game.board()
    return all(board.fill(c, r) in (GIVEN_FILL, UNKNOWN_FILL, SELECTED_FILL)
               for c in range(1, 10) for r in range(1, 10))


def bad_clipboards(desktop, game):
    before = game.copy_line()
    for text in (b"", b"abcdefghi" * 9, b"\x00\xff\xfe" * 1000):
        desktop.set_clipboard(text)
        desktop.key("ctrl+v")
        desktop.answer("alt+n", other_than=[game.window])
        desktop.answer("Return", other_than=[game.window])
        game.focus()
    desktop.set_clipboard("5" + "." * 39)
    desktop.key("ctrl+v")
    desktop.answer("alt+n", other_than=[game.window])
    box = desktop.dialog(other_than=[game.window])
    desktop.key("Return")  # No is the default
    desktop.gone(box)
    game.focus()
    expect(game.copy_line() == before, "bad clipboards lose nothing")
    desktop.set_clipboard("." * 10_000_000)
    desktop.key("ctrl+v")
    answer_save_question(desktop, game, "alt+n")
    expect(game.copy_line() == "." * 81, "ten megabytes of text are a game at once")


def sizes(desktop, game):
    paste_over(desktop, game, PUZZLE)
    game.click(3, 1)
    desktop.key("1", "ctrl+2", "ctrl+4")
    for width, height in ((600, 660), (900, 980), (1600, 1300), (160, 160)):
        game.resize(width, height)
        picture = game.picture()
        expect(abs(picture.size[0] - width) < 3, f"the window takes {width} pixels")
        save_picture(picture, f"first_game_{width}")
        if width >= 600:
            expect(game.board().fill(1, 1) == GIVEN_FILL, f"the board is whole at {width} pixels")


def paste_over(desktop, game, text):
    desktop.set_clipboard(text)
    desktop.key("ctrl+v")
    answer_save_question(desktop, game, "alt+n")
    wait_for(lambda: game.board().fill(1, 1) == GIVEN_FILL, "the puzzle on the board")


def end_by_signal(desktop, game):
    game.resize(900, 980)
    game.process.send_signal(signal.SIGTERM)
    desktop.answer("Escape", other_than=[game.window])
    expect(game.process.poll() is None, "Cancel keeps the program alive")
    game.focus()
    game.process.send_signal(signal.SIGTERM)
    desktop.dialog(other_than=[game.window])
    desktop.key("alt+n")
    game.wait_for_end()
    expect(game.process.returncode == 0, "the program ends as after closing the window")


def main():
    program = sys.argv[1]
    with Desktop() as desktop:
        game = Game(desktop, program)
        game.resize(900, 980)
        open_puzzle(desktop, game)
        play_by_mouse_and_keys(desktop, game)
        solve_and_win(desktop, game)
        bad_clipboards(desktop, game)
        sizes(desktop, game)
        end_by_signal(desktop, game)
    print("first game: all as it should be")


if __name__ == "__main__":
    main()
