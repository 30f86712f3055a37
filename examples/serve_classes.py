"""Serves the traffic classes of a CSV file as the bundle dp-tt-cfg: serve_classes.py FILE ADDRESS

The first line names members of a class, such as id,src_prefix,proto. The file is read for each request. ADDRESS is the
path of a socket file with a slash, or HOST:PORT.
"""

import csv
import signal
import sys

import lumo_tarn

if len(sys.argv) != 3:
    sys.exit(__doc__)


def answer(request):
    with open(sys.argv[1], newline="") as file:
        rows = list(csv.DictReader(file))
    classes = [{name: text if name.endswith("prefix") else int(text) for name, text in row.items()} for row in rows]
    tables = [{"lumo_num": 0, "agg_tc_list": {"tc_list": classes}}]
    return [lumo_tarn.DpTtMsg(lumo_tarn.DpTtTableData(lumo_data=tables))]


with lumo_tarn.serve(sys.argv[2], {"dp-tt-cfg": answer}) as server:
    for number in (signal.SIGINT, signal.SIGTERM):
        signal.signal(number, lambda *_: server.stop())
    print(f"answering on {server.address}", flush=True)
    server.wait()
