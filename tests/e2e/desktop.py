"""A desktop of its own for the whole-program tests: a virtual display with a window manager, the
real program on it, and real key and mouse events.

Everything that a test learns it learns as a player does, from the pixels of the window and from
the clipboard."""

import io
import os
import pathlib
import shutil
import struct
import subprocess
import tempfile
import time

from PIL import Image

MARGIN = 30  # thickness in pixels
DEFAULT_LINES = 8, 0, 10  # of the primary and the secondary lines and the border

GIVEN_FILL = (32, 96, 80)
UNKNOWN_FILL = (66, 120, 107)
SELECTED_FILL = (54, 162, 253)

RECORD_SIZE = 40  # of the settings and of game files

pictures = os.environ.get("KELVARINE_PICTURES")


def expect(condition, what):
    if not condition:
        raise AssertionError(what)
    print("ok:", what, flush=True)


def save_picture(picture, name):
    """Keeps a picture to be looked at, where a folder for pictures is named."""
    if pictures:
        picture.save(f"{pictures}/{name}.png")


def wait_for(condition, what, seconds=30.0):
    """Waits until condition() is true, and fails with what it waited for."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"waited {seconds} s in vain for {what}")


class Desktop:
    """A virtual display with a window manager; use it with `with`."""

    def __init__(self, width=1800, height=1400):
        self.size = f"{width}x{height}x24"
        self.processes = []

    def __enter__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="kelvarine-e2e-"))
        read_end, write_end = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.size, "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        self.processes.append(server)
        with os.fdopen(read_end) as numbers:
            self.display = ":" + numbers.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.display, HOME=str(self.home),
                                XDG_CONFIG_HOME=str(self.home / ".config"),
                                XDG_DATA_HOME=str(self.home / ".local/share"),
                                QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                                XDG_RUNTIME_DIR=str(self.home))
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.start(["openbox"], stderr=subprocess.DEVNULL)
        time.sleep(0.5)
        return self

    @property
    def settings_file(self):
        return self.home / ".config/kelvarine/config.sdu"

    @property
    def statistics_file(self):
        return self.home / ".local/share/kelvarine/stats.sdu"

    def setting(self, record, element):
        """One word of the settings file."""
        start = (record - 1) * RECORD_SIZE + 4 * element
        return struct.unpack_from("<i", self.settings_file.read_bytes(), start)[0]

    def files(self):
        """Everything in the home that is a file, by its path from there; what the desktop keeps
        there for itself apart."""
        found = (path.relative_to(self.home) for path in self.home.rglob("*") if path.is_file())
        return sorted(str(path) for path in found
                      if "kelvarine" in str(path) or not str(path).startswith("."))

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    def start(self, command, **options):
        process = subprocess.Popen(command, env=self.environment, **options)
        self.processes.append(process)
        return process

    def run(self, *command, data=None, check=True):
        done = subprocess.run(command, env=self.environment, input=data, check=check,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60)
        return done.stdout

    def xdotool(self, *words):
        return self.run("xdotool", *[str(word) for word in words]).decode()

    def key(self, *keys):
        self.xdotool("key", "--delay", "15", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "15", text)

    def set_clipboard(self, text):
        # The helper stays behind to serve the selection; a later one takes over from it.
        process = subprocess.Popen(["xclip", "-selection", "clipboard", "-in"],
                                   env=self.environment, stdin=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        process.communicate(text if isinstance(text, bytes) else text.encode())

    def clipboard(self):
        return self.run("xclip", "-selection", "clipboard", "-out", check=False).decode()

    def windows(self, name):
        found = self.run("xdotool", "search", "--onlyvisible", "--name", name, check=False)
        return found.decode().split()

    def screen(self):
        """A picture of everything on view."""
        png = self.run("import", "-window", "root", "png:-")
        return Image.open(io.BytesIO(png)).convert("RGB")

    def dialog(self, title="^Kelvarine$", other_than=()):
        """Waits for a window of this title that is none of the others, and gives it the focus."""
        def fresh():
            new = [w for w in self.windows(title) if w not in other_than]
            return new[0] if new else None
        window = wait_for(fresh, f"a window called {title}")
        self.xdotool("windowfocus", "--sync", window)
        time.sleep(0.1)
        return window

    def gone(self, window):
        wait_for(lambda: window not in self.windows(".*"), "a window to close")

    def answer(self, *keys, title="^Kelvarine$", other_than=()):
        """Waits for a box, answers it by keys and sees it go; a picture of it is the result."""
        box = self.dialog(title, other_than)
        picture = self.picture_of(box)
        self.key(*keys)
        self.gone(box)
        return picture

    def picture_of(self, window):
        png = self.run("import", "-window", window, "png:-")
        return Image.open(io.BytesIO(png)).convert("RGB")

    def name_file(self, title, path):
        """Types a path into the file dialog and presses OK; whether the dialog goes or asks, the
        caller has to see to."""
        box = self.dialog(title)
        self.key("alt+n", "ctrl+a")
        self.type(str(path))
        self.key("Return")
        return box


class Game:
    """The program in its window."""

    def __init__(self, desktop, program, arguments=(), before=()):
        """Starts the program; the words of a command that is to start it may come before."""
        self.desktop = desktop
        self.lines = DEFAULT_LINES
        self.process = desktop.start([*before, program, *arguments])
        self.window = wait_for(lambda: next(iter(desktop.windows("^Kelvarine")), None),
                               "the main window")
        self.focus()

    def focus(self):
        """Brings the window to the front; not while a box is about to stand above it, for then the
        wait for the front is long and in vain."""
        self.desktop.xdotool("windowactivate", "--sync", self.window)
        time.sleep(0.2)

    def resize(self, width, height):
        self.desktop.xdotool("windowsize", "--sync", self.window, width, height)
        time.sleep(0.5)

    def picture(self):
        return self.desktop.picture_of(self.window)

    def menu(self, *keys):
        """Opens a menu and goes through it by the keys of its entries."""
        self.focus()
        for key in keys:
            self.desktop.key(key)
            time.sleep(0.2)

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
        self.focus()
        self.desktop.key("alt+F4")
        if save_first:
            self.desktop.answer(save_first, other_than=[self.window])
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        return self.process.returncode

    def board(self):
        return Board(self.picture(), self.lines)

    def click(self, column, row, modifiers=(), button=1):
        x, y = self.board().centre(column, row)
        desktop = self.desktop
        desktop.xdotool("mousemove", "--window", self.window, x, y)
        for modifier in modifiers:
            desktop.xdotool("keydown", modifier)
        desktop.xdotool("click", button)
        for modifier in modifiers:
            desktop.xdotool("keyup", modifier)
        # Two clicks in quick succession would be a double click.
        time.sleep(0.5)

    def drag(self, start, end):
        board = self.board()
        x1, y1 = board.centre(*start)
        x2, y2 = board.centre(*end)
        self.desktop.xdotool("mousemove", "--window", self.window, x1, y1, "mousedown", 1,
                             "mousemove", "--window", self.window, (x1 + x2) // 2, (y1 + y2) // 2,
                             "mousemove", "--window", self.window, x2, y2, "mouseup", 1)
        time.sleep(0.3)

    def copy_line(self):
        """The position as the single line that the program puts on the clipboard."""
        self.desktop.set_clipboard("")
        for _ in range(10):
            # While the program rates a game it takes no keys.
            self.desktop.key("ctrl+minus")
            end = time.monotonic() + 3
            while time.monotonic() < end:
                if line := self.desktop.clipboard():
                    return line.rstrip()
                time.sleep(0.05)
        raise AssertionError("the program puts nothing on the clipboard")


class Configure:
    """The configuration screen, worked by the keyboard. A tab's key puts the focus on the tabs,
    from where Tab goes down the panel and Shift+Tab comes up from its end."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.window = desktop.dialog("^Configure$")

    def press(self, tab, *steps):
        self.desktop.xdotool("windowactivate", "--sync", self.window)
        # Another tab first: the key of the tab on view does not bring the focus back.
        self.desktop.key("alt+o", f"alt+{tab}", *steps)

    def picture(self):
        return self.desktop.picture_of(self.window)


class Board:
    """The board in a picture of the window: where the cells are and what is painted there."""

    def __init__(self, picture, thicknesses=DEFAULT_LINES):
        self.picture = picture
        self.primary, self.secondary, self.border = thicknesses
        width, height = picture.size
        # The room of the board ends with the window and begins under the toolbar: going up through
        # the black of the left margin, the toolbar is the first thing that is not black.
        top = height // 2
        while top > 0 and picture.getpixel((4, top - 1)) == (0, 0, 0):
            top -= 1
        self.top = top
        client_height = height - top
        lines = 4 * self.primary + 6 * self.secondary
        edges = 2 * (MARGIN + self.border)
        self.cell_width = (width - lines - edges) // 9
        self.cell_height = (client_height - lines - edges) // 9
        board_width = 9 * self.cell_width + lines + 2 * self.border
        board_height = 9 * self.cell_height + lines + 2 * self.border
        self.left = (width - board_width) // 2
        self.board_top = top + (client_height - board_height) // 2

    def origin(self, column, row):
        def offset(line, size):
            boxes = (line + 2) // 3
            return (self.border + (line - 1) * size + boxes * self.primary
                    + (line - boxes) * self.secondary)
        return (self.left + offset(column, self.cell_width),
                self.board_top + offset(row, self.cell_height))

    def centre(self, column, row):
        x, y = self.origin(column, row)
        return x + self.cell_width // 2, y + self.cell_height // 2

    def fill(self, column, row):
        """Colour of a cell, taken inside its frame and beside its numbers."""
        x, y = self.origin(column, row)
        return self.picture.getpixel((x + 3, y + 3))

    def share(self, colour, column, row):
        """Share of a cell's pixels that have this very colour."""
        x, y = self.origin(column, row)
        box = (x, y, x + self.cell_width, y + self.cell_height)
        pixels = list(self.picture.crop(box).getdata())
        return sum(1 for pixel in pixels if pixel == colour) / len(pixels)

    def rating(self):
        """The left end of the margin under the board, where the rating stands."""
        width, height = self.picture.size
        return self.picture.crop((0, height - MARGIN + 2, width // 3, height))

    def ink(self, column, row, place=None):
        """Share of white pixels in the middle of a cell, or in the ninth of a pencilmark."""
        x, y = self.origin(column, row)
        width, height = self.cell_width, self.cell_height
        if place is None:
            box = (x + width // 4, y + height // 4, x + 3 * width // 4, y + 3 * height // 4)
        else:
            left, up = (place - 1) % 3, (place - 1) // 3
            box = (x + width * left // 3 + 3, y + height * up // 3 + 3,
                   x + width * (left + 1) // 3 - 3, y + height * (up + 1) // 3 - 3)
        pixels = list(self.picture.crop(box).getdata())
        return sum(1 for r, g, b in pixels if min(r, g, b) > 200) / len(pixels)

    def has_pencilmark(self, column, row, number):
        return self.ink(column, row, number) > 0.02
