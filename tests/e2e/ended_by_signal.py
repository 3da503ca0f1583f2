#!/usr/bin/python3
"""SIGTERM while a dialog or a box stands: the answer to the question whether to save counts and
nothing else, and the box that goes with the program has decided nothing. Without an answer nothing is
lost, whatever signal asked."""

import signal
import sys

from desktop import Desktop, expect, save_picture, wait_for
from game import Game
from over_boxes import Story, contents, make_files, walk, walk_back
from positions import MIRRORED


def end(story):
    story.game.process.send_signal(signal.SIGTERM)


def over_the_closing_question(desktop, program):
    story = Story(desktop, program)
    story.modify()
    files = contents(desktop)
    desktop.close(story.game.window)
    story.box()
    end(story)  # what it asks is asked already
    desktop.key("alt+y")
    story.game.wait_for_end()
    changed = [name for name, held in contents(desktop).items() if held != files[name]]
    expect(story.game.process.returncode == 0 and changed == ["evening.sdk"],
           "a signal over the question of the closing leaves it to the player: Yes saves")


def over_a_message_at_the_start(desktop, program):
    story = Story(desktop, program, file="broken.sdk", behind_a_box=True)
    files = contents(desktop)
    story.known.append(story.game.window)
    story.box()
    end(story)
    story.game.wait_for_end()
    expect(story.game.process.returncode == 0 and contents(desktop) == files,
           "a file that is no game does not hold the end")


def without_an_answer(desktop, program):
    """Each signal that asks a program to go, and then the one that does not ask."""
    files = contents(desktop)
    for asking in signal.SIGTERM, signal.SIGHUP, signal.SIGINT:
        story = Story(desktop, program)
        story.modify()
        desktop.settings_file.unlink()
        story.game.process.send_signal(asking)
        story.box()
        expect(desktop.settings_file.exists() and contents(desktop) == files,
               f"before it asks, a program told to go by {asking.name} has kept its settings")
        story.game.process.kill()
        story.game.process.wait()
        goes_on(desktop, program)
        expect(contents(desktop) == files and not desktop.recovery(), "and no file is touched")


def goes_on(desktop, program):
    """The next program offers the game that was left, and a No in the end gives it up."""
    game = Game(desktop, program, behind_a_box=True)
    picture = desktop.answer("alt+y", other_than=[game.window])
    save_picture(picture, "signal_goes_on")
    game.focus()
    wait_for(lambda: game.copy_line() == MIRRORED, "the game that was left")
    expect(game.title() == "Kelvarine (evening.sdk)", "it comes back under its name")
    desktop.key("Prior")
    expect(game.copy_line() != MIRRORED, "with its history")
    expect(game.end(save_first="alt+n") == 0, "and as one that is not saved")


def over_the_question_of_a_lost_game(desktop, program):
    """Which has decided nothing when it goes with the program."""
    story = Story(desktop, program)
    story.modify()
    wait_for(desktop.game_is_kept, "it to be kept")
    story.game.process.kill()
    story.game.process.wait()
    game = Game(desktop, program, behind_a_box=True)
    desktop.dialog(other_than=[game.window])
    game.process.send_signal(signal.SIGTERM)
    game.wait_for_end()
    expect(game.process.returncode == 0 and not (desktop.statistics_file.parent / "recovered").exists(),
           "a signal over the question of a lost game ends the program")
    goes_on(desktop, program)


def over_the_question_of_a_search(desktop, program):
    game = Game(desktop, program)
    desktop.key("ctrl+n")
    desktop.answer("alt+y", other_than=[game.window])  # search all the same?
    wait_for(lambda: bool(desktop.key("5")) or desktop.windows("^Kelvarine$") != [game.window],
             "the question of the search")
    first = desktop.dialog(other_than=[game.window])
    game.process.send_signal(signal.SIGTERM)
    desktop.answer("alt+y", other_than=[game.window, first])
    desktop.focus(first)
    desktop.key("alt+y")
    game.wait_for_end()
    expect(game.process.returncode == 0, "a signal stops a search and then ends the program")


def main():
    program, hopeless = sys.argv[1:]
    with Desktop() as desktop:
        make_files(desktop, program)
        walk(desktop, program, end)
        walk_back(desktop, program, end)
        over_a_message_at_the_start(desktop, program)
        without_an_answer(desktop, program)
        over_the_question_of_a_lost_game(desktop, program)
        over_the_closing_question(desktop, program)
    with Desktop() as desktop:  # without settings, for this program has its own
        over_the_question_of_a_search(desktop, hopeless)
    print("ended by signal: all as it should be")


if __name__ == "__main__":
    main()
