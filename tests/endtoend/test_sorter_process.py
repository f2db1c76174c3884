"""The Sorter's process and the button that starts and quits it: the title says whether the process runs."""

import json
import pathlib
import shutil
import signal
import subprocess
import time
import unittest

from real_sorter import ORDINARY_BUILDS, SANDBOXED_BUILDS, SorterTest, executable_of
from session import SORTER, wait_until

LONGEST_ANSWER = 5


class SorterProcessTest(SorterTest):
    def test_the_button_starts_and_quits_the_sorter_and_its_title_follows(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS + SANDBOXED_BUILDS[1:]):
            self.play("select", "until toggleLaunchButton Show", "toggle", "until toggleLaunchButton Quit",
                      options=options)
            self.wait_for_start(identifier)
            self.assertEqual(len(self.sorters(identifier)), 1)

            self.play("select", "until toggleLaunchButton Quit", "toggle", "until toggleLaunchButton Show",
                      options=options)

            self.wait_for_end(identifier)
            self.assertEqual(self.log()[-1], "quitting")

    def test_one_that_was_started_elsewhere_counts_as_running_and_quits_with_success(self):
        for options, identifier in self.each_build((ORDINARY_BUILDS[1], SANDBOXED_BUILDS[0])):
            sorter = self.start_by_hand(identifier)

            self.play("select", "until toggleLaunchButton Quit", "toggle", "until toggleLaunchButton Show",
                      options=options)

            self.assertEqual(sorter.wait(20), 0)
            self.assertEqual(self.log()[-1], "quitting")

    def test_one_of_another_edition_or_build_does_not_count(self):
        self.start_by_hand(SORTER)
        for options, _ in (ORDINARY_BUILDS[1], SANDBOXED_BUILDS[0]):
            with self.subTest(options=options):
                self.play("select", "until toggleLaunchButton Show", options=options)

    def test_one_that_only_has_the_name_does_not_count(self):
        impostors = [self.start_impostor(program) for program in self.impostors()]

        self.play("select", "until toggleLaunchButton Show", "toggle", "until toggleLaunchButton Quit")
        self.wait_for_start(SORTER)
        self.play("select", "toggle", "until toggleLaunchButton Show")

        self.wait_for_end(SORTER)
        self.assertEqual([impostor.poll() for impostor in impostors], [None, None])

    def impostors(self):
        """A program of the Sorter's name, and one in an application of its name but another identifier."""
        bundle = self.session.home / "Quarrybook Sorter.app"
        information = bundle / "Resources/Info-gnustep.plist"
        information.parent.mkdir(parents=True)
        information.write_text('{CFBundleIdentifier = "com.quarrybook.Impostor"; NSExecutable = "Quarrybook Sorter";}')
        for folder in (self.session.home / "bin", bundle):
            folder.mkdir(exist_ok=True)
            yield pathlib.Path(shutil.copy("/bin/sleep", folder / "Quarrybook Sorter"))

    def start_impostor(self, program):
        process = subprocess.Popen([program, "60"], env=self.session.environment)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        wait_until(lambda: executable_of(process.pid) == str(program), f"the process to execute {program}",
                   lambda: executable_of(process.pid))
        return process

    def test_a_killed_one_is_noticed_while_the_pane_is_shown(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS):
            sorter = self.start_by_hand(identifier)
            host = self.begin("select", "until toggleLaunchButton Quit", "until toggleLaunchButton Show", "state",
                              options=options)
            host.reach("until toggleLaunchButton Show")

            sorter.send_signal(signal.SIGKILL)

            host.finish()
            self.assertNotIn("quitting", self.log())

    def test_one_that_the_button_started_is_noticed_when_it_is_killed(self):
        host = self.begin("select", "toggle", "until toggleLaunchButton Quit", "until toggleLaunchButton Show",
                          "toggle", "until toggleLaunchButton Quit")
        host.reach("until toggleLaunchButton Show")
        self.wait_for_start(SORTER)

        subprocess.run(["kill", "-9", *map(str, self.sorters(SORTER))], check=True)

        host.finish()
        self.wait_for_start(SORTER, 2)
        self.assertEqual(len(self.sorters(SORTER)), 1)

    def test_a_killed_one_of_the_sandboxed_build_is_seen_when_the_pane_is_shown_again_and_starts_once(self):
        options, identifier = SANDBOXED_BUILDS[0]
        self.play("select", "toggle", "until toggleLaunchButton Quit", options=options)
        self.wait_for_start(identifier)

        subprocess.run(["kill", "-9", *map(str, self.sorters(identifier))], check=True)
        self.wait_for_end(identifier)
        self.play("select", "until toggleLaunchButton Show", "toggle", "until toggleLaunchButton Quit",
                  options=options)

        self.wait_for_start(identifier, 2)
        self.assertEqual(len(self.sorters(identifier)), 1)

    def test_one_that_hangs_on_quit_is_still_shown_as_running(self):
        for options, identifier in self.each_build((ORDINARY_BUILDS[0], SANDBOXED_BUILDS[1])):
            sorter = self.start_by_hand(identifier, QUARRYBOOK_SORTER_HANGS="1")

            host = self.begin("select", "toggle", "wait 60", options=options)
            host.reach("wait 60")

            # Since the click the button is disabled, until its title is refreshed.
            refreshed = self.controls.wait_for(name="toggleLaunchButton", enabled=True)
            self.wait_logged("asked", "to quit, and hangs")
            host.terminate()

            self.assertEqual(refreshed["title"], "Quit")
            self.play("select", "until toggleLaunchButton Quit", options=options)
            self.assertIsNone(sorter.poll())
            sorter.kill()
            sorter.wait()

    def test_nothing_waits_for_one_that_is_stopped(self):
        sorter = self.start_by_hand(SORTER)
        sorter.send_signal(signal.SIGSTOP)
        host = self.begin("select", "until toggleLaunchButton Quit", "change note 45 0x100000", "reset", "unselect",
                          "select", "toggle", "state", "unselect")
        host.reach("until toggleLaunchButton Quit")
        began = time.monotonic()

        lines = host.finish()

        self.assertLess(time.monotonic() - began, LONGEST_ANSWER)
        self.assertEqual(button(lines)["title"], "Quit")
        sorter.send_signal(signal.SIGCONT)
        self.assertEqual(sorter.wait(20), 0)


def button(lines):
    """The last state that was printed of the start and stop button."""
    return json.loads([line for line in lines if line.startswith("toggleLaunchButton: ")][-1].split(": ", 1)[1])


if __name__ == "__main__":
    unittest.main()
