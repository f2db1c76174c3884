#!/usr/bin/env python3
"""check_each_source.py ROOT FOLDER...: compiles each source below the folders by itself, as the default preset does, but
only checks it.

The builds that run the tests compile sources in batches, after headers that all of them share: they accept a source
that lacks an include or uses a name from its neighbour. Skips sources that were accepted before, unless they or any
header have changed since. Prints the compiler's messages, and exits with 1 if it rejects a source.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

SUFFIXES = (".cpp", ".m", ".mm")
FOLDERS = ("src", "standins", "tests")


def configured(root):
    """The default preset's build folder, configured."""
    done = subprocess.run(["cmake", "--preset", "default"], cwd=root, capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(done.stdout + done.stderr)
    return root / "build/default"


def headers_of(root):
    digest = hashlib.sha256()
    for folder in FOLDERS:
        for header in sorted((root / folder).rglob("*.h")):
            digest.update(header.read_bytes())
    return digest


def checks(root, build, folders):
    """A command and the stamp that says that it succeeded, for each source that is the project's own."""
    headers = headers_of(root)
    stamps = build / "alone"
    stamps.mkdir(exist_ok=True)
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        if source.suffix not in SUFFIXES or not any(source.is_relative_to(root / folder) for folder in folders):
            continue
        words = shlex.split(entry["command"])
        output = words.index("-o")
        command = words[:output] + words[output + 2:] + ["-fsyntax-only"]
        digest = headers.copy()
        digest.update(source.read_bytes() + " ".join(command).encode())
        yield command, entry["directory"], stamps / digest.hexdigest()


def accepted(check):
    command, folder, stamp = check
    done = subprocess.run(command, cwd=folder, capture_output=True, text=True)
    if done.returncode == 0:
        stamp.touch()
    return done.returncode == 0, done.stderr


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    everything = list(checks(root, configured(root), sys.argv[2:]))
    if not everything:
        sys.exit("the default preset compiles nothing there")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(accepted, [check for check in everything if not check[2].exists()]))
    sys.stderr.writelines(messages for _, messages in results)
    return 0 if all(good for good, _ in results) else 1


if __name__ == "__main__":
    sys.exit(main())
