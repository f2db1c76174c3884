"""The hide list, edited in the real window: what then lies in the Sorter's preferences domain."""

import unittest

from session import HIDE_LIST, SOLO_SORTER, SORTER, Session, word

ODD_NAMES = {
    "line\nfeed": True,
    "tab\tand \"quotes\" and 'more' <&>": False,
    "": True,
    "emoji \U0001f600 \U0001f469\u200d\U0001f469\u200d\U0001f467": False,
    "\u05e2\u05d1\u05e8\u05d9\u05ea and \u0627\u0644\u0639\u0631\u0628\u064a\u0629": True,
    "back\\slash": False,
    "x" * 10000: True,
    "Zebra": False,
}


class HideListTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())

    def test_holds_exactly_the_edited_flags_and_everything_else_in_its_kind(self):
        stored = {
            HIDE_LIST: {"Atlas": False, "Books": "YES", "Cinema": 1, "Draw": 0.5, "Mail": True, "Notes": b"raw"},
            "text": "kept", "number": 7, "real": 0.25, "flag": True, "list": [1, "two", {"three": False}],
        }
        self.session.set_domain(SORTER, stored)

        self.session.play("select", "edit 2 0 1", "edit 2 4 0", "unselect")

        expected = {**stored, HIDE_LIST: {**stored[HIDE_LIST], "Atlas": True, "Mail": False}}
        written = self.session.domain(SORTER)
        self.assertEqual(written, expected)
        self.assertEqual(kinds(written), kinds(expected))

    def test_is_read_by_another_process(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})

        self.session.play("select", "edit 2 0 1", "unselect")

        read = self.session.run("defaults", "read", SORTER, HIDE_LIST)
        self.assertIn("Atlas = 1;", read.stdout)

    def test_is_not_written_when_nothing_was_edited(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})
        before = self.session.domain_file(SORTER).read_bytes()

        self.session.play("select", "unselect", "select", "unselect")

        self.assertEqual(self.session.domain_file(SORTER).read_bytes(), before)

    def test_keeps_odd_names_through_an_edit(self):
        self.session.set_domain(SORTER, {HIDE_LIST: ODD_NAMES})

        answers = self.session.answers("select", "rows", "find Zebra", "find \"line\\nfeed\"")
        self.assertEqual(answers[0], str(len(ODD_NAMES)))
        self.session.play("select", f"edit 2 {answers[1]} 1", f"edit 2 {answers[2]} 0", "unselect")

        self.assertEqual(self.session.domain(SORTER)[HIDE_LIST], {**ODD_NAMES, "Zebra": True, "line\nfeed": False})

    def test_is_empty_for_a_domain_that_is_no_property_list(self):
        self.session.domain_file(SORTER).write_bytes(b"\x00 this is { no property list")

        answers = self.session.answers("select", "rows", "unselect")

        self.assertEqual(answers, ["0"])
        self.assertEqual(self.session.domain_file(SORTER).read_bytes(), b"\x00 this is { no property list")

    def test_sets_a_domain_that_is_no_property_list_aside_when_the_user_changes_something(self):
        self.session.domain_file(SORTER).write_bytes(b"this is { no property list")

        self.session.play("select", "reset", "unselect")

        aside = self.session.domain_file(SORTER).with_name(f"{SORTER}.plist.unreadable")
        self.assertEqual(aside.read_bytes(), b"this is { no property list")
        self.assertIsInstance(self.session.domain(SORTER)[HIDE_LIST], dict)

    def test_is_empty_for_a_list_that_is_no_dictionary(self):
        for odd in ("text", 7, ["Atlas"]):
            with self.subTest(odd=odd):
                self.session.set_domain(SORTER, {HIDE_LIST: odd, "other": 1})
                before = self.session.domain_file(SORTER).read_bytes()

                self.assertEqual(self.session.answers("select", "rows", "unselect"), ["0"])

                self.assertEqual(self.session.domain_file(SORTER).read_bytes(), before)

    def test_of_the_solo_edition_is_that_of_the_solo_sorter(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": False}})
        self.session.set_domain(SOLO_SORTER, {HIDE_LIST: {"Books": False}})

        self.session.play("select", "edit 2 0 1", "unselect", options=["--edition", "solo"])

        self.assertEqual(self.session.domain(SORTER), {HIDE_LIST: {"Atlas": False}})
        self.assertEqual(self.session.domain(SOLO_SORTER), {HIDE_LIST: {"Books": True}})

    def test_takes_an_application_from_the_open_panel(self):
        for options, domain in (([], SORTER), (["--sandboxed", "--edition", "solo"], SOLO_SORTER)):
            with self.subTest(options=options):
                self.check_the_open_panel(options, domain)

    def check_the_open_panel(self, options, domain):
        self.session.set_domain(domain, {HIDE_LIST: {"Atlas": True}})
        contents = self.session.home / "Programs/Renamed.app/Contents"
        contents.mkdir(parents=True, exist_ok=True)
        (contents / "Info.plist").write_text("{CFBundleExecutable = Ledger; CFBundleName = Other;}")

        played = self.session.play("select", "add", f"choose {word(contents.parent)}", "press OK", "value 1 1", "state",
                                   "unselect", options=options)

        self.assertIn('\n= "Ledger"\n', played)
        self.assertRegex(played, r'\nhideAppsTable: .*"selected": \[1\]')
        self.assertEqual(self.session.domain(domain)[HIDE_LIST], {"Atlas": True, "Ledger": False})

    def test_is_as_it_was_when_the_open_panel_is_cancelled(self):
        self.session.set_domain(SORTER, {HIDE_LIST: {"Atlas": True}})
        before = self.session.domain_file(SORTER).read_bytes()

        self.session.play("select", "add", "press Cancel", "unselect")

        self.assertEqual(self.session.domain_file(SORTER).read_bytes(), before)


def kinds(value):
    """The kinds of a value and of all that it holds: equality alone takes 1 for true."""
    if isinstance(value, dict):
        return {key: kinds(entry) for key, entry in value.items()}
    if isinstance(value, list):
        return [kinds(entry) for entry in value]
    return type(value)


if __name__ == "__main__":
    unittest.main()
