"""Rows of records, compared with those of the tool."""

import re
import threading
import tracemalloc

import lumo_tarn
import pytest
from conftest import MESSAGES, RECORDS, json_lines, tool
from lumo_tarn import _schema

def plain(row: dict) -> dict:
    """In JSON of the tool, numbers of 64 bits are text, some of them hexadecimal."""

    def number(value):
        if isinstance(value, str) and re.fullmatch("0x[0-9a-f]{16}|[0-9]+", value):
            return int(value, 16 if value.startswith("0x") else 10)
        return value

    return {name: number(value) for name, value in row.items() if name not in ("file", "connection")}


@pytest.mark.parametrize("message", MESSAGES, ids=lambda message: message.__name__)
def test_rows_equal_those_of_the_tool(message, tmp_path):
    """Also the names and the order of columns and rows, in bundles and in messages alone, with state and without."""
    bundle = next(name for name, admitted in _schema.BUNDLES.items() if admitted == message.message_name)
    capture = tmp_path / "capture.bin"
    capture.write_bytes(
        tool("generate", bundle, "--elements", "2", "--form", "frames", "--bundle")
        + tool("generate", message.message_name, "--elements", "1", "--form", "frames", "--tracked", "--seed", "3")
    )
    for record in RECORDS:
        expected = json_lines(tool("rows", record.record_name, str(capture), "--format", "jsonl"))
        found = list(lumo_tarn.rows(capture, record))
        assert found == [plain(row) for row in expected]
        assert [list(row) for row in found] == [list(plain(row)) for row in expected]


TABLES = lumo_tarn.DpTtMsg(
    lumo_tarn.DpTtTableData(
        lumo_data=[
            {"lumo_num": 3, "agg_tc_list": {"tc_list": [{"id": 7, "src_prefix": "10.0.0.0/8"}, {"id": 8, "proto": 6}]}},
            {"lumo_num": 4, "agg_tc_list": {"tc_list": [{"id": 9, "proto": 6, "appl": {"id": 2}}]}},
        ]
    )
)


def test_columns_and_conditions_choose(handle):
    columns = ["path", "dp_tt_table.lumo_num", "id", "appl.id"]
    assert list(lumo_tarn.rows(TABLES, "tc", columns, {"proto": 6})) == [
        {"path": "lumo_data[0].agg_tc_list.tc_list[1]", "dp_tt_table.lumo_num": 3, "id": 8, "appl.id": 0},
        {"path": "lumo_data[1].agg_tc_list.tc_list[0]", "dp_tt_table.lumo_num": 4, "id": 9, "appl.id": 2},
    ]
    chosen = lumo_tarn.rows(TABLES, lumo_tarn.DpTc, ["id"], {"id": lambda id: id > 7, "dp_tt_table.lumo_num": 3})
    assert list(chosen) == [{"id": 8}]
    assert list(lumo_tarn.rows([TABLES, TABLES], "dp-tt-cfg", ["num_lumos", "message"])) == [
        {"num_lumos": 2, "message": 1},
        {"num_lumos": 2, "message": 2},
    ]
    assert [row["agg_tc_list.num_tcs"] for row in lumo_tarn.rows(TABLES, "dp_tt_table")] == [2, 1]
    assert list(lumo_tarn.rows(TABLES, "appl", ["dp_tc.id", "path"], {"id": 2})) == [
        {"dp_tc.id": 9, "path": "lumo_data[1].agg_tc_list.tc_list[0].appl"}
    ]
    assert list(lumo_tarn.rows([], "tc")) == list(lumo_tarn.rows(lumo_tarn.DebugSettingMsg(on=handle), "tc")) == []


def test_conditions_are_not_asked_about_what_has_no_value():
    asked = []
    assert list(lumo_tarn.rows(TABLES, "tc", ["id"], {"bundle": lambda bundle: asked.append(bundle)})) == []
    assert asked == []
    assert len(list(lumo_tarn.rows(TABLES, "tc", ["id"], {"bundle": None}))) == 3


def test_a_row_stays_after_its_message_has_changed():
    message = TABLES.copy()
    rows = lumo_tarn.rows(message, "tc", ["id"])
    found = [next(rows)]
    message.payload.lumo_data[0].agg_tc_list.tc_list.grow(5000)  # moves the elements
    del message
    assert found + list(rows) == [{"id": 7}, {"id": 8}, {"id": 9}]


def peak_of(read) -> int:
    tracemalloc.start()
    read()
    peak = tracemalloc.get_traced_memory()[1]
    tracemalloc.stop()
    return peak


def test_rows_of_a_frame_are_not_in_memory_together():
    frame = lumo_tarn.DpTtMsg(lumo_tarn.DpTtTableData(lumo_data=[{"agg_tc_list": {"tc_list": [{}] * 10000}}])).to_frame()
    one = peak_of(lambda: sum(1 for _ in lumo_tarn.frames(frame)))
    assert peak_of(lambda: sum(1 for _ in lumo_tarn.rows(frame, "tc"))) < one + (1 << 20)


def test_rows_end_when_their_handle_is_closed():
    def run() -> None:
        rows = lumo_tarn.rows(TABLES.to_frame(), "tc", ["id"])
        assert next(rows) == {"id": 7}
        lumo_tarn.handle().close()
        with pytest.raises(ValueError, match="the handle is closed"):
            next(rows)
        passed.append(True)

    passed: list[bool] = []
    thread = threading.Thread(target=run)  # the default handle of a thread of its own
    thread.start()
    thread.join()
    assert passed


def test_unknown_names_are_reported():
    with pytest.raises(ValueError, match="unknown record 'dp-tcc'; did you mean 'dp_tc'"):
        lumo_tarn.rows(b"", "dp-tcc")
    with pytest.raises(ValueError, match="'debug-setting-x'"):
        lumo_tarn.rows(b"", "debug-setting-x")
    with pytest.raises(ValueError, match="unknown column 'hue'; there are message, bundle, path, dp_"):
        lumo_tarn.rows(b"", "tc", ["hue"])
    with pytest.raises(ValueError, match="unknown column 'hue'"):
        lumo_tarn.rows(b"", "tc", where={"hue": 3})
    with pytest.raises(TypeError, match="sequence of names"):
        lumo_tarn.rows(b"", "tc", "id")
    with pytest.raises(FileNotFoundError):
        next(lumo_tarn.rows("no such file", "tc"))


def test_names_mean_the_same_as_for_the_tool(tmp_path):
    capture = tmp_path / "capture.bin"
    capture.write_bytes(TABLES.to_frame())
    for name in ("tc", "dp-tc", "dp_tc", "lumo_tarn_dp_tc", "dp-tt-cfg", "dp-tt", "lumo_tarn_dp_tt_msg", "tt-table"):
        assert len(list(lumo_tarn.rows(capture, name))) == len(json_lines(tool("rows", name, str(capture), "--format", "jsonl")))
