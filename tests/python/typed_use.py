"""A program for the type checker, which must know its members from the stubs."""

from __future__ import annotations

import lumo_tarn


def protocols(data: bytes) -> list[int]:
    found: list[int] = []
    for message in lumo_tarn.messages(data):
        if isinstance(message, lumo_tarn.DpTtMsg):
            for table in message.payload.lumo_data:
                found += [tc.proto for tc in table.agg_tc_list.tc_list]
    return found


def broken(path: str) -> int:
    skipped: list[lumo_tarn.Skipped] = []
    with open(path, "rb") as file:
        for item in lumo_tarn.frames(file, skipped=skipped):
            assert isinstance(item, (lumo_tarn.Message, lumo_tarn.Control))
    return sum(one.length for one in skipped)


def made() -> lumo_tarn.DpTc:
    tc = lumo_tarn.DpTc(id=3, src_prefix="10.0.0.0/8", appl={"id": 4})
    tc.dst_prefix = lumo_tarn.Address.of("unset")
    tc.appl.type = 2
    prefix: lumo_tarn.Address = tc.src_prefix
    copied: lumo_tarn.DpTc = lumo_tarn.DpTc.from_frame(tc.to_frame())
    return copied if prefix == copied.src_prefix else tc
