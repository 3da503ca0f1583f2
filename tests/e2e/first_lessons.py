#!/usr/bin/python3
"""The first lessons of the help's course, played as their pages say: from the rules to where two houses
cross. The later ones have a story of their own, so that both can run at the same time."""

import sys

from assistive import on_own_bus
from desktop import Desktop
from reader import FIRST_LESSONS, Reader


def main():
    with Desktop() as desktop:
        Reader(desktop, sys.argv[1]).play_all(lambda titles: titles[:FIRST_LESSONS])
    print("first lessons: all as the help says")


if __name__ == "__main__":
    on_own_bus()
    main()
