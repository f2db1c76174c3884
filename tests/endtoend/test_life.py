"""Every way of leaving the pane saves it; both builds and both editions show the controls that they use."""

import json
import os
import signal
import unittest

from controls import Controls
from host import Host
from session import HIDE_LIST, HOST, SOLO_SORTER, SORTER, Session

HIDDEN_IN_THE_SANDBOX = {"clipHotKeyRecorder", "showAtLoginCheckbox", "availabilityLabel", "copySelectionLabel"}
KEY_N = 45


class LifeTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        for domain in (SORTER, SOLO_SORTER):
            self.session.set_domain(domain, {HIDE_LIST: {"Atlas": False}})

    def state(self, *options):
        shown = self.session.play("select", "state", "unselect", options=options).splitlines()
        return {name: json.loads(value) for name, value in
                (line.split(": ", 1) for line in shown if not line.startswith(">"))}

    def assert_edit_was_saved(self):
        self.assertEqual(self.session.domain(SORTER)[HIDE_LIST], {"Atlas": True})

    def test_choosing_another_page_saves(self):
        self.session.play("select", "edit 2 0 1", "unselect")
        self.assert_edit_was_saved()

    def test_closing_the_window_saves(self):
        self.session.play("select", "edit 2 0 1", "close")
        self.assert_edit_was_saved()

    def test_quitting_saves(self):
        self.session.play("select", "edit 2 0 1")
        self.assert_edit_was_saved()

    def test_being_terminated_saves(self):
        host = self.at_the_end_of("select", "edit 2 0 1")

        host.terminate()

        self.assert_edit_was_saved()

    def at_the_end_of(self, *lines, options=()):
        """A host that has played the lines and goes on running."""
        host = Host.playing(self.session, *lines, "wait 60", options=options)
        host.reach("wait 60")
        return host

    def test_being_left_and_shown_again_keeps_the_edit(self):
        answers = self.session.answers("select", "edit 2 0 1", "unselect", "select", "value 2 0", "unselect", "select",
                                       "edit 2 0 0", "unselect", "select", "value 2 0")
        self.assertEqual(answers, ["1", "0"])

    def test_the_ordinary_build_hides_only_the_restart_notice(self):
        for edition in ("full", "solo"):
            with self.subTest(edition=edition):
                state = self.state("--edition", edition)
                hidden = {name for name, shown in state.items() if shown.get("hidden")}
                self.assertEqual(hidden, {"attentionLabel"})
                self.assertEqual(state["toggleLaunchButton"]["title"], "Show")

    def test_the_sandboxed_build_also_hides_the_copy_selection_hot_key_and_the_login_item(self):
        for edition in ("full", "solo"):
            with self.subTest(edition=edition):
                state = self.state("--sandboxed", "--edition", edition)
                hidden = {name for name, shown in state.items() if shown.get("hidden")}
                self.assertEqual(hidden, {"attentionLabel"} | HIDDEN_IN_THE_SANDBOX)

    def test_full_shows_and_stores_the_host_s_default_inverted(self):
        self.assertEqual(self.state()["visibilityButton"]["state"], 1)
        self.assertIs(self.session.domain(HOST)["SorterTabIsInvisible"], False)

        self.session.play("select", "set visibilityButton 0", "unselect")

        self.assertIs(self.session.domain(HOST)["SorterTabIsInvisible"], True)
        self.assertEqual(self.state()["visibilityButton"]["state"], 0)

    def test_a_recorded_hot_key_is_stored_at_once_and_shown_again(self):
        self.session.play("select", "change clip 8 0x120000", "unselect")

        host = self.session.domain(HOST)
        self.assertEqual(host["Sorter.ClipHotKeyCode"], 8)
        self.assertEqual(host["Sorter.ClipHotKeyModifiers"], 0x300)
        self.assertEqual(self.state()["clipHotKeyRecorder"]["flags"], 0x120000)

    def test_a_taken_combination_is_refused_with_a_reason(self):
        for options in ([], ["--edition", "solo"]):
            with self.subTest(options=options):
                answers = self.session.answers("select", "change note 8 0x120000", "offer clip 8 0x120000",
                                               "change note 9 0x120000", options=options)

                taken, reason = json.loads(answers[0])
                self.assertTrue(taken)
                self.assertIn("`Take Note' hot key", reason)
                self.assertNotIn("Sorter.ClipHotKeyCode", self.session.domain(HOST))

    def test_without_a_registrar_leaving_opens_the_login_item_alert(self):
        answers = self.session.answers("select", "unselect", "press Cancel", "select", "rows", "unselect",
                                       "press Cancel", options=["--no-plugin"])
        self.assertEqual(answers, ["1"])

    def test_a_domain_that_another_program_writes_meanwhile_keeps_both_changes(self):
        host = self.at_the_end_of("select", "edit 2 0 1")

        self.session.run("defaults", "write", SORTER, "Meanwhile", "kept")
        host.terminate()

        self.assertEqual(self.session.domain(SORTER), {"Meanwhile": "kept", HIDE_LIST: {"Atlas": True}})

    def test_a_notification_daemon_that_died_is_started_again(self):
        controls = Controls(self.session, "noteHotKeyRecorder")
        host = self.at_the_end_of("select", "change clip 8 0x120000", options=controls.options)
        killed = self.session.processes_named("gdnc")
        self.assertNotEqual(killed, [])

        for daemon in killed:
            os.kill(daemon, signal.SIGKILL)
        controls.record("noteHotKeyRecorder", "ctrl+alt+n", lambda: self.note_hot_key() == KEY_N,
                        "the hot key to be stored")

        self.assertNotEqual(self.session.processes_named("gdnc"), [])
        self.assertNotIn("ERROR", "\n".join(host.terminate()))

    def note_hot_key(self):
        return self.session.domain(HOST).get("Sorter.NoteHotKeyCode")

    def test_the_shared_file_of_the_sandboxed_build_is_left_to_the_hidden_recorder(self):
        self.session.play("select", "change note 8 0x120000", "unselect", options=["--sandboxed"])
        self.assertEqual(list(self.session.home.rglob("clipHotKey.dictionary")), [])


if __name__ == "__main__":
    unittest.main()
