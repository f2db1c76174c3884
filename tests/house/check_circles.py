#!/usr/bin/env python3
"""check_circles.py ROOT: no file of the product may include itself through others, nor may a folder of support/.

A header and the source of the same name count as one, so that a source that reaches back to its includer is a circle
too. Prints each circle and exits with 1 if there is one.
"""

import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*"([^"]+)"', re.MULTILINE)
SUFFIXES = {".h", ".cpp", ".mm", ".m"}
# A folder of support/, in the name of a unit.
FOLDER = re.compile(r"src/support/\w+")
# Where an include in quotes is looked for, after the folder of the file itself.
PATHS = ("src", "src/support", "standins/common")


def sources(root):
    for folder in ("src", "standins"):
        yield from (file for file in sorted((root / folder).rglob("*")) if file.suffix in SUFFIXES)


def found(root, file, name):
    for folder in (file.parent, *(root / path for path in PATHS)):
        if (folder / name).is_file():
            return (folder / name).resolve()
    return None


def unit(root, file):
    return str(file.relative_to(root).with_suffix(""))


def includes(root):
    """The units that each unit includes."""
    graph = {}
    for file in sources(root):
        others = graph.setdefault(unit(root, file), set())
        for name in INCLUDE.findall(file.read_text(encoding="utf-8")):
            header = found(root, file, name)
            if header is not None and unit(root, header) != unit(root, file):
                others.add(unit(root, header))
    return graph


def folders(graph):
    """The folders of support/ that each of them includes, itself aside."""
    result = {}
    for node, others in graph.items():
        if folder := FOLDER.match(node):
            reached = {match[0] for match in map(FOLDER.match, others) if match}
            result.setdefault(folder[0], set()).update(reached - {folder[0]})
    return result


def circles(graph):
    """The circles that a depth-first search meets, each as a path that ends where it begins."""
    done, path = set(), []

    def visit(node):
        if node in path:
            yield path[path.index(node):] + [node]
        elif node not in done:
            path.append(node)
            for other in sorted(graph.get(node, ())):
                yield from visit(other)
            path.pop()
            done.add(node)

    for node in sorted(graph):
        yield from visit(node)


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    graph = includes(root)
    wrong = [*circles(graph), *circles(folders(graph))]
    for circle in wrong:
        print(" -> ".join(circle))
    if len(graph) < 100:
        print(f"only {len(graph)} units were found below {root}")
    return 1 if wrong or len(graph) < 100 else 0


if __name__ == "__main__":
    sys.exit(main())
