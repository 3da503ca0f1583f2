"""The program on the desktop and its configuration screen, with the player's hand on them."""

from board import DEFAULT_LINES, Board
from desktop import wait_for


class Game:
    """The program in its window."""

    def __init__(self, desktop, program, arguments=(), before=(), behind_a_box=False):
        """Starts the program; the words of a command that is to start it may come before. A window
        that comes up behind a box of its own is not brought to the front."""
        self.desktop = desktop
        self.lines = DEFAULT_LINES
        self.clicks = 0
        with open(desktop.evidence / f"program-{len(desktop.processes)}.log", "wb") as log:
            self.process = desktop.start([*before, program, *arguments], stderr=log)
        self.window = wait_for(self.main_window, "the main window")
        desktop.games.append(self)
        if not behind_a_box:
            self.focus()

    def main_window(self):
        expect_alive(self.process)
        # A box may be there as soon as it, under the same title; but that belongs to it.
        return next((window for window in self.desktop.windows("^Kelvarine")
                     if not self.desktop.is_box(window)), None)

    def focus(self):
        """Brings the window to the front; not while a box is about to stand above it, for then the
        wait for the front is long and in vain."""
        self.desktop.focus(self.window)

    def resize(self, width, height):
        before = self.size()
        self.desktop.xdotool("windowsize", self.window, width, height)
        wait_for(lambda: self.size() == (width, height) or self.size() != before,
                 "the window to change its size")
        self.desktop.settle()

    def size(self):
        geometry = self.desktop.server.create_resource_object(
            "window", int(self.window)).get_geometry()
        return geometry.width, geometry.height

    def picture(self):
        return self.desktop.picture_of(self.window)

    def menu(self, *keys):
        """Opens a menu and goes through it by the keys of its entries."""
        self.focus()
        for key in keys:
            self.desktop.key(key)

    def paste(self, text, save_first=None):
        """A new game from the clipboard, waited for until it has been taken up; the key answers the
        question whether to save first."""
        self.desktop.set_clipboard(text)
        self.desktop.key("ctrl+v")
        if save_first:
            self.desktop.answer(save_first, other_than=[self.window])
            self.focus()
        wait_for(lambda: self.copy_line() == text, "the pasted game")

    def title(self):
        return self.desktop.xdotool("getwindowname", self.window).strip()

    def end(self, save_first=None):
        """Closes the window as a player does, and gives the program's result."""
        self.desktop.close(self.window)
        if save_first:
            self.desktop.answer(save_first, other_than=[self.window])
        return self.wait_for_end()

    def wait_for_end(self):
        """Waits until the program has ended, whatever made it, and gives its result."""
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        return self.process.returncode

    def clock_picture(self):
        """The right end of the menu bar, where the time stands."""
        width = self.size()[0]
        return self.picture().crop((width - 90, 2, width - 2, 20)).tobytes()

    def wait_for_a_tick(self):
        before = self.clock_picture()
        wait_for(lambda: self.clock_picture() != before, "the clock to tick")
        self.desktop.settle()

    def board(self):
        return Board(self.picture(), self.lines)

    def click(self, column, row, modifiers=(), button=1):
        x, y = self.board().centre(column, row)
        # Two clicks in quick succession at one place would be a double click.
        self.clicks += 1
        x += 9 * (self.clicks % 2)
        desktop = self.desktop
        desktop.xdotool("mousemove", "--window", self.window, x, y)
        for modifier in modifiers:
            desktop.xdotool("keydown", modifier)
        desktop.xdotool("click", button)
        for modifier in modifiers:
            desktop.xdotool("keyup", modifier)

    def drag(self, start, end):
        board = self.board()
        x1, y1 = board.centre(*start)
        x2, y2 = board.centre(*end)
        self.desktop.xdotool("mousemove", "--window", self.window, x1, y1, "mousedown", 1,
                             "mousemove", "--window", self.window, (x1 + x2) // 2, (y1 + y2) // 2,
                             "mousemove", "--window", self.window, x2, y2, "mouseup", 1)

    def copy_line(self):
        """The position as the single line that the program puts on the clipboard. What stands there
        is left until then, for the program may still be about to paste it."""
        before = self.desktop.clipboard_time()

        def taken():
            # While the program rates a game it takes no keys.
            self.desktop.key("ctrl+minus")
            return self.desktop.clipboard_time() not in (b"", before)
        wait_for(taken, "a line on the clipboard")
        return self.desktop.clipboard().rstrip()


def expect_alive(process):
    if process.poll() is not None:
        raise AssertionError(f"the program ended with {process.returncode}")


class Configure:
    """The configuration screen, worked by the keyboard. A tab's key puts the focus on the tabs,
    from where Tab goes down the panel and Shift+Tab comes up from its end."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.window = desktop.dialog("^Configure$")

    def press(self, tab, *steps):
        self.desktop.focus(self.window)
        # Another tab first: the key of the tab on view does not bring the focus back.
        self.desktop.key("alt+o", f"alt+{tab}", *steps)

    def picture(self):
        return self.desktop.picture_of(self.window)
