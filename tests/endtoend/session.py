"""A desktop session of a test's own: home, defaults, notification daemon, display. Nothing of it is left afterwards."""

import functools
import json
import os
import pathlib
import plistlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

BUILD = pathlib.Path(os.environ["BUILD_FOLDER"])
QUARRYBOOK = BUILD / "bin/Quarrybook.app/Quarrybook"
PANE = BUILD / "SorterPane.prefPane"
HOST = "Quarrybook"
SORTER = "com.quarrybook.Sorter"
SOLO_SORTER = "com.quarrybook.SoloSorter"
HIDE_LIST = "UserSpecifiedFullScreenApplications"
LIMIT = 20  # seconds
ATTEMPT = 2  # seconds in which a click or a key that was not lost has its effect
TIME_BETWEEN_LOOKS = 0.02
LOOKS_AT_A_CLEARED_SESSION = 3
LOOKS_AT_AN_IDLE_PROCESS = 5
TIME_OF_AN_IDLE_PROCESS = 0.01  # seconds that it runs between these looks: it may have a timer
WINDOW_MANAGER = pathlib.Path(__file__).resolve().parents[2] / "scripts/openbox.xml"


def wait_until(condition, what, seen=None):
    """Returns the first true value of the condition, which is in words: `what`.

    Fails when none comes in time, and says what was awaited and what there was last: what `seen` returns.
    """
    return value_within(LIMIT, condition) or fail(what, seen)


def act_until(act, effect, what, seen=None):
    """Acts until that has the effect, again when an act is lost. An act returns false when it could not be done yet.

    Returns and fails as wait_until() does.
    """
    deadline = time.monotonic() + LIMIT
    while time.monotonic() < deadline:
        value = value_within(ATTEMPT if act() else 0, effect)
        if value:
            return value
    return fail(what, seen)


def value_within(seconds, condition):
    """The first true value of the condition, else the last."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value or time.monotonic() > deadline:
            return value
        time.sleep(TIME_BETWEEN_LOOKS)


def fail(what, seen):
    there_was = f"; last there was {seen()}" if seen else ""
    raise AssertionError(f"waited {LIMIT} s in vain for {what}{there_was}")


def configuration_of_all_users():
    """GNUstep's. The build knows where it is; asking GNUstep each time takes as long as starting a test."""
    known = os.environ.get("GNUSTEP_CONFIGURATION")
    return pathlib.Path(known or subprocess.check_output(["gnustep-config", "--variable=GNUSTEP_CONFIG_FILE"],
                                                         text=True).strip())


class Session:
    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qb.", dir="/tmp"))
        self.home = self.folder / "Zoë Müller's home"
        self.defaults = self.home / "GNUstep/Defaults"
        self.temp = self.folder / "t"
        self.environment = self._environment()
        for folder in (self.defaults, self.home / "GNUstep/Library/Bundles", self.temp):
            folder.mkdir(parents=True)
        self._write_configuration()
        self.server = None
        self.manager = None

    def __enter__(self):
        try:
            self._start_display()
            self._start_window_manager()
        except BaseException:
            self.end()
            raise
        return self

    def __exit__(self, *_):
        self.end()

    # --- What programs see

    def _environment(self):
        kept = {name: value for name, value in os.environ.items()
                if not name.startswith(("GNUSTEP_", "XDG_", "QUARRYBOOK_"))}
        return kept | {
            "HOME": str(self.home),
            "TEMP": str(self.temp),
            "GNUSTEP_CONFIG_FILE": str(self.folder / "GNUstep.conf"),
            "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_STATE_HOME": str(self.home / ".local/state"),
            "LC_ALL": "C.UTF-8",
        }

    def _write_configuration(self):
        own = {
            "GNUSTEP_USER_CONFIG_FILE": "",
            "GNUSTEP_USER_DEFAULTS_DIR": self.defaults,
            "GNUSTEP_USER_DIR_LIBRARY": self.home / "GNUstep/Library",
            "GNUSTEP_USER_DIR_APPS": self.home / "GNUstep/Applications",
        }
        text = configuration_of_all_users().read_text()
        for name, value in own.items():
            text = re.sub(rf"(?m)^{name}=.*$", f'{name}="{value}"', text)
        configuration = self.folder / "GNUstep.conf"
        configuration.write_text(text)
        configuration.chmod(0o600)  # GNUstep takes no notice of one that others could write

    def _start_display(self):
        reader, writer = os.pipe()
        command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x1000x24", "-nolisten", "tcp",
                   "-extension", "GLX",  # whose library takes longer to load than all the rest
                   "-noreset"]  # else the server starts over whenever its last client goes
        self.server = subprocess.Popen(command, pass_fds=[writer], stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            self.environment["DISPLAY"] = ":" + numbers.readline().strip()

    def _start_window_manager(self):
        managed = self.folder / "managed"
        self.manager = subprocess.Popen(["openbox", "--config-file", WINDOW_MANAGER, "--startup", f"touch {managed}"],
                                        env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(managed.exists, "the window manager", lambda: f"status {self.manager.poll()}")

    # --- Programs

    def run(self, *command):
        return subprocess.run([str(word) for word in command], env=self.environment, text=True,
                              capture_output=True, timeout=60)

    def scenario(self, *lines):
        path = self.folder / "test.scenario"
        path.write_text("\n".join(lines) + "\n")
        return path

    def play(self, *lines, options=()):
        """Plays the lines in the host; returns what it printed. Fails unless it was played to the end."""
        played = self.run(QUARRYBOOK, *options, "--play", self.scenario(*lines))
        assert played.returncode == 0, played.stdout + played.stderr
        return played.stdout

    def answers(self, *lines, options=()):
        """The answers of the commands, in order."""
        return [line[2:] for line in self.play(*lines, options=options).splitlines() if line.startswith("= ")]

    # --- Stores

    def domain_file(self, domain):
        return self.defaults / f"{self._host_domain if domain == HOST else domain}.plist"

    @functools.cached_property
    def _host_domain(self):
        """The stand-in host's own domain, which each release of GNUstep names in its own way."""
        return self.run(os.environ["OWN_DOMAIN"]).stdout.strip()

    def domain(self, domain):
        with open(self.domain_file(domain), "rb") as file:
            return plistlib.load(file)

    def set_domain(self, domain, contents):
        with open(self.domain_file(domain), "wb") as file:
            plistlib.dump(contents, file)

    # --- The end

    def _processes(self):
        mark = f"TEMP={self.temp}".encode()
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if mark in (folder / "environ").read_bytes().split(b"\0"):
                    yield int(folder.name)
            except OSError:
                pass

    def processes_named(self, name):
        return [process for process in self.living() if read_process_file(process, "comm").strip() == name]

    def end(self):
        # A process that is just being started has no environment for a moment, and shows up only at a later look.
        looks = []
        wait_until(lambda: self._is_clear_again(looks), "the end of all processes of the session", self.living)
        for program in filter(None, (self.manager, self.server)):
            program.kill()
            program.wait()
        shutil.rmtree(self.folder)

    def _is_clear_again(self, looks):
        looks.append(self._is_cleared())
        return len(looks) >= LOOKS_AT_A_CLEARED_SESSION and all(looks[-LOOKS_AT_A_CLEARED_SESSION:])

    def _is_cleared(self):
        living = self.living()
        for process in living:
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
        return not living

    def living(self):
        return [process for process in self._processes() if is_alive(process)]


def word(path):
    """The path as a word of a scenario."""
    return json.dumps(str(path), ensure_ascii=False)


def read_process_file(process, name):
    """What the system says of a process; nothing once it has gone."""
    try:
        return pathlib.Path(f"/proc/{process}/{name}").read_text()
    except OSError:
        return ""


def wait_until_idle(process):
    """Waits until the process has slept at some looks in a row and hardly run between them, as one does whose events
    are all handled. One that has ended is idle."""
    looks = []

    def is_idle():
        looks.append(look_at(process))
        latest = looks[-LOOKS_AT_AN_IDLE_PROCESS:]
        return (len(latest) == LOOKS_AT_AN_IDLE_PROCESS and all(sleeps for sleeps, _ in latest)
                and latest[-1][1] - latest[0][1] < TIME_OF_AN_IDLE_PROCESS)

    wait_until(is_idle, f"process {process} to be idle", lambda: looks[-LOOKS_AT_AN_IDLE_PROCESS:])


def look_at(process):
    """Whether the process sleeps, and the seconds for which it has run."""
    time_run = read_process_file(process, "schedstat").split()[:1] or ["0"]
    return "\nState:\tR" not in read_process_file(process, "status"), int(time_run[0]) / 1e9


def is_alive(process):
    status = read_process_file(process, "status")
    return bool(status) and "\nState:\tZ" not in status
