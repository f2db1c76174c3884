"""The stand-in host and the pane in it, used with the keyboard."""

import unittest

from controls import Controls
from host import Host
from session import HIDE_LIST, QUARRYBOOK, SORTER, Session, wait_until


class KeyboardTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False, "Books": False}})
        self.controls = Controls(self.session, "hideAppsTable")
        self.host = Host(self.session, QUARRYBOOK, *self.controls.options)

    def test_goes_through_the_pane_into_the_bar_and_back(self):
        self.controls.click(self.shows_pane, "the pane", title="Sorter")
        box = {"name": "hideAppsTable", "column": "2", "row": 0}
        self.controls.click(lambda: self.controls.find(**box, value="1"), "the box to be ticked", **box)

        self.press("b", "space")
        self.controls.wait_for(name="hideAppsTable", column="2", row=1, value="1")

        self.press("Tab", "Tab", "Tab", "space")
        wait_until(lambda: not self.shows_pane(), "the other page", self.controls.summary)
        self.assertEqual(self.session.domain(SORTER)[HIDE_LIST], {"Atlas": True, "Books": True})

        self.press("Tab", "space")
        wait_until(self.shows_pane, "the pane", self.controls.summary)

    def shows_pane(self):
        return self.controls.find(name="hideAppsTable")

    def press(self, *keys):
        for key in keys:
            self.host.wait_until_idle()
            self.session.run("xdotool", "key", key)
        self.host.wait_until_idle()


if __name__ == "__main__":
    unittest.main()
