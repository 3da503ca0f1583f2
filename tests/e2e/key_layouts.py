#!/usr/bin/python3
"""Presses the digit row and the keypad by key code under several keyboard layouts, with NumLock on
and off and with every modifier sum that means something, and looks at what arrives."""

import subprocess
import sys

from desktop import Desktop, wait_for

DIGIT_ROW = {10 + k: 49 + k for k in range(9)} | {19: 48}
KEYPAD = {79: 103, 80: 104, 81: 105, 83: 100, 84: 101, 85: 102, 87: 97, 88: 98, 89: 99, 90: 96}
MODIFIER_KEYS = {1: 50, 2: 37, 4: 64}  # Shift, Ctrl, Alt by key code
SUMS = [0, 1, 2, 3, 5, 6]
LAYOUTS = ["us", "de", "fr", "dvorak"]
NUM_LOCK = 77


def num_lock_is_on(desktop):
    return "Num Lock:    on" in desktop.run("xset", "q").decode()


def press_all(desktop, keys, modifier_sum):
    held = [code for bit, code in MODIFIER_KEYS.items() if modifier_sum & bit]
    words = []
    for code in held:
        words += ["keydown", code]
    words += ["key", "--delay", "4", *keys]
    for code in reversed(held):
        words += ["keyup", code]
    desktop.xdotool(*words)


def read_digits(probe, count):
    """The next events of digit keys; the modifier keys' own events are passed over."""
    events = []
    while len(events) < count:
        code, modifiers = map(int, probe.stdout.readline().split())
        if 48 <= code <= 57 or 96 <= code <= 105:
            events.append((code, modifiers))
    return events


def main():
    keys = DIGIT_ROW | KEYPAD
    pressed = 0
    with Desktop(400, 300) as desktop:
        probe = desktop.start([sys.argv[1]], stdout=subprocess.PIPE, text=True)
        window = wait_for(lambda: next(iter(desktop.windows("^Key probe")), None), "the probe")
        desktop.focus(window)
        for layout in LAYOUTS:
            desktop.run("setxkbmap", layout)
            for num_lock in (False, True):
                if num_lock_is_on(desktop) != num_lock:
                    desktop.xdotool("key", NUM_LOCK)
                wait_for(lambda: num_lock_is_on(desktop) == num_lock, "NumLock to change")
                for modifier_sum in SUMS:
                    press_all(desktop, list(keys), modifier_sum)
                    expected = [(code, modifier_sum) for code in keys.values()]
                    got = read_digits(probe, len(keys))
                    if got != expected:
                        raise AssertionError(
                            f"{layout}, NumLock {num_lock}, modifiers {modifier_sum}: "
                            f"{[(g, e) for g, e in zip(got, expected) if g != e]}")
                    pressed += len(keys)
    print(f"{pressed} keys arrived as they should")


if __name__ == "__main__":
    main()
