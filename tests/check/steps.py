"""A script that runs steps fails if any of its steps fails.  steps.py SOURCES SCRATCH

Runs copies of ./check and similar scripts with stubs instead of all programs that do work. First all stubs succeed; then
each call of a stub fails in turn. No build is configured at the start."""

import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys

sources, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
tree = scratch / "tree"
scripts = "check", "tools/need", "tools/as_root", "tools/regenerate", ".ci/run"
programs = ("apt-get cmake clang-format clang-tidy cppcheck cpack ctest doxygen gcovr lintian npm python3 strip sudo "
            "valgrind").split()

# Each call creates a file with the next free number; set -C makes that atomic.
STUB = r"""#!/bin/sh
set -C
n=1
until true 2>/dev/null >"$CALLS/$n"; do n=$((n + 1)); done
[ "$n" != "$FAILING_CALL" ] || exit 1
case ${0##*/} in
    cmake)
        preset=$(echo " $* " | sed -n 's/.* --preset \([^ ]*\) .*/\1/p')
        case $1 in
            --preset) mkdir -p "build/$preset" && touch "build/$preset/build.ninja" ;;
            --build) [ -f "build/$preset/build.ninja" ] ;;
        esac || exit 1
        ;;
    cpack) mkdir -p packages && echo package >packages/one.deb ;;
    sudo) exec "$@" ;;
esac
exit 0
PROGRAMS = ["some_test"]
"""
QUERY = '#!/bin/sh\nshift 3\n[ -z "$INSTALLED" ] || printf "installed %s\\n" "$@"\n'


def write(name, text, mode=0o755):
    path = tree / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    path.chmod(mode)


def prepare():
    shutil.rmtree(scratch, ignore_errors=True)
    for script in scripts:
        write(script, (sources / script).read_text())
    for program in programs:
        write(f"bin/{program}", STUB)
    write("bin/dpkg-query", QUERY)
    write("bin/id", "#!/bin/sh\necho 1000\n")
    check = (sources / "check").read_text()
    # Programs that are run by their path are at the beginning of a line or after xargs.
    for program in re.findall(r"^ *(?:xargs -0 )?(?:\./)?((?:bench|build|tests)/[\w/.-]+|tools/(?:in_debian|sysroot)|demo)\b",
                              check, re.M):
        write(program, STUB)
    for program in re.search(r"library_tests=\((.*?)\)", check, re.S)[1].split():
        write(f"build/coverage/tests/{program.split('_')[0]}/{program}", STUB)
    for preset in "dev", "mutants", "release-clang":
        write(f"build/{preset}/tools/generate/generate", STUB)
    write("build/dev/tools/tarn/tarn", STUB)
    write("docs/export.md", "", 0o644)
    (tree / "build/coverage/CMakeFiles/lumo_ui_tarn.dir").mkdir(parents=True)
    for folder in ("core", "families", "families/shortcuts", "include", "kinds", "messaging", "platform/contract", "platform/service", "schema",
                   "tests", "tools"):
        for suffix in "cpp", "h":
            write(f"{folder}/one.{suffix}", "", 0o644)
    write("tests/mutants/run.py", STUB)
    write("demo", STUB)


def run(place, command, failing_call=0, installed=True):
    calls = place / "calls"
    shutil.rmtree(calls, ignore_errors=True)
    calls.mkdir()
    for configured in place.glob("build/**/build.ninja"):
        configured.unlink()
    environment = {"PATH": f"{place}/bin:/usr/bin:/bin", "CALLS": str(calls), "FAILING_CALL": str(failing_call),
                   "INSTALLED": "yes" if installed else ""}
    result = subprocess.run([place / command[0], *command[1:]], cwd=scratch, env=environment, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
    return result.returncode, len(list(calls.iterdir())), result.stdout


def errors_of(number, command, installed):
    place = scratch / str(number)
    shutil.copytree(tree, place)
    name = " ".join(command) + ("" if installed else " with missing packages")
    code, calls, output = run(place, command, installed=installed)
    if code != 0 or calls == 0:
        return [f"{name}: exit status {code} after {calls} successful steps\n{output}"]
    found = []
    for call in range(1, calls + 1):
        code, _, output = run(place, command, call, installed)
        if code == 0:
            found.append(f"{name}: exit status 0 although step {call} of {calls} failed\n{output}")
    return found


prepare()
text = subprocess.run([sources / "check", "help"], check=True, capture_output=True, text=True).stdout
names = [name for name in re.findall(r"^  ([a-z0-9]+)\b", text, re.M) if name != "help"]
if len(names) < 10:
    sys.exit(f"only {names} were found in the help text")
commands = [(["check", name], True) for name in names]
commands += [(["check", "bench", "tool"], True), (["check", "fleet", "bench"], True), (["check", "fleet", "survive"], True), (["check"], True), (["check"], False), (["check", "release"], False), (["check", "format"], False)]
commands += [([".ci/run"], True), (["tools/regenerate"], True)]
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    numbers = range(len(commands))
    errors = [error for found in pool.map(errors_of, numbers, *zip(*commands)) for error in found]
print("\n".join(errors))
sys.exit(1 if errors else 0)
