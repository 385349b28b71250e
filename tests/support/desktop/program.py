"""The real program, started as its user would start it."""

import subprocess

from desktop import accessible, processes
from desktop.accessible import DIALOG, LABEL, wait_for
from desktop.waiting import wait_until
from desktop.window import TITLE, Window


class Program:
    """One started program. Ends with the `with` block at the latest."""

    def __init__(self, path, desktop, home, arguments=(), environment=None):
        self._desktop = desktop
        self._home = home
        self._log = open(home.runtime / "program.log", "ab")
        self._process = processes.start(
            [str(path), *arguments], env={**desktop.environment(home), **(environment or {})},
            cwd=home.home,
            stdin=subprocess.DEVNULL, stdout=self._log, stderr=self._log)

    def __enter__(self):
        return self

    def __exit__(self, *reason):
        processes.end(self._process)
        self._log.close()

    @property
    def pid(self):
        return self._process.pid

    @property
    def is_running(self):
        return self._process.poll() is None

    def window(self):
        """Its window, once it is there to be used."""
        def shown():
            for part in self._application().children():
                if part.name == TITLE and part.is_showing:
                    return Window(part, self.pid, self._home, self._desktop)
            return None
        return wait_for(shown, f"the program shows its window \"{TITLE}\"")

    def message(self):
        """The box with a message that it shows, once it is there."""
        def shown():
            boxes = [part for part in self._application().parts() if part.role in DIALOG]
            return Message(boxes[0]) if boxes else None
        return wait_for(shown, "the program shows a message")

    def tell_to_quit(self):
        """As the end of the session does to a program that has not gone by itself."""
        self._process.terminate()

    def end_status(self):
        """Waits for its end and returns its exit status, negative for a signal."""
        wait_until(lambda: not self.is_running, "the program ends")
        return self._process.returncode

    def kill(self):
        """Ends it as a power cut would."""
        self._process.kill()
        self._process.wait()

    def _application(self):
        if not self.is_running:
            raise AssertionError(f"The program ended with status {self._process.returncode}.")
        return accessible.application(self.pid)


class Message:
    """A box that tells something and waits for its button."""

    def __init__(self, box):
        self._box = box

    @property
    def title(self):
        return self._box.name

    @property
    def text(self):
        return "\n".join(label.name for label in self._box.all(LABEL) if label.name)

    @property
    def buttons(self):
        return [button.name for button in self._box.all(accessible.BUTTON)]

    def press(self, caption):
        self._box.find(accessible.BUTTON, caption).press()
