#!/usr/bin/python3
"""Printing to a PDF file through the print dialog: the game on the board, thin lines that coarse
pages show whole, a batch of two pages of six games with its solutions, and a batch that cannot be
met and is stopped."""

import sys

from PIL import Image

from desktop import Desktop, expect, pictures, save_picture, wait_for
from game import Configure, Game
from positions import PUZZLE

SIX_GAMES = 4  # steps down the list of games per page
PAGES, GAMES = 2, 12
THIN_LINES = 2  # steps from the tabs to the preset with white cells and thin lines

# From the tabs: past the mode, to the list, the pages, the solutions, the grey and the button.
TO_BATCH = ["Tab", "Down"]
TO_LIST = ["Tab"]
TO_PAGES = ["Tab"]


def print_to(desktop, path):
    """Answers the print dialog with a file and waits until it is there."""
    box = desktop.dialog("^Print$")
    desktop.key("alt+f", "ctrl+a")
    desktop.type(str(path))
    save_picture(desktop.picture_of(box), "paper_dialog")
    desktop.key("Return")
    desktop.gone(box)


def words_on(desktop, path, page):
    return desktop.run("pdftotext", "-f", str(page), "-l", str(page), "-layout", str(path),
                       "-").decode()


def pages_of(desktop, path):
    lines = desktop.run("pdfinfo", str(path)).decode().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pages:"))


def is_whole(path):
    """The file comes into its place whole, when its document has ended."""
    return path.exists() and path.read_bytes().rstrip().endswith(b"%%EOF")


def keep_pages(desktop, path):
    if pictures:
        desktop.run("pdftoppm", "-r", "60", "-png", str(path), f"{pictures}/paper_{path.stem}")


def prints_the_game(desktop, game):
    path = desktop.home / "game.pdf"
    desktop.key("ctrl+p")
    screen = Configure(desktop)
    screen.press("p", "shift+Tab", "space")
    print_to(desktop, path)
    wait_for(lambda: is_whole(path), "the game on paper")
    expect(pages_of(desktop, path) == 1, "the game takes one page")
    words = words_on(desktop, path, 1)
    expect("Easy" in words and "# given cells: 30" in words,
           "with its rating and the number of its givens")
    keep_pages(desktop, path)
    return screen


def lines_seen(page, dots, across):
    """Number of dark lines in the inner part of the board, which is five inches wide and stands in the
    middle of the page; how dark each column of dots, or row, is in the mean tells."""
    middle = [side / 2 for side in page.size]
    reach = [2.3 * dots, 1.0 * dots]  # within the outer lines; along the lines, over digits and gaps
    if across:
        reach.reverse()
    part = page.crop([round(m - r) for m, r in zip(middle, reach)]
                     + [round(m + r) for m, r in zip(middle, reach)])
    means = part.resize((1, part.height) if across else (part.width, 1), Image.Resampling.BOX)
    dark = [mean < 128 for mean in means.getdata()]
    return sum(now and not before for before, now in zip([False, *dark], dark))


def keeps_thin_lines(desktop, screen):
    path = desktop.home / "thin.pdf"
    screen.press("e", *["Tab"] * THIN_LINES, "space")
    screen.press("p", "shift+Tab", "space")
    print_to(desktop, path)
    wait_for(lambda: is_whole(path), "the game in thin lines on paper")
    for dots in 70, 72, 84, 96:
        picture = desktop.home / "thin"
        desktop.run("pdftoppm", "-gray", "-singlefile", "-r", str(dots), str(path), str(picture))
        page = Image.open(picture.with_suffix(".pgm"))
        expect(lines_seen(page, dots, across=False) == lines_seen(page, dots, across=True) == 8,
               f"all lines are seen at {dots} dots to the inch")
    keep_pages(desktop, path)


def cancels(desktop, screen):
    before = desktop.files()
    screen.press("p", "shift+Tab", "space")
    box = desktop.dialog("^Print$")
    desktop.key("Escape")
    desktop.gone(box)
    expect(desktop.files() == before, "Cancel in the dialog prints nothing")


def ask_for_batch(screen):
    screen.press("p", *TO_BATCH, *TO_LIST, "Home", *["Down"] * SIX_GAMES, *TO_PAGES, "2")
    save_picture(screen.picture(), "paper_batch")
    screen.press("p", "shift+Tab", "space")


def prints_a_batch(desktop, game, screen):
    path = desktop.home / "batch.pdf"
    game.focus()
    before = game.copy_line()
    ask_for_batch(screen)
    print_to(desktop, path)
    wait_for(lambda: is_whole(path), "the batch on paper")
    expect(pages_of(desktop, path) == PAGES + 1, "two pages of games and one of solutions")
    for page, first in ((1, 1), (2, 7)):
        words = words_on(desktop, path, page)
        expect(all(f"Game #{number}" in words for number in range(first, first + 6))
               and words.count("Game #") == 6 and words.count("Easy") == 6,
               f"six easy games on page {page}")
    words = words_on(desktop, path, PAGES + 1)
    expect(words.count("Game #") == GAMES and "Easy" not in words, "twelve solutions on the last")
    keep_pages(desktop, path)
    game.focus()
    expect(game.copy_line() == before, "the game in hand is back")


def counts_on(screen):
    """The count of games in the preview rises all the time; any other change is over soon."""
    for _ in range(4):
        before = screen.picture().tobytes()
        wait_for(lambda: screen.picture().tobytes() != before, "the count of games to rise")
    return True


def stops_a_batch(desktop, program):
    game = Game(desktop, program)
    game.resize(900, 980)
    game.paste(PUZZLE)
    desktop.key("ctrl+p")
    screen = Configure(desktop)
    ask_for_batch(screen)
    before = desktop.files()
    print_to(desktop, desktop.home / "hopeless.pdf")
    expect(counts_on(screen), "the search is seen in the preview")
    save_picture(desktop.screen(), "paper_search")

    for key in "Return", "Escape":  # No is the default
        wait_for(lambda: desktop.focused() == screen.window, "the settings to be in front")
        desktop.key("space")  # the button that began it has the focus
        desktop.answer(key, other_than=[game.window])
        expect(counts_on(screen), f"the search goes on after {key}")
    wait_for(lambda: desktop.focused() == screen.window, "the settings to be in front again")
    game.focus()
    desktop.key("5")
    picture = desktop.answer("alt+y", other_than=[game.window])
    save_picture(picture, "paper_stop")
    game.focus()
    expect(game.copy_line() == PUZZLE, "stopped, the game in hand is back")
    expect(desktop.files() == before, "and there is no file without a page")
    expect(game.end(save_first="alt+n") == 0, "the program ends")


def main():
    with Desktop() as desktop:
        game = Game(desktop, sys.argv[1])
        game.resize(900, 980)
        game.paste(PUZZLE)
        screen = prints_the_game(desktop, game)
        keeps_thin_lines(desktop, screen)
        cancels(desktop, screen)
        prints_a_batch(desktop, game, screen)
        expect(game.end(save_first="alt+n") == 0, "the program ends")
    with Desktop() as desktop:  # with a home of its own, where no settings undo the wishes
        stops_a_batch(desktop, sys.argv[2])
    print("paper: all as it should be")


if __name__ == "__main__":
    main()
