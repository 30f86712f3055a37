#!/usr/bin/env python3
"""The schemas that tarn prints, with a validator each: schema_documents.py TARN PAGE

Random messages of every type are accepted. Damaged ones are refused, and so they are by tarn. Editors find in the
schemas what they propose for completion: all members with their meanings, and all enumerators. The table in PAGE,
docs/json.md, lists what they propose for a message."""

import copy
import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile

import jsonschema

tarn, page = sys.argv[1:]
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


def alternatives(schema, part):
    """The schemas that a part of a schema refers to or lists."""
    if "$ref" in part:
        yield from alternatives(schema, schema["$defs"][part["$ref"].rpartition("/")[2]])
    elif "anyOf" in part:
        for one in part["anyOf"]:
            yield from alternatives(schema, one)
    else:
        yield part


def proposals(schema, part):
    """The keys, or the values, that an editor proposes for a part of a schema, with what it says about them."""
    found = {}
    for one in alternatives(schema, part):
        for name, member in one.get("properties", {}).items():
            found[name] = member.get("description")
        for value in one.get("enum", [one["const"]] if "const" in one else []):
            found[value] = None
    return found


def expect_completion(schema, described):
    """Members and enumerators of all records in a schema are proposed."""
    for name, definition in schema["$defs"].items():
        if name not in described["records"]:
            continue
        proposed = proposals(schema, definition)
        for member in described["records"][name]["members"]:
            expect(proposed.get(member["name"]) == member["meaning"], f"{name}: {member['name']} has no meaning")
            enumerators = described["enumerations"].get(member["kind"], {}).get("enumerators", [])
            values = proposals(schema, definition["properties"].get(member["name"], {}))
            expect(set(enumerators) <= set(values), f"{name}: enumerators of {member['name']} are not proposed")


def expect_table(schema):
    """The rows of the page list what is proposed."""
    places = {"in the outermost object": schema, "value of `message`": schema["properties"]["message"],
              "in the object `payload`": schema["properties"]["payload"]}
    rows = re.findall(r"^\| ((?:in|value) .*?) \| (.*) \|$", pathlib.Path(page).read_text(), re.M)
    expect(len(rows) == len(places), f"{page}: {len(rows)} places")
    for place, names in rows:
        expect(re.findall(r"`(.*?)`", names) == list(proposals(schema, places[place])), f"{page}: {place}")


def accepted(text):
    return run(tarn, "encode", "-o", "/dev/null", given=text).returncode == 0


described = json.loads(output("schema", "--json"))
names = [m["name"] for m in described["messages"]]
for list_name in "records", "enumerations":
    described[list_name] = {one["name"]: one for one in described[list_name]}
expect_table(json.loads(output("schema", "--json-schema", "cl-debug")))
for name in names:
    pick = random.Random(name)
    schema = json.loads(output("schema", "--json-schema", name))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    expect_completion(schema, described)
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
