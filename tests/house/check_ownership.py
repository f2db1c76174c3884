#!/usr/bin/env python3
"""check_ownership.py FOLDER...: Objective-C objects hold their C++ parts in one way.

An instance variable that owns a C++ part is a std::unique_ptr to it, which is destroyed with the object. A `void*` hides
what it points to, and `new` and `delete` in Objective-C++ mean that a plain pointer owns. Prints each place and exits with 1
if there is one.
"""

import pathlib
import re
import sys

INTERFACE = re.compile(r"^@(?:interface|implementation)\b[^{@]*?\{(.*?)^\}", re.MULTILINE | re.DOTALL)
COMMENT = re.compile(r'//[^\n]*|/\*.*?\*/|@?"(?:\\.|[^"\\])*"', re.DOTALL)
HIDDEN = re.compile(r"\bvoid\s*\*\s*\w+\s*;")
NEW = re.compile(r"(?<![\w.])new\s+[A-Za-z_:]")
DELETE = re.compile(r"(?<![\w.])(?<!= )delete\b")


def without_comments(text):
    """The text with its comments and strings blanked, so that line numbers stay."""
    return COMMENT.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def faults(text):
    text = without_comments(text)
    for body in INTERFACE.finditer(text):
        for found in HIDDEN.finditer(body.group(1)):
            yield line_of(text, body.start(1) + found.start()), f"'{found.group()}' hides what it points to"
    for pattern in (NEW, DELETE):
        for found in pattern.finditer(text):
            yield line_of(text, found.start()), f"'{found.group().split()[0]}': use std::make_unique, and let the std::unique_ptr delete it"


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def main():
    files = [file for folder in sys.argv[1:] for file in sorted(pathlib.Path(folder).rglob("*"))
             if file.suffix in {".mm", ".m", ".h"}]
    if not files:
        print("no files")
        return 1
    found = [(file, line, words) for file in files for line, words in faults(file.read_text(encoding="utf-8"))]
    for file, line, words in found:
        print(f"{file}:{line}: {words}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
