"""An independent host of preference panes, SystemPreferences, shows and leaves the pane again and again."""

import pathlib
import re
import signal
import subprocess
import time
import unittest

from session import HIDE_LIST, PANE, SOLO_SORTER, Session, wait_until

PROGRAM = "/usr/lib/GNUstep/Applications/SystemPreferences.app/SystemPreferences"
ITS_PANES = pathlib.Path("/usr/lib/GNUstep/Bundles")

# Where things lie in its window, and the pane in it, in pixels from the left and the top.
FIRST_ICON = (52, 78)
ICON_PITCH = (80, 87)
ICONS_IN_A_ROW = 7
SHOW_ALL = (40, 21)
FIRST_CHECK_BOX = (523, 383)
HEIGHT_WITH_THE_PANE = 600


class SystemPreferencesTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Atlas": False, "Books": True}})
        (self.session.home / "GNUstep/Library/Bundles" / PANE.name).symlink_to(PANE)
        self.log = self.session.folder / "log"
        with open(self.log, "w") as log:
            self.host = subprocess.Popen([PROGRAM, "-NSExceptionHandlerMask", "1"], env=self.session.environment,
                                         stdout=log, stderr=log)
        wait_until(lambda: self.geometry("System Preferences"), "the window")

    def test_shows_and_leaves_the_pane_again_and_again(self):
        for atlas in (True, False, True):
            self.show_pane()
            self.click(FIRST_CHECK_BOX)
            self.leave_pane()
            self.assertEqual(self.session.domain(SOLO_SORTER), {HIDE_LIST: {"Atlas": atlas, "Books": True}})
        self.assertEqual(self.errors(), [])

    def test_saves_the_edit_when_it_is_terminated(self):
        self.show_pane()
        self.click(FIRST_CHECK_BOX)

        self.host.send_signal(signal.SIGTERM)
        self.refuse_to_check()

        self.assertEqual(self.host.wait(20), 0)
        self.assertEqual(self.session.domain(SOLO_SORTER)[HIDE_LIST], {"Atlas": True, "Books": True})
        self.assertEqual(self.errors(), [])

    # --- What the user does

    def show_pane(self):
        self.click(self.icon())
        wait_until(lambda: self.geometry("System Preferences")[3] >= HEIGHT_WITH_THE_PANE, "the pane")
        time.sleep(0.5)  # the window takes clicks only once it is drawn, and tells nobody when that is

    def leave_pane(self):
        self.click(SHOW_ALL)
        self.refuse_to_check()
        wait_until(lambda: self.geometry("System Preferences")[3] < HEIGHT_WITH_THE_PANE, "the icons")

    def refuse_to_check(self):
        # This host has no registrar, and the pane says so whenever it is left.
        wait_until(lambda: self.geometry("Critical"), "the alert")

        def gone():
            subprocess.run(["xdotool", "key", "Escape"], env=self.session.environment, check=True)
            time.sleep(0.3)
            return not self.geometry("Critical")

        wait_until(gone, "the end of the alert")

    def icon(self):
        before = sum(label < "Sorter" for label in self.labels())
        return tuple(first + pitch * index for first, pitch, index in
                     zip(FIRST_ICON, ICON_PITCH, (before % ICONS_IN_A_ROW, before // ICONS_IN_A_ROW)))

    @staticmethod
    def labels():
        for information in ITS_PANES.glob("*.prefPane/Resources/Info-gnustep.plist"):
            found = re.search(r'NSPrefPaneIconLabel\s*=\s*"?([^";]+)', information.read_text())
            if found:
                yield found.group(1)

    def click(self, place):
        left, top, _, _ = self.geometry("System Preferences")
        command = ["mousemove", left + place[0], top + place[1], "sleep", 0.2, "mousedown", 1, "sleep", 0.15,
                   "mouseup", 1, "sleep", 0.2]
        subprocess.run(["xdotool", *map(str, command)], env=self.session.environment, check=True)

    # --- What is on the screen

    def geometry(self, title):
        """Left, top, width and height of the visible window of that title; nothing without one."""
        told = subprocess.run(["xwininfo", "-name", title], env=self.session.environment, capture_output=True, text=True)
        if told.returncode != 0 or "IsViewable" not in told.stdout:
            return None
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return [int(re.search(rf"{name}:\s+(-?\d+)", told.stdout).group(1)) for name in names]

    def errors(self):
        expected = "ERROR: SorterPlugin is not available!"
        return [line for line in self.log.read_text().splitlines() if expected not in line]


if __name__ == "__main__":
    unittest.main()
