"""How the demo shows what happened: headings, a table, the log in its colours, and the checks."""

import re
import sys

BLACK, BLUE, GREEN, OTHER = "black", "blue", "green", "other"
_ANSI = {BLACK: "1", BLUE: "1;34", GREEN: "32", OTHER: "0"}
_MARKS = {True: "✓", False: "✗"}


class Report:
    """Prints as the demo goes along, and counts the checks. Colours are for terminals; elsewhere
    the margin names them."""

    def __init__(self):
        self._is_terminal = sys.stdout.isatty()
        self._passed = 0
        self._failed = 0

    def heading(self, text):
        self.say("\n" + self._painted(text, "1"))

    def say(self, text=""):
        print(text, flush=True)

    def check(self, sentence, held, otherwise=""):
        """One line. `otherwise` says what was found in place of what the sentence says."""
        self._passed += bool(held)
        self._failed += not held
        self.say(f"ok - {sentence}" if held else f"not ok - {sentence}")
        if not held and otherwise:
            self.say("\n".join(f"# {line}" for line in str(otherwise).splitlines()))

    def table(self, traces, kept):
        self.say(f"  {'what goes':38}{'before':>8}{'after':>8}")
        for trace in traces:
            self.say(f"{self._mark(trace.held)} {trace.title:38}{trace.before:8}{trace.after:8}")
        self.say(f"\n  {'what stays':38}{'before':>8}{'after':>8}")
        for thing in kept:
            before = len(thing.before.splitlines())
            after = len(thing.after.splitlines())
            told = "" if thing.held else "  changed"
            self.say(f"{self._mark(thing.held)} {thing.title:38}{before:8}{after:8}{told}")

    def log(self, pieces):
        """Pairs of a text and its colour."""
        for line, colour in lines_of(pieces):
            self.say(f"  {colour:6}| " + self._painted(line, _ANSI[colour]))

    def end(self):
        """Prints the sums. True if everything held."""
        self.say(f"\n{self._passed} passed, {self._failed} failed")
        return self._failed == 0

    def _mark(self, held):
        return self._painted(_MARKS[held], "1;32" if held else "1;31")

    def _painted(self, text, code):
        return f"\033[{code}m{text}\033[0m" if self._is_terminal else text


def lines_of(pieces):
    """The log's lines with the colour of their text, empty ones left out. The pieces may be cut
    anywhere."""
    lines, text, colour = [], "", OTHER
    for piece, painted in pieces:
        for letter in piece.replace("\r\n", "\n").replace("\u2029", "\n"):
            if letter == "\n":
                lines.append((text, colour))
                text, colour = "", OTHER
            else:
                text += letter
                colour = painted
    return [line for line in [*lines, (text, colour)] if line[0]]


def role_of(colour):
    """Which of the log's colours "0,0,255" is a shade of; a dark desktop has others than a light
    one. Toolkits differ in whether "rgb()" is around the numbers."""
    numbers = [int(number) for number in re.findall(r"\d+", colour)]
    if len(numbers) != 3:
        return OTHER
    red, green, blue = numbers
    if blue > green and blue > red:
        return BLUE
    if green > blue and green > red:
        return GREEN
    return BLACK if red == green == blue else OTHER
