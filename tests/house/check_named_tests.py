#!/usr/bin/env python3
"""check_named_tests.py DOCUMENT TESTS: checks that every test named in the document exists.

A name is Suite.Test in backquotes; the tests are the GoogleTests in the folder's sources. Prints each name that no test
has, and each sentence of a list that names none; exits with 1 if there is any.
"""

import pathlib
import re
import sys

TEST = re.compile(r"^TEST(?:_F|_P)?\((\w+),\s*(\w+)\)", re.MULTILINE)
NAME = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")
SENTENCE = re.compile(r"^- .*?(?=^- |^$|\Z)", re.MULTILINE | re.DOTALL)


def main():
    document = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    sources = [file for file in pathlib.Path(sys.argv[2]).rglob("*") if file.suffix in {".cpp", ".mm"}]
    tests = {f"{suite}.{name}" for file in sources for suite, name in TEST.findall(file.read_text(encoding="utf-8"))}
    sentences = SENTENCE.findall(document)
    wrong = [f"no such test: {name}" for name in NAME.findall(document) if name not in tests]
    wrong += [f"names no test: {sentence.strip()}" for sentence in sentences if not NAME.search(sentence)]
    if not sentences:
        wrong.append("there is no sentence")
    for line in wrong:
        print(line)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
