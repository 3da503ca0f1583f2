#!/usr/bin/python3
"""What is written on standard error: the one way to start for a word that looks like an option, and
nothing where there is no sound."""

import subprocess
import sys

from desktop import Desktop, expect, wait_for
from game import Configure, Game


def refused(desktop, program):
    for words in ["--help"], ["-platform", "offscreen"], ["game.sdk", "-x"], ["-"]:
        process = desktop.start([program, *words], stderr=subprocess.PIPE)
        wait_for(lambda started=process: started.poll() is not None
                 or desktop.windows("^Kelvarine"), "an end or a window")
        expect(process.poll() == 2, f"{words} are refused, and no window opens")
        expect(b"kelvarine [file]" in process.stderr.read(), "the one way to start is told")
    expect(not desktop.files(), "nothing has started")


def silent(desktop, program):
    desktop.environment["PULSE_SERVER"] = str(desktop.home / "no-sound")
    game = Game(desktop, program)
    game.menu("alt+g", "c")
    Configure(desktop).press("s")
    desktop.key("Escape")
    expect(game.end() == 0, "the program ends well")
    told = [log.read_text() for log in desktop.evidence.glob("program-*.log")]
    expect(not any("pa_context" in words for words in told), "no word of the sound service")


def main():
    program = sys.argv[1]
    with Desktop() as desktop:
        refused(desktop, program)
        silent(desktop, program)
    print("no options: all as it should be")


if __name__ == "__main__":
    main()
