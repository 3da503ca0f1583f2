#!/usr/bin/python3
"""The later lessons of the help's course, played as their pages say: fish, wings, chains, alerts, and a
hard game from start to end."""

import sys

from assistive import on_own_bus
from desktop import Desktop
from reader import FIRST_LESSONS, Reader


def main():
    with Desktop() as desktop:
        Reader(desktop, sys.argv[1]).play_all(lambda titles: titles[FIRST_LESSONS:])
    print("later lessons: all as the help says")


if __name__ == "__main__":
    on_own_bus()
    main()
