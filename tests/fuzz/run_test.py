"""tests/fuzz/run passes on time and options, keeps a corpus, counts, and fails if a target found something or stopped.

run_test.py SCRATCH

Its fuzzers are scripts that print what a fuzzer prints."""

import pathlib
import re
import shutil
import subprocess
import sys
import zipfile

script = pathlib.Path(__file__).resolve().with_name("run")
scratch = pathlib.Path(sys.argv[1]).resolve()
out, corpus = scratch / "out", scratch / "corpus"

# Reports the inputs of its folders as executions, keeps one more input, and then does what is appended.
FUZZER = r"""#!/usr/bin/env bash
echo "flags: $*"
folders=("${@: -2}")
inputs=$(find "${folders[@]}" -type f | wc -l)
echo "INFO: Loaded 1 modules   (500 inline 8-bit counters): 500 [0x1, 0x2),"
echo "#9	NEW    cov: 120 ft: 340 corp: 7/99b"
echo "stat::number_of_executed_units: $((inputs * 100))"
mktemp "${folders[0]}/XXXXXX" >/dev/null
for flag in "$@"; do [[ $flag != -artifact_prefix=* ]] || prefix=${flag#*=}; done
"""


def write_target(name, ending=""):
    program = out / f"fuzz_{name}"
    program.write_text(FUZZER + ending)
    program.chmod(0o755)
    (out / f"fuzz_{name}.options").write_text("[libfuzzer]\nmax_len = 99\n")
    (out / f"fuzz_{name}.dict").write_text('"word"\n')
    with zipfile.ZipFile(out / f"fuzz_{name}_seed_corpus.zip", "w") as seeds:
        for seed in "one", "two":
            seeds.writestr(seed, seed)


def run(*arguments):
    result = subprocess.run([script, out, *arguments], capture_output=True, text=True, timeout=60)
    return result.returncode, result.stdout + result.stderr


def log(name):
    return (out / "log" / name).read_text()


def rows(output):
    """Without processor time and the rate, which depend on the machine."""
    return {words[0]: words[1:2] + words[4:] for words in map(str.split, output.splitlines()) if words}


shutil.rmtree(scratch, ignore_errors=True)
out.mkdir(parents=True)
write_target("first")
write_target("second")

# Executions, edges reached and all, features, inputs kept, findings; and the sum.
code, output = run("10s")
assert code == 0, output
assert rows(output)["first"] == ["200", "120", "500", "340", "7", "0"], output
assert rows(output)["all"] == ["400", "0"], output
figures = [line.split("\t") for line in (out / "figures.tsv").read_text().splitlines()]
assert figures[0][:4] == ["target", "executions", "cpu_seconds", "per_second"] and len(figures[0]) == 9, figures
assert "-max_len=99" in log("first") and f"-dict={out}/fuzz_first.dict" in log("first"), log("first")

# Without a folder for it, nothing is kept.
assert rows(run("10s")[1])["all"] == ["400", "0"]

for time, seconds in ("3", 180), ("3m", 180), ("45s", 45), ("2h", 7200):
    assert run(time, "first")[0] == 0
    given = int(re.search(r"-max_total_time=(\d+) ", log("first"))[1])
    assert seconds - 15 < given <= seconds, (time, log("first"))  # from the start of the script
for wrong in ("soon",), ("1d",), ("1s", "--jobs", "many"), ("1s", "--unknown"), ("1s", "third"), ():
    assert run(*wrong)[0] == 2, wrong

# With one, the second run begins with what the first one kept, and the totals are of both.
assert run("10s", "--corpus", corpus, "--jobs", "1")[0] == 0
code, output = run("10s", "--corpus", corpus)
assert code == 0 and rows(output.split("All runs")[0])["all"] == ["600", "0"], output
totals = output.split("All runs")[1].splitlines()
assert any(re.fullmatch(r"first +500 in [0-9]+ s", line) for line in totals), output
assert any(re.fullmatch(r"all +1000 in [0-9]+ s, 0 findings", line) for line in totals), output

# A finding: the target is restarted, and the run fails in the end.
write_target("second", '[ -f "${prefix}crash" ] || { touch "${prefix}crash"; exit 77; }\n')
code, output = run("10s")
assert code == 1 and rows(output)["second"][-1] == "1" and log("second").count("flags:") == 2, output
assert rows(output)["first"][-1] == "0", output

write_target("second", "echo out of luck; exit 1\n")
code, output = run("10s")
assert code == 1 and "second stopped before its time" in output and "out of luck" in output, output
