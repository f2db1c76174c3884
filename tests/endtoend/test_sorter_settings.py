"""What the user sets in the pane, as the Sorter takes it up: hot keys, visibility, the hide list."""

import os
import plistlib
import unittest

from host import Host
from real_sorter import (EMBEDDED_SORTER, FULL, ORDINARY_BUILDS, SANDBOXED_BUILDS, SOLO, SorterTest, hot_key,
                         program_of)
from session import HIDE_LIST, HOST, PANE, SOLO_SORTER, SORTER, wait_until

HOT_KEYS = "QBSSorterShortcutKeysChanged"
PREFERENCES = "QBSSorterPreferencesUpdated"
LIST = "QBSSorterHideAppUpdated"
FROM_HOST = 'object="Quarrybook"'
FACTORY_FILE = "Contents/Resources/FactoryDefaults.plist"
COMMAND, OPTION, CONTROL = 0x100, 0x800, 0x1000


class SorterSettingsTest(SorterTest):
    def test_a_hot_key_of_the_keyboard_reaches_the_sorter(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS):
            sorter = self.start_by_hand(identifier)
            host = self.begin("select", "wait 60", options=options)
            host.reach("wait 60")

            self.record_until_logged("noteHotKeyRecorder", "ctrl+alt+n")

            self.wait_logged(HOT_KEYS, FROM_HOST, "userInfo=none", hot_key(45, CONTROL | OPTION))
            host.terminate()
            self.wait_logged(PREFERENCES, hot_key(45, CONTROL | OPTION))
            sorter.kill()
            sorter.wait()
            self.session.domain_file(HOST).unlink()

    def test_hot_keys_and_the_visibility_reach_the_sorter(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS):
            sorter = self.start_by_hand(identifier)

            self.play("select", "set visibilityButton 0", "change note 45 0x100000", "change clip 8 0x120000",
                      "unselect", "select", "set visibilityButton 1", "change note 0 0x140000", "unselect",
                      options=options)

            self.wait_logged(PREFERENCES, FROM_HOST, '{"visibility"=NO} SorterTabIsInvisible=NO', "ClipHotKeyCode=8 ",
                           hot_key(0, CONTROL | COMMAND))
            self.assertEqual([line.split()[0] for line in self.log()[2:]],
                             [HOT_KEYS, HOT_KEYS, PREFERENCES, HOT_KEYS, PREFERENCES])
            self.wait_logged(HOT_KEYS, FROM_HOST, "userInfo=none", hot_key(45, COMMAND))
            self.wait_logged(PREFERENCES, FROM_HOST, '{"visibility"=YES} SorterTabIsInvisible=YES', hot_key(45, COMMAND))
            self.assert_stored_as_whole_numbers({"Sorter.NoteHotKeyCode": 0, "Sorter.NoteHotKeyModifiers": 0x1100,
                                                 "Sorter.ClipHotKeyCode": 8, "Sorter.ClipHotKeyModifiers": 0x300})
            sorter.kill()
            sorter.wait()
            self.session.domain_file(HOST).unlink()

    def assert_stored_as_whole_numbers(self, expected):
        stored = {key: value for key, value in self.session.domain(HOST).items() if key in expected}
        self.assertEqual(stored, expected)
        self.assertEqual({type(value) for value in stored.values()}, {int})

    def test_a_change_made_before_the_sorter_started_is_announced_when_the_pane_is_left_with_it(self):
        host = self.begin("select", "change note 45 0x100000", "unselect", "select", "toggle",
                          "until toggleLaunchButton Quit", "wait 60")
        host.reach("wait 60")
        self.wait_for_start(SORTER)
        self.assertIn(hot_key(45, COMMAND), self.logged("settings")[0])

        host.terminate()

        self.wait_logged(PREFERENCES, FROM_HOST, '{"visibility"=NO}', hot_key(45, COMMAND))

    def test_the_embedded_sorter_is_notified_of_hot_keys_and_the_edition_s_own_also_of_leaving(self):
        options, identifier = SANDBOXED_BUILDS[0]
        self.start_by_hand(identifier)
        self.play("select", "change note 45 0x100000", "unselect", options=options)
        self.wait_logged(HOT_KEYS, hot_key(45, COMMAND), "clipHotKey.dictionary=none")

        self.start_by_hand(SORTER)
        self.assertEqual(self.logged(PREFERENCES), [])
        self.play("select", "change note 0 0x100000", "unselect", options=options)

        wait_until(lambda: len(self.logged(PREFERENCES)) == 2, "the notice to reach both Sorters", self.printed_log)
        self.assertTrue(all('{"visibility"=NO}' in line and hot_key(0, COMMAND) in line
                            for line in self.logged(PREFERENCES)))

    def test_an_edited_hide_list_reaches_the_sorter(self):
        for options, identifier in self.each_build(ORDINARY_BUILDS):
            self.session.set_domain(identifier, {HIDE_LIST: {"Atlas": False, "Books": True}})
            sorter = self.start_by_hand(identifier)

            self.play("select", "edit 2 0 1", "unselect", "select", "edit 2 1 0", "unselect", options=options)

            self.wait_logged(LIST, FROM_HOST, "userInfo=none", '{"Atlas"=YES; "Books"=NO}')
            self.assertEqual([line.split("=", 3)[-1] for line in self.logged(LIST)],
                             ['{"Atlas"=YES; "Books"=YES}', '{"Atlas"=YES; "Books"=NO}'])
            sorter.kill()
            sorter.wait()

    def test_the_embedded_sorter_starts_with_the_list_that_the_pane_saved(self):
        for (options, identifier), (_, edition) in zip(self.each_build(SANDBOXED_BUILDS), ORDINARY_BUILDS):
            self.session.domain_file(SORTER).unlink(missing_ok=True)
            self.session.set_domain(edition, {HIDE_LIST: {"Atlas": False}})
            self.play("select", "edit 2 0 1", "unselect", options=options)

            sorter = self.start_by_hand(identifier)

            self.assertIn(f'{HIDE_LIST}={{"Atlas"=YES}}', self.logged("settings")[0])
            sorter.kill()
            sorter.wait()

    def test_an_edited_hide_list_of_the_sandboxed_build_reaches_the_edition_s_sorter(self):
        options, _ = SANDBOXED_BUILDS[1]
        self.session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Atlas": False}})
        self.start_by_hand(SOLO_SORTER)

        self.play("select", "edit 2 0 1", "unselect", options=options)

        self.wait_logged(LIST, FROM_HOST, '{"Atlas"=YES}')

    def test_the_reset_brings_the_factory_list_back(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": True}, "other": 1})
        self.start_by_hand(SORTER)

        lines = self.play("select", "reset", "rows", "find Films", "find Atlas", "unselect", options=FULL)

        factory = factory_list(SORTER)
        self.assertEqual([line for line in lines if line.startswith("= ")],
                         [f"= {len(factory)}", f"= {sorted(factory).index('Films')}", "= -1"])
        self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: factory, "other": 1})
        self.wait_logged(LIST, FROM_HOST, "userInfo=none", '"Films"=YES', '"Mail"=NO')

    def test_the_reset_of_the_solo_edition_writes_the_full_edition_s_domain_and_notifies_the_solo_sorter(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": True}})
        self.session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Books": True}})
        self.start_by_hand(SOLO_SORTER)

        lines = self.play("select", "reset", "rows", "value 1 0", "unselect", options=SOLO)

        self.assertEqual([line for line in lines if line.startswith("= ")], ["= 1", '= "Books"'])
        self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: factory_list(SOLO_SORTER)})
        self.assertEqual(self.session.domain(SOLO_SORTER), {HIDE_LIST: {"Books": True}})
        self.wait_logged(LIST, FROM_HOST, "userInfo=none", '{"Books"=YES}')

    def test_the_reset_of_the_sandboxed_build_finds_no_factory_list_and_notifies_the_edition_s_sorter(self):
        for (options, _), (_, identifier) in zip(SANDBOXED_BUILDS, ORDINARY_BUILDS):
            with self.subTest(options=options):
                self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": True}, "other": 1})
                sorter = self.start_by_hand(identifier)

                self.play("select", "reset", "unselect", options=options)

                self.assertEqual(self.session.domain(SORTER), {"other": 1})
                self.wait_logged(LIST, FROM_HOST, "userInfo=none", f"{HIDE_LIST}=none")
                sorter.kill()
                sorter.wait()

    def test_the_shared_file_holds_two_whole_numbers_that_the_embedded_sorter_reads(self):
        self.start_by_hand(EMBEDDED_SORTER)
        host = Host(self.session, os.environ["REVEALING_HOST"], "-Pane", PANE, *self.controls.options)

        self.record_until_logged("clipHotKeyRecorder", "ctrl+alt+c")

        self.wait_logged(HOT_KEYS, "clipHotKey.dictionary={", '"Sorter.ClipHotKeyCode"=8;',
                       f'"Sorter.ClipHotKeyModifiers"={CONTROL | OPTION}}}')
        file, = self.session.home.rglob("clipHotKey.dictionary")
        self.assertEqual(file.parent, self.session.home / ".local/share/Group Containers/Z3K8WQ4N7P.quarry2/Sorter")
        self.assertTrue(file.read_bytes().startswith(b"<?xml"))
        held = plistlib.loads(file.read_bytes(), fmt=plistlib.FMT_XML)
        self.assertEqual(held, {"Sorter.ClipHotKeyCode": 8, "Sorter.ClipHotKeyModifiers": CONTROL | OPTION})
        self.assertEqual({type(value) for value in held.values()}, {int})
        host.terminate()

    # --- The keyboard

    def record_until_logged(self, recorder, keys):
        """Records the keys as a user does, until a Sorter has logged that hot keys changed."""
        self.controls.record(recorder, keys, lambda: self.logged(HOT_KEYS), f"{HOT_KEYS} in the Sorter's log")


def factory_list(identifier):
    with open(program_of(identifier).parent / FACTORY_FILE, "rb") as file:
        return plistlib.load(file)[HIDE_LIST]


if __name__ == "__main__":
    unittest.main()
