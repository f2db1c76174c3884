"""A host that a test accompanies while it plays, and Sorters beside it: real processes in a test's own session."""

import os
import pathlib
import pwd
import subprocess
import unittest

from session import BUILD, QUARRYBOOK, SOLO_SORTER, SORTER, Session, wait_until

EMBEDDED_SORTER = "Z3K8WQ4N7P.quarry2.QuarrybookSorter"
HOST_BUNDLE = BUILD / "bin/Quarrybook.app"
SORTER_NAMES = {
    SORTER: "PlugIns/SorterPlugin.bundle/Quarrybook Sorter",
    SOLO_SORTER: "PlugIns/SorterPlugin.bundle/Quarrybook Solo Sorter",
    EMBEDDED_SORTER: f"Contents/Library/LoginItems/{EMBEDDED_SORTER}",
}

FULL = ["--edition", "full"]
SOLO = ["--edition", "solo"]
ORDINARY_BUILDS = ((FULL, SORTER), (SOLO, SOLO_SORTER))
SANDBOXED_BUILDS = ((["--sandboxed", *FULL], EMBEDDED_SORTER), (["--sandboxed", *SOLO], EMBEDDED_SORTER))
BUILDS = ORDINARY_BUILDS + SANDBOXED_BUILDS


def program_of(identifier):
    bundle = HOST_BUNDLE / (SORTER_NAMES[identifier] + ".app")
    return bundle / bundle.stem


def hot_key(code, modifiers):
    """How a Sorter tells of the "Take Note" hot key that it read."""
    return f"Sorter.NoteHotKeyCode={code} Sorter.NoteHotKeyModifiers={modifiers}"


class Host:
    """A host in the middle of its scenario. What it prints goes to a file, which a Sorter that outlives it may keep."""

    def __init__(self, session, *command):
        self.output = session.folder / f"host{len(list(session.folder.glob('host*')))}"
        with open(self.output, "w") as output:
            self.process = subprocess.Popen([str(word) for word in command], env=session.environment, stdout=output,
                                            stderr=subprocess.STDOUT)

    def lines(self):
        return self.output.read_text().splitlines()

    def reach(self, line):
        wait_until(lambda: f"> {line}" in self.lines() or self.process.poll(), f"'{line}'")
        assert f"> {line}" in self.lines(), self.output.read_text()

    def finish(self):
        """Waits for the end of the scenario; answers the lines. Fails unless it was played to the end."""
        wait_until(lambda: self.process.poll() is not None, "the end of the host")
        assert self.process.returncode == 0, self.output.read_text()
        return self.lines()


class SorterTest(unittest.TestCase):
    """Each test in a session of its own; nothing is written outside of it."""

    def setUp(self):
        before = files_outside()
        self.addCleanup(lambda: self.assertEqual(files_outside(), before))
        self.session = self.enterContext(Session())

    def each_build(self, builds=BUILDS):
        """Options of the host and the identifier of its Sorter, for each build."""
        for options, identifier in builds:
            with self.subTest(options=options):
                self.log_file().unlink(missing_ok=True)
                yield options, identifier

    # --- Processes

    def play(self, *lines, options=()):
        """Plays the lines to the end; Sorters that it started go on."""
        return self.begin(*lines, options=options).finish()

    def begin(self, *lines, options=()):
        return Host(self.session, QUARRYBOOK, *options, "--play", self.session.scenario(*lines))

    def start_by_hand(self, identifier, **environment):
        """Starts that Sorter as a user would; answers when it listens."""
        before = self.log().count(f"started {identifier}")
        process = subprocess.Popen([program_of(identifier)], env=self.session.environment | environment,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        self.wait_for_start(identifier, before + 1)
        return process

    def wait_for_start(self, identifier, times=1):
        """Waits until that Sorter was started so many times, and all that were started have come to listen."""
        wait_until(lambda: self.log().count(f"started {identifier}") == times
                   and len(self.told("settings")) == len(self.told("started")), f"the start of {identifier}")

    def sorters(self, identifier):
        """The numbers of the processes that run that Sorter."""
        return [process for process in self.session.living() if executable_of(process) == str(program_of(identifier))]

    def wait_for_end(self, identifier):
        wait_until(lambda: not self.sorters(identifier), f"the end of {identifier}")

    # --- What the Sorters tell

    def log_file(self):
        return self.session.home / ".local/state/quarrybook/sorter.log"

    def log(self):
        return self.log_file().read_text().splitlines() if self.log_file().exists() else []

    def told(self, name):
        return [line for line in self.log() if line.startswith(f"{name} ")]

    def wait_told(self, name, *parts):
        """Waits until a line of that name holds all the parts."""
        try:
            wait_until(lambda: any(all(part in line for part in parts) for line in self.told(name)), name)
        except AssertionError as error:
            raise AssertionError("\n".join([f"{error}, with {parts}; the log:", *self.log()])) from error


def executable_of(process):
    try:
        return os.readlink(f"/proc/{process}/exe")
    except OSError:
        return None


def files_outside():
    """What the programs would write if they took no notice of their session."""
    home = pathlib.Path(pwd.getpwuid(os.getuid()).pw_dir)
    own = [home / "GNUstep", home / ".config/autostart", home / ".local/share/com.quarrybook.SorterPane",
           home / ".local/share/Group Containers", home / ".local/state/quarrybook"]
    stamped = {path: path.stat().st_mtime_ns for folder in own for path in [folder, *folder.rglob("*")]
               if path.exists()}
    return stamped, set(BUILD.glob("*")) | set((BUILD / "bin").rglob("*"))
