#!/usr/bin/python3
"""How much a key says: each key that stays in the main window sends assistive tools three events at most,
counted as they come over the bus, and a modifier none but the sign's."""

import sys

from assistive import Ear, on_own_bus
from desktop import Desktop, expect
from game import Game
from positions import PUZZLE

MOST = 3
TOOLS = 15  # buttons of the toolbar
SIGN = 12   # the first of them that is no number, in the order of the tabulator
NAME = "object:property-change:accessible-name"

STEPS = "Right", "Right", "Down", "Left", "Up", "shift+Right", "ctrl+Down", "ctrl+Right", "Left"
NUMBERS = "4", "ctrl+5", "shift+4", "KP_7", "0", "Delete", "Insert", "shift+Delete", "Prior", "Next", \
    "ctrl+z", "ctrl+y"
VIEWS = "ctrl+shift+3", "shift+alt+3", "ctrl+alt+3", "ctrl+shift+0"
SELECTIONS = "c", "w", "r", "b", "d", "p", "i", "Escape"
REST = "s", "6", "u", "shift+f", "shift+m", "shift+l", "shift+r"
OF_NOTHING = "BackSpace", "space", "Return", "Home", "End", "F2", "minus", "q", "n", "shift+n", "ctrl+minus"


class EveryEvent(Ear):
    """Hears what the toolkit tells of the focus a second time as well."""

    KINDS = *Ear.KINDS, "focus:"

    def of(self, *deed):
        """What a deed sends."""
        self.at_rest()
        self.events.clear()
        self.desktop.xdotool(*deed)
        self.at_rest()
        return list(self.events)


def is_sign(event):
    kind, _, role, name, _ = event
    return kind == NAME and role == "push button" and name.startswith("+/-")


def press(ear, keys):
    """Presses a key with its modifiers one by one, and gives what the key sends itself."""
    *modifiers, key = keys.split("+")
    for modifier in modifiers:
        expect_sign_at_most(ear.of("keydown", modifier), f"{modifier} going down for {keys}")
    events = ear.of("key", key)
    for modifier in reversed(modifiers):
        expect_sign_at_most(ear.of("keyup", modifier), f"{modifier} coming up after {keys}")
    return events


def expect_sign_at_most(events, what):
    expect(len(events) <= 1 and all(map(is_sign, events)), f"{what} sends the sign at most: {events}")


def expect_few(ear, keys, silent=False):
    events = press(ear, keys)
    expect(len(events) <= MOST, f"{keys} sends three events at most: {events}")
    expect(bool(events) != silent, f"{keys} says {'nothing' if silent else 'something'}")


def modifiers_alone(ear):
    for modifier in "shift", "ctrl":
        for way in "keydown", "keyup":
            events = ear.of(way, modifier)
            expect([is_sign(event) for event in events] == [True], f"{way} of {modifier}: {events}")
    for modifier in "Super_L", "ISO_Level3_Shift":
        for way in "keydown", "keyup":
            expect(ear.of(way, modifier) == [], f"{way} of {modifier} is nothing")


def the_board(ear, game):
    game.click(2, 1)
    for keys in STEPS:
        expect_few(ear, keys)
    game.click(3, 1)
    for keys in NUMBERS:
        expect_few(ear, keys)
    for keys in VIEWS:
        expect_few(ear, keys)
    for keys in SELECTIONS:
        game.click(5, 5)
        expect_few(ear, keys)
    game.click(3, 1)
    for keys in REST:
        expect_few(ear, keys)
    for keys in OF_NOTHING:
        expect_few(ear, keys, silent=True)


def the_toolbar(ear, game):
    """All round by the tabulator in both directions; a press, after which the player is at the board."""
    game.click(3, 1)
    for way in "Tab", "shift+Tab":
        for _ in range(TOOLS + 1):
            expect_few(ear, way)
    for steps, press_by in ((1, "Right"), (2, "space"), (8, "a")):
        for _ in range(steps):
            expect_few(ear, "Tab")
        expect_few(ear, press_by)
    for way in "shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab":
        expect_few(ear, way)
    for button in range(SIGN, TOOLS + 1):
        game.click(3, 1)
        for _ in range(button):
            expect_few(ear, "Tab")
        events = press(ear, "space")  # the sign may get another name by it
        expect(len([event for event in events if not is_sign(event)]) <= MOST
               and len(events) <= MOST + 1, f"Space on button {button}: {events}")


def the_menu_bar(ear, game):
    game.click(3, 1)
    expect_few(ear, "alt")
    expect_few(ear, "Right")
    expect_few(ear, "Escape")


def main(program):
    with Desktop() as desktop:
        ear = EveryEvent(desktop)
        game = Game(desktop, program)
        ear.meet("kelvarine")
        game.paste(PUZZLE)
        modifiers_alone(ear)
        the_board(ear, game)
        the_toolbar(ear, game)
        the_menu_bar(ear, game)


if __name__ == "__main__":
    on_own_bus()
    main(sys.argv[1])
