"""Checks that the manual pages are complete.  manual.py TARN FOLDER_OF_PAGES"""

import json
import os
import re
import subprocess
import sys

tarn, folder = sys.argv[1:]


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def page(name):
    text = run("mandoc", "-T", "utf8", "-O", "width=1000", f"{folder}/{name}")
    return re.sub(".\b", "", text)


def words(text):
    return set(re.findall(r"[A-Za-z0-9_]+", text))


missing = []


def expect(things, found, where):
    missing.extend(f"{thing} is not in {where}" for thing in sorted(set(things) - set(found)))


# tarn(1): every command. tarn-COMMAND(1): every option of the command, and no other.
tool = page("tarn.1")
commands = re.findall(r"^  ([a-z]+) {2,}", run(tarn, "--help").split("Subcommands:")[1], re.M)
if len(commands) < 10:
    sys.exit(f"only {len(commands)} commands were found")
listed = re.findall(r"^     tarn-([a-z]+)\(1\)$", tool, re.M)
expect(commands, listed, "tarn(1)")
expect(listed, commands, "tarn --help")
pages = [re.fullmatch(r"tarn-([a-z]+)\.1", name) for name in os.listdir(folder)]
expect([found[1] for found in pages if found], commands, "tarn --help")
for heading in "ENVIRONMENT", "EXIT STATUS", "EXAMPLES":
    expect([heading], re.findall(r"^[A-Z ]+$", tool, re.M), "tarn(1)")
option = r"(?<![\w-])(--?[a-z][a-z-]*)"
for command in commands:
    sections = dict(re.findall(r"^([A-Z ]+)\n(.*?)(?=^[A-Z]|^\S|\Z)", page(f"tarn-{command}.1"), re.M | re.S))
    where = f"tarn-{command}(1)"
    expect(["NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "EXIT STATUS", "EXAMPLES", "SEE ALSO"], sections, where)
    # In the help an option begins its line; in the manual it is the head of an item.
    offered = re.findall(option, "\n".join(re.findall(r"^ {2,4}(-[^ ]*)", run(tarn, command, "--help"), re.M)))
    documented = re.findall(option, "\n".join(re.findall(r"^ {5}(-.*)", sections.get("OPTIONS", ""), re.M)))
    if len(offered) < 2:
        sys.exit(f"only {offered} were found in tarn {command} --help")
    expect(offered, documented, where)
    expect(documented, offered, f"tarn {command} --help")
    # Only examples keep their line ends.
    help_text = run(tarn, command, "--help").split("Examples:\n")[1]
    expect([line.strip() for line in help_text.splitlines() if line.strip()],
           [line.strip() for line in sections.get("EXAMPLES", "").splitlines()], f"the examples of {where}")

# lumo_ui_tarn(3) and tarn_frame(5): every name of the schema.
schema = json.loads(run(tarn, "schema", "--json"))
library, frame = words(page("lumo_ui_tarn.3")), words(page("tarn_frame.5"))
for kind in "records", "enumerations", "messages", "bundles":
    names = [one["name"] for one in schema[kind]]
    expect(names, library, "lumo_ui_tarn(3)")
    expect(names, frame, "tarn_frame(5)")
for enumeration in schema["enumerations"]:
    expect(enumeration["enumerators"], library & frame, "lumo_ui_tarn(3) and tarn_frame(5)")
expect([one["luid"] for one in schema["messages"]], frame, "tarn_frame(5)")
expect([one[kind] for one in schema["bundles"] for kind in ("start", "abort", "commit")], frame, "tarn_frame(5)")
records = dict(re.findall(r"^   (\S+)\n(.*?)(?=^   \S|^\S)", page("tarn_frame.5"), re.M | re.S))
for record in schema["records"]:
    rows = re.findall(r"^ {5}(\w+)\s.*?\s(\d+\+?)\s", records.get(record["name"], ""), re.M)
    expect([(m["name"], m["wire"]) for m in record["members"]], rows, f"tarn_frame(5) under {record['name']}")

print("\n".join(missing))
sys.exit(1 if missing else 0)
