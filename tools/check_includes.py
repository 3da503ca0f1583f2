#!/usr/bin/python3
"""Proves the doors between the rooms: who may include whom, and that the engine knows no Qt.

The rooms stand in an order, and a file may include its own room and lower ones, without exception.
"""

import pathlib
import re
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent / "src"

# Lower rooms first.
ORDER = ("grid", "outside", "logic", "generator", "game", "board", "files",
         "print", "configure", "commands", "input", "program", "paint", "ui")
LEVEL = {room: level for level, room in enumerate(ORDER)}

# The rooms that know the toolkit.
DESKTOP = ("paint", "ui")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.M)


def room_of(path):
    return path.relative_to(SOURCE).parts[0]


def complaints(path):
    room = room_of(path)
    if room not in LEVEL:
        yield f"{room} is no room of the house"
        return
    for own, system in INCLUDE.findall(path.read_text(encoding="utf-8")):
        if system and re.match(r"Q[A-Z]|Qt", system) and room not in DESKTOP:
            yield f"the engine includes <{system}>"
        if not own:
            continue
        target = own.split("/")[0]
        if target not in LEVEL:
            yield f'includes "{own}", which names no room'
        elif target != room and LEVEL[target] >= LEVEL[room]:
            yield f'includes "{own}" from a room that is not below it'


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
