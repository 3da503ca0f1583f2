#!/usr/bin/python3
"""Asks for a random game, then for one that cannot be found, stops the search in every way and
finds the earlier game back."""

import sys

from board import GIVEN_FILL
from desktop import Desktop, expect, save_picture, wait_for
from game import Game


def answer(desktop, game, key):
    box = desktop.dialog(other_than=[game.window])
    desktop.key(key)
    desktop.gone(box)
    game.focus()


def makes_a_game(desktop, program):
    game = Game(desktop, program)
    game.resize(900, 980)
    expect(game.copy_line() == "." * 81, "the program starts on an empty grid")
    desktop.key("ctrl+n")
    line = wait_for(lambda: next((l for l in [game.copy_line()] if l != "." * 81), None),
                    "a random game")
    expect(17 <= sum(mark != "." for mark in line) <= 40, "it has 17 to 40 givens")
    expect(game.end(save_first="alt+n") == 0, "the program ends")


def banner_is_up(game):
    """The white box of the banner covers the middle of the board."""
    picture = game.picture()
    width, height = picture.size
    box = picture.crop((width // 2 - 60, height // 2 - 40, width // 2 + 60, height // 2 + 60))
    pixels = list(box.getdata())
    return sum(1 for pixel in pixels if min(pixel) > 240) > len(pixels) // 3


def banner_moves(game):
    """Waits until the banner shows another count of games."""
    first = game.picture().tobytes()
    return wait_for(lambda: game.picture().tobytes() != first, "the count of games to change")


def stops_a_search(desktop, program):
    game = Game(desktop, program)
    game.resize(900, 980)
    desktop.set_clipboard("5" + "." * 79 + "9")
    desktop.key("ctrl+v")
    wait_for(lambda: game.board().fill(1, 1) == GIVEN_FILL, "the earlier game")

    ways = {
        "a key": lambda: desktop.key("5"),
        "a click": lambda: game.click(5, 1),
        "a menu": lambda: desktop.key("alt+a"),
        "closing the window": lambda: desktop.close(game.window),
    }
    for way, act in ways.items():
        desktop.key("ctrl+n")
        desktop.answer("alt+n", other_than=[game.window])  # save first?
        desktop.answer("alt+y", other_than=[game.window])  # search all the same?
        wait_for(lambda: banner_is_up(game), "the banner")
        expect(banner_moves(game), "the count of games goes up")
        save_picture(game.picture(), "search")
        act()
        box = desktop.dialog(other_than=[game.window])
        desktop.key("Return")  # No is the default
        desktop.gone(box)
        game.focus()
        expect(banner_moves(game), "on No the search goes on")
        act()
        if way == "closing the window":
            desktop.answer("alt+y", other_than=[game.window])
            desktop.answer("Escape", other_than=[game.window])  # which goes on: save first?
            game.focus()
        else:
            answer(desktop, game, "alt+y")
        line = game.copy_line()
        expect(line == "5" + "." * 79 + "9", f"stopped by {way}, the earlier game is back")
        expect(game.board().fill(1, 1) == GIVEN_FILL, "and on the board")
    expect(game.end(save_first="alt+n") == 0, "the program ends")


def main():
    with Desktop() as desktop:
        makes_a_game(desktop, sys.argv[1])
    with Desktop() as desktop:  # with a home of its own, where no settings undo the wishes
        stops_a_search(desktop, sys.argv[2])
    print("random game: all as it should be")


if __name__ == "__main__":
    main()
