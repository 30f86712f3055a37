"""Compares rows() with "tarn rows --format csv": rows.py FOLDER. Prints the processor time of both for 100,000
classes with ten columns, and fails if Python takes more than ten times as long."""

import os
import pathlib
import resource
import subprocess
import sys

import lumo_tarn

MOST = 10
COLUMNS = "id,src_prefix,dst_prefix,proto,tos,flags,src_port_min,src_port_max,appl.id,next_ptr"
PROGRAM = f"import lumo_tarn, sys; print(len(list(lumo_tarn.rows(sys.argv[1], 'tc', '{COLUMNS}'.split(',')))))"


def processor_time(*command: str) -> float:
    times = []
    for _ in range(3):
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        times.append(after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime)
    return min(times)


classes = lumo_tarn.DpTcList()
classes.tc_list.grow(1000)
for number, tc in enumerate(classes.tc_list):
    tc.set(id=number, src_prefix=f"10.0.{number % 256}.0/24", dst_prefix=f"2001:db8::{number:x}/128", next_ptr=number << 32)
message = lumo_tarn.DpTtMsg(lumo_tarn.DpTtTableData(lumo_data=[{"agg_tc_list": classes}]))
capture = pathlib.Path(sys.argv[1], "classes.bin")
capture.parent.mkdir(parents=True, exist_ok=True)
capture.write_bytes(message.to_frame() * 100)

tool = processor_time(os.environ["TARN_TOOL"], "rows", "tc", str(capture), "--columns", COLUMNS, "--format", "csv")
python = processor_time(sys.executable, "-c", PROGRAM, str(capture))
print(f"100,000 rows of ten columns: tarn rows {tool:.2f} s, rows() {python:.2f} s, {python / tool:.1f} times as long")
sys.exit(python > MOST * tool)
