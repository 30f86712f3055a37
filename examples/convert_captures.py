"""Converts captures in bulk: convert_captures.py FROM TO writes FROM/NAME.bin as TO/NAME.json, a line for each message.

A capture that is broken is named, and the others are converted all the same; the exit code then is 1.
"""

import json
import pathlib
import sys

import lumo_tarn

if len(sys.argv) != 3:
    sys.exit(__doc__)
source, target = (pathlib.Path(name) for name in sys.argv[1:])
target.mkdir(parents=True, exist_ok=True)
broken = 0
for capture in sorted(source.glob("*.bin")):
    try:
        lines = [json.dumps(message.to_dict()) for message in lumo_tarn.messages(capture.read_bytes())]
    except (OSError, ValueError) as error:
        print(f"{capture.name}: {error}", file=sys.stderr)
        broken += 1
        continue
    target.joinpath(capture.stem + ".json").write_text("".join(line + "\n" for line in lines))
    print(f"{capture.name}: {len(lines)} messages")
sys.exit(1 if broken else 0)
