"""The notification daemon killed, stopped or missing: nobody waits for it, nothing is lost, and what nobody was told is
in the log."""

import os
import re
import signal
import sysconfig
import time

from real_sorter import SorterTest
from session import HIDE_LIST, HOST, SORTER, wait_until

LIMIT = 2  # seconds
STEPS = ("select", "edit 2 0 1", "change note 45 0x100000", "unselect", "wait 60")
NOTICES = ("QBSSorterShortcutKeysChanged", "QBSSorterPreferencesUpdated", "QBSSorterHideAppUpdated")


class NotificationDaemonTest(SorterTest):
    def setUp(self):
        super().setUp()
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}, "theirs": 1})

    def test_that_is_stopped_is_not_waited_for(self):
        self.start_by_hand(SORTER)
        lines = self.check_nobody_waits(signal.SIGSTOP)
        self.assertEqual(self.logged_errors(lines), [])

    def test_that_was_killed_is_started_again(self):
        self.start_by_hand(SORTER)
        lines = self.check_nobody_waits(signal.SIGKILL)
        self.assertEqual(self.logged_errors(lines), [])
        for notice in NOTICES:
            self.wait_logged(notice)

    def test_that_cannot_be_started_leaves_a_line_for_each_notice(self):
        self.play("wait 0.1")  # which leaves a daemon that the next programs find
        self.make_daemon_missing()
        self.start_by_hand(SORTER)
        lines = self.check_nobody_waits(signal.SIGKILL)
        reason = "could not be posted: the daemon of notifications does not start"
        self.assertEqual(self.logged_errors(lines), [f"ERROR: {notice} {reason}" for notice in NOTICES])

    def test_that_was_never_there_is_named_by_the_host_which_waits_for_it(self):
        self.make_daemon_missing()
        host = self.begin("select", "wait 60")
        self.addCleanup(host.process.wait)
        self.addCleanup(host.process.kill)
        wait_until(lambda: "Quarrybook: GNUstep's daemon of notifications, gdnc, is not installed" in host.printed(),
                   "the line about the daemon", host.printed)

    def test_that_is_stopped_is_not_waited_for_when_it_has_no_room_for_more_notices(self):
        changes = [f"change note {45 + number % 2} 0x100000" for number in range(100)]
        host = self.begin("select", "wait 0.5", *changes, "wait 60")
        host.reach("wait 0.5")
        self.signal_daemon(signal.SIGSTOP)
        wait_until(lambda: "could not be posted" in host.printed(), "a notice that was not posted", host.printed)

        for _ in range(2):
            played = host.printed().count("> ")
            self.within_limit(lambda: host.printed().count("> ") > played, "the next change", host)

        host.process.kill()
        host.process.wait()

    def check_nobody_waits(self, number):
        """Works in the pane, leaves it and quits after the daemon got that signal. Returns what the host printed."""
        host = self.begin("wait 0.5", *STEPS)
        host.reach("wait 0.5")
        self.signal_daemon(number)
        for played in range(len(STEPS)):
            self.within_limit(lambda: host.printed().count("> ") > played + 1, STEPS[played], host)
        host.process.send_signal(signal.SIGTERM)
        self.within_limit(lambda: host.process.poll() is not None, "the end", host)
        self.assertEqual(host.process.returncode, 0)
        self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: {"Atlas": True}, "theirs": 1})
        self.assertEqual(self.session.domain(HOST)["Sorter.NoteHotKeyCode"], 45)
        return host.lines()

    def within_limit(self, condition, what, host):
        begin = time.monotonic()
        wait_until(condition, what, host.printed)
        self.assertLess(time.monotonic() - begin, LIMIT, f"{what}: {host.printed()}")

    def signal_daemon(self, number):
        for daemon in self.session.processes_named("gdnc"):
            os.kill(daemon, number)

    def make_daemon_missing(self):
        configuration = self.session.folder / "GNUstep.conf"
        text = re.sub(r"(?m)^(GNUSTEP_\w+_TOOLS)=.*$", r"\1=/nowhere", configuration.read_text())
        configuration.write_text(text)
        self.session.environment["PATH"] = ""
        # Some builds of GNUstep run a program to learn this.
        self.session.environment["DEB_HOST_MULTIARCH"] = sysconfig.get_config_var("MULTIARCH")

    def logged_errors(self, lines):
        return [line[line.index("ERROR: "):] for line in lines if "ERROR: " in line]


if __name__ == "__main__":
    import unittest
    unittest.main()
