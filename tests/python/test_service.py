"""Requests for bundles and answers, between the package and the tool, and between both sides of the package."""

import asyncio
import contextlib
import errno
import gc
import inspect
import logging
import os
import pathlib
import signal
import socket
import subprocess
import sys
import threading
import time

import lumo_tarn
import pytest
from conftest import TOOL, tool
from lumo_tarn._native import ffi, lib


@pytest.fixture
def path(tmp_path):
    """Of a socket file, whose name must be short."""
    return tmp_path / "s"


@contextlib.contextmanager
def tarn_answer(path, bundle: str, frames: bytes, *options: str):
    capture = path.with_name("capture.bin")
    capture.write_bytes(frames)
    command = [TOOL, "answer", "--socket", str(path), *options, f"{bundle}={capture}"]
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    assert process.stdout.readline().startswith(b"answering on ")
    try:
        yield
    finally:
        process.terminate()
        process.communicate()


def levels(*numbers: int, on=None) -> list:
    return [lumo_tarn.DebugSettingMsg(lumo_tarn.DebugSetting(info_enabled=number, on=on)) for number in numbers]


def numbers(messages) -> list[int]:
    return [message.payload.info_enabled for message in messages]


# ---- asking


@pytest.mark.parametrize("tracked", [False, True])
def test_asks_the_tool(path, tracked):
    frames = tool("generate", "dp-tt-cfg", "--elements", "2", "--form", "frames", "--bundle")
    with tarn_answer(path, "dp-tt-cfg", frames), lumo_tarn.Client(path) as client:
        for answer in (lumo_tarn.ask(path, "dp-tt-cfg", tracked=tracked), client.ask("dp-tt-cfg", tracked=tracked)):
            assert answer == list(lumo_tarn.messages(frames)) and answer
            assert all(message.handle is lumo_tarn.handle(tracked) for message in answer)
        on = lumo_tarn.Handle()
        assert client.ask("lumo_tarn_dp_tt_cfg_rsp", on=on)[0].handle is on


FAULTS = {
    "abort": (lumo_tarn.AbortedError, errno.ECANCELED),
    "second-start": (lumo_tarn.InvalidAnswerError, errno.EBADMSG),
    "foreign": (lumo_tarn.InvalidAnswerError, errno.EBADMSG),
    "cut": (ConnectionResetError, errno.ECONNRESET),
    "unknown": (lumo_tarn.InvalidAnswerError, errno.EBADMSG),
    "garbage": (lumo_tarn.InvalidAnswerError, errno.EBADMSG),
    "no-commit": (TimeoutError, errno.ETIMEDOUT),
    "silent": (TimeoutError, errno.ETIMEDOUT),
}


@pytest.mark.parametrize("fault", FAULTS)
def test_faults_of_a_peer_have_named_errors(path, fault):
    kind, number = FAULTS[fault]
    with tarn_answer(path, "cl-debug", levels(1, 2)[0].to_frame(), "--fault", fault):
        with pytest.raises(kind) as raised:
            lumo_tarn.ask(path, "cl-debug", timeout=0.5 if kind is TimeoutError else 10)
        assert raised.value.errno == number
        client = lumo_tarn.Client(path)
        with pytest.raises(kind):
            client.ask("cl-debug", timeout=0.5 if kind is TimeoutError else 10)
        with pytest.raises(ValueError, match="the client is closed"):
            client.ask("cl-debug")


def test_limits_of_an_answer(path):
    frame = tool("generate", "dp-tt", "--elements", "20", "--form", "frames")
    with tarn_answer(path, "dp-tt-cfg", frame):
        whole = len(frame) + 86
        assert len(lumo_tarn.ask(path, "dp-tt-cfg", frame_limit=len(frame), answer_limit=whole)) == 1
        with pytest.raises(lumo_tarn.LimitError, match="frame_limit"):
            lumo_tarn.ask(path, "dp-tt-cfg", frame_limit=len(frame) - 1)
        with pytest.raises(lumo_tarn.LimitError, match="answer_limit"):
            lumo_tarn.ask(path, "dp-tt-cfg", answer_limit=whole - 1)


def answer_with(path, reply: bytes) -> threading.Thread:
    """A peer that sends these bytes to whoever connects."""
    listening = socket.socket(socket.AF_UNIX)
    listening.bind(str(path))
    listening.listen()

    def run() -> None:
        peer, _ = listening.accept()
        peer.sendall(reply)
        time.sleep(1)
        peer.close()
        listening.close()

    thread = threading.Thread(target=run)
    thread.start()
    return thread


def refusal(number: int, sentence: bytes) -> bytes:
    frame = ffi.new("uint8_t[]", 304)
    return bytes(ffi.buffer(frame, lib.mirk_platform_refusal_encode(frame, 304, 0, number, sentence, ffi.NULL)))


def test_text_of_a_peer_is_printable(path):
    peer = answer_with(path, refusal(errno.EUSERS, b"no room\x1b[31m\n\xff"))
    with pytest.raises(lumo_tarn.RefusedError) as raised:
        lumo_tarn.ask(path, "cl-debug")
    assert (raised.value.errno, raised.value.strerror) == (errno.EUSERS, r"no room\x1b[31m\n\xff")
    peer.join()


def test_frames_that_cannot_be_read_are_an_invalid_answer(path):
    start = lumo_tarn.Control("lumo_tarn_cl_debug_rsp", "start").to_frame()
    lumo_tarn.Control("lumo_tarn_cl_debug_rsp", "abort").to_frame()
    short = bytearray(levels(1)[0].to_frame()[:50])
    short[12:16] = (50).to_bytes(4, "big")
    peer = answer_with(path, start + bytes(short))
    with pytest.raises(lumo_tarn.InvalidAnswerError, match="invalid frame of lumo_tarn_debug_setting_msg"):
        lumo_tarn.ask(path, "cl-debug")
    peer.join()


def test_errors_of_connecting(path):
    with pytest.raises(FileNotFoundError, match="cannot connect.*/s'"):
        lumo_tarn.ask(path, "cl-debug")
    left = socket.socket(socket.AF_UNIX)
    left.bind(str(path))
    with pytest.raises(ConnectionRefusedError):
        lumo_tarn.ask(str(path), "cl-debug")
    with pytest.raises(OSError) as raised:
        lumo_tarn.ask("host:port", "cl-debug")
    assert raised.value.errno == errno.EINVAL
    for arguments, options in (
        ((f"{path}\0", "cl-debug"), {}),
        ((path, "cl-debugg"), {}),
        ((path, "cl-debug"), {"timeout": -1}),
        ((path, "cl-debug"), {"timeout": float("nan")}),
    ):
        with pytest.raises(ValueError):
            lumo_tarn.ask(*arguments, **options)


def test_a_signal_ends_the_waiting(path):
    with lumo_tarn.serve(path, {"cl-debug": lambda request: time.sleep(3) or []}):
        begin = time.monotonic()
        timer = threading.Timer(0.3, os.kill, (os.getpid(), signal.SIGINT))
        timer.start()
        with pytest.raises(KeyboardInterrupt):
            lumo_tarn.ask(path, "cl-debug")
        assert time.monotonic() - begin < 2


def test_a_client_in_use_is_not_closed(path):
    errors = []

    def answer(request):
        for use in (client.close, lambda: client.ask("cl-debug")):
            with pytest.raises(RuntimeError, match="the client is in use"):
                use()
            errors.append(True)
        return []

    with lumo_tarn.serve(path, {"cl-debug": answer}):
        client = lumo_tarn.Client(path)
        assert client.ask("cl-debug") == [] and errors == [True, True]
        client.close()
        client.close()


# ---- serving


def test_the_tool_asks(path):
    asked = []

    def answer(request):
        asked.append(request)
        return levels(1, 2)

    with lumo_tarn.serve(path, {"cl-debug": answer}) as server:
        assert server.address == str(path)
        saved = path.with_name("saved.bin")
        for options in ([], ["--tracked"]):
            tool("show", "cl-debug", "--socket", str(path), "--save", str(saved), *options)
            messages = list(lumo_tarn.messages(saved))
            assert numbers(messages) == [1, 2]
            assert {message.handle.tracked for message in messages} == {bool(options)}
    origin = f"user {os.getuid()}"
    assert asked == [lumo_tarn.Request("lumo_tarn_cl_debug_rsp", tracked, origin) for tracked in (False, True)]


def test_answers_are_messages_of_any_handle_or_frames(path):
    other = lumo_tarn.Handle(tracked=True)
    answers = iter([levels(1), levels(2, on=other), lumo_tarn.bundle_frames("cl-debug", levels(3)), iter(levels(4, 5)), []])
    with lumo_tarn.serve(path, {"lumo_tarn_cl_debug_rsp": lambda request: next(answers)}), lumo_tarn.Client(path) as client:
        for expected in ([1], [2], [3], [4, 5], []):
            assert numbers(client.ask("cl-debug")) == expected


def test_serves_a_port():
    with lumo_tarn.serve("127.0.0.1:0", {"cl-debug": lambda request: levels(7)}) as server:
        assert server.address.startswith("127.0.0.1:") and not server.address.endswith(":0")
        assert numbers(lumo_tarn.ask(server.address, "cl-debug")) == [7]
        assert numbers(lumo_tarn.ask(server.address, "cl-debug", timeout=float("inf"))) == [7]


def test_exceptions_refuse_the_request(path, caplog):
    def fail(error):
        raise error

    answers = {
        "cl-debug": lambda request: fail(OSError(errno.EACCES, "not today")),
        "dp-debug": lambda request: fail(KeyError("secret")),
        "dp-intf": lambda request: levels(1),  # another bundle's messages
        "dp-tt-cfg": lambda request: fail(SystemExit(3)),
        "dp-appl-cfg": lambda request: fail(socket.gaierror(socket.EAI_NONAME, "unknown host")),
        "pal-debug": lambda request: fail(OSError("no number", 7)),
    }
    with lumo_tarn.serve(path, answers), lumo_tarn.Client(path) as client:
        for bundle, number, sentence in (
            ("cl-debug", errno.EACCES, "not today"),
            ("dp-debug", errno.EIO, "the answer could not be written"),
            ("dp-intf", errno.ENOENT, "No such file or directory"),
            ("dp-tt-cfg", errno.EIO, "the answer could not be written"),
            ("dp-appl-cfg", errno.EIO, "unknown host"),
            ("pal-debug", errno.EIO, "7"),
            ("cl-cfg", errno.ENOENT, "lumo_tarn_cl_cfg_rsp is not served here"),
        ):
            with pytest.raises(lumo_tarn.RefusedError) as raised:
                client.ask(bundle)
            assert (raised.value.errno, raised.value.strerror) == (number, sentence)
    assert [record.exc_info[0] for record in caplog.records] == [KeyError, SystemExit]


def test_other_threads_run_while_one_asks_and_one_answers(path):
    counted, done = [0], threading.Event()

    def count() -> None:
        while not done.is_set():
            counted[0] += 1
            time.sleep(0.001)

    counting = threading.Thread(target=count)
    with lumo_tarn.serve(path, {"cl-debug": lambda request: time.sleep(0.5) or []}):
        counting.start()
        before = counted[0]
        lumo_tarn.ask(path, "cl-debug")
        assert counted[0] > before + 20
    done.set()
    counting.join()


def test_peers_that_send_something_else_are_disconnected(path, caplog):
    caplog.set_level(logging.INFO, "lumo_tarn")
    with lumo_tarn.serve(path, {"cl-debug": lambda request: levels(1)}, frame_time=2.0):
        for garbage in (b"garbage" * 10, levels(1)[0].to_frame(), refusal(1, b""), b"\xbc" + bytes(26), bytes(1000)):
            peer = socket.socket(socket.AF_UNIX)
            peer.connect(str(path))
            peer.sendall(garbage)
            peer.settimeout(60)
            with contextlib.suppress(ConnectionResetError):
                while peer.recv(1000):
                    pass
            assert numbers(lumo_tarn.ask(path, "cl-debug")) == [1]
    assert len(caplog.records) == 5
    assert f"of user {os.getuid()} is disconnected: " in caplog.text


def test_limits_are_those_of_the_transport():
    options = ffi.new("mirk_platform_server_options *")
    lib.mirk_platform_server_options_init_sized(options, ffi.sizeof(options[0]))
    parameters = inspect.signature(lumo_tarn.Server.__init__).parameters
    limits = {name: one.default for name, one in parameters.items() if one.kind is inspect.Parameter.KEYWORD_ONLY}
    for name, native in (("idle", "idle_ms"), ("frame_time", "frame_ms"), ("answer_time", "answer_ms"), ("stall", "stall_ms")):
        assert limits.pop(name) * 1000 == getattr(options, native)
    assert set(limits) == {"peer_limit", "pending_limit", "total_pending_limit", "origin_share", "socket_mode"}
    for name, default in limits.items():
        assert default == getattr(options, name)
    for function in (lumo_tarn.Client, lumo_tarn.ask, lumo_tarn.ask_async):
        assert inspect.signature(function).parameters["frame_limit"].default == options.frame_limit


def test_limits_apply(path):
    with lumo_tarn.serve(path, {"cl-debug": lambda request: levels(*range(9))}, pending_limit=300, peer_limit=1, idle=0.4):
        with pytest.raises(ConnectionResetError):
            lumo_tarn.ask(path, "cl-debug")
        first = socket.socket(socket.AF_UNIX)
        first.connect(str(path))
        begin = time.monotonic()
        assert first.recv(100) == b"" and time.monotonic() - begin < 5


def test_a_server_ends_in_all_orders(path):
    answers = {"cl-debug": lambda request: []}
    with lumo_tarn.serve(path, answers) as server:
        assert not server.wait(0.05)
        with pytest.raises(OSError) as raised:
            lumo_tarn.serve(path, answers)
        assert raised.value.errno == errno.EADDRINUSE
        server.stop()
        assert server.wait(10)
        server.stop()
    server.close()
    server.stop()
    assert not path.exists()
    errors = []

    def stop_and_close(request):
        try:
            server.close()
        except RuntimeError as error:
            errors.append(error)
        server.stop()
        return []

    server = lumo_tarn.serve(path, {"cl-debug": stop_and_close})
    assert lumo_tarn.ask(path, "cl-debug") == []
    assert server.wait(10) and len(errors) == 1
    errors.clear()  # its traceback refers to the server
    server = None  # without close()
    gc.collect()
    assert not path.exists()
    with pytest.raises(ValueError, match="unknown bundle 'cl-debugg'; did you mean 'cl-debug'"):
        lumo_tarn.serve(path, {"cl-debugg": stop_and_close})


@pytest.mark.parametrize("ending", ["", "raise SystemExit(0)", "import gc; del server; gc.collect()"])
def test_a_server_that_is_left_at_exit_is_closed(path, ending):
    program = path.with_name("ends.py")
    program.write_text(
        "import lumo_tarn, time, threading\n"
        f"server = lumo_tarn.serve({str(path)!r}, {{'cl-debug': lambda request: []}})\n"
        f"client = lumo_tarn.Client({str(path)!r})\nclient.ask('cl-debug')\n{ending}\n"
    )
    ended = subprocess.run([sys.executable, str(program)], capture_output=True, check=False, timeout=60)
    assert (ended.returncode, ended.stderr) == (0, b"") and not path.exists()


def test_ctrl_c_ends_a_server(path):
    program = path.with_name("serves.py")
    program.write_text(
        "import lumo_tarn\n"
        f"with lumo_tarn.serve({str(path)!r}, {{'cl-debug': lambda request: []}}) as server:\n"
        "    print(server.address, flush=True)\n    server.wait()\n"
    )
    serving = subprocess.Popen([sys.executable, str(program)], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    assert serving.stdout.readline() == f"{path}\n".encode()
    serving.send_signal(signal.SIGINT)
    assert b"KeyboardInterrupt" in serving.communicate(timeout=60)[1] and not path.exists()


# ---- event loops


def test_asks_and_serves_in_an_event_loop(path):
    async def answer(request):
        await asyncio.sleep(0.01)
        return levels(1, 2)

    async def run() -> None:
        async with lumo_tarn.serve(path, {"cl-debug": answer, "dp-debug": lambda request: []}) as server:
            answers = await asyncio.gather(*(lumo_tarn.ask_async(path, "cl-debug") for _ in range(20)))
            assert [numbers(one) for one in answers] == [[1, 2]] * 20
            assert len({one[0].handle for one in answers}) == 20
            assert await lumo_tarn.ask_async(path, "dp-debug") == []
            waiting = asyncio.create_task(server.wait_async())
            await asyncio.sleep(0.05)
            assert not waiting.done()
            server.stop()
            await asyncio.wait_for(waiting, 10)
        assert not path.exists()

    asyncio.run(run())


def test_coroutines_can_fail(path, caplog):
    async def refuse(request):
        raise OSError(errno.EACCES, "not today")

    async def fail(request):
        raise KeyError

    async def run() -> None:
        async with lumo_tarn.serve(path, {"cl-debug": refuse, "dp-debug": fail}):
            for bundle, number in (("cl-debug", errno.EACCES), ("dp-debug", errno.EIO)):
                with pytest.raises(lumo_tarn.RefusedError) as raised:
                    await lumo_tarn.ask_async(path, bundle)
                assert raised.value.errno == number

    asyncio.run(run())
    assert [record.exc_info[0] for record in caplog.records] == [KeyError]
    caplog.clear()
    with lumo_tarn.serve(path, {"cl-debug": refuse}), pytest.raises(lumo_tarn.RefusedError):
        lumo_tarn.ask(path, "cl-debug")
    assert "not created in an event loop" in caplog.text


@pytest.mark.parametrize("close", ["async with", "close()"])
def test_a_server_ends_while_a_coroutine_answers(path, close):
    begun = threading.Event()

    async def answer(request):
        begun.set()
        await asyncio.sleep(60)

    async def run() -> None:
        server = lumo_tarn.serve(path, {"cl-debug": answer})
        asking = asyncio.create_task(lumo_tarn.ask_async(path, "cl-debug"))
        while not begun.is_set():
            await asyncio.sleep(0.01)
        begin = time.monotonic()
        if close == "close()":
            server.close()
        else:
            async with server:
                pass
        with pytest.raises((lumo_tarn.RefusedError, ConnectionResetError)):
            await asking
        assert time.monotonic() - begin < 5

    asyncio.run(run())


def test_asking_can_be_canceled(path):
    connected = threading.Event()

    def answer(request):
        connected.set()
        time.sleep(1)
        return []

    async def run() -> None:
        begin = time.monotonic()
        with pytest.raises(asyncio.TimeoutError):
            await asyncio.wait_for(lumo_tarn.ask_async(path, "cl-debug"), 0.3)
        assert time.monotonic() - begin < 0.9

    with lumo_tarn.serve(path, {"cl-debug": answer}):
        asyncio.run(run())
        assert connected.wait(10)


# ---- with statements


@pytest.mark.parametrize("tracked", [False, True])
def test_nothing_of_a_closed_handle_can_be_used(tracked):
    with lumo_tarn.Handle(tracked) as on:
        table = lumo_tarn.DpTcList(tc_list=[{"id": 1}, {"id": 2}], on=on)
        element, message = table.tc_list[1], lumo_tarn.DpTtMsg(on=on)
        other = lumo_tarn.DpTcList()
    on.close()
    for use in (
        lambda: table.num_tcs,
        lambda: element.id,
        lambda: len(message.payload.lumo_data),
        lambda: table.to_frame(),
        lambda: table.to_dict(),
        lambda: table == other,
        lambda: other == table,
        lambda: table.hash(),
        lambda: other.tc_list.append(element),
        lambda: lumo_tarn.DpTc(on=on),
        lambda: on.live_blocks(),
    ):
        with pytest.raises(ValueError, match="the handle is closed"):
            use()
    del table, element, message
    gc.collect()


def test_a_thread_gets_a_new_handle_if_its_own_is_closed():
    def run() -> None:
        with lumo_tarn.handle() as own:
            assert lumo_tarn.DpTc().handle is own
        assert lumo_tarn.DpTc().handle is not own
        passed.append(True)

    passed: list[bool] = []
    thread = threading.Thread(target=run)
    thread.start()
    thread.join()
    assert passed


def test_a_capture_closes_its_file(tmp_path):
    path = pathlib.Path(tmp_path, "capture.bin")
    path.write_bytes(lumo_tarn.bundle_frames("cl-debug", levels(1, 2)) + b"garbage" * 10 + levels(3)[0].to_frame())
    with lumo_tarn.Capture(path, keep_going=True) as capture:
        assert next(iter(capture)) == lumo_tarn.Control("lumo_tarn_cl_debug_rsp", "start")
        assert numbers(capture.messages()) == [1, 2, 3]
        assert [one.length for one in capture.skipped] == [70]
    with lumo_tarn.Capture(str(path)) as capture, pytest.raises(ValueError, match="invalid frame at offset"):
        list(capture)
    with lumo_tarn.Capture(path) as capture:
        next(iter(capture))
    with pytest.raises(ValueError, match="the capture is closed"):
        list(capture)
    with path.open("rb") as file:
        with lumo_tarn.Capture(file, keep_going=True) as capture:
            assert len(list(capture)) == 5
        assert not file.closed
    assert numbers(lumo_tarn.messages(path, [])) == [1, 2, 3]
    with pytest.raises(FileNotFoundError):
        lumo_tarn.Capture(tmp_path / "none")
