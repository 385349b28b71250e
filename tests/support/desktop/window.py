"""The program's window, used as its user would use it."""

import subprocess
import time

from desktop import settings
from desktop.accessible import AREA, BUTTON, CHECK_BOX, LABEL, TAB, TEXT, wait_for
from desktop.waiting import PATIENCE, wait_until

TITLE = "Zelvane v1.0"
PAGES = ("Main", "Clean Internet", "Clean Computer", "Popup Killer", "File Security", "Schedule")
CLEANING_PAGES = ("Clean Internet", "Clean Computer")
RECYCLE_BIN = ("Settings", "Index5")  # where its tick is stored
CLEAN = "Clean Computer and Internet"
PRESSED_AGAIN = 2  # seconds, after which a key counts as unheard


class Window:
    """Every search starts at the window anew, and waits for what it looks for."""

    def __init__(self, frame, pid, home, desktop):
        self._frame = frame
        self._pid = pid
        self._home = home
        self._desktop = desktop

    @property
    def title(self):
        return self._frame.name

    @property
    def page(self):
        """The caption of the page in front."""
        return next(tab.name for tab in self._frame.all(TAB) if tab.is_current)

    def turn_to(self, page):
        if self.page != page:
            self.find(TAB, page).press()
            wait_for(lambda: self.page == page, f"the page \"{page}\" is in front")

    def find(self, role, name):
        return wait_for(lambda: self._frame.find(role, name), f"{role} \"{name}\" is showing")

    def all(self, role):
        """All that is showing of that role."""
        return self._frame.all(role)

    def parts(self):
        """All that is showing."""
        return list(self._frame.parts())

    @property
    def role(self):
        return self._frame.role

    def press(self, caption):
        self.find(BUTTON, caption).press()

    def press_at_once(self, *captions):
        """One after the other, without asking the window for anything between them."""
        for button in [self.find(BUTTON, caption) for caption in captions]:
            button.press()

    def is_ticked(self, caption):
        return self.find(CHECK_BOX, caption).is_ticked

    def tick(self, caption, ticked=True):
        """Leaves the box on the page in front ticked, or not."""
        self.set_ticks({caption: ticked})

    def set_ticks(self, wanted):
        """Leaves the boxes on the page in front as wanted: captions, and whether ticked."""
        def boxes():
            found = {box.name: box for box in self.all(CHECK_BOX)}
            return [(found[caption], ticked) for caption, ticked in wanted.items()]
        for box, ticked in wait_for(boxes, f"these boxes are showing: {list(wanted)}"):
            if box.is_ticked != ticked:
                box.press()
        wait_for(lambda: all(box.is_ticked == ticked for box, ticked in boxes()),
                 f"the boxes are ticked so: {wanted}")

    def tick_only(self, *captions):
        """Of what the cleaning pages offer, leaves only that ticked."""
        for page in CLEANING_PAGES:
            self.turn_to(page)
            self.set_ticks({box.name: box.name in captions for box in self.all(CHECK_BOX)})

    def ticks(self):
        """Whether each box of the first page and the cleaning pages is ticked, by its caption."""
        boxes = {}
        for page in ("Main", *CLEANING_PAGES):
            self.turn_to(page)
            boxes.update((box.name, box.is_ticked) for box in self.all(CHECK_BOX))
        return boxes

    def says(self, text):
        """Whether a label does."""
        return any(label.name == text for label in self.all(LABEL))

    @property
    def log(self):
        """The box of text that is read only."""
        return wait_for(lambda: next((box for box in self.all(TEXT) if box.is_multi_line), None),
                        "the log is showing")

    @property
    def home_page(self):
        """The box of text that is written in."""
        return wait_for(lambda: next((box for box in self.all(TEXT) if box.is_editable), None),
                        "the box for the home page is showing")

    def clean(self, seconds=PATIENCE):
        """Presses the big button, waits for the end of the run, and returns the log's text. Once in
        a program's life: nothing tells the end of a second run from that of the first."""
        self.begin_to_clean()
        return self.end_of_run(seconds)

    def begin_to_clean(self):
        self._refuse_to_empty_real_trash()
        self.turn_to("Main")
        self.press(CLEAN)

    def end_of_run(self, seconds=PATIENCE):
        """Waits for it and returns the log's text."""
        wait_for(lambda: self.log.text().endswith("\nDone"), "the log ends with \"Done\"", seconds)
        wait_for(lambda: self.says("Ready"), "the status line says \"Ready\"")
        return self.log.text()

    def focused(self):
        """What the next key goes to, or None. Qt 6.4 says so of the current tab at all times, and
        of the plain areas around and inside the one that is meant."""
        parts = [part for part in self.parts() if part.role != TAB and part.is_focused]
        return next((part for part in parts if part.role != AREA), parts[-1] if parts else None)

    def close(self):
        """Uses the close box, by its key, and waits until the window has left the screen. A window
        manager that has just started does not listen to its keys yet; so it is pressed again."""
        self.come_forward()
        pressed = float("-inf")

        def gone():
            nonlocal pressed
            if self.is_on_screen and time.monotonic() - pressed > PRESSED_AGAIN:
                self._desktop.key("alt+F4")
                pressed = time.monotonic()
            return not self.is_on_screen
        wait_until(gone, "the window leaves the screen")

    def come_forward(self):
        """Brings the window to the front, as a task bar does."""
        subprocess.run(["xdotool", "windowactivate", str(self.number)], check=True,
                       timeout=PATIENCE)
        wait_for(lambda: self._frame.is_active, "the window has the keys")

    def _refuse_to_empty_real_trash(self):
        # What the program has stored is believed here, not what its window shows.
        if not self._desktop.hides_foreign_trash:
            wait_for(lambda: settings.stored(self._home, *RECYCLE_BIN) == "0",
                     "the recycle bin is stored as not to be emptied, with real trash within reach")

    @property
    def is_on_screen(self):
        return bool(self._numbers("--onlyvisible"))

    @property
    def has_task_button(self):
        """A hidden window is unknown to the window manager; a minimised one is known, and has a
        button in the task bar."""
        return subprocess.run(["xdotool", "get_desktop_for_window", str(self.number)],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=PATIENCE).returncode == 0

    @property
    def number(self):
        """The display's number of the window, which it also has while it is minimised."""
        return wait_for(self._numbers, "the window is known to the display")[-1]

    def _numbers(self, *limits):
        found = subprocess.run(["xdotool", "search", *limits, "--all", "--pid", str(self._pid),
                                "--name", f"^{TITLE}$"],
                               capture_output=True, text=True, timeout=PATIENCE)
        return [int(number) for number in found.stdout.split()]
