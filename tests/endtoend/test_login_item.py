"""The Sorter's login item, an autostart entry: the check box shows what a desktop would do, also after a restart."""

import json
import shlex
import subprocess
import unittest

from real_sorter import FULL, ORDINARY_BUILDS, SANDBOXED_BUILDS, SorterTest, program_of
from session import SORTER

SWITCHED_OFF = ("Hidden=true", "X-GNOME-Autostart-enabled=false")


class LoginItemTest(SorterTest):
    def test_survives_a_restart_of_the_host_until_it_is_taken_back(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS):
            lines = self.play("select", "state", "set showAtLoginCheckbox 1", "unselect", options=options)
            self.assertEqual(check_box_in(lines), 0)
            self.assert_is_honoured(identifier)

            lines = self.play("select", "state", "set showAtLoginCheckbox 0", "unselect", options=options)
            self.assertEqual(check_box_in(lines), 1)
            self.assertFalse(self.entry(identifier).exists())
            self.assertEqual(self.check_box(options), 0)

    def test_of_the_sandboxed_build_comes_and_goes_with_the_button(self):
        for options, identifier in self.each_build(SANDBOXED_BUILDS):
            self.play("select", "toggle", "until toggleLaunchButton Quit", "unselect", options=options)
            self.wait_for_start(identifier)
            self.assert_is_honoured(identifier)

            lines = self.play("select", "state", "toggle", "until toggleLaunchButton Show", "unselect", "select",
                              "state", "unselect", options=options)
            self.assertEqual(check_boxes_in(lines), [1, 0])
            self.assertFalse(self.entry(identifier).exists())

    def test_starts_the_sorter_at_login(self):
        self.play("select", "set showAtLoginCheckbox 1", "unselect")

        # As a desktop does it.
        login = subprocess.Popen(self.command_line(SORTER), env=self.session.environment, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL)
        self.addCleanup(login.wait)
        self.addCleanup(login.kill)

        self.wait_for_start(SORTER)
        self.play("select", "until toggleLaunchButton Quit", options=FULL)

    def test_that_the_user_switched_off_counts_as_none_and_is_left_alone(self):
        self.play("select", "set showAtLoginCheckbox 1", "unselect")
        entry = self.entry(SORTER)
        for line in SWITCHED_OFF:
            with self.subTest(line=line):
                kept = [each for each in entry.read_text().splitlines() if not each.startswith(line.split("=")[0])]
                switched_off = "\n".join([*kept, line, ""])
                entry.write_text(switched_off)

                self.assertEqual(self.check_box(), 0)

                self.assertEqual(entry.read_text(), switched_off)
                lines = self.play("select", "set showAtLoginCheckbox 1", "unselect", "select", "state", "unselect")
                self.assertEqual(check_box_in(lines), 1)
                self.assert_is_honoured(SORTER)

    def test_whose_addition_is_refused_opens_an_alert_whose_check_button_reaches_the_registrar(self):
        self.session.environment["QUARRYBOOK_REGISTRAR_REFUSES"] = "1"

        for options, identifier in self.each_build(ORDINARY_BUILDS):
            lines = self.play("select", "set showAtLoginCheckbox 1", "unselect", "press Check", "state", "select",
                              "unselect", "press Cancel", options=options)

            self.assertEqual(lines.count("showAccountsSystemPreferencePane"), 1)
            self.assertLess(lines.index("> press Check"), lines.index("showAccountsSystemPreferencePane"))
            self.assertEqual(check_box_in(lines), 0)
            self.assertFalse(self.entry(identifier).exists())

    def test_whose_removal_is_refused_opens_an_alert_and_stays(self):
        self.play("select", "set showAtLoginCheckbox 1", "unselect")
        self.session.environment["QUARRYBOOK_REGISTRAR_REFUSES"] = "1"

        lines = self.play("select", "set showAtLoginCheckbox 0", "unselect", "press Cancel", "state", "select",
                          "unselect", "press Cancel")

        self.assertNotIn("showAccountsSystemPreferencePane", lines)
        self.assertEqual(check_box_in(lines), 1)
        self.assert_is_honoured(SORTER)

    def test_that_cannot_be_written_opens_an_alert(self):
        in_its_way = self.session.home / ".config/autostart"
        in_its_way.parent.mkdir(exist_ok=True)
        in_its_way.write_text("no folder")

        lines = self.play("select", "set showAtLoginCheckbox 1", "unselect", "press Cancel", "state")

        self.assertEqual(check_box_in(lines), 0)
        self.assertEqual(in_its_way.read_text(), "no folder")

    # --- What a desktop sees

    def entry(self, identifier):
        return self.session.home / f".config/autostart/{identifier}.desktop"

    def command_line(self, identifier):
        values = dict(line.split("=", 1) for line in self.entry(identifier).read_text().splitlines() if "=" in line)
        return shlex.split(values["Exec"])

    def assert_is_honoured(self, identifier):
        judged = subprocess.run(["desktop-file-validate", self.entry(identifier)], capture_output=True, text=True)
        self.assertEqual((judged.returncode, judged.stdout + judged.stderr), (0, ""))
        self.assertEqual(self.command_line(identifier), [str(program_of(identifier))])
        self.assertFalse(any(line in self.entry(identifier).read_text() for line in SWITCHED_OFF))

    def check_box(self, options=()):
        """What a new host shows."""
        return check_box_in(self.play("select", "state", "unselect", options=options))


def check_box_in(lines):
    """The state of the check box that was printed first."""
    return check_boxes_in(lines)[0]


def check_boxes_in(lines):
    printed = [line.split(": ", 1)[1] for line in lines if line.startswith("showAtLoginCheckbox: ")]
    return [json.loads(state)["state"] for state in printed]


if __name__ == "__main__":
    unittest.main()
