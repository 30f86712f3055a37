"""Converts captures to JSON: convert_captures.py FROM TO reads FROM/NAME.bin and writes TO/NAME.json, a line per message.

An invalid capture is reported and skipped; the exit code is then 1.
"""

import pathlib
import sys

import lumo_tarn

if len(sys.argv) != 3:
    sys.exit(__doc__)
source, target = (pathlib.Path(name) for name in sys.argv[1:])
target.mkdir(parents=True, exist_ok=True)
failures = 0
for capture in sorted(source.glob("*.bin")):
    try:
        lines = [message.to_json() for message in lumo_tarn.messages(capture)]
    except (OSError, ValueError) as error:
        print(f"{capture.name}: {error}", file=sys.stderr)
        failures += 1
        continue
    target.joinpath(capture.stem + ".json").write_text("".join(line + "\n" for line in lines))
    print(f"{capture.name}: {len(lines)} messages")
sys.exit(1 if failures else 0)
