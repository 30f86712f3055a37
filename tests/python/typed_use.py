"""A program for the type checker, which must know its members from the stubs."""

from __future__ import annotations

import asyncio
import ipaddress
from collections.abc import Iterator

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
    tc = lumo_tarn.DpTc(id=3, src_prefix=ipaddress.IPv4Network("10.0.0.0/8"), appl={"id": 4})
    tc.dst_prefix = lumo_tarn.Address.of("unset")
    tc.appl.type = 2
    prefix: lumo_tarn.Address = tc.src_prefix
    copied: lumo_tarn.DpTc = lumo_tarn.DpTc.from_frame(tc.to_frame())
    return copied if prefix == copied.src_prefix else tc


def flows(path: str) -> list[int]:
    columns = ["id", "proto"]
    return [row["id"] for row in lumo_tarn.rows(path, lumo_tarn.DpTc, columns, where={"proto": lambda proto: proto == 6})]


def changed(before: bytes, after: lumo_tarn.Message) -> list[str]:
    return [str(change) for change in lumo_tarn.diff(before, after, ignore=["*_ptr"]) if change.kind != "reordered"]


def answer(request: lumo_tarn.Request) -> Iterator[lumo_tarn.Message]:
    yield lumo_tarn.DebugSettingMsg(lumo_tarn.DebugSetting(info_enabled=int(request.tracked)))


async def answer_later(request: lumo_tarn.Request) -> bytes:
    return lumo_tarn.bundle_frames(request.bundle, answer(request))


async def asked(peers: list[str]) -> int:
    async with lumo_tarn.serve("127.0.0.1:0", {"cl-debug": answer_later}, idle=5.0) as server:
        answers = await asyncio.gather(*(lumo_tarn.ask_async(peer, "cl-debug") for peer in [*peers, server.address]))
    return sum(len(one) for one in answers)


def exchanged() -> str:
    with lumo_tarn.serve("127.0.0.1:0", {"cl-debug": answer}) as server, lumo_tarn.Client(server.address) as client:
        try:
            (message,) = client.ask("cl-debug", timeout=1.5) + lumo_tarn.ask(server.address, "cl-debug")
        except lumo_tarn.RefusedError as error:
            return str(error)
    with lumo_tarn.Handle(tracked=True) as on:
        return message.copy(on=on).text()
