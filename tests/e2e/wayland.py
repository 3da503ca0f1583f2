#!/usr/bin/python3
"""The program on Wayland: a compositor in a window of the virtual display passes real keys on. A game
is typed, a hint asked for, the configuration opened, and the closing asks whether to save.

No window can be looked up by its name here, so everything is learnt from the picture of the screen
and from the files."""

import signal
import sys

from board import GIVEN_FILL, UNKNOWN_FILL
from desktop import Desktop, expect, save_picture, wait_for
from game import expect_alive
from positions import PUZZLE

GIVENS = 30

SOCKET = "wayland-test"
SIZE = 1000, 900


class WaylandGame:
    """A compositor that fills its window with the program's, and the program on it."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        with open(desktop.evidence / "compositor.log", "wb") as log:
            self.compositor = desktop.start(
                ["weston", "--backend=x11-backend.so", "--shell=kiosk-shell.so", "--use-pixman",
                 f"--socket={SOCKET}", f"--width={SIZE[0]}", f"--height={SIZE[1]}",
                 "--idle-time=0"], stdout=log, stderr=log)
        wait_for((desktop.home / SOCKET).exists, "the compositor")
        self.screen = wait_for(desktop.managed_windows, "the compositor's window")[0]
        desktop.focus(self.screen)
        desktop.environment |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET}
        with open(desktop.evidence / "program.log", "wb") as log:
            self.process = desktop.start([program], stderr=log)
        self.shows(UNKNOWN_FILL, 0.4, "the board")

    def picture(self):
        return self.desktop.picture_of(self.screen)

    def share(self, colour):
        """Share of the screen's pixels that have this very colour."""
        pixels = list(self.picture().getdata())
        return sum(1 for pixel in pixels if pixel == colour) / len(pixels)

    def shows(self, colour, least, what):
        def shown():
            expect_alive(self.process)
            return self.share(colour) >= least
        wait_for(shown, what)

    def shows_box(self, what):
        """Waits until a box in the desktop's light grey covers some of the board."""
        wait_for(lambda: self.light_on_the_board() > 0.02, what)

    def brings_up_box(self, key, what):
        """For the first key of all, before which nothing tells that the compositor has given the
        keyboard to the window. The box takes no notice of it."""
        def press():
            self.desktop.key(key)
            return self.light_on_the_board() > 0.02
        wait_for(press, what)

    def shows_no_box(self, what):
        """Waits until no box is left, and presses the margin: this compositor gives the keyboard back
        to the main window on a press only."""
        wait_for(lambda: self.light_on_the_board() < 0.005, what)
        self.desktop.xdotool("mousemove", "--window", self.screen, 20, SIZE[1] // 2, "click", 1)

    def light_on_the_board(self):
        width, height = SIZE
        board = self.picture().crop((60, 200, width - 60, height - 100))
        pixels = list(board.getdata())
        return sum(1 for r, g, b in pixels if r == g == b == 239) / len(pixels)


def types_a_game(desktop, game):
    empty = game.share(UNKNOWN_FILL)
    game.brings_up_box("ctrl+t", "the box for a text")
    desktop.type(PUZZLE)
    save_picture(game.picture(), "wayland_text")
    desktop.key("Return")
    game.shows_no_box("the box for a text to close")
    game.shows(GIVEN_FILL, empty * GIVENS / 81 * 0.7, "the givens of the typed game")
    expect(game.share(UNKNOWN_FILL) > 0.2, "the other cells are open")


def takes_a_hint(desktop, game):
    desktop.key("h")
    game.shows_box("the hint")
    save_picture(game.picture(), "wayland_hint")
    desktop.key("Return")  # No is the default
    game.shows_no_box("the hint to close")


def opens_the_configuration(desktop, game):
    desktop.key("alt+g", "c")
    game.shows_box("the configuration")
    save_picture(game.picture(), "wayland_configuration")
    desktop.key("Escape")
    game.shows_no_box("the configuration to close")


def places_a_number_and_closes(desktop, game):
    before = game.picture().tobytes()
    desktop.key("Right", "Right", "Right", "4")
    wait_for(lambda: game.picture().tobytes() != before, "a number on the board")
    game.process.send_signal(signal.SIGTERM)
    game.shows_box("the question whether to save")
    save_picture(game.picture(), "wayland_save")
    desktop.key("Escape")
    game.shows_no_box("the question to go")
    expect_alive(game.process)
    expect(desktop.settings_file.exists() and desktop.recovery(),
           "Cancel keeps the program alive, which has kept game and settings before it asked")
    game.process.send_signal(signal.SIGTERM)
    game.shows_box("the question whether to save")
    desktop.key("alt+n")
    wait_for(lambda: game.process.poll() is not None, "the program to end")
    expect(game.process.returncode == 0, "it ends as it should")
    expect(not desktop.recovery(), "and needs no game for the case of a crash any more")


def main():
    with Desktop(1100, 1000) as desktop:
        game = WaylandGame(desktop, sys.argv[1])
        types_a_game(desktop, game)
        takes_a_hint(desktop, game)
        opens_the_configuration(desktop, game)
        places_a_number_and_closes(desktop, game)
    print("wayland: all as it should be")


if __name__ == "__main__":
    main()
