#!/usr/bin/env python3
"""check_string_tables.py ROOT: checks that each language's string tables have exactly the keys that are looked up.

The code looks up the constants of type TextKey that it uses, and the texts that the Objective-C++ shell asks for in
place; a host looks up what it shows of the plug-in's description. Prints each missing, unused or duplicate key, each text
that has other placeholders than its key, and each line that is not an entry; exits with 1 if there is one.
"""

import codecs
import collections
import pathlib
import re
import sys

STRING = r'"(?:[^"\\]|\\.)*"'
CONSTANT = re.compile(rf"TextKey (\w+)\{{\s*((?:{STRING}\s*)+)\}}")
TEXT_IN_PLACE = re.compile(rf"(?:localized\(|localizedStringForKey:)\s*((?:@?{STRING}\s*)+)")
ENTRY_OR_COMMENT = re.compile(rf"/\*.*?\*/|//[^\n]*|({STRING})\s*=\s*({STRING})\s*;", re.DOTALL)
OF_HOSTS = {"NSPrefPaneIconLabel"}
ESCAPES = {"n": "\n", "t": "\t", "r": "\r"}


def unescaped(literals):
    """The text of string literals that stand side by side."""
    contents = "".join(literal[1:-1] for literal in re.findall(STRING, literals))
    return re.sub(r"\\(.)", lambda escape: ESCAPES.get(escape[1], escape[1]), contents, flags=re.DOTALL)


def looked_up(source):
    """The keys that the code looks up."""
    texts = [file.read_text(encoding="utf-8") for file in source.rglob("*") if file.suffix in {".h", ".cpp", ".m", ".mm"}]
    used = {name for text in texts for name in re.findall(r"texts::(\w+)", text)}
    constants = {unescaped(literals) for text in texts for name, literals in CONSTANT.findall(text) if name in used}
    return constants | {unescaped(literals) for text in texts for literals in TEXT_IN_PLACE.findall(text)}


def decoded(table):
    data = table.read_bytes()
    utf16 = data.startswith((codecs.BOM_UTF16_LE, codecs.BOM_UTF16_BE))
    return data.decode("utf-16" if utf16 else "utf-8-sig")


def complaints(table, expected):
    if not table.exists():
        return ["there is no such file"]
    return wrong_entries(decoded(table), expected)


def wrong_entries(text, expected):
    entries = [(unescaped(entry[1]), entry[2]) for entry in ENTRY_OR_COMMENT.finditer(text) if entry[1]]
    keys = collections.Counter(key for key, _ in entries)
    yield from (f"missing key: {key!r}" for key in sorted(expected - keys.keys()))
    yield from (f"unused key: {key!r}" for key in sorted(keys.keys() - expected))
    yield from (f"key has {times} entries: {key!r}" for key, times in sorted(keys.items()) if times > 1)
    yield from (f"other placeholders than the key: {key!r}" for key, text_shown in entries
                if key.count("%@") != text_shown.count("%@"))
    rest = ENTRY_OR_COMMENT.sub("", text)
    yield from (f"neither entry nor comment: {line.strip()!r}" for line in rest.splitlines() if line.strip())


def main():
    root = pathlib.Path(sys.argv[1])
    expected = {"Localizable.strings": looked_up(root / "src"), "InfoPlist.strings": OF_HOSTS}
    languages = sorted((root / "resources").glob("*.lproj"))
    wrong = [f"{(language / table).relative_to(root)}: {complaint}" for language in languages
             for table, keys in expected.items() for complaint in complaints(language / table, keys)]
    if not all(expected.values()) or not languages:
        wrong.append(f"{expected}, {len(languages)} languages: there should be some of both")
    for line in wrong:
        print(line)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
