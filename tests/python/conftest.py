"""Fixtures of the package's tests: the tool, to compare with, and random values of records."""

import json
import os
import subprocess

import lumo_tarn
import pytest
from hypothesis import settings
from hypothesis import strategies as st
from lumo_tarn import _schema

TOOL = os.environ["TARN_TOOL"]

# Builds with sanitizers are slow, so there is no deadline.
settings.register_profile("suite", deadline=None, max_examples=25, derandomize=True)
settings.load_profile("suite")


def tool(*arguments: str, given: bytes = b"") -> bytes:
    run = subprocess.run([TOOL, *arguments], input=given, capture_output=True, check=False)
    assert run.returncode == 0, run.stderr.decode()
    return run.stdout


def json_lines(data: bytes) -> list:
    return [json.loads(line) for line in data.splitlines()]


RECORDS = [getattr(lumo_tarn, row[0]) for row in _schema.RECORDS.values()]
MESSAGES = [getattr(lumo_tarn, row[0]) for row in _schema.MESSAGES.values()]

# Characters that XML can contain.
CHARACTERS = st.characters(min_codepoint=32, max_codepoint=0x2FFF, blacklist_categories=("Cs", "Cc", "Cn"))
TEXTS = st.text(CHARACTERS, min_size=1, max_size=12)
WORDS = st.integers(0, 0xFFFFFFFF)
ADDRESSES = st.one_of(
    st.just("unset"),
    st.builds("{}/{}".format, st.ip_addresses(v=4), st.integers(0, 32)),
    st.builds("{}%{}/{}".format, st.ip_addresses(v=6), st.integers(1, 0xFFFF), st.integers(0, 128)),
    st.builds("77,{},{},{},{},{}/{}".format, st.integers(0, 9), WORDS, WORDS, WORDS, WORDS, st.integers(0, 255)),
).map(lambda text: str(lumo_tarn.Address.of(text)))
BITS = {"u8": 8, "u16": 16, "u32": 32, "u64": 64}


def values_of(record: str) -> st.SearchStrategy:
    """Values in the form of to_dict."""
    members = {}
    for _, name, kind, of, _ in _schema.RECORDS[record][2]:
        if kind in BITS:
            members[name] = st.integers(0, (1 << BITS[kind]) - 1)
        elif kind == "boolean":
            members[name] = st.booleans()
        elif kind == "enumeration":
            members[name] = st.sampled_from(_schema.ENUMERATIONS[of][2])
        elif kind == "address":
            members[name] = ADDRESSES
        elif kind == "string":
            members[name] = TEXTS
        elif kind == "record":
            members[name] = values_of(of)
        elif kind == "array":
            members[name] = st.lists(st.deferred(lambda of=of: values_of(of)), max_size=2)
    return st.fixed_dictionaries(members)


@pytest.fixture(params=[False, True], ids=["plain", "tracked"])
def handle(request: pytest.FixtureRequest):
    """A handle of the test. At the end of the test all objects on it must be destroyed."""
    own = lumo_tarn.Handle(tracked=request.param)
    yield own
    assert own.live_blocks() == 0
