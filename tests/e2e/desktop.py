"""A desktop of its own for the whole-program tests: a virtual display with a window manager, the
real program on it, and real key and mouse events.

Everything that a test learns it learns as a player does, from the pixels of the window and from
the clipboard."""

import itertools
import os
import pathlib
import select
import shutil
import struct
import subprocess
import tempfile
import time

from PIL import Image
from Xlib import X, display, error
from Xlib.protocol.event import ClientMessage

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"

MARGIN = 30  # thickness in pixels
DEFAULT_LINES = 8, 0, 10  # of the primary and the secondary lines and the border

GIVEN_FILL = (32, 96, 80)
UNKNOWN_FILL = (66, 120, 107)
SELECTED_FILL = (54, 162, 253)

RECORD_SIZE = 40  # of the settings and of game files

# When a wait is given up, in seconds. It judges nothing: what comes late is as good as what comes
# soon, and a machine that is busy with other things is given its time.
PATIENCE = 150

# How often the program has to come round in its event loop until a key is handled, its effect
# painted and the picture on the screen: taken in, handled, painted, and one round to be sure.
TURNS = 4

pictures = os.environ.get("KELVARINE_PICTURES")


def expect(condition, what):
    if not condition:
        raise AssertionError(what)
    print("ok:", what, flush=True)


def save_picture(picture, name):
    """Keeps a picture to be looked at, where a folder for pictures is named."""
    if pictures:
        picture.save(f"{pictures}/{name}.png")


def wait_for(condition, what, seconds=PATIENCE):
    """Waits until condition() is true, and fails with what it waited for."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise AssertionError(f"waited {seconds} s in vain for {what}")


def let_the_clock_tick(seconds):
    """Until the world's clock shows so many seconds more: for what must not move meanwhile."""
    shown = int(time.time()) + seconds
    wait_for(lambda: int(time.time()) > shown, "the time to pass")


class Desktop:
    """A virtual display with a window manager; use it with `with`. What a failed test leaves, the
    screen and what the programs wrote, is kept in a folder that is named."""

    def __init__(self, width=1800, height=1400):
        self.size = f"{width}x{height}"
        self.processes = []
        self.games = []
        self.pings = 0

    def __enter__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="kelvarine-e2e-"))
        self.evidence = pathlib.Path(tempfile.mkdtemp(prefix="kelvarine-run-"))
        self.screen_process = subprocess.Popen(
            [TOOLS / "virtual_display", self.size, "sh", "-c", "echo $DISPLAY; exec cat"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.display = self.screen_process.stdout.readline().decode().strip()
        expect(self.display, "there is a virtual display")
        self.environment = dict(os.environ, DISPLAY=self.display, HOME=str(self.home),
                                XDG_CONFIG_HOME=str(self.home / ".config"),
                                XDG_DATA_HOME=str(self.home / ".local/share"),
                                QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                                QT_QPA_UPDATE_IDLE_TIME="0",
                                XDG_RUNTIME_DIR=str(self.home))
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.server = display.Display(self.display)
        self.root = self.server.screen().root
        self.root.change_attributes(
            event_mask=X.StructureNotifyMask | X.SubstructureNotifyMask)  # brings answers to pings
        self.server.sync()
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
        """Everything in the home that is a file, by its path from there; apart from what the desktop
        keeps there for itself, and the program while it runs, which recovery() tells."""
        found = (path.relative_to(self.home) for path in self.home.rglob("*") if path.is_file())
        return sorted(str(path) for path in found
                      if ("kelvarine" in str(path) or not str(path).startswith("."))
                      and path.suffix != ".lock" and not path.name.startswith("recovery-"))

    def recovery(self):
        """The names of the files in which programs keep games for the case of a crash, and of their
        locks."""
        return sorted(path.name for path in self.statistics_file.parent.glob("recovery-*"))

    def __exit__(self, failure, *_):
        if failure:
            self.name_evidence()
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
        self.server.close()
        self.screen_process.stdin.close()
        self.screen_process.wait()
        shutil.rmtree(self.home, ignore_errors=True)
        if not failure:
            shutil.rmtree(self.evidence)

    def name_evidence(self):
        try:
            self.screen().save(self.evidence / "screen.png")
        except (OSError, error.XError, error.ConnectionClosedError) as reason:
            print(f"no picture of the screen: {reason}")
        print("what the failed run left:", *sorted(map(str, self.evidence.iterdir())), flush=True)

    def start(self, command, **options):
        process = subprocess.Popen(command, env=self.environment, **options)
        self.processes.append(process)
        return process

    def run(self, *command, data=None, check=True):
        done = subprocess.run(command, env=self.environment, input=data, check=check,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=PATIENCE)
        return done.stdout

    # ---- Events ----------------------------------------------------------------------------------

    def xdotool(self, *words):
        """Does something with windows, mouse or keys, and returns when the programs have dealt with
        it."""
        told = self.run("xdotool", *[str(word) for word in words]).decode()
        self.settle()
        return told

    def settle(self):
        """Waits until every program has handled and painted all that was sent to it."""
        self.games = [game for game in self.games if game.process.poll() is None]
        for game in self.games:
            for _ in range(TURNS):
                self.ping(game)

    def ping(self, game):
        """Asks the program's window whether it is alive, as a window manager does, and waits for the
        answer, which comes from the program's event loop and in its turn; or for the window's end."""
        window = self.server.create_resource_object("window", int(game.window))
        self.pings += 1
        mark = self.pings
        question = ClientMessage(window=window, client_type=self.server.get_atom("WM_PROTOCOLS"),
                                 data=(32, [self.server.get_atom("_NET_WM_PING"), mark,
                                            int(game.window), 0, 0]))
        window.send_event(question, event_mask=0, onerror=error.CatchError(error.BadWindow))
        self.server.sync()
        wait_for(lambda: self.answered(mark) or game.process.poll() is not None
                 or not self.exists(window), "the program to answer")

    def answered(self, mark):
        select.select([self.server.fileno()], [], [], 0.05)
        answer = False
        while self.server.pending_events():
            event = self.server.next_event()
            sent = event.type & 0x7F  # the highest bit tells events that programs send
            answer |= sent == X.ClientMessage and event.data[1][1] == mark
        return answer

    def exists(self, window):
        try:
            window.get_attributes()
            return True
        except (error.BadWindow, error.BadDrawable):
            return False

    def is_box(self, window):
        try:
            return self.server.create_resource_object("window", int(window)).get_wm_transient_for()
        except (error.BadWindow, error.BadDrawable):
            return True

    def key(self, *keys):
        self.xdotool("key", "--delay", "15", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "15", text)

    def close(self, window):
        """Closes a window as a click on the cross of its frame does. Alt+F4 would be the manager's
        key: it takes its keys anew when a keyboard is used for the first time, and what is pressed
        in between goes to the program, which has no use for it."""
        target = self.server.create_resource_object("window", int(window))
        request = ClientMessage(window=target,
                                client_type=self.server.get_atom("_NET_CLOSE_WINDOW"),
                                data=(32, [X.CurrentTime, 0, 0, 0, 0]))
        self.root.send_event(request, event_mask=X.SubstructureRedirectMask)
        self.server.sync()
        self.settle()

    def focus(self, window):
        """Brings a window to the front and waits until it has the keyboard. What the manager does not
        give, as to a window behind a box, is taken from the server."""
        ways = itertools.chain(["windowactivate"] * 20, itertools.cycle(["windowfocus"]))

        def has_focus():
            if self.focused() == window:
                return True
            self.run("xdotool", next(ways), window, check=False)
            return False
        wait_for(has_focus, "a window to get the focus")
        self.settle()

    def focused(self):
        """The window that has the keyboard, in the form in which windows are told here."""
        window = self.server.get_input_focus().focus
        return str(getattr(window, "id", window))

    # ---- What is there ---------------------------------------------------------------------------

    def set_clipboard(self, text):
        # The helper stays behind to serve the selection; a later one takes over from it.
        process = subprocess.Popen(["xclip", "-selection", "clipboard", "-in"],
                                   env=self.environment, stdin=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        process.communicate(text if isinstance(text, bytes) else text.encode())
        self.settle()

    def clipboard(self):
        return self.run("xclip", "-selection", "clipboard", "-out", check=False).decode()

    def clipboard_time(self):
        """When its owner took the clipboard, as the program tells; the helper of set_clipboard gives
        its text."""
        return self.run("xclip", "-selection", "clipboard", "-out", "-t", "TIMESTAMP", check=False)

    def search(self, *words):
        """The windows that a search finds. One that finds none says nothing; one that complains, as where
        a window goes while it looks, has found out nothing and is made again."""
        def found():
            done = subprocess.run(["xdotool", "search", *words], env=self.environment,
                                  capture_output=True, timeout=PATIENCE, check=False)
            return None if done.stderr else [done.stdout.decode().split()]
        return wait_for(found, "a search for windows that comes to its end")[0]

    def windows(self, name):
        return self.search("--onlyvisible", "--name", name)

    def boxes(self):
        """The boxes that the programs have made, also those that the manager has yet to bring into
        view."""
        return [window for window in self.search("--name", "^Kelvarine$") if self.is_box(window)]

    def managed_windows(self):
        """The windows that the window manager holds, whatever their names: no menus, no lists."""
        held = self.root.get_full_property(self.server.get_atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        return [str(window) for window in held.value] if held else []

    def screen(self):
        """A picture of everything on view."""
        return self.pixels_of(self.root)

    def dialog(self, title="^Kelvarine$", other_than=()):
        """Waits for a window of this title that is none of the others, and gives it the focus."""
        def fresh():
            new = [w for w in self.windows(title) if w not in other_than]
            return new[0] if new else None
        window = wait_for(fresh, f"a window called {title}")
        self.focus(window)
        return window

    def gone(self, window):
        wait_for(lambda: window not in self.windows(".*"), "a window to close")
        self.settle()

    def answer(self, *keys, title="^Kelvarine$", other_than=()):
        """Waits for a box, answers it by keys and sees it go; a picture of it is the result."""
        box = self.dialog(title, other_than)
        picture = self.picture_of(box)
        self.key(*keys)
        self.gone(box)
        return picture

    def picture_of(self, window):
        return self.pixels_of(self.server.create_resource_object("window", int(window)))

    @staticmethod
    def pixels_of(drawable):
        geometry = drawable.get_geometry()
        size = geometry.width, geometry.height
        image = drawable.get_image(0, 0, *size, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", size, image.data, "raw", "BGRX")

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
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        return self.process.returncode

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
