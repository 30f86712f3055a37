"""Differences, compared with those that the tool finds."""

import json
import random
import subprocess

import lumo_tarn
import pytest
from conftest import MESSAGES, TOOL, tool


def differences_of_the_tool(a: bytes, b: bytes, folder, *options: str) -> list:
    for name, data in (("a.bin", a), ("b.bin", b)):
        (folder / name).write_bytes(data)
    command = [TOOL, "diff", "--json", "--no-state", str(folder / "a.bin"), str(folder / "b.bin"), *options]
    run = subprocess.run(command, capture_output=True, check=False)
    assert run.returncode in (0, 1), run.stderr
    return json.loads(run.stdout)


def plain(value):
    """In JSON of the tool, numbers of 64 bits are text."""
    if isinstance(value, dict):
        return {name: plain(one) for name, one in value.items()}
    if isinstance(value, list):
        return [plain(one) for one in value]
    return str(value) if isinstance(value, int) and not isinstance(value, bool) else value


def shown(change: lumo_tarn.Change) -> dict:
    kept = {"a": {"changed", "removed"}, "b": {"changed", "added"}}
    sides = {name: plain(getattr(change, name)) for name, kinds in kept.items() if change.kind in kinds}
    return {"message": change.message, "change": change.kind, "path": change.path, **sides}


def assert_same(a: bytes, b: bytes, folder, *options: str, **rules) -> int:
    expected = differences_of_the_tool(a, b, folder, *options)
    found = [shown(change) for change in lumo_tarn.diff(a, b, **rules)]
    assert found == [{**change, **{side: plain(change[side]) for side in "ab" if side in change}} for change in expected]
    return len(found)


def edited(values, chance: random.Random, keeps_order: bool = False):
    """The values of a record, with elements that are removed, repeated, moved or changed."""
    if isinstance(values, list):
        values = [edited(one, chance) for one in values]
        if values and not keeps_order and chance.random() < 0.7:
            at = chance.randrange(len(values))
            chance.choices([lambda: values.pop(at), lambda: values.append(values[at]), lambda: values.reverse()])[0]()
        return values
    if isinstance(values, dict):
        return {name: edited(one, chance, name == "exmem") for name, one in values.items()}
    if isinstance(values, int) and chance.random() < 0.1:
        return not values if isinstance(values, bool) else values // 2
    return values


@pytest.mark.parametrize("message", MESSAGES, ids=lambda message: message.__name__)
def test_differences_equal_those_of_the_tool(message, tmp_path):
    chance, differences = random.Random(message.message_name), 0
    for seed in range(4):
        frame = tool("generate", message.message_name, "--elements", "3", "--form", "frames", "--seed", str(seed))
        (one,) = lumo_tarn.messages(frame)
        values = one.payload.to_dict()
        for _ in range(3):
            other = message(message.payload_type(**edited(values, chance)))
            differences += assert_same(frame, other.to_frame(), tmp_path)
        other = next(lumo_tarn.messages(tool("generate", message.message_name, "--form", "frames", "--seed", "9")))
        differences += assert_same(frame, other.to_frame(), tmp_path)
    assert differences > 10
    assert list(lumo_tarn.diff(one, one.copy(on=lumo_tarn.Handle(tracked=True)))) == []


def classes(*values: dict) -> lumo_tarn.DpTcList:
    return lumo_tarn.DpTcList(tc_list=[*values])


def paths(a: lumo_tarn.Record, b: lumo_tarn.Record, **rules) -> list[str]:
    return [f"{change.kind} {change.path}" for change in lumo_tarn.diff(a, b, **rules)]


def test_elements_are_aligned_by_their_key():
    a = classes({"id": 1, "proto": 6}, {"id": 2}, {"id": 2, "tos": 1}, {"id": 3})
    b = classes({"id": 3}, {"id": 2}, {"id": 2, "tos": 2}, {"id": 4})
    assert paths(a, b) == [
        "removed tc_list[id=1]",
        "changed tc_list[id=2#2].tos",
        "added tc_list[id=4]",
        "reordered tc_list",
    ]
    assert paths(a, b, by=["proto,tos"], ignore=["id"]) == [
        "removed tc_list[proto=6,tos=0]",
        "removed tc_list[proto=0,tos=1]",
        "added tc_list[proto=0,tos=2]",
        "added tc_list[proto=0,tos=0#3]",
    ]
    (change,) = lumo_tarn.diff(lumo_tarn.DpTc(appl={"id": 1}), lumo_tarn.DpTc(appl={"id": 2}))
    assert change == lumo_tarn.Change("changed", "appl.id", 1, 2) and str(change) == "appl.id: 1 -> 2"


def test_elements_without_a_key_are_aligned_by_their_content(tmp_path):
    def message(*sizes: int) -> lumo_tarn.Message:
        """Only blocks of memory have no key."""
        memory = {"exmem": [{"exmem": {"size": size}} for size in sizes]}
        processors = [{"dyn_exmem": [memory]}]
        return lumo_tarn.ClCfgMsg(lumo_tarn.ClCfgData(global_info={"lumo_info_list": {"lumo_info": processors}}))

    for a, b in (((1, 2, 3), (2, 3)), ((1, 2, 3), (1, 9, 3)), ((1,), (5, 1, 6)), ((1, 2), ())):
        assert assert_same(message(*a).to_frame(), message(*b).to_frame(), tmp_path) > 0


def test_members_can_be_ignored(tmp_path):
    frames = [tool("generate", "dp-tt-cfg", "--form", "frames", "--elements", "2", "--seed", seed) for seed in "12"]
    for patterns in (["*_ptr"], ["appl.id", "exmem_info"], ["lumo_data.lumo_num", "flags"]):
        options = [option for pattern in patterns for option in ("--ignore", pattern)]
        assert assert_same(*frames, tmp_path, *options, ignore=patterns) > 0
    assert assert_same(*frames, tmp_path, "--by", "proto,tos", by=["proto,tos"]) > 0


def test_messages_are_aligned_by_their_bundles(tmp_path):
    level = [lumo_tarn.DebugSettingMsg(lumo_tarn.DebugSetting(info_enabled=n)) for n in range(4)]
    one, two = (lumo_tarn.bundle_frames("cl-debug", level[n : n + 2]) for n in (0, 2))
    three, intf = lumo_tarn.bundle_frames("cl-debug", level[:1]), lumo_tarn.bundle_frames("dp-intf", [lumo_tarn.DpIntfMsg()])
    on = lumo_tarn.Handle()
    aborted = b"".join(lumo_tarn.Control("lumo_tarn_cl_debug_rsp", kind).to_frame(on) for kind in ("start", "abort"))
    alone = level[0].to_frame() + level[2].to_frame()
    sequences = [b"", one, two, one + two, intf + one + three, three + intf + aborted, aborted + one, alone]
    for a in sequences:
        for b in sequences:
            if a and b:  # the tool refuses a file without a message
                assert (assert_same(a, b, tmp_path) == 0) == (a == b)
    assert [change.kind for change in lumo_tarn.diff(b"", one)] == ["added", "added"]


def test_captures_records_and_messages_can_be_compared(tmp_path):
    a, b = lumo_tarn.DebugSettingMsg(), lumo_tarn.DebugSettingMsg(lumo_tarn.DebugSetting(warn_enabled=1))
    path = tmp_path / "b.bin"
    path.write_bytes(b.to_frame())
    with path.open("rb") as file:
        for left, right in ((a, b), (a.to_frame(), b), ([a], path), (iter([a]), str(path)), (a, file)):
            (change,) = lumo_tarn.diff(left, right)
            assert str(change) == "message 1, payload.warn_enabled: 0 -> 1"
    assert str(next(lumo_tarn.diff(a.payload, b.payload))) == "warn_enabled: 0 -> 1"


def test_wrong_rules_are_reported():
    with pytest.raises(ValueError, match="no member matches 'hue'"):
        lumo_tarn.diff(b"", b"", ignore=["hue"])
    with pytest.raises(ValueError, match="the elements of no list have 'id,hue'"):
        lumo_tarn.diff(b"", b"", by=["id,hue"])
    with pytest.raises(TypeError, match="not a text"):
        lumo_tarn.diff(b"", b"", ignore="id")
    with pytest.raises(TypeError, match="cannot compare DpTc with DpAppl"):
        lumo_tarn.diff(lumo_tarn.DpTc(), lumo_tarn.DpAppl())
    with pytest.raises(ValueError, match="invalid frame at offset 0"):
        list(lumo_tarn.diff(b"x" * 50, b""))
