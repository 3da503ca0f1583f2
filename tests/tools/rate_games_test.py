#!/usr/bin/python3
"""The console program over the engine: what it says of games, of lines that are none, and that no
toolkit is linked to it."""

import subprocess
import sys

EASY = "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79"
GAMES = [
    (EASY, "1 easy: "),
    (EASY.replace(".", "0"), "1 easy: "),
    (EASY.replace("53", "55", 1), "0 impossible"),
    ("." * 81, "more multiple solutions"),
    ("1234567.." + "." * 72, "more multiple solutions"),
    ("..7.854.6.36.1.8..8..4...1...37........623...7.1.....3..8..4..2.72...96..64......",
     "0 impossible"),
    ("8..........36......7..9.2...5...7.......457.....1...3...1....68..85...1..9....4..",
     "1 extreme: "),
    (EASY[:-1], "line 8 is no game"),
    (EASY + "1", "line 9 is no game"),
    (EASY[:-1] + "x", "line 10 is no game"),
    ("", "line 11 is no game"),
    (EASY + "\r", "1 easy: "),
]


def main():
    program = sys.argv[1]
    done = subprocess.run([program], input="\n".join(game for game, _ in GAMES), text=True,
                          stdout=subprocess.PIPE, check=False)
    told = done.stdout.splitlines()
    assert len(told) == len(GAMES), told
    for (game, expected), line in zip(GAMES, told):
        assert line.startswith(expected) if expected.endswith(" ") else line == expected, (game, line)
    assert "Naked single" in told[0] or "Hidden single" in told[0], told[0]
    assert told[6].endswith("Trial & error"), told[6]
    assert done.returncode == 1, "a line that is no game is told by the result"
    clean = subprocess.run([program], input=EASY, text=True, stdout=subprocess.PIPE, check=True)
    assert clean.stdout == told[0] + "\n"
    linked = subprocess.run(["ldd", program], stdout=subprocess.PIPE, text=True, check=True).stdout
    assert "Qt" not in linked, linked


if __name__ == "__main__":
    main()
