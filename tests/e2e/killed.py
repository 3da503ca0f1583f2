#!/usr/bin/python3
"""The program killed at random moments of play, of saving and of the logic at work. After each kill no
file is half; the next start brings back what stood there at the recovery's last look or later, of
which all but the latest are on the disk; and what a killed save left in the folder is gone after the
next one.

killed.py PROGRAM [KILLS [PROGRAMS AT ONCE]]"""

import concurrent.futures
import os
import pathlib
import random
import shutil
import struct
import subprocess
import sys
import tempfile
import time

from desktop import wait_for
from positions import PUZZLE

GAME_SIZE = 41360
HEADER = b"Kelvarine game file v1.0".ljust(32)

START = pathlib.Path("/proc/sys/kernel/random/boot_id").read_bytes().strip()

# What a life lasts for, by the lines that the program tells: how many of them, at least and at most.
LIVES = {"state": (0, 300), "kept": (1, 2), "run": (1, 1)}
# And how much longer at most, in seconds, so that the kill falls anywhere between two lines.
LONGEST_REST = 0.5


def expect(condition, what):
    """Without a word of what is as it should be: that comes with every kill."""
    if not condition:
        raise AssertionError(what)


class Home:
    """A home with one game, in which program after program is killed."""

    def __init__(self, program, seed):
        self.program = program
        self.draws = random.Random(seed)
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="kelvarine-kill-"))
        self.game = self.path / "games" / "evening.sdk"
        self.game.parent.mkdir()
        self.game.write_text(PUZZLE)
        self.data = self.path / "data/kelvarine"
        self.environment = dict(os.environ, HOME=str(self.path), QT_QPA_PLATFORM="offscreen",
                                XDG_CONFIG_HOME=str(self.path / "config"),
                                XDG_DATA_HOME=str(self.path / "data"),
                                XDG_RUNTIME_DIR=str(self.path))
        self.acceptable = None  # states of which the next program must bring back one
        self.lags = []
        self.offers = 0
        self.in_saves = 0
        self.runs = 0
        self.busy = 0

    def leftovers(self, folder):
        return {path.name for path in folder.glob(".kelvarine-*")}

    def live_and_die(self):
        before = {folder: self.leftovers(folder) for folder in (self.game.parent, self.data)}
        log = self.path / "log"
        with open(log, "wb") as told:
            process = subprocess.Popen([self.program, str(self.draws.randrange(1 << 30)), self.game],
                                       env=self.environment, stdout=told,
                                       stderr=subprocess.DEVNULL)
            kind = self.draws.choice(list(LIVES))
            self.wait_for_lines(process, log, "begin", 1)
            self.wait_for_lines(process, log, kind, self.draws.randint(*LIVES[kind]))
            time.sleep(self.draws.uniform(0, LONGEST_REST))
            expect(process.poll() is None, "the program lives until it is killed")
            killed = time.monotonic() * 1000
            process.kill()
            process.wait()
        self.read(log.read_text(), killed)
        log.replace(self.path / "log of the one before")
        self.check_files(before)

    @staticmethod
    def wait_for_lines(process, log, kind, count):
        def told():
            expect(process.poll() is None, "the program lives until it is killed")
            return sum(line.startswith(kind) for line in log.read_text().splitlines()) >= count
        wait_for(told, f"{count} lines of the kind {kind}")

    def read(self, told, killed):
        lines = [line.split() for line in told.splitlines()]
        states = []  # time of its coming, state
        kept = 0     # index of the state at the last look that has come to the disk
        looked, on_its_way, in_a_run = 0, False, False
        self.saves = self.keeps = 0
        for words in lines:
            in_a_run = words[0] == "run" or (in_a_run and words[0] != "ran")
            if words[0] in ("begin", "state"):
                states.append((float(words[1]), words[2]))
            elif words[0] == "offered":
                self.offers += 1
            elif words[0] == "tick":
                expect(not on_its_way, "no look before the one before it is on the disk")
                looked, on_its_way = len(states) - 1, True
            elif words[0] == "kept":
                kept, on_its_way = looked, False
                self.keeps += 1
            elif words[0] == "busy":
                self.busy += 1
            elif words[0] == "saved":
                kept = looked = len(states) - 1
                self.saves += 1
        self.runs += in_a_run
        self.check_begin(states[0][1])
        self.acceptable = [state for _, state in states[kept:]]
        self.times = states[kept:] + [(killed, None)]

    def check_begin(self, state):
        if self.acceptable is None:
            return
        expect(state in self.acceptable, "the next start brings back what stood there at the last look"
               f" or later; see the logs in {self.path}")
        last = len(self.acceptable) - 1 - self.acceptable[::-1].index(state)
        gone = self.times[last + 1][0]  # when the next state came, or the kill
        self.lags.append((self.times[-1][0] - gone) / 1000)

    def check_files(self, before):
        contents = self.game.read_bytes()
        expect(contents == PUZZLE.encode() or (len(contents) == GAME_SIZE
                                               and contents[8:40] == HEADER),
               "the game's file is whole")
        for path in [*self.data.glob("recovery-*.sdk"), *self.data.glob("recovery-*.fresh")]:
            contents = path.read_bytes()
            if path.suffix == ".fresh":
                expect(contents.endswith(START), "a fresh file is of this start of the machine")
                contents = contents.removesuffix(START)
            expect(len(contents) > GAME_SIZE and contents[8:40] == HEADER
                   and contents[GAME_SIZE:] in (b"GR" + bytes(self.game), b"TR" + bytes(self.game)),
                   "a recovery file is whole")
            position = struct.unpack_from("<10i", contents, 13 * 40)[2]
            expect(0 < position <= 100, "and points at a level of its own")
        for folder, written in (self.game.parent, self.saves), (self.data, self.keeps):
            left = self.leftovers(folder)
            self.in_saves += len(left - before[folder])
            expect(not written or not left & before[folder], "no leftover after the next save")


def kill(program, seed, kills):
    home = Home(program, seed)
    for _ in range(kills):
        home.live_and_die()
    shutil.rmtree(home.path)
    return home


def main():
    program = sys.argv[1]
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 50
    at_once = int(sys.argv[3]) if len(sys.argv) > 3 else 5
    seed = random.randrange(1 << 30)
    print(f"seed {seed}", flush=True)
    with concurrent.futures.ThreadPoolExecutor(at_once) as pool:
        shares = [kills // at_once + (k < kills % at_once) for k in range(at_once)]
        homes = list(pool.map(kill, [program] * at_once, range(seed, seed + at_once), shares))
    lags = sorted(lag for home in homes for lag in home.lags)
    offers = sum(home.offers for home in homes)
    expect(offers > 0, "games are offered")
    runs = sum(home.runs for home in homes)
    expect(runs > 0, "runs of the logic are killed, too")
    print(f"{kills} kills: {offers} games offered, all others were saved;",
          f"{runs} in runs of the logic; {sum(home.busy for home in homes)} looks came while the disk",
          "was still at work;",
          f"{sum(home.in_saves for home in homes)} kills left a name, for the next save to remove;",
          f"lost: median {lags[len(lags) // 2]:.2f} s, most {lags[-1]:.2f} s")


if __name__ == "__main__":
    main()
