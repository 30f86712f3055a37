#!/usr/bin/env python3
"""The schemas that tarn prints, with a validator each: schema_documents.py TARN

Random messages of every type are accepted. Damaged ones are refused, and so they are by tarn."""

import copy
import json
import pathlib
import random
import subprocess
import sys
import tempfile

import jsonschema

tarn = sys.argv[1]
scratch = pathlib.Path(tempfile.mkdtemp())
failures = 0


def run(*words, given=None):
    return subprocess.run([str(word) for word in words], input=given, capture_output=True, text=True)


def output(*words):
    done = run(tarn, *words)
    if done.returncode != 0:
        sys.exit(f"tarn {' '.join(words)}: {done.stderr}")
    return done.stdout


def expect(condition, what):
    global failures
    if not condition:
        print(what)
        failures += 1


def places(value, of):
    """All values of a type in a value, as pairs of what contains one and its key."""
    for key, one in list(value.items()) if isinstance(value, dict) else list(enumerate(value)):
        if isinstance(one, of):
            yield value, key
        if isinstance(one, (dict, list)):
            yield from places(one, of)


def damages(message, pick):
    """Messages with one error each."""

    def damaged(of, change):
        other = copy.deepcopy(message)
        found = list(places(other["payload"], of))
        if found:
            change(*pick.choice(found))
            return [other]
        return []

    def rename(holder, key):
        if isinstance(holder, dict):
            holder[str(key) + "x"] = holder.pop(key)
        else:
            holder[key] = "x"

    def put(value):
        return lambda holder, key: holder.__setitem__(key, value)

    yield from damaged(object, rename)
    yield from damaged(int, put(-1))
    yield from damaged(int, put(1 << 64))
    yield from damaged(int, put([]))
    yield from damaged(list, put({}))
    yield from damaged(dict, put(7))
    yield {**message, "message": message["message"] + "x"}
    yield {key: value for key, value in message.items() if key != "payload"}
    yield {**message, "more": 1}


def accepted(text):
    return run(tarn, "encode", "-o", "/dev/null", given=text).returncode == 0


names = [m["name"] for m in json.loads(output("schema", "--json"))["messages"]]
for name in names:
    pick = random.Random(name)
    schema = json.loads(output("schema", "--json-schema", name))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    xsd = scratch / f"{name}.xsd"
    xsd.write_text(output("schema", "--xsd", name))

    def xml_accepted(text):
        return run("xmllint", "--noout", "--schema", xsd, "-", given=text).returncode == 0

    for seed in range(3):
        for tracked in [], ["--tracked"]:
            words = ["generate", name, "--seed", str(seed), "--elements", "2", *tracked, "--form"]
            line, xml = output(*words, "json"), output(*words, "xml")
            message = json.loads(line)
            expect(validator.is_valid(message), f"{name}: JSON is refused: {line[:200]}")
            expect(xml_accepted(xml), f"{name}: XML is refused: {xml[:200]}")
        for bad in damages(message, pick):
            text = json.dumps(bad)
            expect(not accepted(text), f"{name}: tarn accepts {text[:200]}")
            expect(not validator.is_valid(bad), f"{name}: the schema accepts {text[:200]}")
        tags = [tag for tag in ("info", "id", "num", "name") if f"<{tag}" in xml]
        for old, new in [("</lumo_", "<unknown/></lumo_"), (">1<", ">-1<"), (">2<", ">18446744073709551616<"),
                         (">0<", ">text<"), ("<lumo_", "text<lumo_")]:
            at = xml.find(old, len(name) + 2)
            if at < 0:
                continue
            bad = xml[:at] + new + xml[at + len(old):]
            expect(not accepted(bad), f"{name}: tarn accepts {bad[max(0, at - 60):at + 60]}")
            expect(not xml_accepted(bad), f"{name}: the XML Schema accepts {bad[max(0, at - 60):at + 60]}")
if failures:
    sys.exit(f"{failures} failures")
print(f"{len(names)} messages")
