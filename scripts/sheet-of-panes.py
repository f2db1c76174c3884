#!/usr/bin/env python3
"""A picture of the pane beside panes of the independent host, SystemPreferences.

The host is started with these options, on a virtual display and in a home of its own, with what was built last by ./run
or ./test.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
os.environ["BUILD_FOLDER"] = str(ROOT / "build")
os.environ["CONTROL_FINDER"] = str(ROOT / "build/tests/endtoend/ControlFinder.bundle")
sys.path.insert(0, str(ROOT / "tests/endtoend"))

from controls import Controls  # noqa: E402
from host import Host  # noqa: E402
from session import PANE, SOLO_SORTER, Session  # noqa: E402

# Ours first; it is left last, because it asks when it is left in this host.
PANES = ["Sorter", "Modifier keys", "Date & Time", "Fonts", "Defaults", "Themes"]
HOT_KEYS = {"Sorter.NoteHotKeyCode": 45, "Sorter.NoteHotKeyModifiers": 256,
            "Sorter.ClipHotKeyCode": 8, "Sorter.ClipHotKeyModifiers": 4608}


def show(controls, title):
    controls.click(lambda: controls.find(title="Show All", enabled=True), f"the pane {title}", title=title)
    return controls.find(title="Show All")["window"]


def show_icons(controls):
    controls.click(lambda: controls.find(title="Show All", enabled=False), "the icons", title="Show All")


def pictures_in(session, options):
    controls = Controls(session)
    program = os.path.realpath(shutil.which("SystemPreferences"))
    host = Host(session, program, *controls.options, *options)
    pictures = [session.folder / f"{title}.png" for title in PANES]
    for title, picture in reversed(list(zip(PANES, pictures))):
        window = show(controls, title)
        host.wait_until_idle()
        session.run("import", "-window", window, picture)
        if title != PANES[0]:
            show_icons(controls)
    return pictures


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("picture", help="the file to write")
    parser.add_argument("option", nargs=argparse.REMAINDER, help="of the host, such as a color")
    return parser.parse_args()


def main():
    given = arguments()
    with Session() as session:
        session.set_domain("SystemPreferences", HOT_KEYS)
        shutil.copy(ROOT / "resources/sample/HideList.plist", session.domain_file(SOLO_SORTER))
        (session.home / "GNUstep/Library/Bundles" / PANE.name).symlink_to(PANE)
        pictures = pictures_in(session, given.option)
        subprocess.run(["montage", *pictures, "-tile", "3x", "-geometry", "+12+12", "-gravity", "north", "-background",
                        "#606068", given.picture], check=True)


if __name__ == "__main__":
    main()
