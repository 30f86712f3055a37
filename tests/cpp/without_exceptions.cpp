// Reads a valid and an invalid frame in a program without exceptions, where the context keeps the errors.
#include <mirk_platform.h>

#include <cstdio>
#include <lumo_ui_tarn.hpp>

using namespace lumo_ui_tarn;

namespace {

int failures = 0;

void expect(bool holds, const char *what) {
    if (holds) return;
    std::printf("failed: %s\n", what);
    ++failures;
}

void test(mirk_handle *h) {
    context c(h);
    debug_setting levels(c);
    const frame whole = levels.set_warn_enabled(true).to_frame();
    expect(debug_setting::from_frame(c, whole).warn_enabled(), "a frame is read");
    expect(c.ok(), "nothing failed so far");
    debug_setting::from_frame(c, whole.data(), 3);
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
    return failures;
}
