"""Tries mutants: a copy of the project in which one file at a time is changed, built and tested."""

import enum
import os
import shutil
import signal
import subprocess
import time
from pathlib import Path

from changes import Change


class Outcome(enum.Enum):
    KILLED = "killed"
    SURVIVED = "survived"
    NOT_COMPILED = "does not compile"


class Trial:
    """A copy of the project with a build of its own. It is kept, so that the next run builds only what changed."""

    def __init__(self, root: Path, place: Path):
        self.root = root
        self.copy = place
        self.build = place / "build/mutants"
        self._mirror()
        self._must("cmake", "--preset", "mutants")
        self._must("cmake", "--build", "--preset", "mutants")
        # What is tried first is built sooner, and most mutants need not get further.
        self.tests = {"pane-replay": self._play_scenarios, "unit_tests": self._pass_unit_tests}
        start = time.monotonic()
        if not all(passes(600) for passes in self.tests.values()):
            raise RuntimeError("the tests fail without any change")
        # A mutant that never ends is killed too.
        self.limit = 10 * (time.monotonic() - start) + 5

    def outcome(self, change: Change) -> Outcome:
        original = (self.root / change.file).read_bytes()
        mutated = self.copy / change.file
        mutated.write_bytes(change.apply(original))
        try:
            for target, passes in self.tests.items():
                if self._run("cmake", "--build", "--preset", "mutants", "--target", target).returncode != 0:
                    return Outcome.NOT_COMPILED
                if not passes(self.limit):
                    return Outcome.KILLED
            return Outcome.SURVIVED
        finally:
            mutated.write_bytes(original)

    def _play_scenarios(self, limit: float) -> bool:
        replay = str(self.build / "bin/pane-replay")
        compare = str(self.root / "tests/scenarios/play-and-compare")
        return all(self._succeeds(limit, compare, replay, str(scenario)) for scenario in self._scenarios())

    def _pass_unit_tests(self, limit: float) -> bool:
        return self._succeeds(limit, str(self.build / "tests/unit_tests"), "--gtest_fail_fast", "--gtest_brief=1")

    def _succeeds(self, limit: float, *command: str) -> bool:
        with subprocess.Popen(command, cwd=self.copy, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True) as process:
            try:
                return process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)  # with what a script has started
                return False

    def _scenarios(self) -> list[Path]:
        return sorted((self.root / "tests/scenarios").glob("*.scenario"))

    def _run(self, *command: str) -> subprocess.CompletedProcess:
        return subprocess.run(command, cwd=self.copy, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)

    def _must(self, *command: str) -> None:
        result = self._run(*command)
        if result.returncode != 0:
            raise RuntimeError(f"{' '.join(command)} failed:\n{result.stdout.decode()}")

    def _mirror(self) -> None:
        """Makes the copy's sources those of the project; a file that is the same is not touched."""
        self.copy.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.root, check=True,
                                stdout=subprocess.PIPE, text=True).stdout.splitlines()
        present = {file for file in listed if (self.root / file).is_file()}
        for old in self.copy.rglob("*"):
            name = str(old.relative_to(self.copy))
            if old.is_file() and not name.startswith("build/") and name not in present:
                old.unlink()
        for file in present:
            source, target = self.root / file, self.copy / file
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
