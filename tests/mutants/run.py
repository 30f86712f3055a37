#!/usr/bin/python3
"""Runs the tests against one mutant after the other, and prints how many they detect.

    run.py BUILD MUTANTS EQUIVALENT

Each test program that reaches the mutant runs to its first failure, the fast ones first. A mutant is detected if a program
fails, crashes or takes ten times as long as usual. EQUIVALENT lists mutants that no test can detect, each with the reason;
other survivors have to be judged.

Fails if less than 95 % are detected. A sample of less than a hundred is too small for that share: it fails if more survive,
not counting the listed ones, than tests that detect 95 % would miss in one of a hundred samples."""
import concurrent.futures
import json
import math
import os
import pathlib
import resource
import subprocess
import sys
import time

WANTED = 0.95
LARGE = 100  # from this size on, the share itself is checked
BAD_LUCK = 0.01
PROGRAMS = ["families/families_module_test", "messaging/messaging_replaced_test", "messaging/messaging_sequence_test",
            "families/families_sequence_test", "messaging/messaging_test", "families/families_test", "examples/one_answer",
            "trust/trust_test"]
ONLY = {"trust_test": "AllocationSweep.*"}  # the rest of it takes minutes


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Program:
    def __init__(self, build, name):
        self.name, self.path, self.build = name, build / "tests" / name, build

    def run(self, seconds, **variables):
        environment = dict(os.environ, GTEST_FAIL_FAST="1", GTEST_BRIEF="1",
                           GTEST_FILTER=ONLY.get(self.path.name, "*"), **variables)
        process = subprocess.Popen([self.path], cwd=self.build, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                                   preexec_fn=limit_memory)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None
        finally:
            try:
                os.killpg(process.pid, 9)  # with the processes that it started
            except ProcessLookupError:
                pass
            process.wait()

    def measure(self, count):
        """Measures the time that it takes, and which mutants it reaches."""
        path = self.build / "reached"
        path.write_bytes(bytes(count))
        begin = time.monotonic()
        if self.run(600, TARN_MUTANTS_REACHED=str(path)) != 0:
            sys.exit(f"{self.name} fails without a mutant")
        self.limit = 5 + 10 * (time.monotonic() - begin)
        self.reached = path.read_bytes()


def judge(programs, mutant):
    reaching = [p for p in programs if p.reached[mutant["id"]]]
    for program in reaching:
        code = program.run(program.limit, TARN_MUTANT=str(mutant["id"]))
        if code != 0:
            return "killed", program.name, "took too long" if code is None else "ended" if code < 0 else "failed"
    return "survived" if reaching else "unreached", None, None


def listed(path):
    """Blocks of four lines: file, kind and number among alike ones; the line; the part; the reason."""
    known = {}
    for block in path.read_text().split("\n\n"):
        lines = [line.strip() for line in block.splitlines() if line.strip() and not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4:
            sys.exit(f"{path}: no reason given: {lines}")
        file, kind, nth = lines[0].split()
        known[file, kind, int(nth), lines[1], lines[2]] = " ".join(lines[3:])
    return known


def is_enough(total, killed, unjudged):
    if total >= LARGE:
        return killed >= WANTED * total
    chance = sum(math.comb(total, n) * (1 - WANTED) ** n * WANTED ** (total - n) for n in range(unjudged, total + 1))
    return chance >= BAD_LUCK


def main():
    build, equivalent = pathlib.Path(sys.argv[1]).resolve(), listed(pathlib.Path(sys.argv[3]))
    plan = json.loads(pathlib.Path(sys.argv[2]).read_text())
    mutants = plan["mutants"]
    programs = [Program(build, name) for name in PROGRAMS]
    for program in programs:
        program.measure(len(mutants))
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        results = list(pool.map(lambda m: judge(programs, m), mutants))

    killers, left = {}, []
    for mutant, (verdict, program, how) in zip(mutants, results):
        if verdict == "killed":
            killers[program, how] = killers.get((program, how), 0) + 1
        else:
            left.append((mutant, verdict))
    for (program, how), number in sorted(killers.items(), key=lambda item: -item[1]):
        print(f"{number:5} killed: {program} {how}")
    open_ones = 0
    for mutant, verdict in left:
        key = (mutant["file"], mutant["kind"], mutant["nth"], mutant["text"], mutant["part"])
        reason = equivalent.get(key)
        open_ones += reason is None
        print(f"\n{verdict}: {mutant['file']}:{mutant['line']}\n    {mutant['file']} {mutant['kind']} {mutant['nth']}\n"
              f"    {mutant['text']}\n    {mutant['part']}\n    {reason or 'NOT JUDGED'}")
    total, killed = len(mutants), len(mutants) - len(left)
    print(f"\n{killed} of {total} mutants killed ({100 * killed / total:.1f} %), seed {plan['seed']}, out of "
          f"{plan['possible']} possible ones; {len(left) - open_ones} survivors are judged equivalent, {open_ones} not")
    return 0 if is_enough(total, killed, open_ones) else 1


sys.exit(main())
