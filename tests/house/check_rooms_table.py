#!/usr/bin/env python3
"""check_rooms_table.py DOCUMENT ROOMS: checks the table of rooms in the document against the list that the build wrote.

The table has a row for each room: its name, what is in it, and the rooms that it may use, each in backquotes. Prints
what differs and exits with 1 if anything does.
"""

import pathlib
import re
import sys

import rooms

ROW = re.compile(r"^\| `(\w+)/` \|.*\|([^|]*)\|$")


def main():
    text = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    section = text.split("## The rooms\n", 1)[1].split("\n## ", 1)[0]
    rows = filter(None, map(ROW.match, section.splitlines()))
    written = {row[1]: frozenset(re.findall(r"`(\w+)`", row[2])) for row in rows}
    house = rooms.read(sys.argv[2])
    differences = [f"{room}/ is missing from the table" for room in house if room not in written]
    differences += [f"{room}/ is not a room" for room in written if room not in house]
    differences += [
        f"{room}/ uses {sorted(house[room].uses)}, not {sorted(written[room])}"
        for room in house
        if room in written and written[room] != house[room].uses
    ]
    print("\n".join(differences))
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
