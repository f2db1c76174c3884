#!/usr/bin/env python3
"""check_configuration.py ROOT BUILD: configures the build for macOS in that folder, and checks what would be built.

Nothing is compiled: it takes a Mac for that. Prints what is wrong, and exits with 1 if anything is.
"""

import pathlib
import plistlib
import re
import subprocess
import sys

FRAMEWORKS = ("AppKit", "Carbon", "CoreServices", "PreferencePanes", "ServiceManagement")
CLASS = "_OBJC_CLASS_$_QBSPPreferencePane"


def configured(root, build):
    command = ["cmake", "--preset", "macos", "-B", build, f"-DCMAKE_TOOLCHAIN_FILE={root}/tests/house/macos/toolchain.cmake"]
    done = subprocess.run([str(word) for word in command], cwd=root, capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(done.stdout + done.stderr)
    return (build / "build.ninja").read_text()


def compiled(rules):
    """The sources of the project that the build compiles."""
    lines = [line for line in rules.splitlines() if line.startswith("build ") and "_COMPILER__" in line]
    return {line.split("_COMPILER__")[1].split()[1] for line in lines}


def complaints(root, build):
    rules = configured(root, build)
    sources = compiled(rules)
    for source in sorted((root / "src/appkit").rglob("*.mm")):
        if ("gnustep" in source.parts) == (str(source) in sources):
            yield f"{source.relative_to(root)} is {'compiled' if str(source) in sources else 'left out'}"
    yield from (f"{framework} is not linked" for framework in FRAMEWORKS if f"-framework {framework}" not in rules)
    if "-exported_symbols_list" not in rules or CLASS not in (root / "src/appkit/plugin/exports.txt").read_text():
        yield "the class is not what is exported"
    yield from described(build)


def described(build):
    bundle = build / "SorterPane.prefPane"
    beside = [each.name for each in bundle.iterdir() if each.name != "Contents"]
    if beside:
        yield f"beside Contents, which code signing refuses: {beside}"
    description = plistlib.loads((bundle / "Contents/Info.plist").read_bytes())
    cache = (build / "CMakeCache.txt").read_text()
    minimum = description.get("LSMinimumSystemVersion")
    if not minimum or not re.search(rf"^CMAKE_OSX_DEPLOYMENT_TARGET:\w+={re.escape(minimum)}$", cache, re.MULTILINE):
        yield f"the description asks for macOS {minimum}, which is not the deployment target"


def main():
    wrong = list(complaints(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
    for line in wrong:
        print(line)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
