"""Names of the schema. Callers may give them in a short form: with hyphens, without "lumo_tarn_", "_rsp" and "_msg"."""

from __future__ import annotations

import difflib
from typing import Iterable

from . import _schema

_SIDES = ("dp_", "cl_", "pal_")


def short(name: str) -> str:
    return name.replace("-", "_").removeprefix("lumo_tarn_").removesuffix("_rsp").removesuffix("_msg")


def unknown(kind: str, name: str, known: Iterable[str]) -> ValueError:
    close = difflib.get_close_matches(name, list(known), 1)
    return ValueError(f"unknown {kind} {name!r}" + (f"; did you mean {close[0]!r}?" if close else ""))


_BUNDLES = {short(name): name for name in _schema.BUNDLES}
_RECORDS = {short(name): name for name in _schema.RECORDS}
_PAYLOADS = {
    **{short(name): payload for name, (_, payload) in _schema.MESSAGES.items()},
    **{short(name): _schema.MESSAGES[message][1] for name, message in _schema.BUNDLES.items()},
}


def bundle_named(name: str) -> str:
    """The full name. Raises ValueError for an unknown bundle."""
    found = _BUNDLES.get(short(name))
    if found is None:
        raise unknown("bundle", name, (one.replace("_", "-") for one in _BUNDLES))
    return found


def record_named(name: str) -> str:
    """The full name of a record, which may also be given without its side: "tc" for lumo_tarn_dp_tc; of a bundle or a
    message, that of its payload. Raises ValueError if there is no such record, or more than one."""
    wanted = short(name)
    if wanted in _RECORDS:
        return _RECORDS[wanted]
    found = [side + wanted for side in _SIDES if side + wanted in _RECORDS]
    if len(found) > 1:
        raise ValueError(f"{name!r} can be {' or '.join(found)}")
    if found:
        return _RECORDS[found[0]]
    if wanted in _PAYLOADS:
        return _PAYLOADS[wanted]
    raise unknown("record", name, _RECORDS)
