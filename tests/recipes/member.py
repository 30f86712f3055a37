"""Add a member: idle_limit, the last one of a traffic class."""

NEW = ["idle_limit"]


def add_member(tree):
    tree.insert("schema/records/traffic_class.h", '    u16("idle_limit", "how long the class may stay idle"),\n',
                after='    u32("id", "identifier of the class"),\n')
    table = "tests/support/reference/record_tables.cpp"
    tree.replace(table, "ed7168bceeaa74618db6b05286fecacb 300 304 20 320 44 364",
                 "ed7168bceeaa74618db6b05286fecacb 302 304 18 320 45 365")
    tree.insert(table, "  idle_limit integer u_int16\n", before="record lumo_tarn_dp_tc_list")


STEPS = [(add_member, 1)]

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
assert lumo_tarn.DpTc.idle_limit.__doc__ == "how long the class may stay idle"
"""

FILES = [
    ("include/lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "@name idle_limit: how long the class may stay idle\n"),
    ("include/lumo_ui_tarn.hpp", "/// How long the class may stay idle.\n"),
    ("tests/golden/exports.txt", "T lumo_tarn_dp_tc_idle_limit_get_value"),
    ("tests/golden/layout.txt", "idle_limit"),
    ("build/dev/bindings/python/lumo_tarn/records.pyi", "def idle_limit(self) -> int"),
    ("build/dev/tools/generate/dissector/tarn.lua", '{ "idle_limit", "u16", "how long the class may stay idle"'),
    ("build/dev/docs/tarn_frame.5", ".It idle_limit\nu16, 2 bytes: how long the class may stay idle\n"),
]

TOOL = [
    ("schema lumo_tarn_dp_tc", "idle_limit     u_int16"),
    ("schema --json", '"name": "idle_limit"'),
    ("schema --html", '"name":"idle_limit"'),
    ("complete schema lumo_tarn_dp_tc.idl", "lumo_tarn_dp_tc.idle_limit\thow long the class may stay idle\n"),
    ("generate dp-mp-tc-cfg --form json", '"idle_limit":'),
]

TESTS = []
RUN = ""
