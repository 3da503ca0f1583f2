#!/usr/bin/python3
"""Settings made on the configuration screen: each shows on the board at once, and all of them are
found again when the program starts the next time."""

import sys

from board import GIVEN_FILL
from desktop import Desktop, expect, save_picture, wait_for
from game import Configure, Game
from positions import PUZZLE

RED, BLUE = (255, 0, 0), (0, 0, 255)

# The fourth preset: its lines, and the colour of its cells.
PRESET, PRESET_LINES, PRESET_FILL = 3, (16, 6, 0), (0x2B, 0x26, 0x2A)
PRESETS = 8

TECHNIQUES = 19
COLOURS_TAB = 6
SINGLES = 1 << 1 | 1 << 2
HARD = 3


def makes_a_mistake(desktop, game):
    game.paste(PUZZLE)
    wait_for(lambda: game.board().fill(1, 1) != game.board().fill(3, 1), "the puzzle on the board")
    game.click(3, 1)
    desktop.key("5")
    expect(game.copy_line().startswith("535"), "a wrong number stands on the board")


def turns_alerts_on(desktop, game, screen):
    expect(game.board().share(RED, 3, 1) == 0, "at first no alert is on")
    screen.press("l", *["shift+Tab"] * 4, "space")
    wait_for(lambda: game.board().share(RED, 3, 1) > 0.01, "a ring round the wrong number")
    expect(game.board().share(RED, 1, 1) == 0, "and none round a given")
    save_picture(desktop.screen(), "settings_alerts")


def moves_techniques(desktop, game, screen):
    """Naked and hidden singles, the first two rows of three controls each, become hard."""
    easy = game.board().rating().tobytes()
    for row in (1, 2):
        expect(game.board().rating().tobytes() == easy, "as long as one is easy, the game is")
        screen.press("l", *["Tab"] * 3 * row, "Menu")
        desktop.key(*["Down"] * HARD, "Return")
    wait_for(lambda: game.board().rating().tobytes() != easy, "the rating in the margin to change")
    save_picture(screen.picture(), "settings_level")
    save_picture(game.picture(), "settings_rating")
    return game.board().rating().tobytes()


def look(game):
    """The window below its menus, for the clock is no part of the look."""
    picture = game.picture()
    return picture.crop((0, 60, *picture.size))


def picks_presets(game, screen):
    looks = {}
    for preset in [*range(PRESETS), PRESET]:
        before = look(game).tobytes()
        screen.press("e", *["Tab"] * (preset + 1), "space")
        wait_for(lambda: look(game).tobytes() != before, f"preset {preset + 1} on the board")
        looks[preset] = look(game)
        save_picture(looks[preset], f"settings_preset_{preset + 1}")
    expect(len({picture.tobytes() for picture in looks.values()}) == PRESETS,
           "each preset has a look of its own")
    game.lines = PRESET_LINES
    expect(game.board().fill(1, 1) == game.board().fill(9, 1) == PRESET_FILL,
           "the preset picked last is on the board")


def changes_a_colour(game, screen):
    screen.press("c", "shift+Tab", "End", "shift+Tab", "Home", "shift+Tab", "Home")
    wait_for(lambda: game.board().fill(1, 1) == BLUE, "the givens in the colour of the three bars")
    expect(game.board().fill(5, 4) == BLUE and game.board().fill(9, 1) == PRESET_FILL,
           "all of them, and no other cell")
    save_picture(screen.picture(), "settings_colour")


def are_in_the_file(desktop):
    expect(desktop.settings_file.stat().st_size == 11 * 40, "the settings are eleven records")
    every_technique = sum(1 << k for k in range(1, TECHNIQUES + 1))
    expect(desktop.setting(8, 1) == every_technique, "all alerts are on in the file")
    levels = [desktop.setting(10, level - 1) & SINGLES for level in range(1, 7)]
    expect(levels == [SINGLES if level == HARD else 0 for level in range(1, 7)],
           "the singles stand in the third level alone")
    expect([desktop.setting(1, k) for k in (1, 2, 3)] == list(PRESET_LINES),
           "the lines are those of the preset")
    expect(desktop.setting(3, 0) == 0xFF0000, "the givens are blue, red being the lowest byte")
    expect(desktop.setting(6, 0) == -1 and desktop.setting(2, 4) == COLOURS_TAB,
           "the screen is noted as open, with its tab")


def are_found_again(desktop, game, size, hard):
    box = wait_for(lambda: desktop.windows("^Configure$"), "the configuration screen to come back")
    expect(len(box) == 1, "the configuration screen is open again")
    game.lines = PRESET_LINES
    expect(game.picture().size == size, "the window has its former size")
    game.focus()
    makes_a_mistake(desktop, game)
    board = game.board()
    expect(board.fill(1, 1) == BLUE and board.fill(9, 1) == PRESET_FILL, "the colours are kept")
    expect(board.share(RED, 3, 1) > 0.01, "alerts are still on")
    expect(board.rating().tobytes() == hard, "the game is rated as before")
    save_picture(desktop.screen(), "settings_again")


def main():
    with Desktop() as desktop:
        game = Game(desktop, sys.argv[1])
        game.resize(900, 980)
        makes_a_mistake(desktop, game)
        expect(game.board().fill(1, 1) == GIVEN_FILL, "the board has its first look")
        game.menu("alt+g", "c")
        screen = Configure(desktop)
        turns_alerts_on(desktop, game, screen)
        moves_techniques(desktop, game, screen)
        picks_presets(game, screen)
        changes_a_colour(game, screen)
        hard = game.board().rating().tobytes()
        size = game.picture().size
        expect(not desktop.settings_file.exists(), "nothing is written before the end")
        expect(game.end(save_first="alt+n") == 0, "the program ends")
        are_in_the_file(desktop)

        game = Game(desktop, sys.argv[1])
        are_found_again(desktop, game, size, hard)
        first = desktop.settings_file.read_bytes()
        expect(game.end(save_first="alt+n") == 0, "the program ends again")
        expect(desktop.settings_file.read_bytes() == first, "and settings untouched stay the same")
    print("settings kept: all as it should be")


if __name__ == "__main__":
    main()
