"""Tests that the documents below ROOT refer only to files that exist:  links.py ROOT

References are links of Markdown and paths in quoted code such as `core/walk.h`. Paths with words in capitals, stars or
braces are patterns."""

import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1]).resolve()
folders = {entry.name for entry in root.iterdir() if entry.is_dir() and entry.name != "build"}


def missing(document, text):
    for target in re.findall(r"\]\((?!https?:)([^)#]+)", text):
        if not (document.parent / target).exists():
            yield target
    for path in re.findall(r"(?<![^\s`])[\w./-]+(?![^\s`])", " ".join(re.findall(r"`[^`\n]+`", text))):
        pattern = re.search(r"[A-Z]{3}(?!.*\.md)", path)
        if "/" in path and path.split("/")[0] in folders and not pattern and not (root / path).exists():
            yield path


example = missing(root / "README.md", "[a](no.md) [b](README.md) `docs/no.h` `docs/` `wc docs/no.c` `build/no` "
                  "`families/NAME.cpp` `no/no.h`")
if list(example) != ["no.md", "docs/no.h", "docs/no.c"]:
    sys.exit("missing files are not found")
documents = [path for path in root.rglob("*.md") if "build" not in path.relative_to(root).parts]
wrong = [f"{document.relative_to(root)}: {path} does not exist" for document in documents
         for path in missing(document, document.read_text())]
print("\n".join(wrong))
sys.exit(1 if wrong or len(documents) < 5 else 0)
