"""Parts of the pane beside the same steps straight on Foundation, measured by one program in turns."""

import json
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[1]
PROGRAM = ROOT / "build/benchmark/benchmarks/part_benchmarks"
IN_MEMORY = "/dev/shm"
ON_DISK = "/var/tmp"


def run(expression, repetitions, homes=IN_MEMORY, shortest=0.03):
    """Medians by part, kind of list, rows and whose, in microseconds of a processor, on the clock and in syncs."""
    command = [ROOT / "tests/appkit/in-session", PROGRAM, f"--benchmark_filter={expression}",
               f"--benchmark_min_time={shortest}", f"--benchmark_repetitions={repetitions}",
               "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true",
               "--benchmark_format=json"]
    output = subprocess.run(command, env=os.environ | {"SESSION_HOMES": homes}, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, check=True, text=True).stdout
    figures = {}
    for each in json.loads(output)["benchmarks"]:
        if each.get("error_occurred"):
            raise RuntimeError(f"{each['name']}: {each['error_message']}")
        if each.get("aggregate_name", "median") == "median":  # a single run has no aggregates
            figures[key(each["run_name"])] = {name: each[name] for name in ("cpu_time", "real_time", "sync_time", "bytes_per_row")
                                              if name in each}
    return figures


def key(name):
    """part|kind|whose/rows"""
    part, kind, rest = name.split("|")
    whose, rows = rest.split("/")[:2]
    return part, kind, int(rows), whose
