# build_cdefs.py writes the module, which has no types.
from typing import Any

ffi: Any
