"""An independent host of preference panes, SystemPreferences, shows and leaves the pane again and again."""

import os
import shutil
import unittest

from controls import Controls
from host import Host
from session import HIDE_LIST, PANE, SOLO_SORTER, Session, wait_until

# The plug-in of a sanitized build needs a library that this program was not built with.
PROGRAM = ["env", "LD_PRELOAD=" + os.environ["FOREIGN_HOST_PRELOAD"],
           os.path.realpath(shutil.which("SystemPreferences"))]
FIRST_CHECK_BOX = {"name": "hideAppsTable", "column": "2", "row": 0}
# AppKit says that it loaded what finds the controls, and the pane that this host has no registrar.
EXPECTED = ("user defined AppKit bundles", "Loaded '", "ERROR: SorterPlugin is not available!")


class SystemPreferencesTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Atlas": False, "Books": True}})
        (self.session.home / "GNUstep/Library/Bundles" / PANE.name).symlink_to(PANE)
        self.controls = Controls(self.session, "hideAppsTable")
        self.host = self.start()

    def start(self):
        return Host(self.session, *PROGRAM, "-NSExceptionHandlerMask", "1", *self.controls.options)

    def test_shows_and_leaves_the_pane_again_and_again(self):
        for atlas in (True, False, True):
            self.show_pane()
            self.click_first_check_box(atlas)
            self.leave_pane()
            self.assertEqual(self.session.domain(SOLO_SORTER), {HIDE_LIST: {"Atlas": atlas, "Books": True}})
        self.assertEqual(self.unexpected_lines(), [])

    def test_saves_the_edit_when_it_is_terminated(self):
        self.show_pane()
        self.click_first_check_box(True)

        self.host.wait_until_idle()  # as Host.terminate() does
        self.host.process.terminate()
        self.controls.wait_for(title="Cancel")
        self.click_cancel(lambda: self.host.process.poll() is not None, "the end of the host")

        self.assertEqual(self.session.domain(SOLO_SORTER)[HIDE_LIST], {"Atlas": True, "Books": True})
        self.assert_ends_like(self.host_that_showed_no_pane())

    def test_lets_the_keyboard_alone_reach_every_control_again_and_again(self):
        self.show_pane()

        self.press("Tab", "Tab", "space")
        wait_until(self.tab_is_invisible, "the box \"Full\" to be turned off", self.host.printed)

        self.press("Tab", "Tab", "Tab", "space")
        self.controls.wait_for(**FIRST_CHECK_BOX, value="1")

        # This host has nothing that takes keys but the pane.
        self.press("Tab", "Tab", "Tab", "space")
        self.controls.wait_for(title="Start Sorter at login", value="1")

    # --- What the user does

    def press(self, *keys):
        self.host.wait_until_idle()
        for key in keys:
            self.session.run("xdotool", "key", key)
            self.host.wait_until_idle()

    def tab_is_invisible(self):
        return any(self.session.domain(file.stem).get("SorterTabIsInvisible")
                   for file in self.session.defaults.glob("*.plist"))

    def show_pane(self):
        self.controls.click(lambda: self.controls.find(name="hideAppsTable"), "the pane", title="Sorter")

    def click_first_check_box(self, ticked):
        self.controls.click(lambda: self.controls.find(**FIRST_CHECK_BOX, value=str(int(ticked))),
                            f"the check box to be ticked: {ticked}", **FIRST_CHECK_BOX)

    def leave_pane(self):
        # This host has no registrar, and the pane says so whenever it is left.
        self.controls.click(lambda: self.controls.find(title="Cancel"), "the alert", title="Show All")
        self.click_cancel(lambda: self.controls.find(title="Sorter"), "the icons")

    def click_cancel(self, effect, what):
        self.controls.click(effect, what, title="Cancel")

    # --- What the host says

    def host_that_showed_no_pane(self):
        """One that was terminated. In some builds of GNUstep, freeing the menu at the end aborts this host."""
        host = self.start()
        self.controls.wait_for(title="Sorter")
        host.wait_until_idle()
        host.process.terminate()
        return host

    def assert_ends_like(self, other):
        self.assertEqual(self.host.wait_for_end(), other.wait_for_end())
        self.assertEqual(self.unexpected_lines(), self.unexpected_lines(other))

    def unexpected_lines(self, host=None):
        lines = (host or self.host).lines()
        return [line for line in lines if not any(words in line for words in EXPECTED)]


if __name__ == "__main__":
    unittest.main()
