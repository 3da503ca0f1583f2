#!/usr/bin/python3
"""Proves the doors between the rooms: who may include whom, and that the engine knows no Qt.

The rooms stand in an order, and a file may include its own room and lower ones, without exception.
"""

import pathlib
import re
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent / "src"

# Lower rooms first. Rooms in one row are neighbours that do not include each other.
ORDER = [
    ["grid"],
    ["outside"],
    ["logic"],
    ["generator"],
    ["game"],
    ["board"],
    ["files"],
    ["print"],
    ["configure"],
    ["commands"],
    ["input"],
    ["program"],
    ["ui"],
]
LEVEL = {room: level for level, rooms in enumerate(ORDER) for room in rooms}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.M)


def may_draw(path):
    return path.parent.name == "ui" or path.stem.endswith("_painter")


def complaints(path):
    room = path.parent.name
    if room not in LEVEL:
        yield f"{room} is no room of the house"
        return
    for own, system in INCLUDE.findall(path.read_text(encoding="utf-8")):
        if system and re.match(r"Q[A-Z]|Qt", system) and not may_draw(path):
            yield f"the engine includes <{system}>"
        if not own:
            continue
        target = own.split("/")[0]
        if target not in LEVEL:
            yield f'includes "{own}", which names no room'
        elif target != room and LEVEL[target] >= LEVEL[room]:
            yield f'includes "{own}" from a room that is not below it'
        if target == "ui" or own.endswith("_painter.h"):
            if not may_draw(path):
                yield f'the engine includes "{own}"'


def main():
    files = sorted(p for p in SOURCE.rglob("*") if p.suffix in (".h", ".cpp"))
    found = 0
    for path in files:
        for complaint in complaints(path):
            found += 1
            print(f"{path.relative_to(SOURCE)}: {complaint}")
    print(f"{len(files)} files, {found} closed doors forced")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
