#!/usr/bin/env python3
"""floors.py [ROOT]: holds includes and link lines against the table of docs/architecture.md.

The table tells the rules, the text above it what they mean. A finding is one line on
stdout; the status is then 1.
"""

import os
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

CORE = "Core"
EVERYTHING = "anything else of ours"


@dataclass
class Library:
    name: str
    folder: str  # below src
    modules: set  # of Qt
    never: set  # folders and modules
    links: list = field(default_factory=list)  # libraries
    linked_modules: set = field(default_factory=set)


def code_words(cell):
    return re.findall(r"`([^`]+)`", cell)


def read_table(text):
    """The libraries in the order of the table."""
    libraries = []
    for line in text.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("| `") or len(cells) != 5:
            continue
        never = set(code_words(cells[4]))
        if EVERYTHING in cells[4]:
            never.add("")
        libraries.append(
            Library(
                name=code_words(cells[0])[0],
                folder=code_words(cells[1])[0].removeprefix("src/"),
                modules=set(code_words(cells[3])) | {CORE},
                never=never,
            )
        )
    if not libraries:
        sys.exit("docs/architecture.md holds no table of libraries")
    return libraries


def lies_in(folder, other):
    return other == "" or folder == other or folder.startswith(other + "/")


def read_link_lines(root, libraries):
    """Fills in what each library links, from the CMakeLists.txt of its folder."""
    for library in libraries:
        text = re.sub(r"#.*", "", (root / "src" / library.folder / "CMakeLists.txt").read_text())
        calls = re.findall(r"hoopline_library\(.*?DEPENDS(.*?)\)", text, re.DOTALL)
        calls += re.findall(r"target_link_libraries\(\s*[\w-]+(.*?)\)", text, re.DOTALL)
        words = " ".join(calls).split()
        names = {other.name for other in libraries}
        library.links = [word for word in words if word in names]
        library.linked_modules = {
            word.split("::")[1] for word in words if re.fullmatch(r"Qt\d*::\w+", word)
        }


def reached(library, by_name):
    """The library, and all that it links directly or not."""
    found = {}
    rest = [library]
    while rest:
        next_one = rest.pop()
        if next_one.name not in found:
            found[next_one.name] = next_one
            rest += [by_name[name] for name in next_one.links]
    return found


def qt_modules():
    """By header, the modules that have one of that name; of the oldest Qt that is installed."""
    modules = {}
    for qt in sorted(Path("/usr/include").glob("*/qt[56]"), key=lambda path: path.name)[:1]:
        for folder, header in ((f, h) for f in qt.glob("Qt*") for h in f.iterdir()):
            modules.setdefault(header.name, set()).add(folder.name.removeprefix("Qt"))
    return modules


def home_of(path, libraries):
    """The library in whose folder, or nearest one above it, the file lies."""
    fitting = [library for library in libraries if lies_in(os.path.dirname(path), library.folder)]
    return max(fitting, key=lambda library: len(library.folder), default=None)


def includes(path):
    """Pairs of line number and what is included there; of forms too."""
    pattern = re.compile(r'\s*#\s*include\s*[<"]([^>"]+)|\s*<header[^>]*>([^<]+)<')
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if match := pattern.match(line):
            yield number, match.group(1) or match.group(2)


def check_order(root, libraries):
    text = (root / "src/CMakeLists.txt").read_text()
    floors = re.search(r"set\(floors(.*?)\)", text, re.DOTALL).group(1).split()
    table = [library.folder for library in libraries]
    if floors != table:
        differing = next(
            (pair for pair in zip(floors + [""], table + [""]) if pair[0] != pair[1]), None
        )
        yield "src/CMakeLists.txt: the order differs from the table's: %s, not %s" % differing


def check_links(libraries, place, by_name):
    for library in libraries:
        where = f"src/{library.folder}/CMakeLists.txt"
        for name in library.links:
            if place[name] >= place[library.name]:
                yield f"{where}: {library.name} links {name}, which stands no higher"
        for module in sorted(library.linked_modules - library.modules):
            yield f"{where}: {library.name} links Qt's {module}"
        for other in reached(library, by_name).values():
            chain = "" if other is library else f" by way of {other.name}"
            for never in library.never:
                if other is not library and lies_in(other.folder, never):
                    yield f"{where}: {library.name} must never reach {other.folder}"
                if never in other.linked_modules:
                    yield f"{where}: {library.name} must never reach Qt's {never}{chain}"


def check_includes(root, libraries, place, by_name):
    modules = qt_modules()
    if not modules:
        sys.exit("Qt's headers are not installed")
    folders = {library.folder: library for library in libraries}
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp", ".ui", ".in"):
            continue
        inside = str(path.relative_to(root / "src"))
        library = home_of(inside, libraries)
        if not library:
            yield f"src/{inside}: no library of the table has this folder"
            continue
        reach = reached(library, by_name)
        for number, name in includes(path):
            where = f"src/{inside}:{number}"
            owner = home_of(name, libraries) if "/" in name else None
            if owner and owner.name not in reach:
                low = place[owner.name] > place[library.name]
                reason = "stands no higher" if low else "is not linked"
                yield f"{where}: {library.name} includes {name}, but {owner.folder} {reason}"
            offered = modules.get(name, set())
            if offered and not offered & library.modules:
                yield f"{where}: {library.name} includes {name} of Qt's {min(offered)}"


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    libraries = read_table((root / "docs/architecture.md").read_text(encoding="utf-8"))
    place = {library.name: number for number, library in enumerate(libraries)}
    by_name = {library.name: library for library in libraries}
    read_link_lines(root, libraries)
    findings = [
        *check_order(root, libraries),
        *check_links(libraries, place, by_name),
        *check_includes(root, libraries, place, by_name),
    ]
    for finding in findings:
        print(finding)
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
