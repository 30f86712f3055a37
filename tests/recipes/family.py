"""Add a family: T_count_written, how many members of an instance were written."""

NEW = ["count_written"]


def add_family(tree):
    tree.create("families/count_written.cpp", r"""#include "families/accessors.h"
#include "kinds/kinds.h"

namespace tarn {

// Members with a state byte other than 0. Counts and lengths have none.
template <const Record &R>
struct CountWritten {
    static std::uint32_t count_written(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                       std::uint32_t *err) {
        std::uint32_t n = 0;
        if (!enter(h, err)) return n;
        walk<R>(cases{
            [](CounterMember auto) {},
            [&]<class F>(F) { n += StateByte<F>::get(h, ctx_id, object, err) != 0 ? 1 : 0; },
        });
        return n;
    }
};

}  // namespace tarn

#include "exports/count_written.inc"
""")
    tree.insert("tools/generate/operations.cpp", r"""    {record, "count_written", "Written members", "uint32_t {r}_count_written(H, I, {r} *object, E)",
     "CountWritten<{R}>::count_written",
     "Returns the number of members whose state byte is not 0. EINVAL if the handle's tracking is off or the object has "
     "no state.",
     zero},
""", before="\n    // ---- members with one value\n")
    tree.insert("include/lumo_ui_tarn/families.h", r""" * Written members (T_count_written)
 * ---------------------------------
 * The number of members that were written. A nested record counts as one member, whatever was written in it.
 *
 *
""", before=" * Enumerations\n")


STEPS = [(add_family, 4)]

C = r"""
#include <assert.h>
#include <errno.h>
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

static void count(mirk_platform_tracking tracking, uint32_t expected, uint32_t error) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = tracking;
    mirk_handle *h = mirk_platform_handle_open(&options);
    uint32_t err = 0;
    lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_create(h, 1);
    lumo_tarn_dp_tc_tos_set_value(h, 1, tc, 5, &err);
    lumo_tarn_dp_tc_id_set_value(h, 1, tc, 77, &err);
    assert(err == 0);
    assert(lumo_tarn_dp_tc_count_written(h, 1, tc, &err) == expected && err == error);
    h->last_error = 0;
    assert(lumo_tarn_dp_tc_count_written_cr(h, tc) == expected && h->last_error == error);
    h->last_error = ENOMEM;
    assert(lumo_tarn_dp_tc_count_written_cr(h, tc) == 0 && h->last_error == ENOMEM);
    lumo_tarn_dp_tc_destroy(h, 1, tc);
    assert(mirk_platform_handle_close(h) == 0);
}

int main(void) {
    count(MIRK_PLATFORM_TRACKING_ON, 2, 0);
    count(MIRK_PLATFORM_TRACKING_NONE, 0, EINVAL);
    return 0;
}
"""

CPP = r"""
#include <cassert>
#include <lumo_ui_tarn.hpp>
#include <mirk_platform.h>

int main() {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    mirk_handle *h = mirk_platform_handle_open(&options);
    {
        lumo_ui_tarn::context c(h);
        lumo_ui_tarn::dp_tc tc(c);
        tc.set_tos(5).set_id(77);
        assert(c.call(lumo_ui_tarn::dp_tc_type::count_written, tc.get()) == 2);
        lumo_ui_tarn::for_each_record([&c](auto kind) {
            typename decltype(kind)::type object(c);
            using type = typename decltype(object)::record_type;
            assert(c.call(type::count_written, object.get()) == 0);
            object.set_all_states(1);
            std::uint32_t with_state = 0;
            object.for_each_member([&](auto member) {
                if constexpr (!std::is_null_pointer_v<decltype(member.get_state)>) ++with_state;
            });
            assert(c.call(type::count_written, object.get()) == with_state);
        });
    }
    assert(mirk_platform_handle_close(h) == 0);
}
"""

PYTHON = """
import lumo_tarn
from lumo_tarn._native import lib
tracked = lumo_tarn.handle(tracked=True)
tc = lumo_tarn.DpTc(on=tracked, tos=5, id=77)
assert tracked.call(lib.lumo_tarn_dp_tc_count_written, tc.native) == 2
"""

FILES = [
    ("include/lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "@name Written members\n"),
    ("include/lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "uint32_t lumo_tarn_dp_tc_count_written_cr("),
    ("include/lumo_ui_tarn.hpp", "    static constexpr auto count_written = RECORD##_count_written"),
    ("tests/golden/exports.txt", "T lumo_tarn_pal_mp_prefix_data_count_written\n"),
    ("build/dev/docs/lumo_ui_tarn.3", ".It Fn RECORD_count_written\nReturns the number of members"),
    ("build/dev/tools/reflect/generated/tools/reflect/operations.h", "(*count_written)("),
    ("build/dev/tools/reflect/generated/drivers.inc", '{"record", "count_written"'),
]

TOOL = []
