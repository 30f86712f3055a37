"""Tests that the documents refer only to files that exist:  links.py ROOT

References are links of Markdown and quoted paths such as `core/walk.h`. Paths with words in capitals, stars or braces are
patterns."""

import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1]).resolve()
folders = {entry.name for entry in root.iterdir() if entry.is_dir() and entry.name != "build"}


def missing(document, text):
    for target in re.findall(r"\]\((?!https?:)([^)#]+)", text):
        if not (document.parent / target).exists():
            yield target
    for path in re.findall(r"`([\w./-]+)`", text):
        first = path.removeprefix("./").split("/")[0]
        if "/" in path and first in folders and not re.search(r"[A-Z]{3}(?!.*\.md)", path) and not (root / path).exists():
            yield path


example = missing(root / "README.md", "[a](no.md) [b](README.md) `core/no.h` `core/` `build/no` `families/NAME.cpp` `no/no.h`")
if list(example) != ["no.md", "core/no.h"]:
    sys.exit("missing files are not found")
documents = [path for path in root.rglob("*.md") if "build" not in path.relative_to(root).parts]
wrong = [f"{document.relative_to(root)}: {path} does not exist" for document in documents
         for path in missing(document, document.read_text())]
print("\n".join(wrong))
sys.exit(1 if wrong or len(documents) < 5 else 0)
