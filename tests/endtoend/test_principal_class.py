"""The plug-in's principal class, asked for the pane's operations by name."""

import os
import unittest

from session import HIDE_LIST, PANE, SOLO_SORTER, SORTER, Session


class PrincipalClassTest(unittest.TestCase):
    def test_has_the_operations_of_the_pane(self):
        session = self.enterContext(Session())
        session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Atlas": True}})
        session.set_domain(SORTER, {HIDE_LIST: {"Books": True}, "other": 1})

        asked = session.run(os.environ["ASKING_HOST"], "-Pane", PANE)

        self.assertEqual((asked.returncode, asked.stdout.splitlines()),
                         (0, ["updateToggleButtonTitle: Show", "appIsPresentInLoginItems: NO",
                              "sorterAppURL: Z3K8WQ4N7P.quarry2.QuarrybookSorter.app", "loginItemRegistrar: (null)"]))
        self.assertIn("ERROR: Failed to start Sorter: ", asked.stderr)
        self.assertEqual(session.domain(SORTER), {"other": 1})
        self.assertEqual(session.domain(SOLO_SORTER), {HIDE_LIST: {"Atlas": True}})


if __name__ == "__main__":
    unittest.main()
