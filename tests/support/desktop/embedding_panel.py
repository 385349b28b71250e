"""A real panel that embeds the windows of programs as icons."""

import subprocess

from desktop import processes


class EmbeddingPanel:
    """One panel, in the upper right corner."""

    def __init__(self):
        self._process = None

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *reason):
        self.stop()

    def start(self):
        self._process = processes.start(
            ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request",
             "--height", "24"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        processes.end(self._process)
