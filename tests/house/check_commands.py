#!/usr/bin/env python3
"""check_commands.py DOCUMENT PROGRAM: compares the commands in the program's --help with the document's.

Each section of the help that has "commands" in its title corresponds to the document's section with that title, whose
tables have a row for each command in the same notation. Prints the commands that only one of them has, and exits with
1 if there are any.
"""

import pathlib
import re
import subprocess
import sys


def commands_in_help(text):
    """The commands as they are written, by the title of their section."""
    sections = {}
    for block in text.split("\n\n"):
        title, *lines = block.splitlines()
        if title.endswith("commands:"):
            sections[title.rstrip(":")] = [line.strip() for line in lines]
    return sections


def commands_in_document(text, title):
    section = re.search(rf"^## {re.escape(title)}\n(.*?)(?=^## |\Z)", text, re.MULTILINE | re.DOTALL)
    rows = re.findall(r"^\| `(.*?)` \|", section[1] if section else "", re.MULTILINE)
    return [row.replace(r"\|", "|") for row in rows]


def complaints(title, listed, described):
    if not listed:
        yield f"{title}: --help lists none"
    for command in sorted(set(listed) - set(described)):
        yield f"{title}: not described: {command}"
    for command in sorted(set(described) - set(listed)):
        yield f"{title}: no such command: {command}"
    for command in sorted(command for command in set(described) if described.count(command) > 1):
        yield f"{title}: described twice: {command}"


def main():
    document, program = sys.argv[1:]
    text = pathlib.Path(document).read_text(encoding="utf-8")
    run = subprocess.run([program, "--help"], capture_output=True, text=True, check=True)
    sections = commands_in_help(run.stdout)
    problems = [problem for title, listed in sections.items()
                for problem in complaints(title, listed, commands_in_document(text, title))]
    if not sections:
        problems.append("--help has no section of commands")
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
