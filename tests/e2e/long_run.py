#!/usr/bin/python3
"""Applies logic that never comes to an end, and stops it in every way: the banner tells that it is at
work, No lets it go on, Yes brings the game back as it was, and a closing goes on after it."""

import signal
import sys

from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from random_game import banner_is_up

GAME = "1" + "." * 71 + "2......3."


def start(desktop, game):
    game.focus()
    desktop.key("w", "Insert")  # every cell with every number
    game.line = game.copy_line()
    desktop.key("ctrl+l")
    wait_for(lambda: banner_is_up(game), "the banner")


def stops(desktop, game, way, act):
    start(desktop, game)
    save_picture(game.picture(), "long_run")
    act()
    desktop.answer("Return", other_than=[game.window])  # No is the default
    game.focus()
    expect(game.process.poll() is None and banner_is_up(game), f"on No it goes on, asked by {way}")
    act()
    desktop.answer("alt+y", other_than=[game.window])
    game.focus()
    expect(game.copy_line() == game.line, f"stopped by {way}, the game is as it was")
    expect(not banner_is_up(game), "and the banner is gone")


def stops_and_closes(desktop, game, way, act):
    start(desktop, game)
    act()
    desktop.answer("alt+y", other_than=[game.window])
    desktop.answer("Escape", other_than=[game.window])  # save first? and stays
    game.focus()
    expect(game.copy_line() == game.line, f"stopped by {way}, the closing goes on")


def main():
    with Desktop() as desktop:
        game = Game(desktop, sys.argv[1])
        game.resize(900, 980)
        game.paste(GAME)
        stops(desktop, game, "a key", lambda: desktop.key("5"))
        stops(desktop, game, "a click", lambda: game.click(5, 1))
        stops(desktop, game, "a menu", lambda: desktop.key("alt+a"))
        stops_and_closes(desktop, game, "closing", lambda: desktop.close(game.window))
        stops_and_closes(desktop, game, "a signal",
                         lambda: game.process.send_signal(signal.SIGTERM))
        expect(game.end(save_first="alt+n") == 0, "the program ends")
    print("long run: all as it should be")


if __name__ == "__main__":
    main()
