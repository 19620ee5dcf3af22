#!/usr/bin/env python3
"""Fails on a link in a document that leads nowhere: to no file, or to no heading of the file."""

import re
import sys
from pathlib import Path


def without_code(text):
    """Samples may hold what looks like a link or a heading."""
    text = re.sub(r"^```.*?^```", "", text, flags=re.MULTILINE | re.DOTALL)
    text = re.sub(r"^    .*$", "", text, flags=re.MULTILINE)
    return text


def anchors_of(path):
    """What a heading's address is, as GitHub and GitLab make it."""
    headings = re.findall(r"^#+ +(.+)$", without_code(path.read_text(encoding="utf-8")), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def dead_links(document):
    text = without_code(document.read_text(encoding="utf-8"))
    for target in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`\n]*`", "", text)):
        if re.match(r"\w+:", target):
            continue # another site's, which may be down today
        name, _, anchor = target.partition("#")
        path = document.parent / name if name else document
        if not path.exists():
            yield f"{document}: no file {target}"
        elif anchor and anchor not in anchors_of(path):
            yield f"{document}: no heading {target}"


def main():
    documents = sorted(Path().glob("*.md")) + sorted(Path("docs").glob("*.md"))
    dead = [line for document in documents for line in dead_links(document)]
    print("\n".join(dead) if dead else f"documents: {len(documents)}, every link leads somewhere")
    return 1 if dead or not documents else 0


if __name__ == "__main__":
    sys.exit(main())
