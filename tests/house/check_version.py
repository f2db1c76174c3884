#!/usr/bin/env python3
"""check_version.py VERSION CHANGELOG: the newest release that the change log describes is that version."""

import pathlib
import re
import sys

version, changelog = sys.argv[1], pathlib.Path(sys.argv[2])
releases = re.findall(r"^## \[(\d+\.\d+\.\d+)\]", changelog.read_text(encoding="utf-8"), re.MULTILINE)
if releases[:1] != [version]:
    sys.exit(f"the project's version is {version}, and the releases in {changelog.name} are {releases}")
