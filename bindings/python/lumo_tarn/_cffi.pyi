# The declarations themselves are made by build_cdefs.py and have no types.
from typing import Any

ffi: Any
