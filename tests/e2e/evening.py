#!/usr/bin/python3
"""An evening from the first start on: an empty home, a random game with hints, a pause, the help,
a game won and counted, the solutions of another one listed and saved."""

import struct
import sys

from board import SELECTED_FILL
from desktop import Desktop, expect, let_the_clock_tick, save_picture, wait_for
from game import Game
from positions import SOLUTION

EASY = 1


def without(cells):
    """The solved grid with some cells open, told by column and row."""
    marks = list(SOLUTION)
    for column, row in cells:
        marks[9 * (row - 1) + column - 1] = "."
    return "".join(marks)


def solution_at(column, row):
    return SOLUTION[9 * (row - 1) + column - 1]


def framed(digits):
    """A solution as the solutions screen shows it."""
    edge = "+-------+-------+-------+"
    lines = []
    for row in range(9):
        if row % 3 == 0:
            lines.append(edge)
        line = digits[9 * row:9 * row + 9]
        lines.append("".join(f"| {' '.join(line[k:k + 3])} " for k in (0, 3, 6)) + "|")
    return "\r\n".join([*lines, edge, "", ""])


def start_on_empty_home(desktop, program):
    expect(desktop.files() == [], "the home is empty")
    game = Game(desktop, program)
    expect(game.copy_line() == "." * 81, "the first start shows an empty grid")
    width, height = game.picture().size
    expect(width == 760 and height >= 830, "in a window of the first size")
    save_picture(game.picture(), "evening_first_start")
    expect(desktop.files() == [], "and writes nothing")
    return game


# ---- A random game -----------------------------------------------------------------------------

def plays_a_random_game(desktop, game):
    game.resize(900, 980)
    desktop.key("ctrl+n")
    line = wait_for(lambda: next((l for l in [game.copy_line()] if l != "." * 81), None),
                    "a random game")
    expect(17 <= sum(mark != "." for mark in line) <= 40, "a random game of 17 to 40 givens")
    takes_a_hint(desktop, game)
    pauses(desktop, game)


def takes_a_hint(desktop, game):
    others = desktop.windows(".+")
    desktop.key("h")
    for _ in range(2):
        desktop.answer("alt+y", title="^Hint$")
    box = desktop.dialog("^[A-Z].* ", other_than=others)  # its title names the technique
    save_picture(desktop.screen(), "evening_hint")
    desktop.key("Return")
    desktop.gone(box)
    game.focus()
    board = game.board()
    expect(any(board.fill(column, row) == SELECTED_FILL
               for column in range(1, 10) for row in range(1, 10)),
           "the third hint selects the cell")


def pauses(desktop, game):
    desktop.key("F12")
    board = game.board()
    wait_for(lambda: all(game.board().ink(k, k) == 0 for k in range(1, 10)), "the pause")
    board = game.board()
    expect(all(board.ink(column, row) == 0 for column in range(1, 10) for row in range(1, 10)),
           "a paused game hides its numbers")
    save_picture(game.picture(), "evening_paused")
    stopped = game.clock_picture()
    let_the_clock_tick(2)
    expect(game.clock_picture() == stopped, "and its clock stands still")
    desktop.key("F12")
    game.wait_for_a_tick()


def opens_the_help(desktop, game):
    desktop.key("F1")
    box = desktop.dialog("Kelvarine Help$")
    save_picture(desktop.picture_of(box), "evening_help")
    desktop.focus(box)
    desktop.key("Escape")
    desktop.gone(box)
    game.focus()
    expect(game.copy_line() != "", "the help closes, and the game goes on")


# ---- A game won --------------------------------------------------------------------------------

def wins(desktop, game):
    cells = [(3, 1), (7, 4), (5, 9)]
    game.paste(without(cells), save_first="alt+n")
    expect(game.copy_line() == without(cells), "an easy game is almost done")
    expect(not desktop.statistics_file.exists(), "nothing is counted so far")
    game.wait_for_a_tick()
    game.wait_for_a_tick()  # the first may have been that to no time at all
    for column, row in cells:
        game.click(column, row)
        desktop.key(solution_at(column, row))
    wait_for(desktop.statistics_file.exists, "the won game to be counted")
    first = game.board()
    wait_for(lambda: any(game.board().fill(k, k) != first.fill(k, k) for k in range(1, 10)),
             "the win display")
    save_picture(game.picture(), "evening_won")


def counts(desktop, game):
    game.menu("alt+s")
    box = desktop.dialog("^Statistics$")
    save_picture(desktop.picture_of(box), "evening_statistics")
    words = struct.unpack("<20i", desktop.statistics_file.read_bytes())
    _, solved, best, average = words[4 * (EASY - 1):4 * EASY]
    expect(solved == 1 and 0 < best == average, "one easy game is counted, with its time")
    expect(not any(words[4 * EASY:]), "and none of any other level")
    desktop.key("Escape")
    desktop.gone(box)
    game.focus()


# ---- Solutions ---------------------------------------------------------------------------------

def lists_solutions(desktop, game):
    pair = [(4, 1), (5, 1), (4, 4), (5, 4)]  # two numbers that may change places
    open_line = without(pair)
    game.paste(open_line, save_first="alt+n")
    game.menu("alt+h", "s")
    box = desktop.dialog("^Solutions$")
    save_picture(desktop.picture_of(box), "evening_solutions")
    desktop.key("Tab", "Tab", "space")
    saved = desktop.home / "both.txt"
    desktop.gone(desktop.name_file("^Save Solution", saved.with_suffix("")))
    wait_for(saved.exists, "the solutions as a text file")
    a, b = solution_at(4, 1), solution_at(5, 1)
    other = iter((b, a, a, b))
    both = {framed(SOLUTION), framed("".join(next(other) if mark == "." else mark
                                             for mark in open_line))}
    text = saved.read_bytes().decode().removesuffix("\r\n")
    half = len(text) // 2
    expect({text[:half], text[half:]} == both, "both solutions are saved, framed")
    desktop.focus(box)
    desktop.key("Escape")
    desktop.gone(box)
    game.focus()


def main():
    with Desktop() as desktop:
        game = start_on_empty_home(desktop, sys.argv[1])
        plays_a_random_game(desktop, game)
        opens_the_help(desktop, game)
        wins(desktop, game)
        counts(desktop, game)
        lists_solutions(desktop, game)
        expect(not desktop.settings_file.exists(), "no settings are written before the end")
        expect(game.end(save_first="alt+n") == 0, "the program ends")
        expect(desktop.files() == [".config/kelvarine/config.sdu",
                                   ".local/share/kelvarine/stats.sdu", "both.txt"],
               "the home holds settings, statistics and what was saved")
        expect(desktop.recovery() == [], "and nothing for the case of a crash")
    print("evening: all as it should be")


if __name__ == "__main__":
    main()
