#!/usr/bin/env python3
"""Runs every example of every help text. None may print a trace line or "(ERR)", or fail for another reason than that
files differ or that a fault was asked for.

usage: examples.py TARN LIBRARY SOURCE
"""
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

tarn, library, source = (os.path.abspath(word) for word in sys.argv[1:4])
problems = []


def run(*words):
    return subprocess.run([tarn, *words], check=True, capture_output=True, text=True).stdout


def examples_of(command):
    help_text = run(command, "--help").split("Examples:\n")[1]
    return [line.strip() for line in help_text.splitlines() if line.startswith("  ")]


def wait_for(path, text, process):
    for _ in range(600):
        with open(path, encoding="utf-8") as file:
            if text in file.read():
                return True
        if process.poll() is not None:
            return False
        time.sleep(0.1)
    return False


class Place:
    """A folder with the files that the examples name, and a server on a socket and a port that nobody else has."""

    def __init__(self, folder):
        self.folder = folder
        self.socket = os.path.join(folder, "tarn.sock")
        programs = os.path.join(folder, "programs")
        os.mkdir(programs)
        os.symlink(tarn, os.path.join(programs, "tarn"))
        for name in "jq", "dot", "sqlite3", "xmllint":
            if not shutil.which(name):
                with open(os.path.join(programs, name), "w", encoding="utf-8") as file:
                    file.write("#!/bin/sh\nexec cat\n")
                os.chmod(os.path.join(programs, name), 0o755)
        self.environment = dict(os.environ, PATH=programs + ":" + os.environ["PATH"])
        self.environment.pop("MIRK_TRACE", None)
        os.symlink(os.path.join(source, "examples"), os.path.join(folder, "examples"))
        self.make_files()

    def path(self, name):
        return os.path.join(self.folder, name)

    def shell(self, line):
        line = line.replace("/tmp/tarn.sock", self.socket).replace("127.0.0.1:28276", "127.0.0.1:0")
        return subprocess.run(["bash", "-o", "pipefail", "-c", line], cwd=self.folder, env=self.environment,
                              timeout=120, stdin=subprocess.DEVNULL, capture_output=True, check=False)

    def make_files(self):
        """The files that examples read, unless an example writes them first."""
        for name in "tables", "before", "after", "answer", "frames", "captures/a", "captures/b":
            os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
            seed = str(1 + (name == "after"))
            run("generate", "dp-tt-cfg", "--seed", seed, "--form", "frames", "--bundle", "-o", self.path(name + ".bin"))
        run("generate", "dp-tt-cfg", "--form", "json", "-o", self.path("tables.json"))
        run("generate", "dp-tt-cfg", "-o", self.path("tables.xml"))
        run("generate", "dp-intf", "-o", self.path("intf.xml"))
        run("generate", "cl-debug", "--form", "json", "-o", self.path("answer.json"))
        run("encode", os.path.join(source, "examples/cl_debug.xml"), "-o", self.path("debug.bin"))
        shutil.copy(self.path("debug.bin"), self.path("capture.bin"))
        shutil.copy(os.path.join(source, "examples/cl_debug.xml"), self.path("recording.xml"))
        os.makedirs(self.path("build/release"))
        for name in "build/release/liblumo_ui_tarn.so", "liblumo_ui_tarn.so.1":
            os.symlink(library, self.path(name))


def check(where, line, outcome, exits=(0, 1)):
    errors = outcome.stderr.decode(errors="replace")
    verbose = re.search(r" (-v|--verbose)\b", line)
    if "(ERR)" in errors or (not verbose and "trace " in errors):
        problems.append(f"{where}: {line}\n  prints: {errors.strip()[:400]}")
    if outcome.returncode not in exits:
        problems.append(f"{where}: {line}\n  exits with {outcome.returncode}: {errors.strip()[:400]}")


def serve(place, where, line):
    """A server runs until it is ready, and ends without an error."""
    line = line.replace("/tmp/tarn.sock", place.path("example.sock")).replace("127.0.0.1:28276", "127.0.0.1:0")
    log, errors = place.path("answer.log"), place.path("answer.err")
    with open(log, "wb") as out, open(errors, "wb") as err:
        process = subprocess.Popen(["bash", "-c", "exec " + line], cwd=place.folder, env=place.environment, stdout=out,
                                   stderr=err)
        ready = wait_for(log, "answering on", process)
        process.send_signal(signal.SIGTERM)
        process.wait()
    with open(errors, "rb") as file:
        outcome = subprocess.CompletedProcess(line, process.returncode if ready else -1, stderr=file.read())
    check(where, line, outcome, exits=(0,))


def main():
    commands = re.findall(r"^  ([a-z]+) {2,}", run("--help").split("Subcommands:")[1], re.M)
    count = 0
    with tempfile.TemporaryDirectory() as folder:
        place = Place(folder)
        served = [f"{name}=examples/{name.replace('-', '_')}.xml" for name in ("cl-debug", "dp-tt-cfg")]
        log = place.path("server.log")
        with open(log, "wb") as out:
            server = subprocess.Popen([tarn, "answer", "--socket", place.socket, *served, "dp-intf=intf.xml"],
                                      cwd=folder, stdout=out, stderr=subprocess.DEVNULL)
        try:
            wait_for(log, "answering on", server)
            for command in commands:
                for line in examples_of(command):
                    count += 1
                    if line.startswith("tarn answer"):
                        serve(place, command, line)
                    elif ":28276" in line:
                        continue  # a port that others may have
                    elif command == "watch":
                        # Runs until it is interrupted.
                        check(command, line, place.shell("timeout -s INT 1 " + line), exits=(0, 1, 124))
                    else:
                        check(command, line, place.shell(line))
        finally:
            server.terminate()
            server.wait()
    if count < 30:
        problems.append(f"only {count} examples were found")
    print("\n".join(problems) or f"{count} examples")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
