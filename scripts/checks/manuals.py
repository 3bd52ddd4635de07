#!/usr/bin/env python3
"""manuals.py [ROOT]: holds the manuals of all languages against the English one.

docs/manual.md is the English one; manual.de.md and the like are its translations, which
mark a chapter with the anchor that the English one has from its title. A chapter has the
same pictures, tables, examples and sub-chapters in all languages, and every link leads
somewhere. A finding is one line on stdout; the status is then 1.
"""

import re
import sys
from pathlib import Path

ENGLISH = "manual.md"
LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)")


def anchor_of(title):
    """As the renderer and the forges make it."""
    return re.sub(r"[^a-z0-9 -]", "", title.lower()).replace(" ", "-")


def chapters_of(text):
    """The title and the text of each chapter by its anchor; "" is what stands before them."""
    chapters = {}
    anchor, title, lines, marked = "", "", [], ""
    for line in text.splitlines():
        mark = re.fullmatch(r'<a id="([^"]+)"></a>', line)
        if mark:
            marked = mark[1]
        elif line.startswith("## "):
            chapters[anchor] = (title, "\n".join(lines))
            title = line[3:].strip()
            anchor, lines, marked = marked or anchor_of(title), [], ""
        else:
            lines.append(line)
    chapters[anchor] = (title, "\n".join(lines))
    return chapters


def shape_of(text):
    """What has to be the same in all languages."""
    examples = re.findall(r"^    (.*)$", text, re.M)
    return {
        "pictures": [target for picture, _, target in LINK.findall(text) if picture],
        "rows of tables": len(re.findall(r"^\|", text, re.M)),
        "sub-chapters": len(re.findall(r"^### ", text, re.M)),
        "steps": len(re.findall(r"^\d+\. ", text, re.M)),
        "list items": len(re.findall(r"^- ", text, re.M)),
        "examples": [example.split("  # ")[0].strip() for example in examples],
    }


def broken_links(docs, chapters):
    for _, text in chapters.values():
        for _, _, target in LINK.findall(text):
            if target.startswith("#"):
                if target[1:] not in chapters:
                    yield target
            elif "://" not in target and not (docs / target).exists():
                yield target


def findings(docs):
    english = chapters_of((docs / ENGLISH).read_text(encoding="utf-8"))
    for path in sorted(docs.glob("manual*.md")):
        chapters = chapters_of(path.read_text(encoding="utf-8"))
        for target in broken_links(docs, chapters):
            yield f"{path.name}: nothing is at {target}"
        listed = [
            (target[1:], text)
            for _, text, target in LINK.findall(chapters[""][1])
            if target.startswith("#")
        ]
        if listed != [(anchor, title) for anchor, (title, _) in chapters.items() if anchor]:
            yield f"{path.name}: the list of chapters is not that of the chapters"
        # A chapter that is new in English may be translated later.
        if [anchor for anchor in english if anchor in chapters] != list(chapters):
            yield f"{path.name}: the chapters are not those of {ENGLISH}, in its order"
            continue
        for anchor in list(chapters)[1:]:
            theirs, ours = shape_of(english[anchor][1]), shape_of(chapters[anchor][1])
            for what, value in theirs.items():
                if ours[what] != value:
                    yield f"{path.name}: #{anchor} has other {what}: {ours[what]} for {value}"


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    found = list(findings(root / "docs"))
    for finding in found:
        print(finding)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
