"""A desktop of its own for the whole-program tests: a virtual display with a window manager, and real
key and mouse events for the real program on it.

What a test learns of the game it learns as a player does, from pixels, titles and the clipboard, or from
the files that are left: settings, statistics, games, what is kept for a crash. That a key has been dealt
with the window itself tells, by its answers to pings."""

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

    def game_is_kept(self):
        """Whether a game is kept for the case of a crash."""
        return any(name.endswith(".sdk") for name in self.recovery())

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
