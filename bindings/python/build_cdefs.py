"""Writes the C declarations for cffi: build_cdefs.py OUTPUT PREPROCESSED...

They are the lines of preprocessed C headers that come from the library, the contract and the reference runtime, without
those of the system's headers.
"""

import re
import sys
from pathlib import Path

from cffi import FFI


def declarations(preprocessed: str) -> str:
    ours, lines = False, []
    for line in preprocessed.splitlines():
        marker = re.match(r'# \d+ "([^"]*)"', line)
        if marker:
            ours = re.search(r"(^|/)(lumo_ui_tarn|mirk)(/|\.h$|_platform\.h$)", marker[1]) is not None
        elif ours:
            lines.append(line)
    text = "\n".join(lines)
    return text.replace('__attribute__((visibility("default")))', "")


def main() -> None:
    output, *inputs = (Path(name) for name in sys.argv[1:])
    ffi = FFI()
    ffi.set_source("lumo_tarn._cffi", None)
    for name in inputs:
        ffi.cdef(declarations(name.read_text()))
    output.parent.mkdir(parents=True, exist_ok=True)
    ffi.emit_python_code(str(output))


main()
