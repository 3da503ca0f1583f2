#!/usr/bin/python3
"""Menus, modifiers and windows by the keyboard, while the clock runs: who has the keyboard after
what."""

import sys

from Xlib import X

from board import SELECTED_FILL
from desktop import Desktop, expect, wait_for
from game import Configure, Game
from positions import PUZZLE

SIZE = 760, 830
TOOLBAR = 54  # its height in pixels


def popups(desktop):
    """The open menus as the left and right ends of their windows, from left to right."""
    ends = []
    for window in desktop.root.query_tree().children:
        if not desktop.exists(window):
            continue
        attributes = window.get_attributes()
        if attributes.override_redirect and attributes.map_state == X.IsViewable:
            place = window.get_geometry()
            if place.width > 30:  # not what the manager keeps for itself
                ends.append((place.x, place.x + place.width))
    return sorted(ends)


def cell(game, column, row):
    return game.copy_line()[(row - 1) * 9 + column - 1]


def walk(desktop, game):
    desktop.key("alt+g")
    seen = []
    for _ in range(7):
        game.wait_for_a_tick()
        seen.append(popups(desktop))
        desktop.key("Left")
    lefts = [ends[0][0] if ends else None for ends in seen]
    expect(lefts[3] is None, "Statistics, the entry without a menu, has none open")
    expect(lefts[0] == lefts[6] and lefts[0] < lefts[5] < lefts[4] < lefts[2] < lefts[1],
           "arrows walk round all six while the clock runs")
    left, _, right, _ = outer(desktop, game.window)
    expect(all(left <= ends[0][0] and ends[0][1] <= right for ends in seen if ends),
           "no menu hangs over the edge of the window")
    desktop.key("Escape", "Escape")
    wait_for(lambda: not popups(desktop), "the menus to close")


def outer(desktop, window):
    drawable = desktop.server.create_resource_object("window", int(window))
    place = drawable.translate_coords(desktop.root, 0, 0)
    size = drawable.get_geometry()
    return -place.x, -place.y, -place.x + size.width, -place.y + size.height


def open_late(desktop, game):
    game.click(4, 4)
    desktop.key("alt")
    game.wait_for_a_tick()
    game.wait_for_a_tick()
    desktop.key("Down")
    expect(popups(desktop), "Alt, a while, Down: the first menu opens")
    desktop.key("Escape")
    wait_for(lambda: not popups(desktop), "it to close")
    expect(game.board().fill(4, 4) == SELECTED_FILL, "and the selection has not moved")
    desktop.key("Down")
    expect(game.board().fill(4, 5) == SELECTED_FILL, "now the arrow is the board's again")


def pause(desktop, game):
    shown = game.board().ink(1, 1)
    desktop.key("alt+g", "Left", "Return")
    wait_for(lambda: game.board().ink(1, 1) < shown / 2, "the numbers to go")
    wide = game.clock_picture()
    desktop.key("alt+g", "Left", "Down", "Return")
    wait_for(lambda: game.clock_picture() != wide, "the clock to run again")
    desktop.key("Down")  # paints the board
    wait_for(lambda: game.board().ink(1, 1) >= shown * 0.9, "the numbers to come back")
    print("ok: Pause and Reset need no mouse", flush=True)


def press_button(game, index):
    middle = 4 + index * 63 + 28
    game.desktop.xdotool("mousemove", "--window", game.window, middle,
                         game.board().top - TOOLBAR + 16, "click", 1)


def click_game(game):
    game.desktop.xdotool("mousemove", "--window", game.window, 25, 10, "click", 1)
    wait_for(lambda: popups(game.desktop), "the menu to open")


def sign_that_stuck(desktop, game):
    ways = {"a click on Game": lambda: click_game(game),
            "Alt+G": lambda: desktop.key("alt+g"),
            "the clock's menu": lambda: desktop.key("alt+g", "Left")}
    for name, open_menu in ways.items():
        for box in "ctrl+b", "ctrl+t":
            game.click(3, 1)
            desktop.key("5")
            open_menu()
            desktop.key("Escape")
            wait_for(lambda: not popups(desktop), "the menu to close")
            desktop.key(box)
            desktop.answer("Escape", other_than=[game.window])
            game.focus()
            press_button(game, 3)
            expect(cell(game, 3, 1) == "3", f"{name}, {box}: a press places the number alone")


def toolbar_picture(game):
    top = game.board().top
    return game.picture().crop((0, top - TOOLBAR, 700, top - 4)).tobytes()


def leave_for(desktop, game, other):
    """Gives the keyboard to another program's window. The toolkit takes no note of that for a moment,
    in case it comes straight back; two ticks of the clock are longer."""
    desktop.focus(other)
    game.wait_for_a_tick()
    game.wait_for_a_tick()


def held_elsewhere(desktop, game):
    """What is pressed and let go over another program's window nobody tells this one."""
    window = desktop.root.create_window(0, 0, 60, 40, 0, X.CopyFromParent)
    window.map()
    other = str(window.id)
    wait_for(lambda: other in desktop.managed_windows(), "the other window")
    game.click(3, 1)  # takes the pointer off the toolbar
    plain = toolbar_picture(game)
    for modifier in "shift", "ctrl":
        leave_for(desktop, game, other)
        desktop.xdotool("keydown", modifier)
        game.focus()
        expect(toolbar_picture(game) != plain,
               f"{modifier}, held when the window gets the keyboard, shows its sign")
        leave_for(desktop, game, other)
        desktop.xdotool("keyup", modifier)
        game.focus()
        expect(toolbar_picture(game) == plain, "which goes when it has come up elsewhere")
    window.destroy()
    desktop.server.sync()
    game.focus()


def modifiers_alone(desktop, game):
    game.click(3, 1)
    desktop.key("5", "Tab", "Tab", "Tab", "shift+Tab")
    game.click(9, 9)  # a key that tells what is there would press the button
    expect(cell(game, 3, 1) == "5", "Tab and Shift+Tab place nothing")
    game.click(3, 1)
    desktop.key("Tab", "Tab", "Tab", "Tab", "alt+g")
    expect(popups(desktop), "Alt+G on a button opens the menu")
    desktop.key("Escape")
    expect(cell(game, 3, 1) == "5", "and places nothing")


def boxes_of_screens(desktop, game):
    for title, keys, press in (("^Statistics$", ["alt+s"], ["alt+c"]),
                               ("^Solutions$", ["alt+h", "s"], ["shift+Tab", "space"])):
        game.focus()
        game.click(3, 1)
        game.menu(*keys)
        screen = desktop.dialog(title)
        desktop.key(*press)
        known = [game.window, screen]
        box = wait_for(lambda: next((w for w in desktop.managed_windows() if w not in known), None),
                       "the box of the screen")
        owner = desktop.is_box(box)
        expect(owner and str(owner.id) == screen, f"{title}: its box stands over it")
        desktop.focus(box)
        desktop.key("Escape")
        desktop.gone(box)
        wait_for(lambda: desktop.focused() in known, "a window to be in front again")
        expect(desktop.focused() == screen, "that is the screen that asked")
        selected = [game.board().fill(*place) == SELECTED_FILL for place in ((3, 1), (9, 9))]
        desktop.key("Escape")
        desktop.gone(screen)
        expect(selected == [True, False], f"{title}: Escape is the screen's, not the board's")


def start_with_screens(desktop, program, game):
    game.menu("alt+s")
    desktop.dialog("^Statistics$")
    game.menu("alt+g", "c")
    Configure(desktop)
    expect(game.end("alt+n") == 0, "two screens are left open")
    game = Game(desktop, program, behind_a_box=True)  # which is not brought to the front
    for title in "^Statistics$", "^Configure$":
        wait_for(lambda name=title: desktop.windows(name), "the screens to come back")
    wait_for(lambda: desktop.focused() == game.window, "the main window to get the keyboard")
    desktop.key("Down", "Right")
    wait_for(lambda: game.board().fill(2, 1) == SELECTED_FILL, "the first keys to be the board's")
    print("ok: the board has the keyboard after a start with screens", flush=True)
    expect(game.end() == 0, "the program ends well")


def start_with_screens_and_a_lost_game(desktop, program):
    """The question stands before the screens, and after it the board has the keyboard."""
    game = Game(desktop, program, behind_a_box=True)
    game.focus()
    game.paste(PUZZLE)
    wait_for(desktop.game_is_kept, "it to be kept")
    game.process.kill()
    game.process.wait()
    game = Game(desktop, program, behind_a_box=True)
    for title in "^Statistics$", "^Configure$":
        wait_for(lambda name=title: desktop.windows(name), "the screens to come back")
    box = wait_for(lambda: next((w for w in desktop.windows("^Kelvarine$")
                                 if desktop.is_box(w) and w != game.window), None), "the question")
    wait_for(lambda: desktop.focused() == box, "the question to have the keyboard")
    desktop.key("alt+y")
    desktop.gone(box)
    wait_for(lambda: desktop.focused() == game.window, "the main window to get the keyboard")
    desktop.key("Down", "Right")
    wait_for(lambda: game.board().fill(2, 1) == SELECTED_FILL, "the first keys to be the board's")
    expect(game.copy_line() == PUZZLE, "the lost game is back, beside the screens")
    expect(game.end("alt+n") == 0, "the program ends well")


def main():
    program = sys.argv[1]
    with Desktop() as desktop:
        game = Game(desktop, program)
        game.resize(*SIZE)
        game.paste(PUZZLE)
        walk(desktop, game)
        open_late(desktop, game)
        pause(desktop, game)
        sign_that_stuck(desktop, game)
        held_elsewhere(desktop, game)
        modifiers_alone(desktop, game)
        boxes_of_screens(desktop, game)
        start_with_screens(desktop, program, game)
        start_with_screens_and_a_lost_game(desktop, program)
    print("keyboard: all as it should be")


if __name__ == "__main__":
    main()
