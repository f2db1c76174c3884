"""Whole processes: a host that opens a pane, that scrolls in it, and that waits."""

import contextlib
import os
import pathlib
import signal
import statistics
import subprocess
import sys
import time

BUILD = pathlib.Path(__file__).resolve().parents[1] / "build/benchmark"
os.environ["BUILD_FOLDER"] = str(BUILD)
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/endtoend"))

from session import HIDE_LIST, SOLO_SORTER, Session, read_process_file, wait_until  # noqa: E402

HOST = BUILD / "benchmarks/opening_host"
PANE = BUILD / "SorterPane.prefPane"
EMPTY = BUILD / "benchmarks/EmptyPane.prefPane"
OTHERS = pathlib.Path("/usr/lib/GNUstep/Bundles")
STEPS_OF_PANE = ("load", "view", "select", "draw")
TIME_TO_SETTLE = 3  # seconds


def store_list(session, rows):
    flags = {f"Application {row * 7919 % rows}": row % 3 == 0 for row in range(rows)}
    session.set_domain(SOLO_SORTER, {HIDE_LIST: flags})


def opened(session, pane, *options):
    """What each step of opening the pane took: milliseconds on the clock, and of a processor."""
    run = session.run("timeout", "60", HOST, "-Pane", pane, *options)
    if run.returncode != 0:
        raise RuntimeError(f"{pane.name} was not opened: {run.stdout}{run.stderr}")
    lines = (line.split() for line in run.stdout.splitlines())
    return {name: (float(real), float(used)) for name, real, used in lines}


def medians(runs):
    """The median of each step, and of all together."""
    runs = [run | {"all": tuple(map(sum, zip(*run.values())))} for run in runs]
    return {step: tuple(map(statistics.median, zip(*(run[step] for run in runs)))) for step in runs[0]}


def other_panes():
    """Those that the independent host ships and that can be opened here."""
    return [pane for pane in sorted(OTHERS.glob("*.prefPane")) if pane.name != PANE.name]


def open_panes(rows, repetitions):
    """Opens all panes in turn, again and again."""
    runs = {}
    with Session() as session:
        store_list(session, rows)
        opened(session, EMPTY)  # the first starts what all share
        for _ in range(repetitions):
            for pane in [EMPTY, PANE, *other_panes()]:
                with contextlib.suppress(RuntimeError):
                    runs.setdefault(pane.stem, []).append(opened(session, pane))
    return {name: medians(times) for name, times in runs.items()}


def scroll(rows, places=100):
    """Milliseconds of a processor for each place that is scrolled to."""
    with Session() as session:
        store_list(session, rows)
        runs = [opened(session, PANE, "-Scrolls", places) for _ in range(3)]
        return statistics.median(run["scroll"][1] for run in runs) / places


def usage(process):
    """Seconds on a processor, and how often it went to sleep."""
    switches = [line.split()[1] for line in read_process_file(process, "status").splitlines()
                if line.startswith("voluntary_ctxt_switches:")]
    return int(read_process_file(process, "schedstat").split()[0]) / 1e9, int(switches[0])


def kilobytes(process):
    return next(int(line.split()[1]) for line in read_process_file(process, "status").splitlines()
                if line.startswith("VmRSS:"))


def count_processes():
    return sum(name.isdigit() for name in os.listdir("/proc"))


@contextlib.contextmanager
def sleepers(count):
    """Processes that do nothing, as children of one that leads a group of their own."""
    leader = subprocess.Popen(["bash", "-c", f"for ((i = 0; i < {count}; ++i)); do sleep 3600 & done; wait"],
                              start_new_session=True)
    try:
        wait_until(lambda: count_processes() > count, "the other processes")
        yield
    finally:
        os.killpg(leader.pid, signal.SIGKILL)
        leader.wait()


def staying_host(session, pane):
    process = subprocess.Popen([HOST, "-Pane", pane, "-Stays", "YES"], env=session.environment,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    while not process.stdout.readline().startswith("scroll"):
        pass
    return process.pid


def idle(rows, seconds, processes):
    """Share of a processor, wake-ups a second and kilobytes of the host with either pane, both at once."""
    with sleepers(processes), Session() as session:
        store_list(session, rows)
        hosts = {pane.stem: staying_host(session, pane) for pane in (EMPTY, PANE)}
        time.sleep(TIME_TO_SETTLE)
        began, before = time.monotonic(), {name: usage(host) for name, host in hosts.items()}
        time.sleep(seconds)
        passed = time.monotonic() - began
        return {name: {"share": (usage(host)[0] - before[name][0]) / passed,
                       "wakeups": (usage(host)[1] - before[name][1]) / passed,
                       "kilobytes": kilobytes(host)} for name, host in hosts.items()}
