"""Runs every example program as a user would, and compares its output with that of the tool or with known text."""

import json
import os
import pathlib
import re
import signal
import subprocess
import sys

import pytest

EXAMPLES = pathlib.Path(os.environ["TARN_EXAMPLES"])
PROGRAMS = pathlib.Path(os.environ["TARN_EXAMPLE_PROGRAMS"])
TOOL = os.environ["TARN_TOOL"]


def run(*command, code: int = 0) -> str:
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, timeout=120, check=False)
    assert done.returncode == code, done.stdout + done.stderr
    return done.stdout if code == 0 else done.stderr


def script(name: str, *arguments, code: int = 0) -> str:
    return run(sys.executable, EXAMPLES / name, *arguments, code=code)


class Background:
    """A process that serves on a socket until the with statement ends. It prints a line when it is ready."""

    def __init__(self, *command) -> None:
        self.command = [str(word) for word in command]

    def __enter__(self) -> None:
        self.process = subprocess.Popen(self.command, stdout=subprocess.PIPE, text=True)
        assert self.process.stdout.readline()

    def __exit__(self, *_: object) -> None:
        self.process.send_signal(signal.SIGTERM)
        assert self.process.wait(60) == 0
        self.process.stdout.close()


@pytest.mark.parametrize("program", ["answer_request", "serve_bundle"])
def test_programs_that_answer(program: str, tmp_path: pathlib.Path):
    socket = tmp_path / "socket"
    with Background(PROGRAMS / program, socket, "warn,info"):
        for options in ([], ["--tracked"]):
            answer = json.loads(run(TOOL, "show", "cl-debug", "--socket", socket, "--json", *options))
            (message,) = answer["messages"]
            levels = {"info_enabled": 1, "trace_enabled": 0, "warn_enabled": 1, "error_enabled": 1}
            states = {"@state": dict.fromkeys(levels, 2)} if options else {}
            assert message["payload"] == {**levels, **states}
        refusal = run(TOOL, "show", "dp-intf", "--socket", socket, code=1)
        assert "serve" in refusal
    assert not socket.exists()


@pytest.mark.parametrize("name", sorted(path.name for path in EXAMPLES.glob("*.py")))
def test_a_script_without_arguments_prints_its_usage(name: str):
    usage = script(name, code=1)
    assert re.search(rf"{name} [A-Z]+", usage)
    assert "Traceback" not in usage


def classes_as_the_tool_shows_them(file: pathlib.Path) -> list:
    message = json.loads(run(TOOL, "decode", "--json", file).splitlines()[0])
    return [(table["lumo_num"], table["agg_tc_list"]["tc_list"]) for table in message["payload"]["lumo_data"]]


@pytest.mark.parametrize("program", ["ask_classes", "collect_bundle"])
def test_programs_that_ask(program: str, tmp_path: pathlib.Path):
    tables = EXAMPLES / "dp_tt_cfg.xml"
    expected = ""
    for number, classes in classes_as_the_tool_shows_them(tables):
        expected += f"processor {number}: {len(classes)} classes\n"
        for tc in classes:
            expected += f"  {tc['id']}  protocol {tc['proto']}  {tc['src_prefix']} -> {tc['dst_prefix']}\n"
    assert expected.count("\n") > 5
    socket = tmp_path / "socket"
    with Background(TOOL, "answer", "--socket", socket, f"dp-tt-cfg={tables}"):
        assert run(PROGRAMS / program, socket) == expected
    faults = {
        "abort": "Operation canceled",
        "cut": "Connection reset",
        "foreign": "No such file",
        "no-commit": "Connection timed out",
    }
    for fault, words in faults.items():
        other = tmp_path / fault
        with Background(TOOL, "answer", "--socket", other, "--fault", fault, f"dp-tt-cfg={tables}"):
            assert words in run(PROGRAMS / program, other, code=1)
    other = tmp_path / "other"
    with Background(TOOL, "answer", "--socket", other, f"cl-debug={EXAMPLES / 'cl_debug.xml'}"):
        assert "No such file" in run(PROGRAMS / program, other, code=1)


def test_ask_classes_reports_an_answer_of_more_messages_than_it_keeps(tmp_path: pathlib.Path):
    write = "import lumo_tarn as t, sys; open(sys.argv[1], 'wb').write(t.bundle_frames('dp-tt-cfg', [t.DpTtMsg()] * %d))"
    for count, code, words in ((99, 0, ""), (100, 1, "Message too long")):
        frames, socket = tmp_path / f"{count}.bin", tmp_path / str(count)
        run(sys.executable, "-c", write % count, frames)
        with Background(TOOL, "answer", "--socket", socket, f"dp-tt-cfg={frames}"):
            assert words in run(PROGRAMS / "ask_classes", socket, code=code)


def test_write_bundle(tmp_path: pathlib.Path):
    file = tmp_path / "answer.bin"
    assert run(PROGRAMS / "write_bundle", file) == ""
    _, message, _ = (json.loads(line) for line in run(TOOL, "decode", "--json", file).splitlines())
    (table,) = message["payload"]["lumo_data"]
    assert (table["lumo_num"], table["duration"]) == (3, 60)
    classes = table["agg_tc_list"]["tc_list"]
    assert [(tc["id"], tc["proto"], tc["appl"]["id"]) for tc in classes] == [(1, 6, 0), (2, 17, 9)]
    prefixes = [("10.0.0.0/8", "unset"), ("unset", "2001:db8::/32")]
    assert [(tc["src_prefix"], tc["dst_prefix"]) for tc in classes] == prefixes
    file = tmp_path / "nowhere" / "file"
    assert f"cannot write {file}" in run(PROGRAMS / "write_bundle", file, code=1)


def test_receive_bundle(tmp_path: pathlib.Path):
    file = tmp_path / "answer.bin"
    run(PROGRAMS / "write_bundle", file)
    whole = file.read_bytes()

    def receive(data: bytes, code: int = 0) -> str:
        file.write_bytes(data)
        with file.open("rb") as stream:
            command = [PROGRAMS / "receive_bundle"]
            done = subprocess.run(command, stdin=stream, capture_output=True, text=True, timeout=60, check=False)
        assert done.returncode == code, done.stderr
        return done.stdout if code == 0 else done.stderr

    lines = receive(whole + whole).splitlines()
    assert len(lines) == 2 and lines[0] == lines[1]
    assert lines[0].startswith("dp_tt_msg{dp_tt_table_data{")
    assert "src_prefix=10.0.0.0/8" in lines[0] and "lumo_num=3" in lines[0]
    assert "the last bundle has no end" in receive(whole[:-43], code=1)
    assert "the last frame is incomplete" in receive(whole[:-1], code=1)
    assert "the bytes are not a frame" in receive(whole + b"x" * 50, code=1)


def test_watch_changes():
    assert run(PROGRAMS / "watch_changes") == (
        "initially:\n"
        "after the first round:\n"
        "  table.lumo_num is now 3\n"
        "  table.duration is now 60\n"
        "  table.agg_tc_list.tc_list[1].proto is now 17\n"
        "  table.agg_tc_list.tc_list[1].appl.id is now 5\n"
        "without writes:\n"
        "after the second round:\n"
        "  table.agg_tc_list.tc_list[0].src_prefix is now 10.0.0.0/8\n"
        "  table.agg_tc_list.tc_list[1].proto is now 17\n"
    )


def test_print_classes(tmp_path: pathlib.Path):
    answer = tmp_path / "answer.bin"
    run(TOOL, "encode", EXAMPLES / "dp_tt_cfg.xml", "--bundle", "dp-tt-cfg", "-o", answer)
    expected = [
        f"{tc['id']} {tc['src_prefix']} {tc['dst_prefix']}"
        for _, classes in classes_as_the_tool_shows_them(EXAMPLES / "dp_tt_cfg.xml")
        for tc in classes
    ]
    assert script("print_classes.py", answer).splitlines() == expected


def test_the_readme_quotes_an_example_with_another_source():
    readme = EXAMPLES.parent.joinpath("README.md").read_text()
    block = readme.partition("```python\n")[2].partition("```")[0]
    request = 'lumo_tarn.ask("/run/tarn.sock", "dp-tt-cfg")'
    program = EXAMPLES.joinpath("print_classes.py").read_text().replace("lumo_tarn.messages(sys.argv[1])", request)
    assert block.strip() and block in program


def test_read_recording(tmp_path: pathlib.Path):
    levels = EXAMPLES.joinpath("cl_debug.xml").read_text()
    changed = levels.replace("<trace_enabled>0", "<trace_enabled>1")
    frames, kept = tmp_path / "frames.bin", tmp_path / "recording.xml"
    parts = []
    for number, text in enumerate((levels, changed, changed)):
        source, part = tmp_path / f"{number}.xml", tmp_path / f"{number}.bin"
        source.write_text(text)
        run(TOOL, "encode", source, "--bundle", "cl-debug", "-o", part)
        parts.append(part.read_bytes())
    frames.write_bytes(b"".join(parts))
    run(TOOL, "record", "--from", frames, "-o", kept)
    name = "lumo_tarn_debug_setting_msg"
    expected = f"1: first {name}\n2: {name}\n   trace_enabled: 0 -> 1\n3: {name}\n"
    assert script("read_recording.py", kept) == expected


def test_convert_captures(tmp_path: pathlib.Path):
    source, target = tmp_path / "captures", tmp_path / "converted"
    source.mkdir()
    expected = ""
    for bundle in ("cl-debug", "dp-appl-cfg", "dp-tt-cfg"):
        capture = source / f"{bundle}.bin"
        run(TOOL, "generate", bundle, "--form", "frames", "--elements", "2", "--bundle", "-o", capture)
        expected += f"{bundle}.bin: 1 messages\n"
    assert script("convert_captures.py", source, target) == expected
    for file in source.glob("*.bin"):
        shown = [json.loads(line) for line in run(TOOL, "decode", "--json", file).splitlines()]
        converted = [json.loads(line) for line in target.joinpath(file.stem + ".json").read_text().splitlines()]
        assert converted == [line for line in shown if "message" in line]
    source.joinpath("a.bin").write_bytes(b"garbage")
    error = script("convert_captures.py", source, tmp_path / "again", code=1)
    assert error.startswith("a.bin: incomplete frame at offset 0")
    assert len(list(tmp_path.joinpath("again").glob("*.json"))) == 3


@pytest.mark.parametrize("program", ["answer_request", "ask_classes", "collect_bundle", "serve_bundle", "write_bundle"])
def test_a_wrong_call_prints_the_usage(program: str):
    assert run(PROGRAMS / program, code=2).startswith(f"usage: {program} ")


def test_serve_classes_and_ask_many(tmp_path: pathlib.Path):
    table, socket, other = tmp_path / "classes.csv", tmp_path / "socket", tmp_path / "other"
    table.write_text("id,src_prefix,proto\n7,10.0.0.0/8,6\n8,2001:db8::/32,17\n")
    with Background(sys.executable, EXAMPLES / "serve_classes.py", table, socket):
        saved = tmp_path / "saved.bin"
        run(TOOL, "show", "dp-tt-cfg", "--socket", socket, "--save", saved)
        assert script("print_classes.py", saved) == "7 10.0.0.0/8 unset\n8 2001:db8::/32 unset\n"
        assert script("ask_many.py", "dp-tt-cfg", socket, socket) == f"{socket}: 1\n" * 2
        table.write_text("id\nseven\n")
        failed = subprocess.run(
            [sys.executable, EXAMPLES / "ask_many.py", "dp-tt-cfg", socket, other], capture_output=True, text=True, check=False
        )
        assert failed.returncode == 1 and not failed.stderr
        refused, absent = failed.stdout.splitlines()
        assert refused == f"{socket}: [Errno 5] the answer could not be written"
        assert absent == f"{other}: [Errno 2] cannot connect: No such file or directory: '{other}'"
    assert not socket.exists()
