"""A host that a test accompanies while it plays."""

import signal
import subprocess

from session import QUARRYBOOK, wait_until, wait_until_idle


class Host:
    """A running host. What it prints goes to a file: a Sorter that outlives the host may keep that open."""

    def __init__(self, session, *command):
        self.output = session.folder / f"host{len(list(session.folder.glob('host*')))}"
        with open(self.output, "w") as output:
            self.process = subprocess.Popen([str(word) for word in command], env=session.environment, stdout=output,
                                            stderr=subprocess.STDOUT)

    @classmethod
    def playing(cls, session, *lines, options=()):
        """The stand-in host, which plays the lines."""
        return cls(session, QUARRYBOOK, *options, "--play", session.scenario(*lines))

    def printed(self):
        return self.output.read_text()

    def lines(self):
        return self.printed().splitlines()

    def reach(self, line):
        """Waits until the host plays that line."""
        wait_until(lambda: f"> {line}" in self.lines() or self.process.poll(), f"'{line}'", self.printed)
        assert f"> {line}" in self.lines(), f"the host ended before '{line}':\n{self.printed()}"

    def wait_until_idle(self):
        wait_until_idle(self.process.pid)

    def wait_for_end(self):
        """Waits for the host's end; returns its status."""
        wait_until(lambda: self.process.poll() is not None, "the end of the host", self.printed)
        return self.process.returncode

    def finish(self):
        """Waits for the host's end; returns the lines that it printed. Fails unless it ended with success."""
        self.wait_for_end()
        assert self.process.returncode == 0, f"the host ended with {self.process.returncode}:\n{self.printed()}"
        return self.lines()

    def terminate(self):
        """Asks the host to end once it rests, and finishes.

        AppKit handles the signal where it interrupts, and may hang when that is in the middle of something.
        """
        self.wait_until_idle()
        self.process.send_signal(signal.SIGTERM)
        return self.finish()
