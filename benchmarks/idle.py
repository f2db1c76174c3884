#!/usr/bin/env python3
"""idle.py BUILD [SECONDS [PROCESSES]]: what the host costs while its pane is shown and nothing happens, beside that
many sleeping processes."""

import os
import pathlib
import signal
import subprocess
import sys
import time

build, seconds, others = pathlib.Path(sys.argv[1]).resolve(), *map(int, (sys.argv[2:] + ["30", "1000"])[:2])
os.environ["BUILD_FOLDER"] = str(build)
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/endtoend"))

from session import QUARRYBOOK, Session, read_process_file, wait_until  # noqa: E402

TIME_TO_SETTLE = 3


def start_sleepers(count):
    """Processes that do nothing, as children of one that leads a group of their own."""
    return subprocess.Popen(["bash", "-c", f"for ((i = 0; i < {count}; ++i)); do sleep 3600 & done; wait"],
                            start_new_session=True)


def count_processes():
    return sum(name.isdigit() for name in os.listdir("/proc"))


def usage(process):
    """Seconds on a processor, and how often it went to sleep."""
    switches = [line.split()[1] for line in read_process_file(process, "status").splitlines()
                if line.startswith("voluntary_ctxt_switches:")]
    return int(read_process_file(process, "schedstat").split()[0]) / 1e9, int(switches[0])


def shows_window(session):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Sorter"], env=session.environment,
                           capture_output=True)
    return bool(found.stdout)


def measure(session):
    host = session.start(QUARRYBOOK)
    wait_until(lambda: shows_window(session), "the window")
    time.sleep(TIME_TO_SETTLE)
    began, before = time.monotonic(), usage(host.pid)
    time.sleep(seconds)
    after, passed = usage(host.pid), time.monotonic() - began
    print(f"{count_processes()} processes: {100 * (after[0] - before[0]) / passed:.4f} % of a processor, "
          f"{(after[1] - before[1]) / passed:.2f} wake-ups a second")


signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended"))
sleepers = start_sleepers(others)
try:
    wait_until(lambda: count_processes() > others, "the other processes")
    with Session() as session:
        measure(session)
finally:
    os.killpg(sleepers.pid, signal.SIGKILL)
    sleepers.wait()
