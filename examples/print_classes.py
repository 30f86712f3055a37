"""Prints the traffic classes of a captured answer: print_classes.py FILE, from "tarn show dp-tt-cfg --save FILE"."""

import sys

import lumo_tarn

if len(sys.argv) != 2:
    sys.exit(__doc__)
for message in lumo_tarn.messages(sys.argv[1]):
    for table in message.payload.lumo_data:
        for tc in table.agg_tc_list.tc_list:
            print(tc.id, tc.src_prefix, tc.dst_prefix)
