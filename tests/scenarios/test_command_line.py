"""The player's command line: what it takes, what it says of itself, and what it refuses."""

import os
import pathlib
import subprocess
import unittest

PANE_REPLAY = os.environ["PANE_REPLAY"]
SCENARIO = pathlib.Path(__file__).with_name("first-look.scenario")


def run(*arguments, text=""):
    return subprocess.run([PANE_REPLAY, *arguments], input=text, capture_output=True, text=True, check=False)


class CommandLineTest(unittest.TestCase):
    def test_explains_the_commands_and_exit_statuses_on_request(self):
        for option in ("--help", "-h"):
            with self.subTest(option=option):
                explained = run(option)

                self.assertEqual(explained.returncode, 0)
                self.assertEqual(explained.stderr, "")
                self.assertTrue(explained.stdout.startswith("usage: pane-replay FILE\n"))
                for line in ("World commands:", "  sandboxed true|false", "Pane commands:", "  find NAME", "Exit status:"):
                    self.assertIn(line, explained.stdout.splitlines())

    def test_refuses_what_it_cannot_play_in_one_line_with_status_2(self):
        for arguments in ([], [SCENARIO, SCENARIO], ["--unknown"], ["-x"], ["/nowhere"], ["/"], [""]):
            with self.subTest(arguments=arguments):
                refused = run(*arguments)

                self.assertEqual(refused.returncode, 2)
                self.assertEqual(refused.stdout, "")
                self.assertRegex(refused.stderr, r"\Apane-replay: .+\n\Z")

    def test_names_the_option_that_it_does_not_know(self):
        self.assertIn("'--unknown'", run("--unknown").stderr)

    def test_plays_standard_input_as_it_plays_a_file(self):
        played = run("-", text=SCENARIO.read_text(encoding="utf-8"))

        self.assertEqual((played.returncode, played.stdout), (0, run(SCENARIO).stdout))
        self.assertEqual(run("-", text="\nfly\n").stderr, '-:2: unknown command: "fly"\n')


if __name__ == "__main__":
    unittest.main()
