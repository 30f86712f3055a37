"""Prints what reading, writing and building cost in C, C++ and Python: interfaces.py PROGRAM, which measures C and C++."""

import itertools
import statistics
import subprocess
import sys
import time

import lumo_tarn

ELEMENTS = 200
tc, prefix = lumo_tarn.DpTc(), lumo_tarn.Address.of("10.0.0.0/8")
numbers = itertools.count()
filled = lumo_tarn.DpTcList()
filled.tc_list.grow(ELEMENTS)
for number, one in enumerate(filled.tc_list):
    one.set(id=number, src_prefix=prefix)
equal, frame = filled.copy(), filled.to_frame()


def write_number():
    tc.id = next(numbers) & 0xFFFF


def write_address():
    tc.src_prefix = prefix


def build():
    built = lumo_tarn.DpTcList()
    built.tc_list.grow(ELEMENTS)
    for number, one in enumerate(built.tc_list):
        one.id = number
        one.proto = 6


OPERATIONS = {
    "read a number": (1, lambda: tc.id),
    "write a number": (1, write_number),
    "read a number of a nested record": (1, lambda: tc.appl.id),
    "read an address": (1, lambda: tc.src_prefix),
    "write an address": (1, write_address),
    "create and destroy a record": (1, lumo_tarn.DpTc),
    "read a number of each element": (ELEMENTS, lambda: sum(one.id for one in filled.tc_list)),
    "build and destroy a list of 200": (ELEMENTS, build),
    "write its frame": (ELEMENTS, filled.to_frame),
    "read its frame and destroy it": (ELEMENTS, lambda: lumo_tarn.DpTcList.from_frame(frame)),
    "copy and destroy it": (ELEMENTS, filled.copy),
    "compare it with an equal one": (ELEMENTS, lambda: filled == equal),
    "print it": (ELEMENTS, filled.text),
}


def nanoseconds(operation) -> float:
    """The median of nine repetitions of at least 20 ms of processor time."""
    repetitions, times = 1, []
    while len(times) < 9:
        before = time.process_time_ns()
        for _ in range(repetitions):
            operation()
        passed = time.process_time_ns() - before
        if passed < 20_000_000:
            repetitions, times = repetitions * 2, []
        else:
            times.append(passed / repetitions)
    return statistics.median(times)


lines = subprocess.run([sys.argv[1]], check=True, stdout=subprocess.PIPE, text=True).stdout.splitlines()
print("| ns for one record or element | C | C++ | Python | C++ / C | Python / C |\n|---|--:|--:|--:|--:|--:|")
for name, in_c, in_cpp in (line.split("\t") for line in lines):
    items, operation = OPERATIONS.pop(name)
    c, cpp, python = float(in_c), float(in_cpp), nanoseconds(operation) / items
    print(f"| {name} | {c:.0f} | {cpp:.0f} | {python:.0f} | {cpp / c:.2f} | {python / c:.1f} |")
sys.exit(f"not measured in C: {', '.join(OPERATIONS)}" if OPERATIONS else 0)
