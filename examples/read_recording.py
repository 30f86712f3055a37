"""Prints the changes between successive messages of the same type in a recording: read_recording.py FILE, from
"tarn record --rounds".
"""

import pathlib
import sys

import lumo_tarn


def changes(before, after, path=""):
    """Yields path, old value and new value of each difference between two results of to_dict()."""
    if isinstance(after, dict):
        for name, value in after.items():
            yield from changes(before[name], value, f"{path}.{name}" if path else name)
    elif isinstance(after, list) and len(before) == len(after):
        for index, value in enumerate(after):
            yield from changes(before[index], value, f"{path}[{index}]")
    elif before != after:
        yield path, before, after


if len(sys.argv) != 2:
    sys.exit(__doc__)
latest = {}
for number, message in enumerate(lumo_tarn.recording(pathlib.Path(sys.argv[1]).read_text()), 1):
    now = message.payload.to_dict()
    before = latest.get(message.message_name)
    latest[message.message_name] = now
    if before is None:
        print(f"{number}: first {message.message_name}")
        continue
    print(f"{number}: {message.message_name}")
    for path, was, is_now in changes(before, now):
        if isinstance(is_now, list):
            was, is_now = f"{len(was)} elements", f"{len(is_now)} elements"
        print(f"   {path}: {was} -> {is_now}")
