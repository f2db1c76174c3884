#!/usr/bin/env python3
"""check_includes.py SRC ROOMS: checks every include of the rooms against the list of rooms that the build wrote.

A room may include headers of the rooms that it uses. The core's rooms may also include the standard library, and
nothing of the system; no file may leave its room by a path. The folders of support/ are included by their own names.
Prints each wrong include and exits with 1 if there is one.
"""

import pathlib
import re
import sys

import rooms

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
    climits clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg
    cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution expected
    filesystem format forward_list fstream functional future initializer_list iomanip ios iosfwd iostream istream
    iterator latch limits list locale map memory memory_resource mutex new numbers numeric optional ostream queue
    random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span sstream stack
    stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple type_traits
    typeindex typeinfo unordered_map unordered_set utility valarray variant vector version""".split()
)

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"]')


def owner(name, source):
    """The room of the included header, when it is the header of a room."""
    first = pathlib.PurePath(name).parts[0]
    return "support" if (source / "support" / first).is_dir() else first


def complaint(room, kind, name, house, source):
    if kind == "<":
        outside = house[room].core and name not in STANDARD
        return f"<{name}> is not part of the standard library" if outside else None
    if ".." in pathlib.PurePath(name).parts:
        return f'"{name}" leaves its room by a path'
    other = owner(name, source)
    allowed = other == room or other in house[room].uses or other not in house
    return None if allowed else f'"{name}": {room} may not use {other}'


def main():
    source = pathlib.Path(sys.argv[1])
    house = rooms.read(sys.argv[2])
    wrong = 0
    for room in house:
        folder = source / room if room != "standins" else source.parent / room
        files = [f for f in sorted(folder.rglob("*")) if f.suffix in {".h", ".cpp", ".mm", ".m"}]
        if not files:
            print(f"{room}: no files")
            wrong += 1
        for file in files:
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                problem = match and complaint(room, *match.groups(), house, source)
                if problem:
                    print(f"{file}:{number}: {problem}")
                    wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
