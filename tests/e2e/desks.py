#!/usr/bin/python3
"""The program on the screens that players have, with a panel at the lower edge: every window opens
whole within what the panel leaves, and every cell can be clicked on."""

import shutil
import sys

from PIL import Image
from Xlib import X, Xutil

from board import SELECTED_FILL, Board
from desktop import Desktop, expect, save_picture, wait_for
from game import Game

PANEL = 40  # pixels that the panel takes

# Width and height in pixels of the screen, pixels of the screen to one of the program.
DESKS = (1024, 600, 1), (1366, 768, 1), (1920, 1080, 1.5), (2560, 1600, 2)


class Desk(Desktop):
    """A screen of a size and a ratio, with a panel."""

    def __init__(self, width, height, ratio):
        super().__init__(width, height)
        self.width, self.height, self.ratio = width, height, ratio

    def __enter__(self):
        super().__enter__()
        self.environment["QT_SCALE_FACTOR"] = str(self.ratio)
        panel = self.root.create_window(0, self.height - PANEL, self.width, PANEL, 0,
                                        X.CopyFromParent)
        panel.change_property(self.server.get_atom("_NET_WM_WINDOW_TYPE"),
                              self.server.get_atom("ATOM"), 32,
                              [self.server.get_atom("_NET_WM_WINDOW_TYPE_DOCK")])
        panel.change_property(self.server.get_atom("_NET_WM_STRUT"),
                              self.server.get_atom("CARDINAL"), 32, [0, 0, 0, PANEL])
        panel.set_wm_normal_hints(flags=Xutil.PPosition)
        panel.map()
        self.server.sync()
        wait_for(lambda: self.work_area() == [0, 0, self.width, self.height - PANEL],
                 "the panel to take its room")
        return self

    def work_area(self):
        area = self.root.get_full_property(self.server.get_atom("_NET_WORKAREA"), X.AnyPropertyType)
        return list(area.value)[:4] if area else []

    def outer(self, window):
        """Left, top, right and bottom of a window with its frame; None until it has one."""
        drawable = self.server.create_resource_object("window", int(window))
        frame = drawable.get_full_property(self.server.get_atom("_NET_FRAME_EXTENTS"),
                                           X.AnyPropertyType)
        if not frame:
            return None
        left, right, top, bottom = frame.value
        size = drawable.get_geometry()
        place = drawable.translate_coords(self.root, 0, 0)
        x, y = -place.x, -place.y
        return x - left, y - top, x + size.width + right, y + size.height + bottom

    def is_whole(self, window):
        place = self.outer(window)
        return place and min(place[:2]) >= 0 and place[2] <= self.width \
            and place[3] <= self.height - PANEL

    def expect_whole(self, window, name):
        wait_for(lambda: self.is_whole(window), f"{name} to lie whole on the screen, not at "
                 f"{self.outer(window)}")
        print("ok:", name, "at", *self.outer(window), flush=True)


class DeskGame(Game):
    """The program, its picture in its own pixels."""

    def board(self):
        picture = self.picture()
        size = [round(side / self.desktop.ratio) for side in picture.size]
        return Board(picture.resize(size, Image.Resampling.NEAREST), self.lines)


def click_every_cell(desk, game):
    board = game.board()
    for column in range(1, 10):
        for row in range(1, 10):
            x, y = (round(place * desk.ratio) for place in board.centre(column, row))
            desk.xdotool("mousemove", "--window", game.window, x, y, "click", "1")
            if game.board().fill(column, row) != SELECTED_FILL:
                raise AssertionError(f"no click selects the cell in column {column} and row {row}")
    print("ok: a click selects each of the 81 cells", flush=True)


def open_everything(desk, game):
    """All windows, each from the main one."""
    known = [game.window]
    for name, title, *keys in (("the settings", "^Configure$", "alt+g", "c"),
                               ("the alerts", "^Configure$", "alt+v", "a"),
                               ("the statistics", "^Statistics$", "alt+s"),
                               ("the solutions", "^Solutions$", "alt+h", "s"),
                               ("the help", "Help$", "alt+h", "c"),
                               ("the file window", "^Save Game As$", "ctrl+a"),
                               ("a question", "^Kelvarine$", "ctrl+r"),
                               ("a line of text", "^Kelvarine$", "ctrl+t"),
                               ("about", "^About", "alt+h", "u")):
        game.menu(*keys)
        window = desk.dialog(title, other_than=[game.window])
        desk.expect_whole(window, name)
        save_picture(desk.screen(), f"desk-{desk.width}-{name.replace(' ', '-')}")
        known.append(window)
        desk.key("Escape")
        desk.gone(window)


def on(desk, program):
    game = DeskGame(desk, program)
    desk.expect_whole(game.window, "the main window")
    board = game.board()
    form = board.cell_width / board.cell_height
    expect(0.95 < form < 1.08, f"cells are as square as they were, {form}")
    height = desk.outer(game.window)[3] - desk.outer(game.window)[1]
    expect(height > (desk.height - PANEL) * 0.97 or height > 830 * desk.ratio,
           "and the window is as large as it can be")
    click_every_cell(desk, game)
    open_everything(desk, game)
    expect(game.end() == 0, "the program ends well")


def kept_size(program):
    """A window that was large on a large screen opens on a small one."""
    with Desk(2560, 1600, 1) as large, Desk(1024, 600, 1) as small:
        game = DeskGame(large, program)
        game.resize(1500, 1400)
        expect(game.end() == 0, "a large window is left")
        small.settings_file.parent.mkdir(parents=True)
        shutil.copy(large.settings_file, small.settings_file)
        game = DeskGame(small, program)
        small.expect_whole(game.window, "a window that was large")
        board = game.board()
        expect(board.cell_width > board.cell_height, "its board has the form that it had")
        expect(game.end() == 0, "the program ends well")


def main():
    program = sys.argv[1]
    for size in DESKS:
        print(*size, flush=True)
        with Desk(*size) as desk:
            on(desk, program)
    kept_size(program)
    print("desks: all as it should be")


if __name__ == "__main__":
    main()
