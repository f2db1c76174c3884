"""The stand-in host, used with the mouse."""

import unittest

from controls import Controls
from host import Host
from session import QUARRYBOOK, Session


class MouseTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.controls = Controls(self.session, "visibilityButton")
        self.host = Host(self.session, QUARRYBOOK, *self.controls.options)

    def test_takes_a_first_click_however_short(self):
        self.controls.wait_for(name="visibilityButton", value="1")

        self.controls.click_once(name="visibilityButton")

        self.controls.wait_for(name="visibilityButton", value="")


if __name__ == "__main__":
    unittest.main()
