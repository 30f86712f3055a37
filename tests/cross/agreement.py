"""The tool of a cross build prints the same bytes as that of the host.  agreement.py EXAMPLES HOST_TOOL OTHER_TOOL...

The other tool is a command of several words, since an emulator runs it. Every example is encoded, decoded, dissected and
shown in every form by both; one serves each bundle, and the other requests it."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

examples = sorted(pathlib.Path(sys.argv[1]).resolve().glob("*.xml"))
host, other = [sys.argv[2]], sys.argv[3:]
scratch = pathlib.Path(tempfile.mkdtemp())
both = [], ["--tracked"]
compared = 0


def output(tool, arguments):
    done = subprocess.run(tool + [str(a) for a in arguments], stdout=subprocess.PIPE, cwd=scratch)
    if done.returncode != 0:
        sys.exit(f"{tool[-1]} {' '.join(map(str, arguments))}: exit status {done.returncode}")
    return done.stdout


def same(*arguments):
    """The output of both tools, which must be equal."""
    global compared
    expected, found = output(host, arguments), output(other, arguments)
    if expected != found:
        (scratch / "expected").write_bytes(expected)
        (scratch / "found").write_bytes(found)
        sys.exit(f"tarn {' '.join(map(str, arguments))}: the output differs: compare expected and found in {scratch}")
    compared += 1
    return expected


def exchange(server, client, bundle, example):
    """The answers, without and with state, that one processor receives from another."""
    socket = scratch / "socket"
    serving = subprocess.Popen(server + ["answer", "--socket", str(socket), f"{bundle}={example}"],
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        while not socket.exists():
            if serving.poll() is not None:
                sys.exit(f"{bundle}: the server ended with exit status {serving.returncode}")
            time.sleep(0.05)
        return [output(client, ["show", bundle, "--socket", socket, "--json", "--timeout", 60, *tracked])
                for tracked in both]
    finally:
        serving.terminate()
        serving.wait()
        socket.unlink(missing_ok=True)


if len(examples) < 11:
    sys.exit(f"only {len(examples)} examples in {sys.argv[1]}")
for example in examples:
    bundle = example.stem.replace("_", "-")
    for tracked in both:
        (scratch / "frames").write_bytes(same("encode", example, "--bundle", bundle, *tracked))
        for form in "--text", "--json", "--xml":
            same("decode", "frames", form)
        same("dissect", "frames")
        same("dissect", "frames", "--json")
        (scratch / "source").write_bytes(same("dissect", "frames", "--source"))
        same("assemble", "source")
        same("view", "frames")
        for form in "text", "json", "xml", "frames":
            same("generate", bundle, "--seed", 7, "--form", form, *tracked)
    answers = exchange(host, host, bundle, example)
    if exchange(host, other, bundle, example) != answers or exchange(other, host, bundle, example) != answers:
        sys.exit(f"{bundle}: another processor receives another answer")
shutil.rmtree(scratch)
print(f"{compared} outputs and {4 * len(examples)} exchanges are the same")
