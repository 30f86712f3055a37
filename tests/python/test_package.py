"""Compares every record and message of the Python package with the tool, which uses the library directly."""

import ast
import copy
import errno
import gc
import inspect
import ipaddress
import json
import os
import pathlib
import pickle
import pydoc
import random
import re
import subprocess
import sys
import threading
import time
import tracemalloc

import lumo_tarn
import pytest
from conftest import BITS, MESSAGES, RECORDS, json_lines, tool, values_of
from hypothesis import HealthCheck, given, settings
from hypothesis import strategies as st
from lumo_tarn import _schema
from lumo_tarn._native import ffi, lib


def without_states(value):
    """JSON of tracked messages contains state bytes besides values."""
    if isinstance(value, dict):
        for name in ("@value", "@address"):
            if name in value:
                return value[name]
        return {name: without_states(one) for name, one in value.items() if not name.startswith("@")}
    return [without_states(one) for one in value] if isinstance(value, list) else value


# ---- records


@pytest.mark.parametrize("record", RECORDS, ids=lambda record: record.__name__)
@given(data=st.data())
@settings(max_examples=8, suppress_health_check=list(HealthCheck))
def test_values_survive_all_forms(record, data):
    values = data.draw(values_of(record.record_name))
    one = record(**values)
    assert one.to_dict() == values
    assert record.from_frame(one.to_frame()) == one
    assert record.from_xml(one.to_xml()) == one
    assert record.from_frame(one.to_frame()).to_dict() == values
    assert one.copy().to_dict() == values
    assert copy.deepcopy(one) == one and one.hash(3) == one.copy().hash(3)
    tracked = one.copy(on=lumo_tarn.handle(tracked=True))
    assert tracked == one and tracked.to_dict() == values
    assert record.from_frame(tracked.to_frame(), on=lumo_tarn.handle(tracked=True)).to_frame() == tracked.to_frame()


@pytest.mark.parametrize("record", RECORDS, ids=lambda record: record.__name__)
def test_members_match_the_schema(record):
    rows = _schema.RECORDS[record.record_name][2]
    assert [member.name for member in record.members.values()] == [row[1] for row in rows]
    assert [member.__doc__ for member in record.members.values()] == [row[4] for row in rows]
    assert not set(record.members) & set(dir(lumo_tarn.Record)), "no member hides an attribute of all records"
    assert [name for name, _ in record()] == [row[0] for row in rows if " " not in row[2]]


def wrong_values(record, member, kind: str, of: str) -> dict:
    """Values that the documentation of the member excludes, with their errors. Values that it admits are assigned."""
    documentation = record.members[member].__doc__

    def number(before: str) -> int:
        return int(re.search(f"{before} ([0-9]+)", documentation)[1])

    one = record()
    if kind in BITS:
        setattr(one, member, number("from 0 to"))
        assert getattr(one, member) == number("from 0 to")
        return {-1: OverflowError, number("from 0 to") + 1: OverflowError, "x": ValueError if kind == "u64" else TypeError}
    if kind == "string":
        setattr(one, member, "\N{EURO SIGN}" * (number("at most") // 3))
        return {"x" * (number("at most") + 1): OverflowError, "\0": ValueError}
    if kind == "address":
        setattr(one, member, ipaddress.ip_network("10.0.0.0/8"))
        assert str(getattr(one, member)) == "10.0.0.0/8"
        texts = ["10.0.0.0", "x/8", "10.0.0.0/256", "10.0.0.0/-1", "fe80::1%65536/64", "256,0,0,0,0,0/0", "2,0,0,0,0/0"]
        texts += ["10.0.0.0/ 8", "10.0.0.0/+8", "10.0.0.0/1_0", "fe80::1%/64", "fe80::1%lo/64", "10.0.0.0/8\0"]
        return {text: ValueError for text in [*texts, "2,0,4294967296,0,0,0/0", ipaddress.ip_address("10.0.0.0")]}
    if kind == "enumeration":
        assert type(getattr(one, member)).__name__ in documentation
        return {len(_schema.ENUMERATIONS[of][2]): OSError, "x": ValueError}
    if kind == "record":
        assert type(getattr(one, member)).__name__ in documentation
        return {(): TypeError}
    if kind == "array":
        assert _schema.RECORDS[of][0] in documentation
        with pytest.raises(OverflowError):
            getattr(one, member).grow(number("at most") + 1)
        return {}
    assert kind == "boolean" or "read-only" in documentation
    return {} if kind == "boolean" else {1: AttributeError}


@pytest.mark.parametrize("record", RECORDS, ids=lambda record: record.__name__)
def test_documentation_of_members_is_true(record):
    shown = pydoc.plain(pydoc.render_doc(record))
    for attribute, _, kind, of, documentation in _schema.RECORDS[record.record_name][2]:
        assert documentation.split("; ")[0][:40] in shown
        for value, error in wrong_values(record, attribute, kind, of).items():
            with pytest.raises(error) as raised:
                setattr(record(), attribute, value)
            assert error is not OSError or raised.value.errno == errno.EIDRM


def test_everything_public_is_documented():
    for name in lumo_tarn.__all__:
        public = getattr(lumo_tarn, name)
        assert inspect.getdoc(public), name
        for inner, value in vars(public).items() if isinstance(public, type) else ():
            is_part = callable(value) or isinstance(value, (property, classmethod))
            if not inner.startswith("_") and is_part:
                assert inspect.getdoc(getattr(public, inner)), f"{name}.{inner}"


@pytest.mark.parametrize("record", RECORDS, ids=lambda record: record.__name__)
def test_state_bytes_are_set_together_and_one_by_one(record, handle):
    one = record(on=handle)
    tracked = [name for name, member in one.members.items() if member.tracked]
    assert {one.state_of(name) for name in tracked} == ({0} if handle.tracked else {None})
    if handle.tracked:
        one.set_all_states(9)
        assert {one.state_of(name) for name in tracked} == {9}
        for name in tracked:
            one.set_state_of(name, 5)
            assert one.state_of(name) == 5
        one.set_all_states(0)


def test_attributes_read_and_write(handle):
    tc = lumo_tarn.DpTc(id=3, src_prefix="10.0.0.0/8", on=handle)
    tc.proto = 6
    tc.appl.id = 12
    tc.exmem_info = lumo_tarn.ExmemInfo(size=64)
    assert (tc.id, tc.proto, tc.appl.id, tc.exmem_info.size) == (3, 6, 12, 64)
    assert tc.src_prefix == lumo_tarn.Address.of("10.0.0.0/8")
    assert str(tc.src_prefix) == "10.0.0.0/8" and str(tc.dst_prefix) == "unset"
    assert tc.state_of("proto") == (2 if handle.tracked else None)
    info = lumo_tarn.LumoInfo(direction="LUMO_TARN_DIR_EGRESS", on=handle)
    assert info.direction is lumo_tarn.LumoDirection.EGRESS
    info.direction = lumo_tarn.LumoDirection.BOTH
    assert info.to_dict()["direction"] == "LUMO_TARN_DIR_BOTH"


def test_errors_are_raised(handle):
    tc = lumo_tarn.DpTc(on=handle)
    with pytest.raises(AttributeError):
        tc.prto = 6
    with pytest.raises(AttributeError):
        lumo_tarn.DpTc(prto=6, on=handle)
    with pytest.raises(AttributeError):
        lumo_tarn.DpTcList(on=handle).num_tcs = 3
    with pytest.raises(OverflowError):
        tc.proto = 256
    with pytest.raises(TypeError):
        tc.appl = tc
    with pytest.raises(ValueError):
        tc.src_prefix = "10.0.0.0"
    with pytest.raises(ValueError):
        tc.src_prefix = "10.0.0/8"
    with pytest.raises(OSError):
        lumo_tarn.LumoInfo(on=handle).direction = 3
    with pytest.raises(OSError):
        lumo_tarn.DpTc.from_frame(b"", on=handle)
    with pytest.raises(OSError):
        lumo_tarn.DebugSettingMsg.from_frame(b"garbage", on=handle)
    with pytest.raises(ValueError):
        lumo_tarn.DpTc.from_xml("<no xml", on=handle)
    for size in (100, 101):  # the sentence is cut, in one case in a character
        name = "a" * size + "\u00e9" * 200
        with pytest.raises(ValueError, match="^line 1: "):
            lumo_tarn.DpTc.from_xml(f"<{name}></b>", on=handle)
    with pytest.raises(OSError):
        lumo_tarn.ExmemInfo.from_xml("<lumo_tarn_exmem_info><size>x</size></lumo_tarn_exmem_info>", on=handle)
    with pytest.raises(OverflowError):
        lumo_tarn.ClKeshAppl(on=handle).proto_name = "x" * 65536


def test_lists_are_sequences(handle):
    classes = lumo_tarn.DpTcList(on=handle).tc_list
    assert len(classes) == 0 and list(classes) == [] and not classes
    for number in range(4):
        assert classes.add(id=number).id == number
    first = classes[0]
    classes.append(lumo_tarn.DpTc(id=4))
    classes.extend([classes[1], first])
    assert [tc.id for tc in classes] == [0, 1, 2, 3, 4, 1, 0]
    first.id = 7  # located again after the elements moved
    assert classes[0].id == 7 and classes[-1].id == 0
    assert [tc.id for tc in classes[1:3]] == [1, 2] and [tc.id for tc in reversed(classes)][0] == 0
    classes[1] = lumo_tarn.DpTc(id=70)
    classes[2:4] = [{"id": 71}, {"id": 72}]
    assert [tc.id for tc in classes] == [7, 70, 71, 72, 4, 1, 0]
    assert classes == list(classes) and classes != classes[1:]
    assert classes.state(1) == (2 if handle.tracked else None)
    if handle.tracked:
        classes.set_state(1, 9)
        assert classes.state(1) == 9
    for wrong in (7, -8):
        with pytest.raises(IndexError):
            classes[wrong]
    with pytest.raises(ValueError):
        classes.grow(2)
    with pytest.raises(TypeError):
        classes.append(lumo_tarn.DpAppl())
    assert len(classes) == 7
    with pytest.raises(OverflowError):
        lumo_tarn.DpMpPrefixData(on=handle).prefix_data.grow(256)


def test_slices_of_a_list_are_assigned_as_those_of_a_python_list(handle):
    def numbers(before: list, part: slice, values: list) -> list:
        classes = lumo_tarn.DpTcList(on=handle, tc_list=[{"id": number} for number in before]).tc_list
        classes[part] = [lumo_tarn.DpTc(id=number) for number in values]
        return [tc.id for tc in classes]

    before = [3, 1, 2]
    bounds = [None, -4, -1, 0, 1, 3, 9]
    for part in (slice(start, stop) for start in bounds for stop in bounds):
        for values in ([], [7], [7, 8], [7, 8, 9], [7, 8, 9, 10]):
            expected, count = list(before), len(before[part])
            expected[part] = values
            if len(values) == count or len(values) > count and max(part.indices(3)) == 3:
                assert numbers(before, part, values) == expected
            else:
                with pytest.raises(ValueError, match="shrink" if len(values) < count else "only at the end"):
                    numbers(before, part, values)
    with pytest.raises(ValueError, match="step"):
        numbers(before, slice(None, None, 2), [7, 8])


def test_a_list_can_be_assigned_its_own_elements_in_another_order(handle):
    table = lumo_tarn.DpTtTable(on=handle, agg_tc_list={"tc_list": [{"id": 3}, {"id": 1}, {"id": 2}]})
    classes = table.agg_tc_list.tc_list
    classes[:] = sorted(classes, key=lambda tc: tc.id)
    assert [tc.id for tc in classes] == [1, 2, 3]
    table.agg_tc_list.tc_list = reversed(classes)
    assert [tc.id for tc in classes] == [3, 2, 1]
    classes[1:] = [classes[0], classes[1], classes[2]]
    assert [tc.id for tc in classes] == [3, 3, 2, 1]


def test_assigning_frees_the_former_content(handle):
    """The fixture checks that no block is left."""
    data = lumo_tarn.DpTtTableData(on=handle, lumo_data=[{"agg_tc_list": {"tc_list": [{"id": 1}]}}])
    other = lumo_tarn.DpTcList(on=handle, tc_list=[{"id": 2}, {"id": 3}])
    data.lumo_data[0].agg_tc_list = other
    assert data.lumo_data[0].agg_tc_list == other
    data.lumo_data[0] = lumo_tarn.DpTtTable(agg_tc_list=other)
    assert data.lumo_data[0].agg_tc_list == other
    message = lumo_tarn.DpTtMsg(data)
    message.payload = data
    message.payload = lumo_tarn.DpTtTableData()
    assert len(message.payload.lumo_data) == 0


def test_records_with_ra_data_are_copied(handle):
    table = lumo_tarn.DpTcList(on=handle)
    table.tc_list.extend({"proto": number} for number in range(20))
    states = [table.tc_list.state(at) for at in range(20)]
    for record in [table, *table.tc_list]:
        assert lib.mirk_platform_set_ra_data(handle.native, record.native, ffi.NULL, 1) == 0
        for received in (table.copy(), lumo_tarn.DpTcList.from_frame(table.to_frame(), on=handle)):
            assert received == table
            assert [received.tc_list.state(at) for at in range(20)] == states


def test_records_have_order_text_and_repr(handle):
    small, large = lumo_tarn.ExmemInfo(cl_addr=1, on=handle), lumo_tarn.ExmemInfo(cl_addr=2)
    assert small < large and small <= large and large > small and small != large
    assert small != 3 and not small == "x"
    assert repr(small) == "ExmemInfo(cl_addr=1, exmem_addr=0, ppe_addr=0, size=0)"
    assert str(small).startswith("lumo_tarn_exmem_info@lumo_tarn_exmem_info: {\n")
    namespace = {**vars(lumo_tarn)}
    tc = lumo_tarn.DpTc(src_prefix="10.0.0.0/8", on=handle)
    assert eval(repr(tc), namespace) == tc
    with pytest.raises(TypeError):
        small < 3


@given(text=st.text(st.characters(min_codepoint=1, max_codepoint=0x10FFFF), max_size=20))
def test_text_without_a_nul_is_stored(text):
    assert lumo_tarn.ClKeshAppl(proto_name=text).proto_name == text


@pytest.mark.parametrize("text", ["\0", "a\0", "a\0b"])
def test_text_with_a_nul_is_refused(text, handle):
    application = lumo_tarn.ClKeshAppl(proto_name="http", on=handle)
    with pytest.raises(ValueError, match="proto_name cannot contain a NUL"):
        application.proto_name = text
    assert application.proto_name == "http"
    with pytest.raises(ValueError):
        lumo_tarn.ClKeshAppl(proto_name=text, on=handle)


def test_c_functions_work_on_the_same_object():
    tc = lumo_tarn.DpTc()
    tc.handle.call(lib.lumo_tarn_dp_tc_tos_set_value, tc.native, 5)
    assert tc.tos == 5


def test_stubs_match_the_classes():
    stubs = pathlib.Path(lumo_tarn.__file__).with_name("records.pyi").read_text()
    shown = {node.name: node for node in ast.parse(stubs).body if isinstance(node, ast.ClassDef)}
    assert sorted(shown) == sorted(lumo_tarn.records.__all__)
    for record in RECORDS:
        functions = [one for one in shown[record.__name__].body if isinstance(one, ast.FunctionDef)]
        read = [one.name for one in functions if ast.unparse(one.decorator_list[:1]) == "property"]
        written = [one.name for one in functions if "setter" in ast.unparse(one.decorator_list[:1])]
        assert read == list(record.members)
        assert written == [name for name, member in record.members.items() if member.tracked]
    for name in ("HaState", "LumoDirection", "MemDesc"):
        enumerators = [ast.unparse(one) for one in shown[name].body if isinstance(one, ast.Assign)]
        assert enumerators == [f"{one.name} = {one.value}" for one in getattr(lumo_tarn, name)]


def test_objects_left_at_exit_are_destroyed(tmp_path: pathlib.Path):
    program = tmp_path / "ends.py"
    program.write_text(
        "import lumo_tarn\nkept = [lumo_tarn.DpTtMsg(), lumo_tarn.DpTcList(tc_list=[{}, {}])]\n"
        "element = kept[1].tc_list[1]\nkept.append(kept)\n"
    )
    ended = subprocess.run([sys.executable, str(program)], capture_output=True, check=False)
    assert (ended.returncode, ended.stderr) == (0, b"")


def test_messages_of_invalid_xml_are_destroyed(handle):
    """The fixture checks that no block is left."""
    invalid = "<lumo_tarn_debug_setting><warn_enabled>x</warn_enabled></lumo_tarn_debug_setting>"
    with pytest.raises(OSError, match="Invalid argument"):
        lumo_tarn.DebugSettingMsg.from_xml(invalid, on=handle)
    with pytest.raises(ValueError):
        lumo_tarn.DebugSettingMsg.from_xml("<no xml", on=handle)


def test_absent_elements_are_reported_for_records_only(handle):
    with pytest.raises(OSError, match="No such file or directory"):
        lumo_tarn.DebugSetting.from_xml("<other/>", on=handle)
    message = lumo_tarn.DebugSettingMsg.from_xml("<other/>", on=handle)
    assert message.payload == lumo_tarn.DebugSetting()


def test_handles_and_objects_in_a_cycle_are_destroyed():
    class Holder:
        pass

    for _ in range(20):
        holder = Holder()
        holder.itself, holder.handle = holder, lumo_tarn.Handle()
        holder.records = [lumo_tarn.DpTc(on=holder.handle) for _ in range(3)]
        del holder
    gc.collect()


# ---- threads


def in_another_thread(function) -> None:
    thread = threading.Thread(target=function)
    thread.start()
    thread.join()


class Cycle:
    """Keeps something until the garbage collector finds it."""

    def __init__(self, kept) -> None:
        self.kept, self.itself = kept, self


def test_objects_are_destroyed_by_the_thread_that_uses_their_handle(handle):
    destroyed_by = []
    holder = Cycle(lumo_tarn.DpTcList(tc_list=[{}, {}], on=handle))
    handle.destroy_with(holder, ffi.NULL, lambda *_: destroyed_by.append(threading.get_ident()))
    blocks = handle.live_blocks()
    del holder
    in_another_thread(gc.collect)
    assert destroyed_by == [] and lib.mirk_platform_live_blocks(handle._native) == blocks
    lumo_tarn.DpAppl(on=handle)  # any use destroys them
    assert destroyed_by == [threading.get_ident()]
    assert handle.live_blocks() < blocks


def test_garbage_of_other_threads_does_not_disturb_a_handle(handle):
    """Under a memory checker, an object that is destroyed while another thread uses its handle is an error."""
    frame = lumo_tarn.DpTcList(tc_list=[{"proto": 6}] * 100).to_frame()
    done = threading.Event()
    passed: list = []

    def drop() -> None:
        while not done.is_set():
            passed.clear()
            gc.collect(0)

    dropping = threading.Thread(target=drop)
    interval = sys.getswitchinterval()
    sys.setswitchinterval(1e-6)
    dropping.start()
    try:
        end = time.monotonic() + 2
        while time.monotonic() < end:
            passed.append(Cycle(lumo_tarn.DpTcList.from_frame(frame, on=handle)))
    finally:
        done.set()
        dropping.join()
        sys.setswitchinterval(interval)
    passed.clear()
    gc.collect()


# ---- copies


def copies(one, handle):
    kept = pickle.loads(pickle.dumps(one))
    assert kept.handle is lumo_tarn.handle(tracked=handle.tracked)
    for made in (copy.copy(one), copy.deepcopy(one), one.copy()):
        assert made.handle is handle
        yield made
    yield kept
    other = lumo_tarn.Handle()
    moved = one.copy(on=other)
    assert moved.handle is other
    yield moved


@pytest.mark.parametrize("record", RECORDS, ids=lambda record: record.__name__)
@given(data=st.data())
@settings(max_examples=2, suppress_health_check=list(HealthCheck))
def test_records_are_copied_by_value(record, data, handle):
    values = data.draw(values_of(record.record_name))
    one = record(on=handle, **values)
    for made in copies(one, handle):
        assert type(made) is record and made == one and made.native != one.native
        if made.handle.tracked == handle.tracked:
            assert made.to_frame() == one.to_frame()
    made = copy.copy(one)
    del one
    gc.collect()
    assert made.to_dict() == values


@pytest.mark.parametrize("message", MESSAGES, ids=lambda message: message.__name__)
@given(data=st.data())
@settings(max_examples=2, suppress_health_check=list(HealthCheck))
def test_messages_are_copied_by_value(message, data, handle):
    values = data.draw(values_of(message.payload_type.record_name))
    one = message(message.payload_type(**values), on=handle)
    for made in copies(one, handle):
        assert type(made) is message and made == one
        assert made.native != one.native and made.payload.native != one.payload.native
    made = copy.copy(one)
    del one
    gc.collect()
    assert made.payload.to_dict() == values
    with pytest.raises(TypeError):
        hash(made)


def test_copies_of_parts_stand_alone(handle):
    table = lumo_tarn.DpTtTable(agg_tc_list={"tc_list": [{"id": 1}, {"id": 2}]}, on=handle)
    element, nested = copy.copy(table.agg_tc_list.tc_list[1]), copy.deepcopy(table.agg_tc_list)
    classes = table.agg_tc_list.tc_list
    shallow, deep, kept = copy.copy(classes), copy.deepcopy(classes), pickle.loads(pickle.dumps(classes))
    assert classes == shallow == deep == kept and {type(one) for one in (shallow, deep, kept)} == {list}
    classes[0].id = 5
    assert shallow[0].id == 5 and deep[0].id == kept[0].id == nested.tc_list[0].id == 1
    del table, classes, shallow
    gc.collect()
    assert element.id == 2 and deep[1].id == 2 and nested.tc_list[1].id == 2
    with pytest.raises(TypeError):
        hash(nested.tc_list)


def test_copies_in_a_structure_are_made_once():
    tc = lumo_tarn.DpTc(id=3)
    first, second = copy.deepcopy([tc, tc])
    assert first is second and first == tc and first is not tc


def test_handles_are_not_copied(handle):
    for copied in (copy.copy, copy.deepcopy, pickle.dumps):
        with pytest.raises(TypeError, match="a handle cannot be copied or pickled"):
            copied(handle)
    assert handle == handle and handle != lumo_tarn.Handle() and handle in {handle}


def test_values_are_copied_and_compared_by_value():
    control = lumo_tarn.Control("lumo_tarn_cl_debug_rsp", "start")
    for value in (lumo_tarn.Address.of("fe80::1%3/64"), control, lumo_tarn.LumoDirection.BOTH):
        for made in (copy.copy(value), copy.deepcopy(value), pickle.loads(pickle.dumps(value))):
            assert made == value and hash(made) == hash(value) and type(made) is type(value)
        with pytest.raises(AttributeError):
            value.kind = value.af = value.value = 1


# ---- messages, against the tool


@pytest.mark.parametrize("message", MESSAGES, ids=lambda message: message.__name__)
@pytest.mark.parametrize("tracked", [False, True], ids=["plain", "tracked"])
def test_frames_equal_those_of_the_tool(message, tracked):
    options = ["--elements", "2", "--form", "frames"] + (["--tracked"] if tracked else [])
    for seed in ("1", "2", "3"):
        frame = tool("generate", message.message_name, "--seed", seed, *options)
        (one,) = lumo_tarn.messages(frame)
        assert type(one) is message and one.handle.tracked == tracked
        assert one.to_frame() == frame
        assert one.to_xml() == tool("decode", "--xml", given=frame).decode().rstrip("\n")
        assert one.text() == tool("decode", "--text", given=frame).decode()
        (expected,) = json_lines(tool("decode", "--json", given=frame))
        plain = without_states({key: expected[key] for key in ("message", "payload")})
        assert json.loads(one.to_json()) == plain
        assert message(message.payload_type(**plain["payload"])) == one
        assert message.from_xml(one.to_xml()) == one
        # The package writes from plain values, the tool from XML.
        again = message(message.payload_type(**one.to_dict()["payload"]))
        assert again == one
        assert again.to_frame() == tool("encode", given=again.to_xml().encode())


@pytest.mark.parametrize("message", MESSAGES, ids=lambda message: message.__name__)
@given(data=st.data())
@settings(max_examples=2, suppress_health_check=list(HealthCheck))
def test_frames_of_random_values_equal_those_of_the_tool(message, data):
    values = data.draw(values_of(message.payload_type.record_name))
    one = message(message.payload_type(**values))
    line = json.dumps({"message": message.message_name, "payload": values})
    assert one.to_frame() == tool("encode", given=line.encode())
    assert one.to_frame() == tool("encode", given=one.to_json().encode())


def test_members_of_64_bits_are_text_in_json_and_numbers_in_dictionaries():
    prefix = lumo_tarn.PalMpPrefix(id=0xFFFFFFFFFFFFFFFF)
    assert prefix.to_dict()["id"] == 0xFFFFFFFFFFFFFFFF
    assert json.loads(prefix.to_json())["id"] == "18446744073709551615"
    assert lumo_tarn.PalMpPrefix(**json.loads(prefix.to_json())) == prefix
    prefix.id = "17"
    assert prefix.id == 17
    with pytest.raises(ValueError):
        prefix.id = "seventeen"


def test_text_that_is_not_utf_8_is_the_same_json_as_that_of_the_tool(tmp_path):
    data = lumo_tarn.ClApplData(kesh_appl=[{"proto_name": "a\udcff", "sub_proto_name": "b\u00e9"}])
    message, file = lumo_tarn.ClApplMsg(data), tmp_path / "message.json"
    file.write_text(message.to_json())
    assert json.loads(message.to_json()) == json_lines(tool("decode", "--json", given=message.to_frame()))[0]
    assert tool("encode", str(file)) == message.to_frame()
    assert lumo_tarn.ClApplData(**json.loads(message.to_json())["payload"]) == data
    assert data.to_dict()["kesh_appl"][0]["proto_name"] == "a\udcff"


def test_bundles_equal_those_of_the_tool():
    for bundle, message in _schema.BUNDLES.items():
        kind = next(one for one in MESSAGES if one.message_name == message)
        frames = tool("generate", bundle, "--form", "frames", "--bundle", "--elements", "1")
        items = list(lumo_tarn.frames(frames))
        assert items[0] == lumo_tarn.Control(bundle, "start") and items[-1] == lumo_tarn.Control(bundle, "commit")
        assert all(type(item) is kind for item in items[1:-1])
        assert lumo_tarn.bundle_frames(bundle, items[1:-1]) == frames
        short = bundle.removeprefix("lumo_tarn_").removesuffix("_rsp").replace("_", "-")
        assert lumo_tarn.bundle_frames(short, lumo_tarn.messages(frames)) == frames


def test_bundle_frames_raises_for_messages_that_the_bundle_does_not_admit():
    with pytest.raises(OSError) as raised:
        lumo_tarn.bundle_frames("cl-debug", [lumo_tarn.DebugSettingMsg(), lumo_tarn.DpIntfMsg()])
    assert raised.value.errno == errno.ENOENT
    with pytest.raises(ValueError):
        other = lumo_tarn.DebugSettingMsg(on=lumo_tarn.Handle())
        lumo_tarn.bundle_frames("cl-debug", [lumo_tarn.DebugSettingMsg(), other])
    with pytest.raises(ValueError):
        lumo_tarn.bundle_frames("poems", [])
    assert len(lumo_tarn.bundle_frames("cl-debug", [])) == 86, "a failed bundle was aborted on the handle"


def test_invalid_captures_are_reported_with_their_offset():
    frame = lumo_tarn.DebugSettingMsg().to_frame()
    for rest, error in ((frame[:50], "incomplete"), (frame[:20], "incomplete"), (b"garbage" * 10, "invalid")):
        items = lumo_tarn.frames(frame + rest)
        next(items)
        with pytest.raises(ValueError, match=f"{error} frame at offset {len(frame)}"):
            next(items)
    unknown = bytearray(frame)
    unknown[27:43] = bytes(16)
    with pytest.raises(ValueError, match="unknown message at offset 0"):
        list(lumo_tarn.frames(bytes(unknown)))


def files_of(data: bytes, directory) -> list:
    """The same bytes as bytes, as a file and as a pipe, which has no size."""
    path = directory / "frames.bin"
    path.write_bytes(data)
    pipe = subprocess.Popen(["cat", str(path)], stdout=subprocess.PIPE)
    return [data, path.open("rb"), pipe.stdout]


def test_broken_bytes_are_skipped_up_to_the_next_frame(tmp_path):
    one, other = (lumo_tarn.DebugSettingMsg(lumo_tarn.DebugSetting(info_enabled=n)) for n in (1, 2))
    a, b = one.to_frame(), other.to_frame()
    assert len(a) == 65

    def with_length(length):
        return a[:12] + length.to_bytes(4, "big") + a[16:]

    for broken, number, reason in (
        (b"\xbc" * 1000, 1000, "incomplete frame at offset 65"),
        (b"garbage" * 20000, 140000, "invalid frame at offset 65"),
        (b"x" + a[1:], 65, "invalid frame at offset 65"),
        (a[:27] + bytes(16) + a[43:], 65, "unknown message at offset 65: " + "00" * 16),
        (with_length(75), 65, "wrong length of the frame at offset 65"),
        (with_length(50), 65, "invalid frame of lumo_tarn_debug_setting_msg: " + os.strerror(errno.EMSGSIZE)),
        (with_length(1 << 31), 65, "incomplete frame at offset 65"),
        (a[:44], 44, "wrong length of the frame at offset 65"),
    ):
        for source in files_of(a + broken + b, tmp_path):
            skipped = []
            items = list(lumo_tarn.frames(source, skipped))
            assert [item.payload.info_enabled for item in items] == [1, 2]
            assert skipped == [lumo_tarn.Skipped(65, number, reason)]
    for source in files_of(a + b + a[:60], tmp_path):
        skipped = []
        assert len(list(lumo_tarn.messages(source, skipped))) == 2
        assert skipped == [lumo_tarn.Skipped(130, 60, "incomplete frame at offset 130")]


def test_one_frame_of_a_file_is_in_memory(tmp_path):
    message = lumo_tarn.DebugSettingMsg().to_frame()
    for source in files_of(message * 40000, tmp_path)[1:]:
        tracemalloc.start()
        assert sum(1 for _ in lumo_tarn.frames(source)) == 40000
        assert tracemalloc.get_traced_memory()[1] < 1 << 20
        tracemalloc.stop()


RESIDENT = """
import itertools, resource, sys
import lumo_tarn
found = lumo_tarn.frames(sys.stdin.buffer)
for number in 20, 260:
    print(sum(1 for _ in itertools.islice(found, number)), resource.getrusage(resource.RUSAGE_SELF).ru_maxrss)
"""


def test_resident_memory_does_not_grow_with_the_length_of_a_capture():
    frame = tool("generate", "dp-tt-cfg", "--size", "256K", "--form", "frames")
    ended = subprocess.run([sys.executable, "-c", RESIDENT], input=frame * 280, check=True, capture_output=True)
    first, early, others, late = map(int, ended.stdout.split())
    assert (first, others) == (20, 260)
    assert late - early < 16 << 10  # KiB; the capture has 73 MB


class CountedBytes(bytes):
    """Counts the bytes that slices copy."""

    copied = 0

    def __getitem__(self, index):
        part = super().__getitem__(index)
        CountedBytes.copied += len(part) if isinstance(index, slice) else 0
        return part


def test_each_byte_of_a_capture_is_copied_twice_at_most():
    data = CountedBytes(lumo_tarn.DebugSettingMsg().to_frame() * 200)
    assert len(list(lumo_tarn.frames(data))) == 200
    assert CountedBytes.copied <= 2 * len(data)


def processor_time(function) -> float:
    times = []
    for _ in range(3):
        begin = time.process_time()
        function()
        times.append(time.process_time() - begin)
    return min(times)


@pytest.mark.parametrize("tag", ["<lumo_tarn_dp_tt_msg>", "<lumo_tarn_dp_tt_msg ", " ", "<"])
def test_unclosed_tags_take_time_in_proportion(tag):
    def read(count: int) -> None:
        with pytest.raises(ValueError, match="not a message"):
            list(lumo_tarn.recording(tag * count + "<"))

    # Twice the square would be more than 16 times as long; the rest is for small numbers.
    assert processor_time(lambda: read(8000)) < 8 * processor_time(lambda: read(2000)) + 0.05


def test_recordings_equal_the_recorded_messages(tmp_path: pathlib.Path):
    frames = tool("generate", "cl-debug", "--form", "frames", "--bundle")
    kept, source = tmp_path / "recording.xml", tmp_path / "frames.bin"
    source.write_bytes(frames)
    tool("record", "--from", str(source), "-o", str(kept))
    recorded = list(lumo_tarn.recording(kept.read_text()))
    assert recorded == list(lumo_tarn.messages(frames)) and recorded
    for wrong in ("<lumo_tarn_debug_setting_msg>", "x" + kept.read_text(), kept.read_text() + "<other/>"):
        with pytest.raises(ValueError):
            list(lumo_tarn.recording(wrong))


# ---- admission


def test_a_frame_that_claims_more_than_it_contains_is_refused_by_name():
    handle = lumo_tarn.Handle()
    frame = bytearray(lumo_tarn.DpTcList(on=handle).to_frame())
    for count in (1, 0x7FFFFFFF, 0xFFFFFFFF):
        frame[6:10] = count.to_bytes(4, "big")
        with pytest.raises(OSError, match=f"lumo_tarn_dp_tc_list.tc_list claims {count} elements") as raised:
            lumo_tarn.DpTcList.from_frame(frame, on=handle)
        assert raised.value.errno == errno.EBADMSG
    del raised  # its traceback refers to the record
    gc.collect()
    assert handle.live_blocks() == 0
    whole = bytearray(lumo_tarn.ClApplMsg(on=handle).to_frame())
    whole[54] = 1
    with pytest.raises(OSError, match="but 0 bytes are left"):
        next(lumo_tarn.messages(bytes(whole)))


@pytest.mark.parametrize("tracked", [False, True])
def test_elements_without_a_body_are_read_whatever_memory_they_take(tracked):
    handle = lumo_tarn.Handle(tracked=tracked)
    frame = bytearray(lumo_tarn.LumoInfoList(on=handle).to_frame())
    head, end = bytes(frame[:6]), bytes(frame[10:])
    count = 2000
    body = count.to_bytes(4, "big") + bytes([0xFF, 0, 0, 0, 0, 4]) * count
    read = lumo_tarn.LumoInfoList.from_frame(head[:2] + (4 + len(body)).to_bytes(4, "big") + body + end, on=handle)
    assert len(read.lumo_info) == count


def test_what_has_no_body_is_none_in_dictionaries(handle):
    frame = bytearray(lumo_tarn.LumoInfoList(on=handle).to_frame())
    head, end = bytes(frame[:6]), bytes(frame[10:])
    body = (3).to_bytes(4, "big") + bytes([0xFF, 0, 0, 0, 0, 4]) * 3
    read = lumo_tarn.LumoInfoList.from_frame(head[:2] + (4 + len(body)).to_bytes(4, "big") + body + end, on=handle)
    assert read.to_dict() == {"lumo_info": [None] * 3}
    with pytest.raises(OSError) as raised:
        read.lumo_info[0].to_dict()
    assert raised.value.errno == errno.EIDRM
    del raised
    plain = lumo_tarn.DpTc(id=7, appl={"id": 4}, src_prefix="10.0.0.0/8", on=handle)
    ffi.cast("mirk_object *", plain.appl.native).variant = -1
    lib.lumo_tarn_dp_tc_src_prefix_get(handle.native, 1, plain.native, ffi.new("uint32_t *")).variant = -1
    values = plain.to_dict()
    assert (values["appl"], values["src_prefix"], values["dst_prefix"], values["id"]) == (None, None, "unset", 7)


def by_members(record):
    """The same as to_dict(), by a call for each member; None if the record has no body."""
    if ffi.cast("mirk_object *", record.native).variant < 0:
        return None
    values = {}
    for attribute, name, kind, of, _ in _schema.RECORDS[record.record_name][2]:
        if " " in kind:
            continue
        value = getattr(record, attribute)
        if kind == "record":
            value = by_members(value)
        elif kind == "array":
            value = [by_members(element) for element in value]
        elif kind == "address":
            native = record.handle.call(getattr(lib, f"{record.record_name}_{name}_get"), record.native)
            value = str(value) if native.variant >= 0 else None
        elif kind == "enumeration" and type(value) is not int:
            value = _schema.ENUMERATIONS[of][2][value]
        values[name] = value
    return values


def up_to_nul(value):
    """Accessors of strings stop there."""
    if isinstance(value, dict):
        return {name: up_to_nul(one) for name, one in value.items()}
    if isinstance(value, list):
        return [up_to_nul(one) for one in value]
    return value.partition("\0")[0] if isinstance(value, str) else value


@pytest.mark.parametrize("tracked", [False, True])
def test_dictionaries_have_the_values_of_the_members_also_of_damaged_frames(tracked):
    handle, read = lumo_tarn.Handle(tracked), 0
    for seed, message in enumerate(MESSAGES):
        for frame in damaged_frames(message, tracked, seed + 100):
            try:
                payload = message.from_frame(frame, on=handle).payload
            except OSError:
                continue
            expected, read = by_members(payload), read + 1
            if expected is None:
                with pytest.raises(OSError):
                    payload.to_dict()
            else:
                assert up_to_nul(payload.to_dict()) == expected
    assert read > 100


def damaged_frames(message, tracked: bool, seed: int) -> list[bytes]:
    """Frames with other counts, jumps and flags. The header keeps their length."""
    chance = random.Random(seed)
    options = ["--elements", "2", "--seed", str(seed), "--form", "frames", *(["--tracked"] if tracked else [])]
    frame = tool("generate", message.message_name, *options)
    frames = []
    for _ in range(120):
        damaged = bytearray(frame)
        for _ in range(chance.randint(1, 3)):
            at = chance.randrange(43, len(frame))
            word = chance.choices([0, 1, 6, 255, 0xFFFF, 0x7FFFFFF0, 0x7FFFFFFF, 0xFFFFFFFE, chance.randrange(600)])[0]
            size = chance.choices([1, 2, 4])[0]
            damaged[at : at + size] = (word & (1 << 8 * size) - 1).to_bytes(size, "big")[: len(frame) - at]
        frames.append(bytes(damaged))
    return frames


@pytest.mark.parametrize("tracked", [False, True])
def test_refuses_the_same_frames_as_the_tool(tracked):
    handle, refused, read = lumo_tarn.Handle(tracked), 0, 0
    for seed, message in enumerate(MESSAGES):
        frames = damaged_frames(message, tracked, seed)
        for first in range(0, len(frames), 20):  # of more errors, the tool only counts the rest
            some = frames[first : first + 20]
            command = [os.environ["TARN_TOOL"], "decode", "--keep-going"]
            printed = subprocess.run(command, input=b"".join(some), capture_output=True, check=False).stderr.decode()
            reasons = dict(re.findall(r"frame at offset (\d+): \w+ cannot be read: (.*? claims .*? left)", printed))
            at = 0
            for frame in some:
                try:
                    message.from_frame(frame, on=handle)
                    reason = None
                except OSError as error:
                    reason = error.strerror if error.errno == errno.EBADMSG else None
                assert reason == reasons.get(str(at))
                refused, read = refused + (reason is not None), read + (reason is None)
                at += len(frame)
    assert refused > 50 and read > 50


def test_xml_with_lists_too_long_for_its_length_is_refused():
    def text(elements):
        return f"<lumo_tarn_cl_appl_data>{'<kesh_appl/>' * elements}</lumo_tarn_cl_appl_data>"

    assert len(lumo_tarn.ClApplData.from_xml(text(100)).kesh_appl) == 100
    with pytest.raises(ValueError, match="too many for the length of the document"):
        lumo_tarn.ClApplData.from_xml(text(3200))
