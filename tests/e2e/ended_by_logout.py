#!/usr/bin/python3
"""A logout while a dialog or a box stands: the program asks whether to save before it agrees, a
Cancel cancels the logout, and the box that goes with the program has decided nothing. The window
goes only when it is told to: not at a checkpoint, and not when another program cancels the logout."""

import os
import subprocess
import sys

from desktop import Desktop, expect, wait_for
from game import Game
from long_run import GAME as LONG_RUN
from over_boxes import Story, contents, make_files, walk, walk_back
from positions import MIRRORED, PUZZLE
from random_game import banner_is_up


class Session:
    """The session manager, told and heard line by line."""

    def __init__(self, desktop, manager):
        self.words = desktop.home / ".session"
        with self.words.open("w") as words:
            self.manager = desktop.start([manager], stdin=subprocess.PIPE, stdout=words)
        wait_for(self.heard, "the session's address")
        local = [part for part in self.heard()[0].split(",") if part.startswith("local/")]
        self.before = ["env", f"SESSION_MANAGER={local[0]}"]

    def heard(self):
        return self.words.read_text().splitlines()

    def want(self, words, until):
        """Wants the program to save, and waits for a word that comes of it."""
        known = self.heard().count(until)
        self.manager.stdin.write(words.encode() + b"\n")
        self.manager.stdin.flush()
        self.wait(until, known)

    def restart_words(self):
        """How the program wants to be started again, word by word."""
        words = [line.split(" ", 1) for line in self.heard() if line.startswith("restart ")]
        last = max(k for k, (_, word) in enumerate(words) if word.startswith("/"))
        return [word for _, word in words[last:]]

    def wait(self, word, known):
        wait_for(lambda: self.heard().count(word) > known, f"the word {word} of the session")

    def log_out(self, _story=None):
        """Asks the program to save and go, until it wants to talk to the player."""
        self.want("logout", "asks")


def over_the_closing_question(desktop, program, session):
    story = Story(desktop, program, session.before)
    story.modify()
    files = contents(desktop)
    desktop.close(story.game.window)
    story.box()
    known = session.heard().count("refuses")
    session.log_out()
    wait_for(lambda: session.heard().count("refuses") > known, "the logout to be cancelled")
    expect(story.game.process.poll() is None, "a logout waits for an open question")
    desktop.key("alt+y")
    story.game.wait_for_end()
    changed = [name for name, held in contents(desktop).items() if held != files[name]]
    expect(story.game.process.returncode == 0 and changed == ["evening.sdk"],
           "which then decides: Yes saves")


def without_an_end(desktop, program, session, words):
    """A checkpoint, or a logout that does not come about: asked and kept as at an end, and no end."""
    story = Story(desktop, program, session.before)
    story.modify()
    story.game.menu("alt+s")
    screen = story.box("^Statistics$")
    files = contents(desktop)
    desktop.settings_file.unlink()
    session.want(words, "asks")
    known = session.heard().count("saved")
    desktop.answer("alt+n", other_than=story.known)
    session.wait("saved", known)
    expect(story.game.process.poll() is None, f"{words}: the window stays")
    expect(desktop.settings_file.exists() and desktop.setting(7, 5) == -1,
           "the settings are written, with the screen that is open")
    expect(contents(desktop) == files, "the answer was No, and the game is not saved")
    session.want(words, "asks")
    known = session.heard().count("saved")
    desktop.answer("alt+y", other_than=story.known)
    session.wait("saved", known)
    changed = [name for name, held in contents(desktop).items() if held != files[name]]
    expect(changed == ["evening.sdk"] and story.game.process.poll() is None, "a Yes saves it")
    (desktop.home / "evening.sdk").write_bytes(files["evening.sdk"])
    desktop.focus(screen)
    desktop.key("Escape")
    desktop.gone(screen)
    story.game.focus()
    desktop.key("shift+m")
    expect(story.game.end("alt+n") == 0, "a closing later on asks for itself")


def quiet(desktop, program, session):
    story = Story(desktop, program, session.before)
    story.modify()
    files = contents(desktop)
    known = session.heard().count("asks")
    session.want("quiet", "agrees")
    story.game.wait_for_end()
    expect(story.game.process.returncode == 0 and contents(desktop) == files
           and session.heard().count("asks") == known,
           "where nobody may be asked nothing is, and no file is written over")
    game = Game(desktop, program, behind_a_box=True)
    desktop.answer("alt+y", other_than=[game.window])
    game.focus()
    expect(game.copy_line() == MIRRORED, "and the next start brings the game back")
    expect(game.end(save_first="alt+n") == 0, "which a No ends for good")


def agreed(desktop, program, session):
    story = Story(desktop, program, session.before)
    story.modify()
    story.game.menu("alt+s")
    story.box("^Statistics$")
    session.log_out()
    desktop.answer("alt+n", other_than=story.known)
    story.game.wait_for_end()
    expect(story.game.process.returncode == 0 and desktop.setting(7, 5) == -1,
           "a logout asks once, and the open screen comes back next time")


def during_a_run(desktop, program, session):
    """The board is the run's until it has stopped; then the session asks what it came for."""
    game = Game(desktop, program, before=session.before)
    game.resize(900, 980)
    game.paste(LONG_RUN)
    desktop.key("w", "Insert")  # every cell with every number
    line = game.copy_line()
    desktop.key("ctrl+l")
    wait_for(lambda: banner_is_up(game), "the banner")
    known = session.heard().count("refuses")
    session.log_out()
    desktop.answer("Return", other_than=[game.window])  # No is the default
    session.wait("refuses", known)
    expect(banner_is_up(game), "on No the run goes on, and the session too")
    session.log_out()
    asked = session.heard().count("asks")
    desktop.answer("alt+y", other_than=[game.window])
    session.wait("asks", asked)
    desktop.answer("Escape", other_than=[game.window])  # save first? and stays
    session.wait("refuses", known + 1)
    game.focus()
    expect(game.copy_line() == line and not banner_is_up(game),
           "stopped by a logout, the game is as it was, and is asked about")
    desktop.key("ctrl+l")
    wait_for(lambda: banner_is_up(game), "the banner")
    session.log_out()
    asked = session.heard().count("asks")
    desktop.answer("alt+y", other_than=[game.window])
    session.wait("asks", asked)
    desktop.answer("alt+n", other_than=[game.window])
    game.wait_for_end()
    expect(game.process.returncode == 0 and session.heard().count("refuses") == known + 2
           and not desktop.recovery(), "answered, the logout comes about")


def restart_command(desktop, program, session):
    """A name that is no text comes back to the program that the session starts again."""
    name = os.fsencode(desktop.home) + b"/lat\xe4in.sdk"
    with open(name, "wb") as file:
        file.write((desktop.home / "evening.sdk").read_bytes())
    game = Game(desktop, program, arguments=[name], before=session.before)
    wait_for(lambda: game.copy_line() == PUZZLE, "the game of the file")
    session.want("checkpoint", "asks")
    words = wait_for(lambda: session.restart_words()[1:] and session.restart_words(),
                     "the command with the file")
    expect(game.end() == 0, "the program ends")
    game = Game(desktop, program, arguments=words[1:])
    wait_for(lambda: game.copy_line() == PUZZLE, "the game of the file once more")
    expect(game.end() == 0 and words[1].endswith("/lat%E4in.sdk"),
           "the session starts the program on the same file")


def main():
    program, manager, hopeless = sys.argv[1:]
    with Desktop() as desktop:
        make_files(desktop, program)
        session = Session(desktop, manager)
        walk(desktop, program, session.log_out, session.before)
        expect("refuses" not in session.heard(), "no box refuses the logout")
        walk_back(desktop, program, session.log_out, session.before)
        expect("refuses" in session.heard(), "a Cancel does")
        over_the_closing_question(desktop, program, session)
        (desktop.home / "evening.sdk").unlink()
        make_files(desktop, program)
        for words in "checkpoint", "called off":
            without_an_end(desktop, program, session, words)
        quiet(desktop, program, session)
        agreed(desktop, program, session)
        restart_command(desktop, program, session)
    with Desktop() as desktop:  # without settings, for this program has its own
        during_a_run(desktop, hopeless, Session(desktop, manager))
    print("ended by logout: all as it should be")


if __name__ == "__main__":
    main()
