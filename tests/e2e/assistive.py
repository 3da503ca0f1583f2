"""The program as assistive tools meet it, on a session bus of its own: what it says is written down,
and what it offers is found by role and name and used by the actions that tools are given."""

import atexit
import os
import shutil
import sys
import tempfile

from desktop import expect, wait_for

OWN_BUS = "KELVARINE_OWN_BUS"


def on_own_bus():
    """Begins the script again under a session bus that ends with it. On the bus of the machine there
    may be tools and programs of others. The bus of the tools themselves has its place in the runtime
    folder, so that scripts at the same time need one each."""
    folder = os.environ.pop(OWN_BUS, None)
    if folder is None:
        os.environ[OWN_BUS] = os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="kelvarine-bus-")
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
    atexit.register(shutil.rmtree, folder, ignore_errors=True)


def parts(words):
    """What is said at once, in its parts."""
    return [part for said in words for part in said.split("; ")]


class Ear:
    """Listens to everything that programs tell assistive tools, from when it is made."""

    KINDS = "object:state-changed:focused", "object:state-changed:showing", "object:state-changed:selected", \
        "object:property-change", "object:selection-changed", "window:activate"

    def __init__(self, desktop):
        self.desktop = desktop
        os.environ.update({name: desktop.environment[name]
                           for name in ("DISPLAY", "XDG_RUNTIME_DIR", "HOME")})
        desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        import pyatspi  # finds its bus by the environment
        from gi.repository import GLib
        self.tools = pyatspi
        self.loop = GLib.MainContext.default()
        self.events = []
        self.transcript = []
        self.application = None
        for kind in self.KINDS:
            pyatspi.Registry.registerEventListener(self.hear, kind)

    def hear(self, event):
        try:
            source = event.source.getRoleName(), self.words_of(event.source)
            has_focus = self.has_focus(event.source)
        except Exception:  # a box that has closed meanwhile, told by an error of the bindings
            source, has_focus = ("gone", ""), False
        self.events.append((event.type, event.detail1, *source, has_focus))

    def has_focus(self, source):
        """Whether something says of itself that it has the focus; a row of a list says so as soon as it is
        the current one, and has it with the list alone."""
        holders = [source] + [source.parent] * (source.getRoleName() in ("table cell", "list item"))
        return all(one.getState().contains(self.tools.STATE_FOCUSED) for one in holders)

    @staticmethod
    def words_of(source):
        """What a screen reader says of a thing beside its role; of the board and its cells with what they
        are described by."""
        described = source.getRoleName() in ("table", "table cell") and source.description
        return f"{source.name}; {source.description}" if described else source.name

    def pump(self):
        while self.loop.pending():
            self.loop.iteration(False)
        return True

    def meet(self, name):
        """Waits until the program is on the bus."""
        def there():
            self.pump()
            return next((one for one in self.tools.Registry.getDesktop(0)
                         if one and one.name == name), None)
        self.application = wait_for(there, "the program to be known to assistive tools")

    def find(self, role, name, where=None):
        """The one thing of a role whose name, without the key that it shows, is this."""
        def fits(item):
            return item.getRoleName() == role and item.name.split("\t")[0].strip() == name

        def there():
            self.pump()
            return self.tools.findDescendant(where or self.application, fits)
        return wait_for(there, f"a {role} called {name}")

    @staticmethod
    def do(item, action):
        """Has an action done. What opens a box answers only when it has been closed, and is not
        waited for."""
        actions = item.queryAction()
        names = [actions.getName(place) for place in range(actions.nActions)]
        expect(action in names, f"{item.name} has the action {action}")
        try:
            actions.doAction(names.index(action))
        except Exception as reason:  # of a kind that only the bindings know
            print(f"not waited for: {reason}", flush=True)

    def state(self, item, name):
        """Whether a thing is in a state now."""
        item.clearCache()
        return item.getState().contains(getattr(self.tools, "STATE_" + name))

    # ---- What is heard ---------------------------------------------------------------------------

    def spoken(self):
        """What a screen reader would say to the events so far. That something has the focus which says that
        it has not, no reader believes."""
        words = []
        for kind, detail, role, name, has_focus in self.events:
            if kind.startswith("object:state-changed:focused") and detail and has_focus:
                words.append(f"{role} {name}")
            elif kind.startswith("object:state-changed:showing") and role == "notification":
                words.append(name)
            elif kind.startswith("window:activate"):
                if words and words[-1].startswith("window "):
                    words.pop()  # of windows that come up at once the last is told
                words.append(f"window {name}")
        return parts(words)

    def at_rest(self):
        """Waits until the program has done what it was told, and everything that it said is here:
        what it sent comes before its answer."""
        self.desktop.settle()
        self.application.clearCache()
        self.application.get_toolkit_name()
        self.pump()

    def expect(self, deed, *words, events=None, between=()):
        """Does a deed and holds what is heard against the words, in full: none missing, none twice,
        none empty. What came of the deed is told by the place that the player comes to, or apart where the
        window manager takes longer to bring him there, and so counts by itself. In between them the window manager's news come when it gets to them, and where one
        box follows another, the window behind them may come up or not."""
        words, between = parts(words), parts(between)

        def said():
            return [word for word in self.spoken() if word in words or word not in between]

        self.at_rest()
        self.events.clear()
        deed()
        wait_for(lambda: self.pump() and len(said()) >= len(words), f"the words {words}")
        self.at_rest()
        heard = said()
        expect(sorted(heard) == sorted(words), f"heard {heard}, to be {words}")
        expect(all(heard), "nothing empty is said")
        if events is not None:
            expect(len(self.events) <= events, f"at most {events} events: {self.events}")
        self.transcript += heard
