#!/usr/bin/env python3
"""Checks that each folder includes only what its layer may know.

layers.py ROOT

An include that is not listed here is either one of the same folder, of the standard library, or of a package."""

import pathlib
import re
import sys

CONTRACT = "include/mirk"
MAY_INCLUDE = {
    "schema": [],
    "core": ["schema", CONTRACT],
    "kinds": ["core", "schema", CONTRACT],
    "families": ["kinds", "core", "schema", CONTRACT],
    "messaging": ["families", "core", "schema", CONTRACT],
    "platform/contract": [CONTRACT, "platform/include"],
    "platform/service": ["platform/contract", CONTRACT, "platform/include"],
    "tools/tarn/support": [],
    "tools/tarn/formats": ["tools/tarn/support"],
    "tools/tarn/pages": ["tools/tarn/formats", "tools/tarn/support"],
    "tools/tarn/service": ["tools/tarn/formats", "tools/tarn/support"],
    "tools/tarn/commands": ["tools/tarn/service", "tools/tarn/pages", "tools/tarn/formats", "tools/tarn/support"],
    "fleet/support": [],
    "fleet/bus": ["fleet/support", "tools/tarn/service", "tools/tarn/formats", "tools/tarn/support"],
    "fleet/store": ["fleet/support", "tools/tarn/formats", "tools/tarn/support"],
    "fleet/http": ["fleet/bus", "fleet/store", "fleet/support", "tools/tarn/pages", "tools/tarn/service",
                   "tools/tarn/formats", "tools/tarn/support"],
    "fleet/commands": ["tools/tarn", "fleet"],
}
# All layers of the tool and of the fleet may include these.
ALL_OF_THE_TOOL = ["tools/reflect", "schema", "include", "platform/include"]
INCLUDE_FOLDERS = ("", "include", "platform/include")


def folder_of(root, including, name):
    """The folder of an included file, as the compiler finds it; None for generated files and packages."""
    for start in (including.parent, *(root / folder for folder in INCLUDE_FOLDERS)):
        if (start / name).is_file():
            return (start / name).resolve().relative_to(root).parent
    return pathlib.Path(name).parent if name.startswith("tools/reflect/") else None


def within(folder, layer):
    return folder == pathlib.Path(layer) or pathlib.Path(layer) in folder.parents


def main():
    root, wrong, seen = pathlib.Path(sys.argv[1]).resolve(), [], 0
    for layer, below in MAY_INCLUDE.items():
        allowed = [layer, *below, *(ALL_OF_THE_TOOL if layer.startswith(("tools/", "fleet/")) else [])]
        sources = [p for p in sorted((root / layer).rglob("*")) if p.suffix in (".h", ".hpp", ".cpp")]
        if not sources:
            wrong.append(f"{layer}: has no sources")
        for source in sources:
            for number, line in enumerate(source.read_text().splitlines(), 1):
                found = re.match(r'\s*#include "([^"]+)"', line)
                folder = folder_of(root, source, found[1]) if found else None
                if folder is None:
                    continue
                seen += 1
                if not any(within(folder, one) for one in allowed):
                    wrong.append(f"{source.relative_to(root)}:{number}: {layer} may not include {found[1]}")
    print("\n".join(wrong))
    sys.exit(1 if wrong or seen == 0 else 0)


main()
