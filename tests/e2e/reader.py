"""One who reads the course in the help and does what it says, by mouse and keys in the real windows.
Where things stand and what they say is asked of the assistive interface, which tells what eyes see."""

import re

from assistive import Ear
from desktop import expect, wait_for
from game import Game
from lesson import Lesson, answer_to_saving, title_of, titles

COURSE = "A course for beginners"
# What tools are told of a button whose caption changes with the mode.
TOLD_NAMES = {"0": "All"}
MOST_PRESSES = 5  # until each mode of a button has come
ASIDE = 12  # pixels, as wide as the narrowest thing to click on and more than a double click takes
COLUMNS = "ABCDEFGHJ"
FIRST_LESSONS = 6  # of the course, to share its story out between two
MODIFIERS = {"Ctrl": "ctrl", "Shift": "shift"}


def plain(words):
    """Words with single blanks, as a page and a box break their lines in places of their own."""
    return " ".join(words.split())


def pressed(key):
    """A key as a page names it, such as Ctrl+L or H, in the words of the tool that presses it."""
    *modifiers, last = key.split("+")
    return "+".join([*(MODIFIERS[name] for name in modifiers), last.lower()])


class Reader:
    """The program with a reader before it, at so many pixels of the screen to one of the program."""

    def __init__(self, desktop, program, ratio=1):
        self.desktop = desktop
        self.ratio = ratio
        self.ear = Ear(desktop)
        self.game = Game(desktop, program)
        self.ear.meet("kelvarine")
        self.frame = self.as_told("Kelvarine")
        self.table = self.ear.find("table", "Sudoku board", self.frame).queryTable()
        self.tools = list(self.ear.find("push button", "Esc", self.frame).parent)
        self.help = self.settings = None  # their windows, when they are open
        self.clicked = 0, 0  # the last place
        self.lesson = None
        self.save_answer = None
        self.ringed = self.ticked = None  # the cell with an alert, the boxes ticked for it
        self.step_keys = None

    # ---- Eyes and hands ----------------------------------------------------------------------

    def as_told(self, title, beside=None):
        """A window of the program as it is told to tools; not the one that is named beside."""
        def there():
            self.ear.pump()
            self.ear.application.clearCache()
            try:
                return next((one for one in self.ear.application
                             if one and one.name == title and one != beside), None)
            except Exception:  # a box that closes meanwhile, told by an error of the bindings
                return None
        return wait_for(there, f"a window called {title}")

    def name(self, item):
        self.ear.pump()
        item.clearCache()
        return item.name

    def place(self, item):
        box = item.queryComponent().getExtents(self.ear.tools.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height

    def click_at(self, x, y):
        """A click at a place of the screen as it is told to tools. Two in quick succession at one place
        would be a double click, so the second goes beside it."""
        if max(abs(x - self.clicked[0]), abs(y - self.clicked[1])) < ASIDE:
            x += ASIDE
        self.clicked = x, y
        self.desktop.xdotool("mousemove", round(x * self.ratio), round(y * self.ratio), "click", 1)

    def click_on(self, item):
        x, y, width, height = self.place(item)
        self.click_at(x + min(width, height) / 2, y + height / 2)

    def open_menu(self, menu, entry):
        """Opens a menu by the mouse and clicks on the entry that begins so."""
        self.game.focus()
        head = self.ear.find("menu item", menu, self.frame)
        self.click_on(head)
        item = self.ear.tools.findDescendant(head, lambda one: one.name.startswith(entry))
        wait_for(lambda: self.ear.state(item, "SHOWING"), f"the entry {entry} of the menu {menu}")
        self.click_on(item)

    def known_windows(self):
        return [window for window in (self.game.window, self.help, self.settings) if window]

    def box(self):
        """The window of a box that has come up, None where there is none."""
        known = self.known_windows()
        return next((window for window in self.desktop.managed_windows() if window not in known), None)

    def answer(self, window, word):
        self.desktop.focus(window)
        self.desktop.key("Return" if word == "OK" else f"alt+{word[0].lower()}")
        self.desktop.gone(window)

    def expect_box(self, title, words, answer):
        """Waits for a box, holds what it says against words of the page, its title only where the page
        tells one, and answers it."""
        window = wait_for(self.box, "a box")
        self.desktop.focus(window)
        shown = self.desktop.xdotool("getwindowname", window).strip()
        told = self.as_told(shown, beside=self.frame)

        def said():
            self.ear.pump()
            labels = self.ear.tools.findAllDescendants(told, lambda item: item.getRoleName() == "label")
            return "".join(label.name for label in labels if label.name)
        statement = plain(wait_for(said, "a box to say something").split("\n\n")[0])
        expect(statement == plain(words), f"the game says {statement!r}, the page {plain(words)!r}")
        if title is not None:
            expect(shown == plain(title), f"under {shown!r}, on the page {title!r}")
        self.answer(window, answer)

    # ---- The help ----------------------------------------------------------------------------

    def page(self):
        """The page on view as it is told to tools."""
        window = self.as_told(self.desktop.xdotool("getwindowname", self.help).strip())
        return self.ear.tools.findDescendant(window, lambda item: item.name == "Help page")

    def text(self):
        return self.page().queryText().getText(0, -1)

    def press_link(self, start):
        """Brings a link into view, by where it starts in the text of the page, and clicks on it."""
        page = self.page()
        _, top, _, height = self.place(page)

        def spot():
            return page.queryText().getCharacterExtents(start, self.ear.tools.DESKTOP_COORDS)

        def in_view():
            _, y, _, line = spot()
            return top <= y and y + line <= top + height
        def scrolls():
            before = spot()
            self.desktop.key("Next")
            return spot() != before
        while not in_view():
            wait_for(scrolls, "a page of the help to scroll to its link")
        x, y, width, line = spot()
        self.click_at(x + width / 2, y + line / 2)

    def follow(self, start, title):
        self.press_link(start)
        wait_for(lambda: title in self.desktop.xdotool("getwindowname", self.help), f"the page {title}")

    def open_course(self):
        """Opens the help at its first page and goes on to the course; gives the titles of the lessons."""
        self.open_menu("Help", "Contents")
        self.help = self.desktop.dialog("Kelvarine Help$")
        self.follow(self.text().index(COURSE), COURSE)
        course = self.text()
        self.save_answer = answer_to_saving(course)
        return titles(course)

    def open_lesson(self, title):
        """From the page of the course to one of its lessons."""
        self.follow(self.text().index(f"\n{title}\n") + 1, title)

    def open_next(self, title):
        """From the page of a lesson to the next one."""
        self.desktop.focus(self.help)
        self.follow(self.text().index("\nNext: ") + len("\nNext: "), title)

    def leave_help(self, closing):
        if closing:
            self.desktop.key("Escape")
            self.desktop.gone(self.help)
            self.help = None
        self.game.focus()

    def play_all(self, chosen):
        """Plays the lessons that are chosen from the list of all. For every second one the help is closed;
        from the others their page leads on to the next."""
        lessons = chosen(self.open_course())
        for number, title in enumerate(lessons):
            print(title, flush=True)
            if number % 2:
                self.open_next(title)
            else:
                if self.help is None:
                    self.open_course()
                self.open_lesson(title)
            self.play(title, closing=number % 2)

    def play(self, title, closing):
        """Does what the lesson on view says; the help is closed for it or stays open behind."""
        self.lesson = Lesson(self.text())
        expect(title_of(self.lesson.title) == title, f"the page is that of {title}")
        expect(not self.lesson.not_understood, f"all that it bids is known {self.lesson.not_understood}")
        for name, words in self.lesson.deeds:
            print("  ", name, *words.values(), flush=True)
            getattr(self, "do_" + name)(**words)
            if name == "copy":
                self.leave_help(closing)

    # ---- Deeds by their names in a lesson ------------------------------------------------------

    def do_copy(self):
        text = self.text()
        self.press_link(text.index("Copy this game", text.index("\nTry it\n")))
        wait_for(lambda: self.desktop.clipboard() == self.lesson.game, "the game of the page to be copied")

    def do_paste(self, key):
        self.desktop.key(pressed(key))
        box = wait_for(lambda: self.is_on_board() or self.box(), "the game or a question")
        if box is not True:
            self.answer(box, self.save_answer)
            wait_for(self.is_on_board, "the game on the board")
            self.game.focus()
        self.at_rest()

    def is_on_board(self):
        return all(self.name(self.cell(column, row)) == ("empty" if digit == "." else f"{digit}, given")
                   for row, digits in enumerate(re.findall(".{9}", self.lesson.game), start=1)
                   for column, digit in enumerate(digits, start=1))

    def at_rest(self):
        """Waits until the program takes keys again, after what it works at."""
        self.game.copy_line()

    def do_select(self, mode, button):
        widest = max(self.place(tool)[2] for tool in self.tools)
        wide = min((tool for tool in self.tools if self.place(tool)[2] == widest),
                   key=lambda tool: self.place(tool)[0])
        presses = 0
        while self.name(wide) != mode:
            expect(presses < MOST_PRESSES, f"the button at the left reads {mode} soon")
            self.click_on(wide)
            presses += 1
        told = TOLD_NAMES.get(button, button)
        self.click_on(next(tool for tool in self.tools if self.name(tool) == told))

    def do_press(self, key):
        self.desktop.key(pressed(key))

    def do_logic(self, key):
        self.desktop.key(pressed(key))
        self.at_rest()

    def do_menu(self, menu, entry):
        self.open_menu(menu, entry)
        self.settings = self.desktop.dialog("^Configure$")

    def boxes(self, column):
        screen = self.as_told("Configure")
        boxes = self.ear.tools.findAllDescendants(screen, lambda item: item.getRoleName() == "check box")
        return {box.name.partition(": ")[2]: box for box in boxes if box.name.startswith(f"{column}: ")}

    def tick(self, box, on):
        if self.ear.state(box, "CHECKED") != on:
            self.click_on(box)
            wait_for(lambda: self.ear.state(box, "CHECKED") == on, f"the box {box.name} to turn")

    def do_tick_only(self, captions, column):
        boxes = self.boxes(column)
        wanted = captions.split(", ")
        expect(set(wanted) <= set(boxes), f"there are boxes of {captions} in the column {column}")
        for caption, box in boxes.items():
            self.tick(box, caption in wanted)
        self.game.focus()

    def do_tick(self, captions, column):
        self.desktop.focus(self.settings)
        self.ticked = [self.boxes(column)[caption] for caption in captions.split(", ")]
        for box in self.ticked:
            self.tick(box, True)
        self.game.focus()

    def do_untick(self):
        self.desktop.focus(self.settings)
        for box in self.ticked:
            self.tick(box, False)
        self.game.focus()

    def do_no_hint(self, key, words):
        self.desktop.key(pressed(key))
        self.expect_box(None, words, "OK")

    def do_hint(self, key, first, answer, second, title, words):
        self.desktop.key(pressed(key))
        self.expect_box(None, first, answer)
        self.expect_box(None, second, answer)
        self.expect_box(title, words, "OK")
        self.game.focus()

    def cell(self, column, row):
        return self.table.getAccessibleAt(row - 1, column - 1)

    def named_cell(self, name):
        return self.cell(COLUMNS.index(name[0]) + 1, int(name[1]))

    def has_ring(self, name):
        return "alert" in self.name(self.named_cell(name))

    def do_ring(self, cell):
        expect(self.has_ring(cell), f"{cell} has a ring")

    def do_reason(self, cell, key, title, words):
        self.click_on(self.named_cell(cell))
        self.desktop.key(pressed(key))
        self.expect_box(title, words, "OK")
        self.game.focus()
        self.ringed = cell, re.search(r"contains an? ([1-9])", words)[1]

    def do_ring_goes(self, strike):
        cell, number = self.ringed
        self.desktop.key(pressed(f"{strike}+{number}"))
        expect(not self.has_ring(cell), f"the ring around {cell} goes with its {number}")

    def do_how_to_step(self, hint, answer, strike):
        self.step_keys = hint, answer, strike

    def do_step(self, title, words, struck, logic):
        """A hint of a game that is played to its end, what falls after it, and what follows from that."""
        hint, answer, strike = self.step_keys
        self.desktop.key(pressed(hint))
        for _ in range(2):
            self.answer(wait_for(self.box, "a stage of the hint"), answer)
        self.expect_box(title, words, "OK")
        self.game.focus()
        for number, cell in re.findall(r"the ([1-9]) in ([A-J][1-9])", struck):
            self.click_on(self.named_cell(cell))
            self.desktop.key(pressed(f"{strike}+{number}"))
        self.do_logic(logic)

    def do_solved(self):
        expect(re.fullmatch("[1-9]{81}", self.game.copy_line()), "the game is solved")
