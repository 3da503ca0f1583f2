#!/usr/bin/python3
"""A logout while a dialog or a box stands: the program asks whether to save before it agrees, a
Cancel cancels the logout, and the box that goes with the program has decided nothing."""

import subprocess
import sys

from desktop import Desktop, expect, wait_for
from over_boxes import Story, contents, make_files, walk, walk_back


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

    def log_out(self, _story=None):
        """Asks the program to save and go, until it wants to talk to the player."""
        known = self.heard().count("asks")
        self.manager.stdin.write(b"logout\n")
        self.manager.stdin.flush()
        wait_for(lambda: self.heard().count("asks") > known, "the program to ask the player")


def over_the_closing_question(desktop, program, session):
    story = Story(desktop, program, session.before)
    story.modify()
    files = contents(desktop)
    desktop.key("alt+F4")
    story.box()
    known = session.heard().count("refuses")
    session.log_out()
    wait_for(lambda: session.heard().count("refuses") > known, "the logout to be cancelled")
    expect(story.game.process.poll() is None, "a logout waits for an open question")
    desktop.key("alt+y")
    wait_for(lambda: story.game.process.poll() is not None, "the program to end")
    changed = [name for name, held in contents(desktop).items() if held != files[name]]
    expect(story.game.process.returncode == 0 and changed == ["evening.sdk"],
           "which then decides: Yes saves")


def main():
    program, manager = sys.argv[1:]
    with Desktop() as desktop:
        make_files(desktop, program)
        session = Session(desktop, manager)
        walk(desktop, program, session.log_out, session.before)
        expect("refuses" not in session.heard(), "no box refuses the logout")
        walk_back(desktop, program, session.log_out, session.before)
        expect("refuses" in session.heard(), "a Cancel does")
        over_the_closing_question(desktop, program, session)
    print("ended by logout: all as it should be")


if __name__ == "__main__":
    main()
