"""Desktops that are not like the other tests' own: no window manager, a Wayland session, a user without any rights but
those in the home. (The home of each test has a space and letters beyond ASCII in its path.)"""

import os
import re
import shutil
import subprocess
import unittest

from controls import Controls
from host import Host
from session import BUILD, HIDE_LIST, PANE, SORTER, Session, act_until, wait_until

NOBODY = 65534
FIRST_CHECK_BOX = {"name": "hideAppsTable", "column": "2", "row": 0}


class BareSession(Session):
    """Without a window manager."""

    def _start_window_manager(self):
        pass


class WaylandSession(Session):
    """A Wayland compositor, which shows X's windows by Xwayland and manages them itself. Its screen is a window on an
    ordinary display: without a screen, it has no keyboard and no pointer either."""

    compositor = None

    def _start_window_manager(self):
        super()._start_window_manager()
        self.screen = self.environment["DISPLAY"]
        (self.folder / "wayland").mkdir(mode=0o700)
        self.start_compositor()

    def start_compositor(self):
        """Starts it unless it runs: weston 14 crashes now and then."""
        self.environment["DISPLAY"] = wait_until(self._xwayland, "Xwayland", lambda: self.compositor.poll())[1]

    def _xwayland(self):
        folder = self.folder / "wayland"
        log = folder / "log"
        if self.compositor and self.compositor.poll() is None:
            return re.search("listening on display (:[0-9]+)", log.read_text() if log.exists() else "")
        log.unlink(missing_ok=True)
        # The usual shell of weston 14 crashes on GNUstep's windows.
        command = ["weston", "--backend=x11-backend.so", "--use-pixman", "--shell=kiosk-shell.so", "--xwayland",
                   "--no-config", "--width=1200", "--height=900", f"--log={log}"]
        self.compositor = subprocess.Popen(
            command, env=os.environ | {"XDG_RUNTIME_DIR": str(folder), "DISPLAY": self.screen},
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return None

    def end(self):
        if self.compositor:
            self.compositor.terminate()  # if killed, it leaves the display's lock behind
            self.compositor.wait()
        super().end()


class DesktopTest(unittest.TestCase):
    def begin(self, session):
        self.session = self.enterContext(session)
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})

    def is_saved(self):
        return self.session.domain(SORTER) == {HIDE_LIST: {"Atlas": True}}

    def test_a_display_without_a_window_manager_is_enough_and_the_host_says_what_it_lacks(self):
        self.begin(BareSession())
        controls = Controls(self.session, "hideAppsTable")
        host = Host.playing(self.session, "select", "wait 60", options=controls.options)

        controls.click(lambda: controls.find(**FIRST_CHECK_BOX, value="1"), "a tick", **FIRST_CHECK_BOX)

        printed = [line for line in host.terminate() if line.startswith("Quarrybook: ")]
        self.assertEqual(len(printed), 1, printed)
        self.assertTrue(printed[0].startswith("Quarrybook: no window manager runs on this display"), printed)
        self.assertTrue(self.is_saved())

    def test_a_wayland_session_shows_the_pane_through_xwayland(self):
        self.begin(WaylandSession())
        printed = []

        def tick():
            self.session.start_compositor()
            # The click counts only once the compositor has given the window the focus.
            host = Host.playing(self.session, "select", "wait 0.5", "edit 2 0 1", "unselect")
            host.process.wait()
            printed.extend(host.lines())
            return True

        act_until(tick, self.is_saved, "the tick to be saved", lambda: printed)

        self.assertEqual([line for line in printed if line.startswith("Quarrybook: ")], [])

    def test_a_user_who_may_write_nothing_but_the_home_can_work(self):
        self.begin(Session())
        self.copy_programs()

        played = self.session.run(*self.as_nobody(), self.session.folder / "bin/Quarrybook.app/Quarrybook", "--play",
                                  self.session.scenario("select", "edit 2 0 1", "unselect"))

        self.assertEqual(played.returncode, 0, played.stderr)
        self.assertTrue(self.is_saved())

    # Those of the build may lie where only the tests' own user finds them.
    def copy_programs(self):
        programs = self.session.folder / "bin"
        shutil.copytree(PANE, self.session.folder / PANE.name, symlinks=True)
        shutil.copytree(BUILD / "bin/Quarrybook.app", programs / "Quarrybook.app", symlinks=True)
        subprocess.run(["chmod", "-R", "a-w,a+rX", programs, self.session.folder / PANE.name], check=True)
        self.addCleanup(subprocess.run, ["chmod", "-R", "u+w", programs, self.session.folder / PANE.name], check=True)

    # What is not writable is writable for root.
    def as_nobody(self):
        if os.getuid() != 0:
            return []
        for path in (self.session.folder, self.session.home, self.session.temp):
            subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", path], check=True)
        # GNUstep must find the folder that it is started in.
        return ["env", f"--chdir={self.session.folder}", "setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}",
                "--clear-groups"]


if __name__ == "__main__":
    unittest.main()
