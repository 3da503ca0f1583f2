#!/usr/bin/python3
"""A display that dies under the program: it ends without a crash, and the next start offers the game."""

import shutil
import sys

from desktop import Desktop, expect, wait_for
from game import Game
from positions import MIRRORED, PUZZLE


class LostDisplay(Desktop):
    """A desktop whose display is taken away before the end."""

    def lose(self):
        self.screen_process.stdin.close()
        self.screen_process.wait()

    def __exit__(self, failure, *_):
        if failure:
            self.name_evidence()
        for process in self.processes:
            if process.poll() is None:
                process.kill()
            process.wait()


def main():
    program = sys.argv[1]
    with LostDisplay() as lost, Desktop() as desktop:
        game = Game(lost, program)
        game.paste(PUZZLE)
        lost.key("shift+m")
        wait_for(lambda: game.copy_line() == MIRRORED, "the game to be mirrored")
        wait_for(lost.game_is_kept, "the game to be kept for a crash")
        lost.key("ctrl+o")  # in the middle of something
        lost.lose()
        game.wait_for_end()
        expect(game.process.returncode == 1, "the program ends without a crash")
        shutil.copytree(lost.home, desktop.home, dirs_exist_ok=True)
        game = Game(desktop, program, behind_a_box=True)
        desktop.answer("alt+y", other_than=[game.window])
        game.focus()
        wait_for(lambda: game.copy_line() in (PUZZLE, MIRRORED), "the game as it was kept last")
        expect(game.end(save_first="alt+n") == 0, "and the program plays on")
        shutil.rmtree(lost.home)
        shutil.rmtree(lost.evidence)
    print("lost display: all as it should be")


if __name__ == "__main__":
    main()
