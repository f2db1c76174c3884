"""Sorters beside a host: real processes in a test's own session."""

import os
import pathlib
import pwd
import subprocess
import unittest

from controls import Controls
from host import Host
from session import BUILD, SOLO_SORTER, SORTER, Session, wait_until

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
    """How a Sorter writes the "Take Note" hot key that it read."""
    return f"Sorter.NoteHotKeyCode={code} Sorter.NoteHotKeyModifiers={modifiers}"


class SorterTest(unittest.TestCase):
    """Each test in a session of its own; nothing is written outside of it."""

    def setUp(self):
        before = files_outside()
        self.addCleanup(lambda: self.assertEqual(files_outside(), before))
        self.session = self.enterContext(Session())
        self.controls = Controls(self.session, "clipHotKeyRecorder", "noteHotKeyRecorder", "toggleLaunchButton")

    def each_build(self, builds=BUILDS):
        """The host's options and the identifier of its Sorter, for each build."""
        for options, identifier in builds:
            with self.subTest(options=options):
                self.log_file().unlink(missing_ok=True)
                yield options, identifier

    # --- Processes

    def play(self, *lines, options=()):
        """Plays the lines to the end; returns what the host printed. Sorters that it started go on."""
        return self.begin(*lines, options=options).finish()

    def begin(self, *lines, options=()):
        """Starts a host that plays the lines, and whose controls can be found."""
        return Host.playing(self.session, *lines, options=[*options, *self.controls.options])

    def start_by_hand(self, identifier, **environment):
        """Starts that Sorter as a user would; returns its process once it listens."""
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
                   and len(self.logged("settings")) == len(self.logged("started")),
                   f"{identifier} to have started {times} times", self.printed_log)

    def sorters(self, identifier):
        """The numbers of the processes that run that Sorter."""
        return [process for process in self.session.living() if executable_of(process) == str(program_of(identifier))]

    def wait_for_end(self, identifier):
        wait_until(lambda: not self.sorters(identifier), f"the end of {identifier}", lambda: self.sorters(identifier))

    # --- What the Sorters log

    def log_file(self):
        return self.session.home / ".local/state/quarrybook/sorter.log"

    def log(self):
        return self.log_file().read_text().splitlines() if self.log_file().exists() else []

    def printed_log(self):
        return "\n".join(["the log:", *self.log()])

    def logged(self, name):
        """The lines of that name."""
        return [line for line in self.log() if line.startswith(f"{name} ")]

    def wait_logged(self, name, *parts):
        """Waits until a line of that name holds all the parts."""
        wait_until(lambda: any(all(part in line for part in parts) for line in self.logged(name)),
                   f"a line {name} with {parts}", self.printed_log)


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
