#!/usr/bin/python3
"""Lessons of the help's course under a dark desktop and at two pixels of the screen to one of the program,
played as their pages say. The page of each is photographed part by part, for eyes."""

import sys

from assistive import on_own_bus
from dark import make_dark
from desktop import Desktop, expect, save_picture
from reader import Reader

# Ratio, whether dark, and which lesson is played, from 0: groups, the two yellows of chains, alerts.
LOOKS = (1, False, 0), (2, False, 4), (1, True, 8), (2, True, 9)
DESKTOP = 1800, 1400  # at a ratio of one
PALE = 160  # from here on a grey is a light one


def share_of_light(picture):
    """Share of the light pixels of a picture."""
    counts = picture.convert("L").histogram()
    return sum(counts[PALE:]) / sum(counts)


def photograph(reader, name):
    """Pictures of the page on view from its start to its end; the share of light in each."""
    desktop = reader.desktop
    lights = []
    former = None
    desktop.key("Home")
    while True:
        picture = desktop.picture_of(reader.help)
        if former is not None and picture.tobytes() == former:
            return lights
        former = picture.tobytes()
        lights.append(share_of_light(picture))
        save_picture(picture, f"{name}-{len(lights)}")
        desktop.key("Next")


def main(program):
    for ratio, dark, number in LOOKS:
        name = f"lesson-{'dark' if dark else 'light'}-{ratio}"
        print(name, flush=True)
        with Desktop(*(side * ratio for side in DESKTOP)) as desktop:
            desktop.environment["QT_SCALE_FACTOR"] = str(ratio)
            if dark:
                make_dark(desktop)
            reader = Reader(desktop, program, ratio)
            titles = reader.open_course()
            reader.open_lesson(titles[number])
            lights = photograph(reader, name)
            expect(all((light < 0.5) == dark for light in lights),
                   f"page and pictures are {'dark' if dark else 'light'}: {lights}")
            desktop.key("Home")
            reader.play(titles[number], closing=True)
    print("lessons in every look: all as the help says")


if __name__ == "__main__":
    on_own_bus()
    main(sys.argv[1])
