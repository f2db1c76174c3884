#!/usr/bin/python3
"""Changes the pane's core in one small way at a time, and says which changes the tests do not notice.

The changes are to operators, constants, conditions, returned values and statements in platform/ and the five rooms of
the pane. For each, the scenarios are played, and then the unit tests run; a change is killed when one of them fails.
One that does not compile is not counted. A survivor needs a test, or an entry with the reason in
tests/mutants/survivors.txt. The script fails for one that has neither, and for an entry of a change that is not tried.
"""

import argparse
import os
import queue
import random
import sys
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ROOMS = ("platform", "pane", "settings", "sorter", "hotkeys", "hidelist")
NAMED = ROOT / "tests/mutants/survivors.txt"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests/mutants"))

from changes import Change, changes_of  # noqa: E402
from survivors import Survivor, named_survivors  # noqa: E402
from trial import Outcome, Trial  # noqa: E402


def options() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("file", nargs="*", help="only the changes to these files, named from the root")
    parser.add_argument("--sample", type=int, metavar="N", help="only N changes, chosen at random")
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 32), help="chooses the same sample again")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="how many are tried at once")
    return parser.parse_args()


def files() -> list[str]:
    return [str(path.relative_to(ROOT)) for room in ROOMS for path in sorted((ROOT / "src" / room).iterdir())
            if path.suffix in (".h", ".cpp")]


def survivor_of(change: Change) -> Survivor:
    return Survivor(change.file, change.function, *change.lines((ROOT / change.file).read_bytes()))


def try_all(changes: list[Change], jobs: int) -> dict[Change, Outcome]:
    """Tries the changes on so many copies of the project at once, and prints each survivor when it is found."""
    trials: queue.Queue[Trial] = queue.Queue()
    for number in range(jobs):
        trials.put(Trial(ROOT, ROOT / f"build/mutants/{number}"))

    def try_one(change: Change) -> Outcome:
        trial = trials.get()
        try:
            outcome = trial.outcome(change)
        finally:
            trials.put(trial)
        if outcome == Outcome.SURVIVED:
            print(f"\n{survivor_of(change)}", flush=True)
        return outcome

    with ThreadPoolExecutor(jobs) as pool:
        return dict(zip(changes, pool.map(try_one, changes)))


def report(outcomes: dict[Change, Outcome], named: dict[Survivor, str], gone: set[Survivor]) -> bool:
    """Says what must be done about survivors and entries; True when there is nothing to do."""
    survivors = {survivor_of(change) for change, outcome in outcomes.items() if outcome == Outcome.SURVIVED}
    problems = {
        "This survived, and needs a test, or an entry with the reason": survivors - named.keys(),
        "This is named as a survivor, but there is no such change": gone,
    }
    for problem, found in problems.items():
        for survivor in sorted(found, key=str):
            print(f"\n{problem}:\n{survivor}")
    return not any(problems.values())


def main() -> int:
    chosen = options()
    named = named_survivors(NAMED)
    sources = chosen.file or files()
    changes = [change for file in sources for change in changes_of(ROOT, file)]
    gone = {each for each in named if each.file in sources} - {survivor_of(change) for change in changes}
    if chosen.sample is not None:
        print(f"a sample of {chosen.sample} out of {len(changes)} changes, with --seed {chosen.seed}", flush=True)
        changes = random.Random(chosen.seed).sample(changes, min(chosen.sample, len(changes)))
    start = time.monotonic()
    outcomes = try_all(changes, chosen.jobs)
    count = Counter(outcomes.values())
    print(f"\n{len(changes)} changes in {time.monotonic() - start:.0f} s: {count[Outcome.KILLED]} killed, "
          f"{count[Outcome.SURVIVED]} survived, {count[Outcome.NOT_COMPILED]} do not compile")
    return 0 if report(outcomes, named, gone) else 1


if __name__ == "__main__":
    sys.exit(main())
