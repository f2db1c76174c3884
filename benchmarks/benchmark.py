#!/usr/bin/env python3
"""Measures what ./benchmark measures, and prints the table. See ./benchmark --help."""

import argparse
import pathlib
import platform
import re
import subprocess
import sys

import parts
import processes

ROOT = pathlib.Path(__file__).resolve().parents[1]
DOCUMENT = ROOT / "docs/performance.md"
PICTURE = ROOT / "docs/pictures/growth.png"
ROWS_IN_HOST = 500
PARTS = ("show", "sort", "order", "find", "save", "memory")
SIZES = (10, 100, 1000, 10_000, 100_000)


def line(what, pane, baseline, ratio, goal, unit="ms"):
    kept = "" if ratio is None or goal is None else ("yes" if ratio <= goal else "**no**")
    return (what, f"{number(pane)} {unit}", f"{number(baseline)} {unit}" if baseline is not None else "",
            "" if ratio is None else f"{ratio:.2f}", "" if goal is None else f"{goal:g}", kept)


def number(value):
    if value == 0:
        return "0"
    return f"{value:,.0f}" if value >= 100 else f"{value:.2g}" if value < 1 else f"{value:.3g}"


def of_parts(figures, scale=1000, unit="ms", measure="cpu_time"):
    for part, kind, rows, whose in sorted(figures, key=place):
        if whose != "pane":
            continue
        pane = figures[part, kind, rows, whose]
        other = figures[part, kind, rows, "baseline"]
        ratio = pane[measure] / other[measure]
        yield part, line(f"{part}, {kind}, {rows:,} rows", pane[measure] / scale, other[measure] / scale, ratio,
                         goal_of(part, rows), unit)


def place(key):
    """Parts in the order of the page."""
    part, kind, rows, _ = key
    return PARTS.index(part), kind, rows


def goal_of(part, rows):
    goals = {"show": 0.5 if rows >= 10_000 else 1, "sort": 1.5, "find": 1, "save": 1, "memory": 0.5}
    return goals.get(part)


def part_lines(repetitions):
    lines = [row for _, row in of_parts(parts.run("^(show|sort|order|find|save)", repetitions))]
    lines += [row for _, row in of_parts(parts.run("^memory", 1), 1, "bytes a row", "bytes_per_row")]
    return lines


def sync_lines(repetitions):
    """Saves on a disk, and what of them is the wait for it."""
    figures = parts.run("^save.ASCII.*/(100|10000)$", repetitions, parts.ON_DISK)
    lines = []
    for rows in (100, 10_000):
        saves = [figures["save", "ASCII", rows, whose] for whose in ("pane", "baseline")]
        pane, baseline = (save["real_time"] / 1000 for save in saves)
        syncs = (save["sync_time"] / 1000 for save in saves)
        lines.append(line(f"save on a disk, on the clock, {rows:,} rows", pane, baseline, pane / baseline, None))
        lines.append(line(f"of that the sync, {rows:,} rows", *syncs, None, None))
    return lines


def opening_lines(repetitions):
    opened = processes.open_panes(ROWS_IN_HOST, repetitions)
    pane, empty = opened["SorterPane"], opened["EmptyPane"]
    lines = [line(f"open at {ROWS_IN_HOST} rows, {what}", pane["all"][kind], empty["all"][kind],
                  pane["all"][kind] / empty["all"][kind], 1.15)
             for what, kind in (("processor time of the host", 1), ("time to the first picture", 0))]
    lines += [line(f"open, {step}", pane[step][1], empty[step][1], None, None) for step in processes.STEPS_OF_PANE]
    steps = {name: sum(times[step][1] for step in processes.STEPS_OF_PANE) for name, times in opened.items()}
    ranked = sorted((time, name) for name, time in steps.items() if name != "EmptyPane")
    order = ", ".join(f"{'**this pane**' if name == 'SorterPane' else name} {time:.0f} ms" for time, name in ranked)
    place = [name for _, name in ranked].index("SorterPane") + 1
    lines.append(("place among the panes of the independent host", f"{place} of {len(ranked)}", order, "",
                  f"{len(ranked) // 3}", "yes" if place <= len(ranked) // 3 else "**no**"))
    return lines


def idle_lines(seconds, others):
    hosts = processes.idle(ROWS_IN_HOST, seconds, others)
    pane, empty = hosts["SorterPane"], hosts["EmptyPane"]
    share = 100 * pane["share"]
    return [(f"idle with {others:,} processes, share of a processor", f"{share:.4f} %", f"{100 * empty['share']:.4f} %",
             "", "0.1 %", "yes" if share < 0.1 else "**no**"),
            ("idle, wake-ups a second", f"{pane['wakeups']:.2f}", f"{empty['wakeups']:.2f}", "", "0",
             "yes" if pane["wakeups"] <= empty["wakeups"] else "**no**"),
            line("memory of the host", pane["kilobytes"] / 1024, empty["kilobytes"] / 1024,
                 pane["kilobytes"] / empty["kilobytes"], None, "MB")]


def machine():
    model = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    clock = re.search(r"cpu MHz\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    count = subprocess.run(["nproc"], capture_output=True, text=True, check=True).stdout.strip()
    load = pathlib.Path("/proc/loadavg").read_text().split()[0]
    return (f"Measured on {platform.machine()}, {count} cores of {model[1] if model else 'an unknown kind'} at "
            f"{float(clock[1]) / 1000 if clock else 0:.1f} GHz, with a load of {load} before.")


def table(lines):
    head = ("what", "pane", "baseline", "ratio", "goal", "kept")
    return "\n".join("| " + " | ".join(row) + " |" for row in (head, ("---",) * len(head), *lines))


def write_document(text):
    marks = "<!-- figures: written by ./benchmark --write -->\n", "<!-- end of the figures -->"
    before, rest = DOCUMENT.read_text().split(marks[0])
    _, after = rest.split(marks[1])
    DOCUMENT.write_text(f"{before}{marks[0]}{text}\n{marks[1]}{after}")


def growth(repetitions):
    """Milliseconds of a processor by rows."""
    figures = parts.run("^(show|save).ASCII.pane", repetitions)
    curves = {part: [(rows, figures[part, "ASCII", rows, "pane"]["cpu_time"] / 1000) for rows in SIZES]
              for part in ("show", "save")}
    curves["scroll to a row"] = [(rows, processes.scroll(rows)) for rows in SIZES]
    return curves


def draw(curves):
    largest = dict(curves["show"])[SIZES[-1]]
    blocks = "\n".join(f"${name.split()[0]} << EOD\n" + "\n".join(f"{rows} {time}" for rows, time in points) + "\nEOD"
                       for name, points in curves.items())
    lines = ", ".join(f"${name.split()[0]} with linespoints linewidth 2 title '{name}'" for name in curves)
    script = f"""set terminal pngcairo size 900,560
set output '{PICTURE}'
set logscale xy
set xlabel 'rows'
set ylabel 'milliseconds of a processor'
set key left top
set grid
{blocks}
plot {lines}, [10:100000] {largest} * x * log(x) / (1e5 * log(1e5)) dashtype 2 linecolor 'gray40' title 'n log n'
"""
    subprocess.run(["gnuplot"], input=script, check=True, text=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--quick", action="store_true")
    options = parser.parse_args()
    repetitions = 3 if options.quick else 9
    head = machine()
    lines = part_lines(repetitions) + sync_lines(repetitions)
    lines += opening_lines(repetitions + 2) + idle_lines(5 if options.quick else 60, 1000)
    text = f"{head}\n\n{table(lines)}"
    print(text)
    if options.write:
        write_document(text)
        draw(growth(repetitions))


if __name__ == "__main__":
    sys.exit(main())
