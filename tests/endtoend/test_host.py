"""The stand-in host's command line and its scenarios: what is wrong is printed in one line, with status 2."""

import subprocess
import unittest

from session import BUILD, QUARRYBOOK, Session

PANE_REPLAY = BUILD / "bin/pane-replay"


class HostTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())

    def assert_refused(self, run, beginning):
        self.assertEqual(run.returncode, 2, run.stdout + run.stderr)
        lines = [line for line in run.stderr.splitlines() if line.startswith(beginning)]
        self.assertEqual(lines, run.stderr.splitlines())
        self.assertEqual(len(lines), 1, f"one line, and not: {run.stderr}")

    def test_refuses_wrong_options(self):
        for words in (["--unknown"], ["word"], ["--edition"], ["--edition", "large"], ["--play"], ["--pane", ""]):
            with self.subTest(words=words):
                self.assert_refused(self.session.run(QUARRYBOOK, *words), "Quarrybook: ")

    def test_refuses_a_scenario_that_is_not_there(self):
        self.assert_refused(self.session.run(QUARRYBOOK, "--play", "/nowhere"), "/nowhere: ")

    def test_refuses_a_pane_that_is_none(self):
        for path in ("/nowhere", BUILD / "bin/Quarrybook.app"):
            with self.subTest(path=path):
                self.assert_refused(self.session.run(QUARRYBOOK, "--pane", path), "Quarrybook: ")

    def test_refuses_wrong_lines_and_plays_nothing_after_them(self):
        wrong = ["dance", "edit 2 x 1", "edit 2 99 1", "set nothing 1", "set showAtLoginCheckbox 7", "press Nothing", "rows 1"]
        for line in wrong:
            with self.subTest(line=line):
                path = self.session.scenario("# a comment", "select", line, "rows")

                played = self.session.run(QUARRYBOOK, "--play", path)

                self.assert_refused(played, f"{path}:3: ")
                self.assertNotIn("> rows", played.stdout.splitlines()[1:] if line == "rows 1" else played.stdout)

    def test_refuses_malformed_words_as_the_player_of_the_simulated_platform_does(self):
        for line in ('find "\\ud83d\\u0041"', "find a b", "change clip 12345678901234567890 0"):
            with self.subTest(line=line):
                path = self.session.scenario("create", line)
                expected = subprocess.run([PANE_REPLAY, path], capture_output=True, text=True, check=False).stderr

                played = self.session.run(QUARRYBOOK, "--play", path)

                self.assert_refused(played, f"{path}:2: ")
                self.assertEqual(played.stderr, expected)
                self.assertEqual(played.stdout, "> create\n= true\n")

    def test_shows_its_options_and_commands(self):
        run = self.session.run(QUARRYBOOK, "--help")
        self.assertEqual(run.returncode, 0)
        self.assertIn("  --sandboxed  ", run.stdout)
        self.assertIn("\n  until FIELD TEXT\n", run.stdout)

    def test_takes_a_picture_and_quits(self):
        picture = self.session.folder / "picture.png"
        run = self.session.run(QUARRYBOOK, "--picture", picture)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(picture.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")


if __name__ == "__main__":
    unittest.main()
