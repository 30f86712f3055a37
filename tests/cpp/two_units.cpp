// The C++ interface in a program of two units without exceptions, where contexts keep errors.
#include "tests/cpp/two_units.h"

using namespace lumo_ui_tarn;
using units::expect;

namespace {

void test(mirk_handle *h) {
    context c(h);
    debug_setting levels(c);
    const frame whole = levels.set_warn_enabled(true).to_frame();
    expect(debug_setting::from_frame(c, whole).warn_enabled(), "a frame is read");
    expect(c.ok(), "nothing failed so far");
    (void)debug_setting::from_frame(c, whole.data(), 3);
    expect(!c.ok(), "a truncated frame is an error");
    expect(!levels.warn_enabled(), "calls after an error are no-ops");
    expect(c.take_error().value() != 0 && c.ok(), "take_error clears the error");
    expect(levels.warn_enabled(), "the record is unchanged");
}

}  // namespace

int main() {
    mirk_platform_trace_set_levels(1);
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    test(h);
    expect(mirk_platform_handle_close(h) == 0, "every block is freed");
    units::use_everything();
    units::use_everything_again();
    return units::failures;
}
