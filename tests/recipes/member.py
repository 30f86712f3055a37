"""Add a member: idle_limit, at the end of a traffic class and of two records in the pictures of the tour."""

import functools

NEW = ["idle_limit"]


# The sizes are those in the independent codec's table: used, rounded, slop, base, state, tracked.
def add_member(topic, last, sizes, new_sizes, next_record, tree):
    tree.insert(f"schema/records/{topic}.h", '    u16("idle_limit", "how long the class may stay idle"),\n', after=last)
    table = "tests/support/reference/record_tables.cpp"
    tree.replace(table, sizes, new_sizes)
    tree.insert(table, "  idle_limit integer u_int16\n", before=f"record {next_record} ")


STEPS = [
    (functools.partial(add_member, "traffic_class", '    u32("id", "identifier of the class"),\n',
                       "ed7168bceeaa74618db6b05286fecacb 300 304 20 320 44 364",
                       "ed7168bceeaa74618db6b05286fecacb 302 304 18 320 45 365", "lumo_tarn_dp_tc_list"), 1),
    (functools.partial(add_member, "debug_setting",
                       '    u32("exporter_mp_enabled", "debug switch of the exporter for mp data"),\n',
                       "ad41ed1f43f7eb0ede202ce5d6780f0a 44 48 12 56 9 65",
                       "ad41ed1f43f7eb0ede202ce5d6780f0a 46 48 10 56 10 66", "lumo_tarn_debug_setting"), 1),
    (functools.partial(add_member, "prefix",
                       '    many("complex_data", lumo_tarn_dp_mp_prefix, "entries, one for each complex"),\n',
                       "7b6d292586e45fb1cd81d6683d42da19 72 72 16 88 24 112",
                       "7b6d292586e45fb1cd81d6683d42da19 74 80 22 96 32 128", "lumo_tarn_dp_mp_prefix_data"), 1),
]

C = r"""
#include <assert.h>
#include <errno.h>
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

int main(void) {
    mirk_handle *h = mirk_platform_handle_open(NULL);
    uint32_t err = 0;
    uint8_t frame[513];
    lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_create(h, 1);
    lumo_tarn_dp_tc_idle_limit_set_value(h, 1, tc, 500, &err);
    uint32_t size = lumo_tarn_dp_tc_marshal(h, 1, frame, tc, 512, &err);
    lumo_tarn_dp_tc *read = lumo_tarn_dp_tc_create(h, 1);
    assert(lumo_tarn_dp_tc_unmarshal(h, 1, frame, read, size, 0, &err) == size);
    assert(lumo_tarn_dp_tc_idle_limit_get_value(h, 1, read, &err) == 500);
    assert(lumo_tarn_dp_tc_compare(tc, read) == 0 && err == 0);

    /* The frame of a writer that does not have the member yet: two bytes less, and a jump that ends there. */
    frame[5] = (uint8_t)(frame[5] - 2);
    lumo_tarn_dp_tc_unmarshal(h, 1, frame, read, size - 2, 1, &err);
    assert(err == EMSGSIZE);
    lumo_tarn_dp_tc_destroy(h, 1, read);
    lumo_tarn_dp_tc_destroy(h, 1, tc);
    assert(mirk_platform_handle_close(h) == 0);
    return 0;
}
"""

CPP = r"""
#undef NDEBUG
#include <cassert>
#include <lumo_ui_tarn.hpp>
#include <mirk_platform.h>

int main() {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    {
        lumo_ui_tarn::context c(h);
        lumo_ui_tarn::dp_tc tc(c);
        assert(tc.set_idle_limit(500).set_tos(1).idle_limit() == 500);
    }
    assert(mirk_platform_handle_close(h) == 0);
}
"""

PYTHON = """
import lumo_tarn
tc = lumo_tarn.DpTc(idle_limit=500)
assert lumo_tarn.DpTc.from_xml(tc.to_xml()).idle_limit == 500
assert lumo_tarn.DpTc.idle_limit.__doc__.startswith("how long the class may stay idle: ")
"""

FILES = [
    ("include/lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "@name idle_limit: how long the class may stay idle\n"),
    ("include/lumo_ui_tarn.hpp", "/// How long the class may stay idle.\n"),
    ("tests/golden/exports.txt", "T lumo_tarn_dp_tc_idle_limit_get_value"),
    ("tests/golden/layout.txt", "idle_limit"),
    ("build/dev/bindings/python/lumo_tarn/records.pyi", "def idle_limit(self) -> int"),
    ("build/dev/tools/generate/dissector/tarn.lua", '{ "idle_limit", "u16", "how long the class may stay idle"'),
    ("docs/pictures/frame.svg", "idle_limit"),
    ("docs/pictures/state_area.svg", "idle_limit"),
    ("build/dev/docs/tarn_frame.5", ".It idle_limit\nu16, 2 bytes: how long the class may stay idle\n"),
]

TOOL = [
    ("schema lumo_tarn_dp_tc", "idle_limit     u_int16"),
    ("schema --json", '"name": "idle_limit"'),
    ("schema --html", '"name":"idle_limit"'),
    ("complete schema lumo_tarn_dp_tc.idl", "lumo_tarn_dp_tc.idle_limit\thow long the class may stay idle\n"),
    ("generate dp-mp-tc-cfg --form json", '"idle_limit":'),
    ("encode examples/dp_mp_tc_cfg.xml -o build/frames", ""),
    ("decode --json build/frames", '"idle_limit":0'),
    ("dissect build/frames", " idle_limit "),
    ("view build/frames", '"idle_limit":["u_int16","how long the class may stay idle"]'),
]
