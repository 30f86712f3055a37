#!/usr/bin/env python3
"""Runs the commands of a page and compares what they print:  transcript.py PAGE TOOL EXAMPLES [--update]

In the page's indented blocks, a line that begins with "$ " is a command, and the lines up to the next command or the
end of the block are its output, standard error included. A line "..." in the output stands for any number of lines. The
commands run in order, in one shell and in one new folder, which contains the examples. --update writes what was printed
into the page, except where it contains "...".
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

END = "-- end of output --"


def blocks(lines):
    """Yields (command, line number, first and last line of its output) of each command; numbers begin with 0."""
    at = 0
    while at < len(lines):
        if not lines[at].startswith("    $ "):
            at += 1
            continue
        end = at + 1
        while end < len(lines) and lines[end].startswith("    ") and not lines[end].startswith("    $ "):
            end += 1
        yield lines[at][6:], at, at + 1, end
        at = end


def matches(expected, printed):
    """True if the lines are equal; "..." stands for any number of lines."""
    if not expected:
        return not printed
    if expected[0] == "...":
        return any(matches(expected[1:], printed[n:]) for n in range(len(printed) + 1))
    return bool(printed) and expected[0].rstrip() == printed[0].rstrip() and matches(expected[1:], printed[1:])


class Shell:
    """A shell in a folder of its own. Processes that it leaves behind are ended with it."""

    def __init__(self, tool, folder):
        programs = os.path.join(folder, ".bin")
        os.mkdir(programs)
        os.symlink(os.path.abspath(tool), os.path.join(programs, "tarn"))
        environment = dict(os.environ, PATH=programs + ":" + os.environ["PATH"], LC_ALL="C.UTF-8", COLUMNS="100", TZ="UTC")
        self.folder = folder
        self.process = subprocess.Popen(["bash"], cwd=folder, env=environment, start_new_session=True, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def run(self, command):
        """Returns the lines that the command prints. After one that stays in the background, waits for its socket."""
        print(f"{{ {command}\n}} </dev/null; status=$?; echo; echo '{END}'; (exit $status)", file=self.process.stdin, flush=True)
        printed = []
        for line in self.process.stdout:
            if line.rstrip("\n") == END:
                break
            printed.append(line.rstrip("\n"))
        else:
            raise SystemExit(f"the shell ended after: {command}")
        words = command.split()
        if words[-1] == "&" and "--socket" in words:
            self.wait_for(words[words.index("--socket") + 1])
        return printed[:-1] if printed[-1] == "" else printed

    def wait_for(self, path):
        for _ in range(600):
            if os.path.exists(os.path.join(self.folder, path)):
                return
            time.sleep(0.1)
        raise SystemExit(f"{path} does not appear")

    def end(self):
        os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()


def main(page, tool, examples, update=False):
    with open(page, encoding="utf-8") as file:
        lines = file.read().split("\n")
    folder = tempfile.mkdtemp()
    shutil.copytree(examples, os.path.join(folder, "examples"))
    shell = Shell(tool, folder)
    wrong, current = 0, []
    try:
        done = count = 0
        for command, at, first, last in blocks(lines):
            count += 1
            expected = [line[4:] for line in lines[first:last]]
            printed = shell.run(command)
            current += lines[done:first]
            done = last
            if matches(expected, printed):
                current += lines[first:last]
                continue
            wrong += 1
            current += lines[first:last] if "..." in expected else ["    " + line for line in printed]
            if not update or "..." in expected:
                print(f"{page}:{at + 1}: $ {command}\n  the page says:", *expected, "  it prints:", *printed, sep="\n    ")
        current += lines[done:]
    finally:
        shell.end()
        shutil.rmtree(folder)
    if count == 0:
        raise SystemExit(f"{page}: no command")
    if update:
        with open(page, "w", encoding="utf-8") as file:
            file.write("\n".join(current))
    elif wrong:
        raise SystemExit(f"{wrong} of {count} commands print something else")
    print(f"{count} commands")


if __name__ == "__main__":
    main(*sys.argv[1:4], update="--update" in sys.argv[4:])
