"""What a page of the course bids its reader do, in the order in which it says so, taken from the words
that the reader sees. Nothing of a page is told here but the forms of its sentences."""

import re

BREAK = "\u2028"  # the end of a line within a paragraph

# Every form of a bidding by the name of the deed.
FORMS = {name: re.compile(form) for name, form in {
    "copy": r"Copy this game",
    "paste": r"press (?P<key>Ctrl\+V) on the board",
    "select": r"On the toolbar press the wide button at the left until it reads (?P<mode>[^,]+), "
              r"then the button (?P<button>\w+)",
    "press": r"(?:then|Press) the key (?P<key>\w)\b",
    "menu": r"Menu (?P<menu>\w+), (?P<entry>\w+)",
    "tick_only": r"[Tt]ick (?P<captions>[^.:]+?) in the column (?P<column>\w+), and nothing else",
    "tick": r"tick (?P<captions>[^.:]+?) in the column (?P<column>\w+)\.",
    "logic": r"[Pp]ress (?P<key>Ctrl\+L)\b",
    "no_hint": r'press (?P<key>H) once before you begin: "(?P<words>[^"]+)"',
    "hint": r'or press (?P<key>H)\. The game says "(?P<first>[^"]+)" Answer (?P<answer>\w+), and it says '
            r'"(?P<second>[^"]+)" Answer (?P=answer) again:\n(?P<title>.+)' + BREAK + r"(?P<words>.+)\n",
    "ring": r"A red ring comes around (?P<cell>[A-J][1-9])",
    "reason": r"Select (?P<cell>[A-J][1-9]) and press (?P<key>A)\. The game says:\n(?P<title>.+)" + BREAK
              + r"(?P<words>.+)\n",
    "ring_goes": r"Take the pencilmark out with (?P<strike>\w+) and its digit, and the ring goes",
    "untick": r"Untick the box again",
    "how_to_step": r"Then press (?P<hint>H) and answer (?P<answer>\w+) twice\. To strike a pencilmark out, "
                   r"select its cell and press (?P<strike>\w+) and the digit",
    "step": r"\n(?P<title>[^\n.]+)\. (?P<words>[^\n" + BREAK + r"]+)" + BREAK
            + r"Strike out (?P<struck>the [1-9] in [A-J][1-9](?:, the [1-9] in [A-J][1-9])*), "
              r"and press (?P<logic>Ctrl\+L)\b",
    "solved": r"After the last one Ctrl\+L fills in the rest, and the game is solved",
}.items()}

# Words that bid something, in whatever form.
BIDDING = re.compile(r"\b(press|tick|untick|select|answer|copy|strike|menu|key|type|click)\b", re.IGNORECASE)


def deeds(text):
    """The biddings of a text as pairs of a deed's name and its words, and what is left of the text."""
    found, left, place = [], "", 0
    while True:
        matches = [(match.start(), name, match) for name, form in FORMS.items()
                   if (match := form.search(text, place))]
        if not matches:
            return found, left + text[place:]
        start, name, match = min(matches, key=lambda one: one[0])
        found.append((name, match.groupdict()))
        left += text[place:start]
        place = match.end()


class Lesson:
    """A lesson by the text of its page."""

    def __init__(self, text):
        self.title = text.splitlines()[0]
        idea, try_it = text.split("\nTry it\n")
        self.game = "".join(re.findall(r"^[.1-9]{9}$", try_it, re.MULTILINE))
        self.deeds, left = deeds(try_it)
        self.not_understood = BIDDING.findall(left)
        begun, _ = deeds(idea)
        if any(name == "no_hint" for name, _ in begun):
            # The steps stand above, and below them the game to do them with, first of all a key.
            begun.sort(key=lambda deed: deed[0] != "no_hint")
            place = [name for name, _ in self.deeds].index("paste") + 1
            self.deeds[place:place] = begun


def title_of(line):
    """The title of a lesson within the title of its page, "Lesson 1: Rules and houses"."""
    return line.partition(": ")[2]


def titles(course):
    """The titles of all lessons, of which the page of the course has a list, in order."""
    lines = [line.strip() for line in course.splitlines()[1:]]
    return [line for line in lines if line and not line.endswith(".")]


def answer_to_saving(course):
    """What the page of the course says to answer where a lesson's game takes the place of another."""
    return re.search(r"whether to save the one before, answer (\w+)", course)[1]
