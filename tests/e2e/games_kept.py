#!/usr/bin/python3
"""Games on the disk: saved and opened again with their undo states, written over only on a Yes,
unharmed by a broken file, and whole even when the program is killed while it saves."""

import struct
import sys

from desktop import Desktop, RECORD_SIZE, expect, save_picture, wait_for
from game import Game
from positions import PUZZLE

GAME_SIZE = 1034 * RECORD_SIZE
HEADER = b"Kelvarine game file v1.0".ljust(32)


# ---- What a game file holds --------------------------------------------------------------------

def records(contents, first, last):
    return contents[(first - 1) * RECORD_SIZE:last * RECORD_SIZE]


def numbers_on(grid):
    """The cells of a stored grid that hold one number, row after row, as a line."""
    words = struct.unpack("<100I", grid)
    cells = [words[10 * column + row] & 0x3FE for row in range(1, 10) for column in range(1, 10)]
    return "".join(str(mask.bit_length() - 1) if mask.bit_count() == 1 else "." for mask in cells)


def is_whole(contents):
    """A game file of full length, whose grid is the undo state that its own count points at."""
    if len(contents) != GAME_SIZE or records(contents, 3, 3)[8:] != HEADER:
        return False
    position = struct.unpack_from("<10i", records(contents, 14, 14))[2]
    state = records(contents, 15 + 10 * position, 24 + 10 * position)
    return numbers_on(records(contents, 4, 13)) == numbers_on(state)


# ---- Saving and opening ------------------------------------------------------------------------

def save_as(desktop, path):
    desktop.key("ctrl+a")
    return desktop.name_file("^Save Game As$", path)


def open_file(desktop, game, path):
    desktop.key("ctrl+o")
    box = desktop.name_file("^Open Game$", path)
    desktop.gone(box)
    return box


def saves_and_opens(desktop, game, path):
    game.paste(PUZZLE)
    game.click(3, 1)
    desktop.key("4", "Right", "6", "Down", "Down", "Down", "7", "Prior")
    saved = game.copy_line()
    expect(saved == "5346" + PUZZLE[4:], "two numbers are placed and a third taken back")

    box = save_as(desktop, path.stem)
    desktop.gone(box)
    game.focus()
    expect(game.title() == "Kelvarine (evening.sdk)", "the title names the file, ending added")
    contents = path.read_bytes()
    expect(is_whole(contents) and numbers_on(records(contents, 4, 13)) == saved,
           "the file holds the position")

    game.click(9, 1)
    desktop.key("8")
    expect(game.copy_line() == saved[:8] + "8" + saved[9:], "the game goes on")
    desktop.key("ctrl+o")
    desktop.answer("alt+n", other_than=[game.window])
    desktop.gone(desktop.name_file("^Open Game$", path.name))
    game.focus()
    expect(game.copy_line() == saved, "opening it again brings back what was saved")
    desktop.key("Next")
    expect(game.copy_line() != saved, "redo brings the number that was taken back")
    redone = game.copy_line()
    desktop.key("Prior", "Prior", "Prior")
    expect(game.copy_line() == PUZZLE, "undo leads back to the start")
    desktop.key("Next", "Next")
    expect(game.copy_line() == saved, "and redo forward again")
    expect(redone[30] == "7", "the number taken back stands where it stood")


def overwrites_when_told(desktop, game, path):
    before = path.read_bytes()
    game.click(9, 1)
    desktop.key("8")
    box = save_as(desktop, path.name)
    question = desktop.dialog("^Overwrite\\?$")
    save_picture(desktop.picture_of(question), "games_overwrite")
    desktop.key("Return")  # No is the default
    desktop.gone(question)
    expect(box in desktop.windows("^Save Game As$"), "on No the dialog stays")
    expect(path.read_bytes() == before, "and the file is untouched")
    desktop.focus(box)
    save_picture(desktop.picture_of(box), "games_file_dialog")
    desktop.key("Return")
    desktop.answer("alt+y", title="^Overwrite\\?$")
    desktop.gone(box)
    game.focus()
    after = wait_for(lambda: next((c for c in [path.read_bytes()] if c != before), None),
                     "the file to be written over")
    expect(is_whole(after) and numbers_on(records(after, 4, 13)) == game.copy_line(),
           "on Yes it holds the new position")


# ---- Broken files ------------------------------------------------------------------------------

def survives_broken_files(desktop, game, folder):
    before = game.copy_line()
    title = game.title()
    broken = {
        "noise.sdk": bytes(range(128, 256)) * 40,
        "empty.sdk": b"",
        "letter.txt": b"Dear player,\r\nthis is no game at all.\r\n",
    }
    for name, contents in broken.items():
        (folder / name).write_bytes(contents)
        open_file(desktop, game, folder / name)
        picture = desktop.answer("Return", other_than=[game.window])
        save_picture(picture, f"games_broken_{name.split('.')[0]}")
        game.focus()
        expect(game.copy_line() == before and game.title() == title,
               f"{name} is refused, and the game in hand stays")
    desktop.key("Prior")
    expect(game.copy_line() == before[:8] + "." + before[9:], "its undo states stay as well")
    desktop.key("Next")
    open_missing(desktop, game, folder)


def open_missing(desktop, game, folder):
    desktop.key("ctrl+o")
    box = desktop.name_file("^Open Game$", folder / "nowhere")
    desktop.answer("Return", other_than=[game.window])
    expect(box in desktop.windows("^Open Game$"), "a missing file leaves the dialog open")
    desktop.focus(box)
    desktop.key("Escape")
    desktop.gone(box)
    game.focus()


# ---- Killed while saving -----------------------------------------------------------------------

# The calls of the system at which the program is killed, which time it comes to them, and whether the
# new file has taken its place by then.
KILLS = [
    ("before the new file is on the disk", "fsync", 1, False),
    ("before it takes its place", "rename,renameat,renameat2", 1, False),
    ("before its folder is on the disk", "fsync", 2, True),
]


def killed_at(calls, time):
    """The words that start a program and kill it when it enters one of these calls."""
    return ["strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={calls}",
            "-e", f"inject={calls}:signal=SIGKILL:when={time}"]


def is_killed_in_save(desktop, program, path, line, way):
    """Opens a game, takes a step back and saves it, in a program that is killed on that way. False when
    the game was kept for the case of a crash between the step and the save: that makes calls, too."""
    game = Game(desktop, program, arguments=[path], before=way)
    game.resize(900, 980)
    expect(game.copy_line() == line, "the game is opened")
    desktop.key("Prior", "ctrl+s")
    game.wait_for_end()
    kept = desktop.recovery()
    for name in kept:
        (desktop.statistics_file.parent / name).unlink()
    return not kept


def stays_whole_when_killed(desktop, game, program, path):
    new = game.copy_line()
    old = new[:8] + "." + new[9:]
    expect(numbers_on(records(path.read_bytes(), 4, 13)) == new, "the file holds the position")
    expect(game.end() == 0, "the program ends")
    for moment, calls, time, replaced in KILLS:
        whole = path.read_bytes()
        while not is_killed_in_save(desktop, program, path, new, killed_at(calls, time)):
            path.write_bytes(whole)
        contents = path.read_bytes()
        expect(is_whole(contents), f"killed {moment}, the program leaves a whole file")
        expect(numbers_on(records(contents, 4, 13)) == (old if replaced else new),
               f"it is the {'new' if replaced else 'old'} one")
        expect((contents == whole) != replaced, "to the byte")
    game = Game(desktop, program, arguments=[path])
    game.resize(900, 980)
    expect(game.copy_line() == old, "which opens")
    desktop.key("Next")
    expect(game.copy_line() == new, "undo states and all")
    return game


def main():
    with Desktop() as desktop:
        path = desktop.home / "evening.sdk"
        game = Game(desktop, sys.argv[1])
        game.resize(900, 980)
        saves_and_opens(desktop, game, path)
        overwrites_when_told(desktop, game, path)
        survives_broken_files(desktop, game, desktop.home)
        game = stays_whole_when_killed(desktop, game, sys.argv[1], path)
        desktop.key("ctrl+s")
        expect(game.end() == 0, "a game that is saved is closed without a question")
    print("games kept: all as it should be")


if __name__ == "__main__":
    main()
