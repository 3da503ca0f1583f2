#!/usr/bin/python3
"""Homes that take nothing: plain files where the folders should be, a disk that may only be read, a
disk that is full, a limit on the size of files. The program starts, plays, tells of each write that
fails, loses nothing and ends cleanly."""

import pathlib
import subprocess
import sys

from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from positions import PUZZLE

ALMOST_DONE = "53467891267219534819834256785976142342685379171392485696153728428741963534528617."
WRONG_START = "535" + PUZZLE[3:]

FILE_LIMIT = 16384  # bytes; a game file is larger, the settings are not
FULL_HOME = "size=64k"


def told(desktop, game, name):
    """Answers the message of a failing write and gives its picture."""
    picture = desktop.answer("Return", other_than=[game.window])
    save_picture(picture, f"bad_home_{name}")
    return picture.tobytes()


def plays(desktop, game, told_as=None):
    """Begins a game; where it cannot be kept for the case of a crash, that is told at once."""
    game.resize(900, 980)
    desktop.set_clipboard(PUZZLE)
    desktop.key("ctrl+v")
    if told_as:
        told(desktop, game, f"{told_as}_recovery")
        game.focus()
    wait_for(lambda: game.copy_line() == PUZZLE, "the pasted game")
    game.click(3, 1)
    desktop.key("5")
    expect(game.copy_line() == WRONG_START, "the program starts and plays")


def ends_with_a_word(desktop, game, name):
    """Closes a window whose settings cannot be written."""
    desktop.close(game.window)
    desktop.answer("alt+n", other_than=[game.window])  # save first?
    words = told(desktop, game, f"{name}_settings")
    game.wait_for_end()
    expect(game.process.returncode == 0, "it tells that its settings are lost, and ends cleanly")
    return words


# ---- Plain files in the place of folders -------------------------------------------------------

def files_for_folders(desktop, program):
    places = [desktop.settings_file.parent, desktop.statistics_file.parent]
    for place in places:
        place.parent.mkdir(parents=True)
        place.write_text("no folder\n")
    game = Game(desktop, program)
    plays(desktop, game, told_as="files")
    game.paste(ALMOST_DONE, save_first="alt+n")
    game.click(9, 9)
    desktop.key("9")
    told(desktop, game, "files_statistics")
    game.focus()
    desktop.key("Down")  # stops the win display
    expect(game.copy_line() == ALMOST_DONE[:-1] + "9", "a won game tells that it cannot be counted")
    ends_with_a_word(desktop, game, "files")
    expect(all(place.read_text() == "no folder\n" for place in places), "the files stay")


# ---- Disks that refuse -------------------------------------------------------------------------

def can_mount():
    """Whether this user may mount, in a world of mounts that ends with the program."""
    done = subprocess.run(["unshare", "--mount", "sh", "-c", "mount -t tmpfs tmpfs /mnt"],
                          stderr=subprocess.DEVNULL, check=False)
    return done.returncode == 0


def after_mounting(commands):
    """The words that run shell commands in a world of mounts and then the program there."""
    return ["unshare", "--mount", "sh", "-c", commands + ' && exec "$0" "$@"']


def saves_once(desktop, program, path):
    """A settings file and a game file from better days."""
    game = Game(desktop, program)
    plays(desktop, game)
    desktop.key("ctrl+a")
    desktop.gone(desktop.name_file("^Save Game As$", path))
    game.focus()
    expect(game.end() == 0 and path.exists() and desktop.settings_file.exists(),
           "in better days settings and a game are written")


def read_only_home(desktop, program, path):
    home = desktop.home
    game = Game(desktop, program, arguments=[path],
                before=after_mounting(f"mount --bind {home} {home}"
                                      f" && mount -o remount,bind,ro {home}"))
    game.focus()
    expect(game.copy_line() == WRONG_START, "from a disk for reading only a game is opened")
    expect(abs(game.picture().size[0] - 900) < 3, "and the settings are read")
    before = path.read_bytes()
    desktop.key("Delete")
    told(desktop, game, "read_only_recovery")
    game.focus()
    desktop.key("ctrl+s")
    told(desktop, game, "read_only_game")
    game.focus()
    expect(path.read_bytes() == before, "a save that fails leaves the file as it is")
    ends_with_a_word(desktop, game, "read_only")


def full_home(desktop, program):
    home = desktop.home
    game = Game(desktop, program,
                before=after_mounting(f"mount -t tmpfs -o {FULL_HOME} tmpfs {home} && "
                                      f"{{ cat /dev/zero >{home}/everything 2>/dev/null; true; }}"))
    plays(desktop, game, told_as="full")
    seen = pathlib.Path(f"/proc/{game.process.pid}/root{home}")  # as the program sees it
    desktop.key("ctrl+a")
    box = desktop.name_file("^Save Game As$", home / "evening")
    words = told(desktop, game, "full_game")
    desktop.gone(box)
    game.focus()
    expect(sorted(path.name for path in seen.iterdir() if path.is_file()) == ["everything"],
           "a save on a full disk leaves no half of a file")
    expect(game.title() == "Kelvarine", "and the game has no file")
    expect(game.copy_line() == WRONG_START, "but goes on")
    ends_with_a_word(desktop, game, "full")
    return words


# ---- A limit on files --------------------------------------------------------------------------

def limited_files(desktop, program, path):
    before = path.read_bytes()
    settings = desktop.settings_file.stat().st_mtime_ns
    game = Game(desktop, program, arguments=[path],
                before=["prlimit", f"--fsize={FILE_LIMIT}", "--"])
    game.focus()
    desktop.key("Delete")
    told(desktop, game, "limit_recovery")
    game.focus()
    desktop.key("ctrl+s")
    words = told(desktop, game, "limit_game")
    game.focus()
    expect(game.process.poll() is None, "the program lives on where a file grows too large")
    expect(path.read_bytes() == before, "and the old file stays whole")
    expect(game.end(save_first="alt+n") == 0, "it ends cleanly")
    expect(desktop.settings_file.stat().st_mtime_ns > settings, "with its settings written")
    return words


def main():
    program = sys.argv[1]
    with Desktop() as desktop:
        files_for_folders(desktop, program)
    with Desktop() as desktop:
        path = desktop.home / "evening.sdk"
        saves_once(desktop, program, path)
        large = limited_files(desktop, program, path)
        if can_mount():
            read_only_home(desktop, program, path)
            full = full_home(desktop, program)
            expect(large != full, "each failure is told in words of its own")
        else:
            print("no mounts for this user: disks for reading only and full ones are not tried")
    print("bad home: all as it should be")


if __name__ == "__main__":
    main()
