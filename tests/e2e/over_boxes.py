"""Every dialog and every box that the program can stand behind, opened over a modified game with a
file: what the stories of the program's end have in common."""

from desktop import expect, wait_for
from game import Configure, Game
from positions import MIRRORED, PUZZLE

SETTINGS = ".config/kelvarine/config.sdu"


class Story:
    """One run of the program with the game of evening.sdk, modified since."""

    def __init__(self, desktop, program, before=(), file="evening.sdk", behind_a_box=False):
        self.desktop = desktop
        self.known = desktop.windows(".")
        self.game = Game(desktop, program, arguments=[desktop.home / file], before=before,
                         behind_a_box=behind_a_box)

    def modify(self):
        wait_for(lambda: self.game.copy_line() == PUZZLE, "the game of the file")
        self.desktop.key("shift+m")
        wait_for(lambda: self.game.copy_line() == MIRRORED, "the game to be mirrored")

    def box(self, title="^Kelvarine$"):
        """Waits for a box that was not there before."""
        box = self.desktop.dialog(title, other_than=self.known)
        self.known.append(box)
        return box


def make_files(desktop, program):
    """The game of the stories, and what they must not change."""
    game = Game(desktop, program)
    game.resize(900, 980)
    game.paste(PUZZLE)
    desktop.key("ctrl+a")
    desktop.gone(desktop.name_file("^Save Game As$", desktop.home / "evening.sdk"))
    game.focus()
    expect(game.end() == 0, "a game is saved for the stories")
    (desktop.home / "other.sdk").write_bytes(b"another game")
    (desktop.home / "broken.sdk").write_bytes(b"no game")
    desktop.statistics_file.parent.mkdir(parents=True, exist_ok=True)
    desktop.statistics_file.write_bytes(bytes(range(80)))


def contents(desktop):
    """All files but the settings, which every end writes anew."""
    return {name: (desktop.home / name).read_bytes() for name in desktop.files()
            if name != SETTINGS}


# ---- Dialogs -----------------------------------------------------------------------------------

def save_as(story):
    story.desktop.key("ctrl+a")
    return story.box("^Save Game As$")


def save_as_evening(story):
    """With the name of the game in hand typed already."""
    save_as(story)
    story.desktop.key("alt+n", "ctrl+a")
    story.desktop.type("evening")


def open_game(story):
    story.desktop.key("ctrl+o")
    story.desktop.answer("alt+n", other_than=story.known)
    return story.box("^Open Game$")


def save_solutions(story):
    story.game.menu("alt+h", "s")
    story.known.append(story.desktop.dialog("^Solutions$"))
    story.desktop.key("shift+Tab", "space")
    story.box("^Save Solution")


def print_dialog(story):
    story.desktop.key("ctrl+p")
    screen = Configure(story.desktop)
    story.known.append(screen.window)
    screen.press("p", "shift+Tab", "space")
    story.box("^Print$")


def print_over(story):
    """The toolkit's own question, whether to write over a file."""
    print_dialog(story)
    story.desktop.key("alt+f", "ctrl+a")
    story.desktop.type(str(story.desktop.home / "other.sdk"))
    # A list of names that fit may have come up, or may still come, and would take the Return; the
    # Tab closes it, or leaves the box that it comes for.
    story.desktop.key("Tab", "Return")

    def question():
        return [w for w in story.desktop.managed_windows() if w not in story.known]
    story.known.append(wait_for(question, "the toolkit's question")[0])


def about(story):
    story.game.menu("alt+h", "u")
    story.box("^About Kelvarine$")


# ---- Boxes over the file dialog ----------------------------------------------------------------

def overwrite(story):
    save_as(story)
    story.desktop.key("alt+n", "ctrl+a")
    story.desktop.type("other")
    story.desktop.key("Return")
    story.box("^Overwrite\\?$")


def delete(story):
    open_game(story)
    story.desktop.key("alt+l", "Home", "space", "Delete")
    story.box()


def no_name(story):
    save_as(story)
    story.desktop.key("alt+n", "ctrl+a", "BackSpace", "Return")
    story.box()


# ---- Boxes over the board ----------------------------------------------------------------------

def save_first(story):
    story.desktop.key("ctrl+n")
    story.box()


def restart(story):
    story.desktop.key("ctrl+r")
    story.box()


def text_string(story):
    story.desktop.key("ctrl+t")
    story.desktop.answer("alt+n", other_than=story.known)
    story.box()


def short_text(story):
    story.desktop.set_clipboard("123")
    story.desktop.key("ctrl+v")
    story.desktop.answer("alt+n", other_than=story.known)
    story.box()


def logic_needed(story):
    story.desktop.key("l")
    story.box()


def hint(story):
    story.desktop.key("h")
    story.box("^Hint$")


def place_of_a_hint(story):
    story.desktop.key("h")
    story.desktop.answer("alt+y", title="^Hint$")
    story.box("^Hint$")


def no_cell(story):
    story.desktop.key("ctrl+x")
    story.box()


def clear_statistics(story):
    story.desktop.key("alt+s")
    story.known.append(story.desktop.dialog("^Statistics$"))
    story.desktop.key("alt+c")
    story.box()


WAYS = {
    "Save Game As": save_as,
    "Save Game As with a name": save_as_evening,
    "Open Game": open_game,
    "Save Solution(s) As Text File": save_solutions,
    "Print": print_dialog,
    "the toolkit's own Overwrite box": print_over,
    "About": about,
    "the Overwrite box": overwrite,
    "the Delete box": delete,
    "the notice of an empty name": no_name,
    "the save question": save_first,
    "the restart question": restart,
    "the text prompt": text_string,
    "the question about a short text": short_text,
    "the report of the logic": logic_needed,
    "a hint": hint,
    "the place of a hint": place_of_a_hint,
    "the notice of no cell": no_cell,
    "the question of the statistics": clear_statistics,
}


def walk(desktop, program, end, before=()):
    """Ends the program over each box by a call of end(story), which leaves the question whether to
    save on view, answers No and compares all files."""
    files = contents(desktop)
    settings = desktop.settings_file.read_bytes()
    for name, bring_up in WAYS.items():
        story = Story(desktop, program, before)
        story.modify()
        bring_up(story)
        end(story)
        story.box()
        desktop.key("alt+n")
        story.game.wait_for_end()
        expect(story.game.process.returncode == 0 and contents(desktop) == files,
               f"ended over {name}, the program leaves every file as it is")
        desktop.settings_file.write_bytes(settings)  # no screen comes back beside the next game


def walk_back(desktop, program, end, before=()):
    """Cancel in the question keeps the dialog below as it was, to the deed of its button."""
    story = Story(desktop, program, before)
    story.modify()
    files = contents(desktop)
    box = open_game(story)
    end(story)
    story.box()
    desktop.key("Escape")
    desktop.focus(box)
    desktop.key("alt+n", "ctrl+a")
    desktop.type("evening")
    desktop.key("Return")
    desktop.gone(box)
    story.game.focus()
    wait_for(lambda: story.game.copy_line() == PUZZLE, "the game to be opened")
    expect(contents(desktop) == files and story.game.end() == 0,
           "kept alive by Cancel, the program goes on with the dialog that stood")
