"""The survivors that are named, each with the reason why no test can or should kill it."""

from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Survivor:
    """A change by what stands in its lines before and after, so that it is found again when lines move."""
    file: str
    function: str
    was: str
    becomes: str

    def __str__(self) -> str:
        return f"file: {self.file}\nin: {self.function}\nwas: {self.was}\nbecomes: {self.becomes}"


def named_survivors(file: Path) -> dict[Survivor, str]:
    """Each survivor that the file names, with its reason. Raises ValueError for an entry without one."""
    named = {}
    text = "\n".join(line for line in file.read_text().splitlines() if not line.startswith("#"))
    for block in filter(None, (part.strip() for part in text.split("\n\n"))):
        fields = dict(line.split(":", 1) for line in block.splitlines())
        fields = {name: value.strip() for name, value in fields.items()}
        reason = fields.pop("reason", "")
        if not reason or set(fields) != {"file", "in", "was", "becomes"}:
            raise ValueError(f"{file}: an entry is not complete:\n{block}")
        named[Survivor(fields["file"], fields["in"], fields["was"], fields["becomes"])] = reason
    return named
