"""The list of rooms that the build writes: a line each, the name, "core" for the core's, a colon, the rooms used."""

import pathlib
from typing import NamedTuple


class Room(NamedTuple):
    core: bool
    uses: frozenset


def read(path):
    """The rooms by name, in the order of the list."""
    house = {}
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        heading, uses = line.split(":")
        name, *marks = heading.split()
        house[name] = Room("core" in marks, frozenset(uses.split()))
    return house
