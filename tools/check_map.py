#!/usr/bin/python3
"""Holds the map against the house: every header and every global of src/ is named in ARCHITECTURE.md or
on its room's page, what both name is there, and the table of who links what is what the build does."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCE = ROOT / "src"
BUILD = ROOT / "build/release"
MAP = ROOT / "ARCHITECTURE.md"
PAGE = "README.md"  # of a room

GLOBAL = re.compile(r"^extern\s[^;(]*?(\w+)(?:\[\w*\])?;", re.M)
QUOTED = re.compile(r"`([^`\n]+)`")
FENCE = re.compile(r"^```.*?^```", re.M | re.S)
IDENTIFIER = re.compile(r"[A-Za-z_]\w*$")
PATH = re.compile(r"[\w.*<>-]+(/[\w.*<>-]+)+/?$|[\w-]+\.(h|cpp|py|txt|md)$")
LINKS = re.compile(r"^\| `(\w+)` \| (engine|engine and desktop|neither) \|$", re.M)

# Words in the map's quotes that are no names of this house: the toolkit's, the language's, the system's,
# and forms that names have.
FOREIGN = {"LikeThis", "likeThis", "likeThis_", "mnu", "cmd", "opt", "chk", "txt", "cmb", "hsb", "vsb",
           "lbl", "tmr", "pic", "frm",
           "extern", "constexpr", "static_assert", "closeEvent", "ctest", "debug", "sanitize", "fuzz",
           "player", "release"}


def rooms():
    return [path for path in sorted(SOURCE.iterdir()) if path.is_dir()]


def text_of(path):
    return path.read_text(encoding="utf-8") if path.exists() else ""


def words_of_the_tree():
    """Every word that stands in the code, scripts and build files."""
    words = set()
    for top in ("src", "tests", "tools", "benchmarks", "data/help", "packaging"):
        for path in (ROOT / top).rglob("*"):
            if path.is_file() and path.suffix not in (".wav", ".png", ".svg", ".md"):
                words.update(re.findall(r"\w+", path.read_text(encoding="utf-8", errors="ignore")))
    for path in (ROOT / "CMakeLists.txt", ROOT / "CMakePresets.json", ROOT / "check", ROOT / "play"):
        words.update(re.findall(r"\w+", path.read_text(encoding="utf-8")))
    return words


def unnamed(room):
    """Headers and globals of a room that neither the map nor the room's page names."""
    named = " ".join(QUOTED.findall(text_of(MAP) + text_of(room / PAGE)))
    for header in sorted(room.rglob("*.h")):
        if not re.search(rf"(^|[\s/]){re.escape(header.name)}(\s|$)", named):
            yield f"{header.relative_to(ROOT)} is on no map"
        for name in GLOBAL.findall(text_of(header)):
            if not re.search(rf"\b{name}\b", named):
                yield f"{name} of {header.relative_to(ROOT)} is on no map"


def exists(path, page):
    """True for a path from the root, from src/ or from the page, with wildcards as they stand."""
    form = re.sub(r"<\w+>", "*", path).rstrip("/")
    bases = (ROOT, SOURCE, page.parent)
    return form.startswith("build/") or any(
        next(base.glob(form), None) or next(base.rglob(form), None) for base in bases)


def gone(page, words):
    """Names on a page that nothing in the tree answers to."""
    for quoted in QUOTED.findall(FENCE.sub("", text_of(page))):
        name = quoted.removesuffix("()")
        if PATH.match(name):
            if not exists(name, page):
                yield f"{page.relative_to(ROOT)} names {name}, which is not there"
        elif IDENTIFIER.match(name) and name not in words and name not in FOREIGN:
            yield f"{page.relative_to(ROOT)} names {name}, which nothing is called"


def linked():
    """What each program of the build links, by its link line."""
    programs = {}
    for line in text_of(BUILD / "build.ninja").splitlines():
        match = re.match(r"build (\S+): CXX_EXECUTABLE_LINKER__(\w+)_Release (.*)", line)
        if match:
            engine = "libkelvarine_engine.a" in match[3]
            desktop = "libkelvarine_desktop.a" in match[3]
            programs[match[2]] = ("engine and desktop" if desktop else "engine") if engine else "neither"
    return programs


def wrong_links():
    told, built = dict(LINKS.findall(text_of(MAP))), linked()
    if not built:
        yield f"there is no build in {BUILD.relative_to(ROOT)} to hold the map against"
    for program, what in built.items():
        if told.get(program) != what:
            yield f"{program} links {what}; the map says {told.get(program, 'nothing of it')}"
    for program in told.keys() - built.keys():
        yield f"the map tells what {program} links, which is not built"


def main():
    words = words_of_the_tree() | linked().keys()
    complaints = [complaint for room in rooms() for complaint in unnamed(room)]
    for page in (MAP, *(room / PAGE for room in rooms())):
        complaints += gone(page, words)
    complaints += wrong_links()
    print(*complaints, sep="\n")
    print(f"the map is {'wrong at ' + str(len(complaints)) + ' places' if complaints else 'right'}")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
