#!/usr/bin/python3
"""The file dialog and the places that a player goes to with it: home, documents and desktop, the
whole system, folders that were used before, hidden folders, names that are no text, ten thousand
files, a folder without rights, one that vanishes and a volume that goes away while the dialog is
open."""

import os
import shutil
import subprocess
import sys

from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from positions import PUZZLE

OTHER = "..............3.85..1.2.......5.7.....4...1...9.......5......73..2.1........4...9"
MANY = 10000

# For the one whom no rights hold back.
NO_RIGHTS = "setpriv --bounding-set -all --inh-caps -all -- "


def opens(desktop, *keys, name=None):
    """Opens the dialog; keys lead to a folder in it, and a name is typed."""
    desktop.key("ctrl+o")
    box = desktop.dialog("^Open Game$")
    for key in keys:
        desktop.key(key)
    if name:
        types(desktop, name)
    return box


def types(desktop, name):
    desktop.key("alt+n", "ctrl+a")
    desktop.type(name)


def opens_at_last(desktop, game, box, name):
    """Tries a name until the dialog has seen what became of its folder."""
    def opened():
        types(desktop, name)
        desktop.key("Return")
        told = [w for w in desktop.windows("^Kelvarine$") if w != game.window]
        if told:
            desktop.focus(told[0])
            desktop.key("Return")
            desktop.gone(told[0])
            desktop.focus(box)
        return box not in desktop.windows("^Open Game$")
    wait_for(opened, "a folder that is there")
    game.focus()


def enters(desktop, game, box, position, what):
    desktop.key("Return")
    desktop.gone(box)
    game.focus()
    wait_for(lambda: game.copy_line() == position, "the opened game")
    expect(True, what)


def fills(folder, name, position=PUZZLE):
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_text(position + "\n")


# ---- Places in the home --------------------------------------------------------------------------

def home_and_documents(desktop, game):
    home = desktop.home
    fills(home / "Documents", "kept.sdk")
    box = opens(desktop, "alt+p", "Home", "Down", name="kept.sdk")
    save_picture(desktop.picture_of(box), "file_dialog_documents")
    enters(desktop, game, box, PUZZLE, "documents are a place that the arrows lead to")
    fills(home / "Documents", "kept.sdk", OTHER)
    box = opens(desktop, name="~/Documents/")
    desktop.key("Return")
    expect(box in desktop.windows("^Open Game$"), "a path to a folder leads there")
    desktop.key("alt+l")  # the list, whose first entry is selected then
    enters(desktop, game, box, OTHER, "one file needs no arrow: it is selected")
    fills(home, "above.sdk")
    box = opens(desktop, "alt+l", "BackSpace", name="above.sdk")
    enters(desktop, game, box, PUZZLE, "Backspace in the list leads to the folder above")


def system_and_recent_folders(desktop, game):
    home = desktop.home
    fills(home / "far away", "kept.sdk")
    box = opens(desktop, name=f"{home}/far away/kept.sdk")
    enters(desktop, game, box, PUZZLE, "a path to a file opens it")
    fills(home / "far away", "kept.sdk", OTHER)
    box = opens(desktop, name="~/")
    desktop.key("Return", "alt+p", "End")
    types(desktop, "kept.sdk")
    save_picture(desktop.picture_of(box), "file_dialog_recent")
    enters(desktop, game, box, OTHER, "a folder that was used before is a place")
    box = opens(desktop, "alt+p", "Home", "Down", "Down", name=f"{str(home)[1:]}/")
    desktop.key("Return")
    types(desktop, "above.sdk")
    enters(desktop, game, box, PUZZLE, "the whole system is a place, from which a path leads on")


def the_desktop(desktop, game):
    folder = desktop.home / "Desktop"
    fills(folder, "lying about.sdk", OTHER)
    box = opens(desktop, "alt+p", "Home", "Down", name="lying about.sdk")
    enters(desktop, game, box, OTHER, "the desktop is a place")
    shutil.rmtree(folder)


def hidden_and_odd_names(desktop, game):
    folder = desktop.home / "odd"
    fills(folder, ".hidden.sdk", OTHER)
    box = opens(desktop, name=f"{folder}/")
    desktop.key("Return", "ctrl+h", "alt+l")
    enters(desktop, game, box, OTHER, "Ctrl+H brings hidden files")
    box = opens(desktop, "ctrl+h")
    desktop.key("Escape")
    desktop.gone(box)
    game.focus()
    with open(os.fsencode(folder) + b"/lat\xe4in.sdk", "wb") as file:
        file.write(PUZZLE.encode() + b"\n")
    box = opens(desktop, "alt+l")
    enters(desktop, game, box, PUZZLE, "a file whose name is no text is opened")
    inner = os.fsencode(folder) + b"/\xff\xfe"
    os.mkdir(inner)
    desktop.key("ctrl+a")
    box = desktop.dialog("^Save Game As$")
    desktop.key("alt+d", "Right", "Right", "alt+n", "ctrl+a")
    desktop.type("saved")
    desktop.key("Return")
    desktop.gone(box)
    game.focus()
    expect(os.listdir(inner) == [b"saved.sdk"], "and a folder whose name is no text saved to")


def ten_thousand_files(desktop, game):
    folder = desktop.home / "many"
    folder.mkdir()
    for number in range(MANY):
        (folder / f"game {number:05}.sdk").write_text("no game\n")
    fills(folder, "last of all.sdk", OTHER)
    box = opens(desktop, name=f"{folder}/")
    desktop.key("Return", "alt+l", "End")
    save_picture(desktop.picture_of(box), "file_dialog_many")
    enters(desktop, game, box, OTHER, "of ten thousand files End takes the last")


# ---- Folders that refuse or go ---------------------------------------------------------------

def vanished_folder(desktop, game):
    folder = desktop.home / "Documents/soon gone"
    fills(folder, "a.sdk")
    fills(desktop.home / "Documents", "stays.sdk")
    box = opens(desktop, name=f"{folder}/")
    desktop.key("Return")
    (folder / "a.sdk").unlink()
    folder.rmdir()
    opens_at_last(desktop, game, box, "stays.sdk")
    wait_for(lambda: game.copy_line() == PUZZLE, "the opened game")
    expect(True, "a folder that vanishes gives way to the one above it")


def folder_without_rights(desktop, program):
    """The program as a user whom rights hold back."""
    folder = desktop.home / "Desktop"
    folder.mkdir()
    folder.chmod(0)
    fills(desktop.home, "above.sdk")
    game = Game(desktop, program, before=NO_RIGHTS.split() if os.geteuid() == 0 else ())
    box = opens(desktop, name="~/")
    desktop.key("Return", "alt+p", "Home", "Down")
    told = desktop.dialog(other_than=[game.window])
    save_picture(desktop.picture_of(told), "file_dialog_no_rights")
    desktop.key("Return")
    desktop.gone(told)
    desktop.focus(box)
    types(desktop, "above.sdk")
    enters(desktop, game, box, PUZZLE, "a place without rights is told, and the folder stays")
    expect(game.end() == 0, "the program ends")
    folder.chmod(0o700)


# ---- A volume --------------------------------------------------------------------------------

def can_mount():
    """Whether this user may mount, in a world of mounts that ends with the program."""
    done = subprocess.run(["unshare", "--mount", "sh", "-c", "mount -t tmpfs tmpfs /mnt"],
                          stderr=subprocess.DEVNULL, check=False)
    return done.returncode == 0


def volume_that_goes(desktop, program):
    fills(desktop.home, "volume.sdk", OTHER)
    commands = (f"mount -t tmpfs tmpfs /mnt && mkdir /mnt/stick && cp {desktop.home}/above.sdk /mnt && "
                'exec "$0" "$@"')
    game = Game(desktop, program, before=["unshare", "--mount", "sh", "-c", commands])

    def in_its_world(command):
        subprocess.run(["nsenter", "-t", str(game.process.pid), "-m", "sh", "-c", command], check=True)

    box = opens(desktop)
    in_its_world(f"mount -t tmpfs tmpfs /mnt/stick && cp {desktop.home}/volume.sdk /mnt/stick")
    # The volume comes last in the list of places; until it is there, End leads to the whole system.
    desktop.settle()
    desktop.key("alt+p", "End", "alt+n")
    desktop.type("volume.sdk")
    save_picture(desktop.picture_of(box), "file_dialog_volume")
    enters(desktop, game, box, OTHER, "a volume that comes while the dialog is open is a place")
    box = opens(desktop)
    in_its_world("umount /mnt/stick && rmdir /mnt/stick")
    opens_at_last(desktop, game, box, "above.sdk")
    wait_for(lambda: game.copy_line() == PUZZLE, "the opened game")
    expect(game.end() == 0, "a volume that goes away leaves the dialog where there is a folder")


def main():
    program = sys.argv[1]
    with Desktop() as desktop:
        game = Game(desktop, program)
        game.resize(900, 980)
        home_and_documents(desktop, game)
        system_and_recent_folders(desktop, game)
        the_desktop(desktop, game)
        hidden_and_odd_names(desktop, game)
        ten_thousand_files(desktop, game)
        vanished_folder(desktop, game)
        expect(game.end() == 0, "the program ends")
        folder_without_rights(desktop, program)
        if can_mount():
            volume_that_goes(desktop, program)
        else:
            print("not tried, as this user may not mount: a volume that goes away")
    print("file dialog: all as it should be")


if __name__ == "__main__":
    main()
