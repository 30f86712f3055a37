// Shared by the targets that include headers of the tool.
#pragma once

#include "fuzz.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/trace.h"

namespace fuzz {

// The input of a target. Before the first one, the trace is turned off, and `set_up` runs.
template <class SetUp = void (*)()>
Input tool_input(
    const std::uint8_t *data, std::size_t size, SetUp &&set_up = [] {}) {
    static const bool done = [&] {
        tarn::tool::set_up_trace(false);
        mirk_platform_trace_set_levels(1);
        set_up();
        return true;
    }();
    require(done, "the target is set up");
    return {data, size};
}

// What the tool refuses is a Failure with a sentence. Returns whether it was none.
template <class Call>
bool succeeds(Call &&call) {
    try {
        call();
        return true;
    } catch (const tarn::tool::Failure &failure) {
        require(failure.what()[0] != 0, "a failure has a sentence");
        return false;
    }
}

}  // namespace fuzz
