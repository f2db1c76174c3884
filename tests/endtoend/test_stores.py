"""The stores when something goes wrong: other writers' values, locks that are not given back, saves that fail."""

import os
import plistlib
import shutil
import signal
import time

from real_sorter import SANDBOXED_BUILDS, SorterTest
from session import HIDE_LIST, HOST, SORTER, wait_until, word

LIST = "QBSSorterHideAppUpdated"
LIMIT = 2
ODD_VALUES = {"emoji \U0001f600": "\U0001f600", "real": 0.30000000000000004, "wide": 2**64 - 1, "flag": True}


class StoresTest(SorterTest):
    def setUp(self):
        super().setUp()
        self.lock = self.session.defaults / ".lck/.GNUstepDefaults.lck"

    def test_of_the_host_keep_what_others_stored_there_as_it_is(self):
        self.session.set_domain(HOST, ODD_VALUES)

        self.play("select", "change note 45 0x100000", "set visibilityButton 0", "unselect")

        stored = self.session.domain(HOST)
        self.assertEqual({key: stored[key] for key in ODD_VALUES}, ODD_VALUES)
        self.assertEqual(stored["Sorter.NoteHotKeyCode"], 45)

    def test_of_the_host_hold_the_tabs_visibility_soon_after_the_start_though_the_host_is_killed(self):
        host = self.begin("create", "wait 60")
        host.reach("wait 60")

        wait_until(lambda: self.session.domain_file(HOST).exists(), "the first save")
        host.process.kill()
        host.process.wait()

        self.assertIs(self.session.domain(HOST)["SorterTabIsInvisible"], False)

    def test_of_the_host_are_read_anew_with_each_select(self):
        host = self.begin("select", "unselect", "wait 1", "select", "state", "unselect")
        host.reach("wait 1")
        self.session.set_domain(HOST, {"Sorter.NoteHotKeyCode": 45, "Sorter.NoteHotKeyModifiers": 0x100,
                                       "SorterTabIsInvisible": True})

        lines = host.finish()

        self.assertTrue(any("noteHotKey" in line and "45" in line for line in lines), lines)

    def test_are_whole_again_though_a_lock_of_any_kind_stands_in_the_way(self):
        for name, put in (("old", lambda: self.put_lock(-1000)), ("to come", lambda: self.put_lock(1000)),
                          ("a file", self.put_file_in_place_of_locks)):
            with self.subTest(lock=name):
                self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})
                self.check_nobody_waits(put)
                self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: {"Atlas": True}})

    def test_are_saved_at_the_latest_when_the_host_quits_though_a_lock_is_held(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})
        self.check_nobody_waits(lambda: self.put_lock(0))
        self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: {"Atlas": True}})

    def check_nobody_waits(self, put_obstacle):
        """Leaves the pane with an edit, and quits, while the obstacle is there."""
        host = self.begin("select", "edit 2 0 1", "wait 1", "unselect", "wait 60")
        host.reach("wait 1")
        put_obstacle()
        host.reach("unselect")
        begin = time.monotonic()
        host.reach("wait 60")
        self.assertLess(time.monotonic() - begin, LIMIT)
        begin = time.monotonic()
        host.process.send_signal(signal.SIGTERM)
        host.process.wait(20)
        self.assertLess(time.monotonic() - begin, LIMIT)
        self.take_obstacle_away()

    def put_lock(self, age):
        self.lock.mkdir(parents=True)
        os.utime(self.lock, (time.time() + age,) * 2)

    def put_file_in_place_of_locks(self):
        shutil.rmtree(self.lock.parent)
        self.lock.parent.write_text("no folder")

    def take_obstacle_away(self):
        if self.lock.parent.is_file():
            self.lock.parent.unlink()
        shutil.rmtree(self.lock, ignore_errors=True)

    def test_that_could_not_be_saved_are_saved_later_and_the_sorter_is_told_again(self):
        folder = self.session.home / "not yet"
        self.session.domain_file(SORTER).symlink_to(folder / "domain.plist")
        self.start_by_hand(SORTER)
        host = self.begin("select", "reset", "wait 60")
        self.wait_logged(LIST, f"{HIDE_LIST}=none")

        folder.mkdir()

        self.wait_logged(LIST, '"Films"=YES')
        told = [line.split(".plist: ", 1)[1] for line in host.lines() if f"{SORTER}.plist" in line]
        self.assertEqual(told, ["could not be written: No such file or directory; what was set is kept in memory, and "
                                "saved as soon as that is possible", "what was set was saved after all"])
        host.process.terminate()
        host.process.wait(20)

    def test_and_their_folders_are_the_users_alone_whatever_the_umask(self):
        home = self.session.home
        before = os.umask(0)
        try:
            self.play("select", "toggle", "until toggleLaunchButton Quit", "unselect", options=SANDBOXED_BUILDS[0][0])
            self.play("select", "set showAtLoginCheckbox 1", "unselect")
        finally:
            os.umask(before)

        for below in (".config", ".local/share"):
            made = [home / below, *(home / below).rglob("*")]
            self.assertEqual({path.stat().st_mode & 0o777 for path in made if path.is_dir()}, {0o700}, made)
            self.assertEqual({path.stat().st_mode & 0o777 for path in made if path.is_file()}, {0o600}, made)
        self.assertEqual(self.session.domain_file(HOST).stat().st_mode & 0o777, 0o600)

    def test_that_are_links_stay_links(self):
        target = self.session.home / "elsewhere.plist"
        target.write_bytes(plistlib.dumps({HIDE_LIST: {"Atlas": False}}))
        target.chmod(0o640)
        self.session.domain_file(SORTER).symlink_to(target)

        self.play("select", "edit 2 0 1", "unselect")

        self.assertTrue(self.session.domain_file(SORTER).is_symlink())
        self.assertEqual(plistlib.loads(target.read_bytes()), {HIDE_LIST: {"Atlas": True}})
        self.assertEqual(target.stat().st_mode & 0o777, 0o640)

    def test_that_are_nested_too_deeply_leave_the_host_alive(self):
        deep = b"(" * 200_000
        self.session.domain_file(SORTER).write_bytes(deep)
        contents = self.session.home / "Programs/Deep.app/Contents"
        contents.mkdir(parents=True)
        (contents / "Info.plist").write_bytes(deep)

        lines = self.play("select", "rows", "add", f"choose {word(contents.parent)}", "press OK", "unselect")

        self.assertIn("= 0", lines)
        self.assertEqual(sum("is nested too deeply; nothing of it is used" in line for line in lines), 2, lines)


if __name__ == "__main__":
    import unittest
    unittest.main()
